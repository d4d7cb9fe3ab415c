#pragma once

#include "app/table.h"
#include "board/section_shapes.h"
#include "board/sections.h"

#include <string>
#include <string_view>
#include <vector>

// The course of a race: the sections of the course string one behind the other on one long strip of
// squares, so that a place is always one (row, lane) and ahead is always a larger row.

constexpr int COURSE_MAX_ROWS = 5 * ROWS_PER_LAP;
constexpr int COURSE_LANES = 23;
constexpr int LANES_PER_LAP = 3; // each lap stands so many lanes further out
constexpr int LAP_END_MAX = 5;
constexpr int LAPS_LOOKED_THROUGH = 6;
constexpr int SPRINT_COUNT = 3;
constexpr int LINE_COUNT = SPRINT_COUNT + 1; // the sprints, then the finish

struct Square {
    int row = -1;
    int lane = -1;
    friend bool operator==(const Square&, const Square&) = default;
};

using Grid = Table2<int, COURSE_MAX_ROWS, COURSE_LANES>;

// The three steps that a rider may take from a square, each one row forward. A search tries them in
// this order, which decides between equals.
enum Step { STEP_AHEAD, STEP_LEFT, STEP_RIGHT, STEP_COUNT };
constexpr Table<int, STEP_COUNT> STEP_LANES = {0, -1, 1};
constexpr short STEP_REFUSED = 0; // no step ends on row 0
using StepRows = Table<short, STEP_COUNT>;

// A grid with the same value everywhere.
Grid gridOf(int value);

// The pieces that may hold a point of a row, first to end - 1; others among them may lie elsewhere.
struct PieceRange {
    int first = 0;
    int end = 0;
};

struct CourseGrid {
    Grid moveModifier = gridOf(NO_SQUARE);
    Grid terrain = gridOf(TERRAIN_NONE);
    Grid courseOccupant = gridOf(-1); // rider who stands on the square
    Grid reach12 = gridOf(-1);        // furthest row from here with a throw of 12, riders left out
    Grid reach11 = gridOf(-1);
    // The row on which each step from a square ends, behind the PASS_THROUGH squares that it
    // enters, or STEP_REFUSED by the edge of the road or a barrier. Riders don't count. At the end
    // of the course such a row may hold no square.
    Table2<StepRows, COURSE_MAX_ROWS, COURSE_LANES> stepRows{};
    int courseRowCount = 0; // rows in use; those behind are NO_SQUARE
    Table<int, SPRINT_COUNT> sprintRows = filled<int, SPRINT_COUNT>(-1); // last row before the line
    int finishRow = -1;
    Table<int, LAP_END_MAX> lapEndRows = filled<int, LAP_END_MAX>(-1);
    int lapEndCount = 0;
    int lastClimbRow = 0; // outlives the course: assembly doesn't reset it
    std::vector<StraightPiece> courseStraights;
    std::vector<CurvePiece> courseCurves;
    Table<PieceRange, COURSE_MAX_ROWS> straightsOfRow{}; // for rows r up to, but not, r + 1
    Table<PieceRange, COURSE_MAX_ROWS> curvesOfRow{};
    std::vector<LaneBarrier> courseBarriers;
};

extern CourseGrid course;

// Digits 0 to 8 are sections in driving order; "S" and "F" behind a digit put a sprint or the
// finish at the end of that section. A course that is ready to race has two sections behind its
// "F".
extern std::string courseText;

// Builds grid, lines, laps and pieces of the course from courseText; nobody stands on it. The reach
// tables stay empty: they are a search over the finished grid. A section that would not fit into
// the grid is left out with all behind it, as is any character that is no part of a course.
void assembleCourse();

// First lane of the start grid, and the lane behind its last one. 0 to 5, or 4 to 8 on Start 2.
int firstStartLane();
int endStartLane();

constexpr bool onGrid(int row, int lane)
{
    return row >= 0 && row < COURSE_MAX_ROWS && lane >= 0 && lane < COURSE_LANES;
}

// What moveModifier holds there; NO_SQUARE outside the grid.
inline int squareAt(int row, int lane)
{
    return onGrid(row, lane) ? course.moveModifier[row][lane] : NO_SQUARE;
}

// What terrain holds there; TERRAIN_NONE outside the grid.
inline int terrainAt(int row, int lane)
{
    return onGrid(row, lane) ? course.terrain[row][lane] : TERRAIN_NONE;
}

// The rider who stands on a printed square on any lap, or -1. So a rider about to lap another is
// stopped by him. A place outside the grid holds nobody itself, but is looked up on the later laps:
// behind row 0 lies the end of the first lap.
//
// Rows r and r + 109, lanes l and l + 3, are the same printed square: a lap has 109 rows by either
// way through the loop, and each lap stands three lanes further out.
inline int occupantAt(int row, int lane)
{
    int lapRow = row % ROWS_PER_LAP;
    int lapLane = lane - row / ROWS_PER_LAP * LANES_PER_LAP;
    for (int lap = 0; lap < LAPS_LOOKED_THROUGH && lapRow < course.courseRowCount; ++lap) {
        if (onGrid(lapRow, lapLane)) {
            const int rider = course.courseOccupant[lapRow][lapLane];
            if (rider != -1)
                return rider;
        }
        lapRow += ROWS_PER_LAP;
        lapLane += LANES_PER_LAP;
    }
    return -1;
}

// Whether a rider could stand there: a real square with nobody on it on any lap.
inline bool isFree(int row, int lane)
{
    return isRealSquare(squareAt(row, lane)) && occupantAt(row, lane) == -1;
}

// The nearest row from `row` in direction step (1 or -1) whose square in this lane isn't
// PASS_THROUGH; it may lie outside the grid.
inline int skipPassThrough(int row, int lane, int step)
{
    while (squareAt(row, lane) == PASS_THROUGH)
        row += step;
    return row;
}

// Row of line k: 0 to 2 the sprints, 3 the finish; -1 where the course has none.
inline int lineRow(int line)
{
    return line < SPRINT_COUNT ? course.sprintRows[line] : course.finishRow;
}

// The line that lies next from a row: 0 to 2 a sprint, 3 the finish, LINE_COUNT behind it. A row in
// front of a line hasn't passed it.
inline int nextLine(int row)
{
    int line = 0;
    while (line < LINE_COUNT && (row > lineRow(line) || lineRow(line) == -1))
        ++line;
    return line;
}

// Laps of a course, from 1. LAPS_DRIVEN counts the digits that end a lap, which limits a design;
// LAPS_TITLED counts those that open one in front of the finish, which is what titles are shown
// for.
enum LapCountMode { LAPS_DRIVEN = 0, LAPS_TITLED = 1 };
int countCourseLaps(std::string_view text, LapCountMode mode);

// The names of a lap's sections, and below them a mark under the last letter of each section that
// ends in a sprint or the finish. Both empty for a lap behind the last.
struct LapTitle {
    std::string names;
    std::string marks;
};
LapTitle courseLapTitle(std::string_view text, int lap);
