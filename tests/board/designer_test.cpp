#include "board/designer.h"

#include "board/course.h"

#include <gtest/gtest.h>

#include <string>

TEST(Designer, OffersTheSectionsThatMayFollow)
{
    startDesign();
    EXPECT_EQ(nextSections().section, (Table<int, 2>{0, 6}));
    EXPECT_EQ(previewedSection(), 0);
    chooseSection(1);
    EXPECT_EQ(previewedSection(), 6);
    chooseSection(2); // there is none
    EXPECT_EQ(courseScreens.designChoice, 1);
    addSection();
    EXPECT_EQ(courseText, "6");
    EXPECT_EQ(courseScreens.designChoice, 0);
    EXPECT_EQ(nextSections().section, (Table<int, 2>{4, 7}));
    addSection();
    EXPECT_EQ(nextSections().designChoiceCount, 1);
    EXPECT_FALSE(designFinished());
}

TEST(Designer, TheFinishWinsOverASprintAndEndsTheDesign)
{
    startDesign();
    toggleSprint(); // nothing to mark yet
    toggleFinish();
    addSection();
    EXPECT_EQ(courseText, "0");
    toggleSprint();
    toggleFinish();
    addSection();
    EXPECT_TRUE(designFinished());
    EXPECT_FALSE(courseScreens.designSprintChecked || courseScreens.designFinishChecked);
    EXPECT_EQ(nextSections().designChoiceCount, 0);
    EXPECT_EQ(previewedSection(), 1);
    addSection();
    EXPECT_EQ(courseText, "01F");
}

TEST(Designer, TakesSectionsBackWithTheirMarks)
{
    startDesign();
    courseText = "012S3F";
    const auto undo = [](const char* left, bool sprint, bool finish) {
        undoSection();
        EXPECT_EQ(courseText, left);
        EXPECT_EQ(courseScreens.designSprintChecked, sprint) << left;
        EXPECT_EQ(courseScreens.designFinishChecked, finish) << left;
    };
    undo("012S", false, true);
    undo("01", true, false);
    undo("0", false, false);
    undo("", false, false);
    undo("", false, false);
    EXPECT_EQ(nextSections().designChoiceCount, 2);
}

TEST(Designer, HasThreeSprintsAndFourLapsAtTheMost)
{
    startDesign();
    for (int i = 0; i < 40 && !designFinished(); ++i) {
        toggleSprint();
        EXPECT_EQ(courseScreens.designSprintChecked, i > 0 && designSprintCount() < 3);
        addSection();
    }
    EXPECT_EQ(courseText, "01S2S3S45123451234512345F");
}

TEST(Designer, RunsOutOntoTheNextTwoSections)
{
    const char* designs[][2] = {{"012S37812F", "012S37812F34"},
                                {"012345F", "012345F12"},
                                {"67F", "67F81"},
                                {"678F", "678F12"},
                                {"6451234F", "6451234F51"},
                                {"01F23", "01F23"}};
    for (const auto& [from, to] : designs) {
        courseText = from;
        appendRunOut();
        EXPECT_EQ(courseText, to);
    }
}

// What lies in a file may be any text.
TEST(Designer, KnowsItsOwnDesignsAndNothingElse)
{
    for (const char* text : {"01F", "64S5F", "678S1S2S3F", "01S2S3S45123451234512345F"})
        EXPECT_TRUE(isFinishedDesign(text)) << text;
    for (const char* text :
         {"", "F", "0", "01", "1F", "0F1F", "0F", "6S45F", "0S1F", "01F23", "02F", "01SSF", "01FF",
          "0S1F2", "01S2S3S4S5F", "0123451234512345123451F", "01 F"})
        EXPECT_FALSE(isFinishedDesign(text)) << text;
}
