#include "board/designer.h"

#include "board/course.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <initializer_list>
#include <string>

namespace
{

void design(std::initializer_list<int> choices)
{
    startDesign();
    for (const int choice : choices) {
        chooseSection(choice);
        addSection();
    }
}

} // namespace

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
    EXPECT_EQ(courseText, "01F");
    EXPECT_TRUE(designFinished());
    EXPECT_FALSE(courseScreens.designSprintChecked || courseScreens.designFinishChecked);
    EXPECT_EQ(nextSections().designChoiceCount, 0);
    EXPECT_EQ(previewedSection(), 1);
    addSection();
    EXPECT_EQ(courseText, "01F");
}

TEST(Designer, TakesSectionsBackWithTheirMarks)
{
    design({0, 0});
    toggleSprint();
    addSection();
    EXPECT_EQ(courseText, "012S");
    EXPECT_EQ(designSprintCount(), 1);
    toggleFinish();
    addSection();
    EXPECT_EQ(courseText, "012S3F");
    undoSection();
    EXPECT_EQ(courseText, "012S");
    EXPECT_TRUE(courseScreens.designFinishChecked);
    undoSection();
    EXPECT_EQ(courseText, "01");
    EXPECT_TRUE(courseScreens.designSprintChecked);
    EXPECT_FALSE(courseScreens.designFinishChecked);
    undoSection();
    EXPECT_FALSE(courseScreens.designSprintChecked);
    undoSection();
    EXPECT_EQ(courseText, "");
    undoSection();
    EXPECT_EQ(nextSections().designChoiceCount, 2);
}

TEST(Designer, HasThreeSprintsAndFourLapsAtTheMost)
{
    startDesign();
    for (int i = 0; i < 40 && !designFinished(); ++i) {
        toggleSprint();
        addSection();
    }
    EXPECT_EQ(courseText, "01S2S3S45123451234512345F");
    EXPECT_TRUE(isFinishedDesign(courseText));
    appendRunOut();
    EXPECT_EQ(courseText, "01S2S3S45123451234512345F12");
    appendRunOut(); // only behind the finish
    EXPECT_EQ(courseText.size(), 27u);
}

TEST(Designer, RunsOutOntoTheNextTwoSections)
{
    const char* designs[][2] = {{"012S37812F", "012S37812F34"},
                                {"01F", "01F23"},
                                {"012345F", "012345F12"},
                                {"67F", "67F81"},
                                {"678F", "678F12"},
                                {"6451234F", "6451234F51"}};
    for (const auto& [from, to] : designs) {
        courseText = from;
        appendRunOut();
        EXPECT_EQ(courseText, to);
    }
}

TEST(Designer, KnowsItsOwnDesignsAndNothingElse)
{
    std::srand(11);
    for (int round = 0; round < 300; ++round) {
        startDesign();
        while (!designFinished()) {
            chooseSection(std::rand() % 2);
            if (std::rand() % 4 == 0)
                toggleSprint();
            if (std::rand() % 9 == 0)
                toggleFinish();
            addSection();
        }
        ASSERT_TRUE(isFinishedDesign(courseText)) << courseText;
        // Whatever else is written there is no design, or leads to a course of the grid's size.
        std::string broken = courseText;
        broken[static_cast<std::size_t>(std::rand()) % broken.size()] =
            "0123456789SFx \xE9"[std::rand() % 15];
        if (broken != courseText && isFinishedDesign(broken)) {
            courseText = broken;
            appendRunOut();
            assembleCourse();
            EXPECT_LE(course.courseRowCount, 480) << broken;
        }
    }
    for (const char* text :
         {"", "F", "0", "01", "1F", "0F1F", "0F", "6S45F", "0S1F", "01F23", "02F", "01SSF", "01FF",
          "0S1F2", "01S2S3S4S5F", "0123451234512345123451F"})
        EXPECT_FALSE(isFinishedDesign(text)) << text;
}
