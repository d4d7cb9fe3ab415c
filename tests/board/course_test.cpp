#include "board/course.h"

#include "board/designer.h"
#include "support/races.h"

#include <gtest/gtest.h>

namespace
{

void assemble(const char* text)
{
    courseText = text;
    assembleCourse();
}

struct Assembled {
    const char* text;
    int rows;
    Table<int, 3> sprints;
    int finish;
    Table<int, LAP_END_MAX> lapEnds;
    int lastClimb; // with 17 before it
};

// clang-format off
constexpr Assembled ASSEMBLED[] = {
    // course                     rows  sprints         finish  lap ends                  last climb
    {"64S5F12",                    99, {43, -1, -1},     60,    {6, -1, -1, -1, -1},        17},
    {"01S23S7S8F12",              153, {30, 60, 91},    114,    {5, 114, -1, -1, -1},       91},
    {"67S8F12",                    99, {37, -1, -1},     60,    {6, -1, -1, -1, -1},        37},
    {"01S23S4S5F12",              153, {30, 60, 97},    114,    {5, 114, -1, -1, -1},       43},
    {"012345123451234512345F12",  480, {-1, -1, -1},    441,    {5, 114, 223, 332, 441},   370},
    // a fourth sprint is skipped, and so are sections that no longer fit
    {"01S2S3S4S5F12",             153, {30, 43, 60},    114,    {5, 114, -1, -1, -1},       43},
};
// clang-format on

class Courses : public testing::TestWithParam<Assembled>
{
};

} // namespace

TEST_P(Courses, HaveTheirRowsLinesAndLaps)
{
    course = {};
    course.lastClimbRow = 17;
    assemble(GetParam().text);
    EXPECT_EQ(course.courseRowCount, GetParam().rows);
    EXPECT_EQ(course.sprintRows, GetParam().sprints);
    EXPECT_EQ(course.finishRow, GetParam().finish);
    EXPECT_EQ(course.lapEndRows, GetParam().lapEnds);
    EXPECT_EQ(course.lastClimbRow, GetParam().lastClimb);
}

INSTANTIATE_TEST_SUITE_P(All, Courses, testing::ValuesIn(ASSEMBLED));

TEST(Course, EachLapStandsThreeLanesFurtherOut)
{
    assemble("01S23S4S5F12");
    EXPECT_EQ(squareAt(6, 0), 0);
    EXPECT_EQ(squareAt(115, 2), NO_SQUARE);
    EXPECT_EQ(squareAt(115, 3), 0);
    // Every printed square of a lap is the same a lap later.
    for (int row = 6; row < 6 + 35; ++row)
        for (int lane = 0; lane < COURSE_LANES - LANES_PER_LAP; ++lane)
            EXPECT_EQ(squareAt(row, lane), squareAt(row + ROWS_PER_LAP, lane + LANES_PER_LAP));
}

TEST(Course, FindsARiderOnAPrintedSquareThroughAllLaps)
{
    setUpRace("01S23S4S5F12", {{.rider = 7, .row = 3, .lane = 2}});
    EXPECT_EQ(occupantAt(3, 2), 7);
    EXPECT_EQ(occupantAt(112, 5), 7);
    EXPECT_EQ(course.courseOccupant[112][5], -1);
    EXPECT_EQ(occupantAt(112, 2), -1);
    EXPECT_EQ(occupantAt(3, -1), -1);
    EXPECT_EQ(occupantAt(544, 22), -1);
    // Behind row 0 lies the end of the first lap.
    setUpRace("01S23S4S5F12", {{.rider = 7, .row = 108, .lane = 5}});
    EXPECT_EQ(occupantAt(-1, 2), 7);
    EXPECT_EQ(occupantAt(-1, 3), -1);
}

TEST(Course, OverlongOrBrokenTextsStayOnTheGrid)
{
    for (const char* text : {"", "F", "S", "9", "0123456789", "SSSS", "1111111111111111111111111",
                             "0123451234512345123451234512345F12", "44444444444444444444"}) {
        assemble(text);
        EXPECT_LE(course.courseRowCount, COURSE_MAX_ROWS);
        EXPECT_LE(course.lapEndCount, LAP_END_MAX);
    }
}

TEST(CourseTitles, ShowSectionsAndMarksOfALap)
{
    const LapTitle fixed = courseLapTitle("01S23S4S5F12", 0);
    EXPECT_EQ(fixed.names, "Start 1-A-E-B-D-F");
    EXPECT_EQ(fixed.marks, "        S   S S F");
    EXPECT_EQ(courseLapTitle("012S37812F34", 0).marks, "          S      ");
    EXPECT_EQ(courseLapTitle("012S37812F34", 1).names, "A-E");
    EXPECT_EQ(courseLapTitle("012S37812F34", 1).marks, "  F");
    EXPECT_EQ(courseLapTitle("01", 0).names, "Start 1-A-");
    EXPECT_EQ(courseLapTitle("64S5F12", 0).names, "Start 2-D-F");
    EXPECT_EQ(courseLapTitle("01S23S4S5F12", 1).names, "");
    EXPECT_EQ(courseLapTitle("", 0).names, "");
}

TEST(CourseTitles, CountLapsDrivenAndLapsTitled)
{
    EXPECT_EQ(countCourseLaps("01S23S4S5F12", LAPS_DRIVEN), 2);
    EXPECT_EQ(countCourseLaps("01S23S4S5F12", LAPS_TITLED), 1);
    EXPECT_EQ(countCourseLaps("012S37812F34", LAPS_TITLED), 2);
    EXPECT_EQ(countCourseLaps("6451234F51", LAPS_DRIVEN), 2);
    EXPECT_EQ(countCourseLaps("6451234F51", LAPS_TITLED), 2);
    EXPECT_EQ(countCourseLaps("", LAPS_DRIVEN), 1);
    EXPECT_EQ(countCourseLaps("0", LAPS_TITLED), 1);
}
