#include "board/course.h"

#include "support/races.h"

#include <gtest/gtest.h>

TEST(Course, HasItsRowsLinesAndLaps)
{
    // clang-format off
    const struct {
        const char* text;
        int rows;
        Table<int, 3> sprints;
        int finish;
        Table<int, LAP_END_MAX> lapEnds;
        int lastClimb; // with 17 before it
    } assembled[] = {
        {"64S5F12",                  99, {43, -1, -1},  60, {6, -1, -1, -1, -1},       17},
        {"01S23S7S8F12",            153, {30, 60, 91}, 114, {5, 114, -1, -1, -1},      91},
        {"67S8F12",                  99, {37, -1, -1},  60, {6, -1, -1, -1, -1},       37},
        {"01S23S4S5F12",            153, {30, 60, 97}, 114, {5, 114, -1, -1, -1},      43},
        {"012345123451234512345F12", 480, {-1, -1, -1}, 441, {5, 114, 223, 332, 441}, 370},
        {"01S2S3S4S5F12",           153, {30, 43, 60}, 114, {5, 114, -1, -1, -1},      43},
    };
    // clang-format on
    for (const auto& known : assembled) { // a fourth sprint, as in the last, is skipped
        SCOPED_TRACE(known.text);
        course = {};
        course.lastClimbRow = 17;
        courseText = known.text;
        assembleCourse();
        EXPECT_EQ(course.courseRowCount, known.rows);
        EXPECT_EQ(course.sprintRows, known.sprints);
        EXPECT_EQ(course.finishRow, known.finish);
        EXPECT_EQ(course.lapEndRows, known.lapEnds);
        EXPECT_EQ(course.lastClimbRow, known.lastClimb);
    }
}

TEST(Course, FindsARiderOnAPrintedSquareThroughAllLaps)
{
    setUpRace(ONE_LAP, {{7, 3, 2}});
    EXPECT_EQ(occupantAt(112, 5), 7);
    EXPECT_EQ(occupantAt(112, 2), -1);
    setUpRace(ONE_LAP, {{7, 108, 5}}); // behind row 0 lies the end of the first lap
    EXPECT_EQ(occupantAt(-1, 2), 7);
    EXPECT_EQ(occupantAt(-1, 3), -1);
}

TEST(CourseTitles, ShowSectionsAndMarksOfEachLap)
{
    struct {
        const char* text;
        int lap;
        const char *names, *marks;
    } const titles[] = {
        {"01S23S4S5F12", 0, "Start 1-A-E-B-D-F", "        S   S S F"},
        {"01S23S4S5F12", 1, "", ""},
        {"012S37812F34", 0, "Start 1-A-E-B-C-F", "          S      "},
        {"012S37812F34", 1, "A-E", "  F"},
        {"64S5F12", 0, "Start 2-D-F", "        S F"},
        {"01", 0, "Start 1-A-", "          "},
        {"", 0, "", ""},
    };
    for (const auto& title : titles) {
        EXPECT_EQ(courseLapTitle(title.text, title.lap).names, title.names);
        EXPECT_EQ(courseLapTitle(title.text, title.lap).marks, title.marks);
    }
}

TEST(CourseTitles, CountLapsDrivenAndLapsTitled)
{
    const struct {
        const char* text;
        int driven, titled;
    } courses[] = {{"01S23S4S5F12", 2, 1}, {"6451234F51", 2, 2}, {"678123781F23", 3, 2}};
    for (const auto& [text, driven, titled] : courses) {
        EXPECT_EQ(countCourseLaps(text, LAPS_DRIVEN), driven) << text;
        EXPECT_EQ(countCourseLaps(text, LAPS_TITLED), titled) << text;
    }
}
