#include "board/course.h"

#include <algorithm>
#include <cmath>

CourseGrid course;
std::string courseText;

// Not worked out while compiling: six such grids as constants keep a compiler busy for minutes.
Grid gridOf(int value)
{
    Grid grid;
    for (auto& row : grid)
        for (int& cell : row)
            cell = value;
    return grid;
}

static bool isSection(char letter)
{
    return letter >= '0' && letter < '0' + SECTION_COUNT;
}

static const Section& sectionOf(char digit)
{
    return sections[digit - '0'];
}

static bool opensWith(std::string_view text, char digit)
{
    return !text.empty() && text.front() == digit;
}

// A lap ends where the loop comes by the start section again.
static bool endsLap(std::string_view text, char digit)
{
    return opensWith(text, '0') ? digit == '5' || digit == '8' : digit == '3';
}

static void addPieces(int section, int firstRow, int laneShift)
{
    const auto rows = static_cast<float>(firstRow);
    const auto lanes = static_cast<float>(laneShift);
    for (StraightPiece piece : sectionShape(section).straights) {
        piece.rowFrom += rows;
        piece.rowTo += rows;
        piece.laneFrom += lanes;
        piece.laneTo += lanes;
        course.courseStraights.push_back(piece);
    }
    for (CurvePiece piece : sectionShape(section).curves) {
        piece.rowFrom += rows;
        piece.rowTo += rows;
        piece.laneFrom += lanes;
        piece.laneTo += lanes;
        course.courseCurves.push_back(piece);
    }
}

static void addBarriers(const Section& section, int firstRow, int laneShift)
{
    for (LaneBarrier barrier : section.barriers) {
        barrier.firstRow += firstRow;
        barrier.endRow += firstRow;
        barrier.lane += laneShift;
        course.courseBarriers.push_back(barrier);
    }
}

static bool fits(const Section& section, int laneShift)
{
    return course.courseRowCount + section.rowCount <= COURSE_MAX_ROWS &&
           laneShift + SECTION_LANES <= COURSE_LANES;
}

static void addSectionRows(char digit, int laneShift)
{
    const Section& section = sectionOf(digit);
    addPieces(digit - '0', course.courseRowCount, laneShift);
    addBarriers(section, course.courseRowCount, laneShift);
    for (int row = 0; row < section.rowCount; ++row) {
        for (int lane = 0; lane < SECTION_LANES; ++lane) {
            course.moveModifier[course.courseRowCount][lane + laneShift] =
                section.moveModifier[row][lane];
            course.terrain[course.courseRowCount][lane + laneShift] = section.terrain[row][lane];
        }
        ++course.courseRowCount;
    }
}

static void markLapEnd(char digit)
{
    const bool startSection = digit == courseText.front();
    if ((startSection || endsLap(courseText, digit)) && course.lapEndCount < LAP_END_MAX)
        course.lapEndRows[course.lapEndCount++] = course.courseRowCount - 1;
}

// A course has up to two hundred pieces, and a rider on his way asks for his at every turn of the
// road.
template <typename Piece>
static void indexPieces(const std::vector<Piece>& pieces,
                        Table<PieceRange, COURSE_MAX_ROWS>& piecesOfRow)
{
    for (int i = 0; i < static_cast<int>(pieces.size()); ++i) {
        const Piece& piece = pieces[static_cast<std::size_t>(i)];
        const int first = std::max(0, static_cast<int>(std::floor(piece.rowFrom)));
        const int last = std::min(COURSE_MAX_ROWS - 1, static_cast<int>(std::floor(piece.rowTo)));
        for (int row = first; row <= last; ++row) {
            PieceRange& range = piecesOfRow[row];
            if (range.end == 0)
                range.first = i;
            range.end = i + 1;
        }
    }
}

static void refuseStepsThroughBarriers()
{
    for (const LaneBarrier& barrier : course.courseBarriers) {
        for (int row = barrier.firstRow; row < barrier.endRow; ++row) {
            course.stepRows[row][barrier.lane][STEP_RIGHT] = STEP_REFUSED;
            course.stepRows[row][barrier.lane + 1][STEP_LEFT] = STEP_REFUSED;
        }
    }
}

// The row on which a step ends that enters this square, given that of one that enters the square
// ahead of it.
static short endOfEntering(int row, int lane, short endAhead)
{
    const int modifier = course.moveModifier[row][lane];
    if (modifier == NO_SQUARE)
        return STEP_REFUSED;
    if (modifier == PASS_THROUGH && endAhead != STEP_REFUSED)
        return endAhead;
    return static_cast<short>(modifier == PASS_THROUGH ? row + 1 : row);
}

static void layOutSteps()
{
    Table<short, COURSE_LANES> ends{}; // of steps that enter the row ahead
    for (int row = course.courseRowCount - 1; row >= 0; --row) {
        for (int lane = 0; lane < COURSE_LANES; ++lane) {
            StepRows& steps = course.stepRows[row][lane];
            steps[STEP_AHEAD] = ends[lane];
            steps[STEP_LEFT] = lane > 0 ? ends[lane - 1] : STEP_REFUSED;
            steps[STEP_RIGHT] = lane < COURSE_LANES - 1 ? ends[lane + 1] : STEP_REFUSED;
        }
        for (int lane = 0; lane < COURSE_LANES; ++lane)
            ends[lane] = endOfEntering(row, lane, ends[lane]);
    }
    refuseStepsThroughBarriers();
}

static void appendSections()
{
    int laneShift = 0;
    int sprintCount = 0;
    char before = '\0';
    for (const char letter : courseText) {
        if (letter == '1' && before != '0')
            laneShift += LANES_PER_LAP;
        before = letter;
        const int lastRow = course.courseRowCount - 1;
        if (letter == 'S' && sprintCount < SPRINT_COUNT)
            course.sprintRows[sprintCount++] = lastRow;
        if (letter == 'F')
            course.finishRow = lastRow;
        if (!isSection(letter))
            continue;
        if (!fits(sectionOf(letter), laneShift))
            return;
        addSectionRows(letter, laneShift);
        markLapEnd(letter);
        if ((letter == '2' || letter == '7') && course.finishRow == -1)
            course.lastClimbRow = course.courseRowCount - 1;
    }
}

void assembleCourse()
{
    static const CourseGrid EMPTY;
    const int lastClimbRow = course.lastClimbRow;
    course = EMPTY;
    course.lastClimbRow = lastClimbRow;
    appendSections();
    layOutSteps();
    indexPieces(course.courseStraights, course.straightsOfRow);
    indexPieces(course.courseCurves, course.curvesOfRow);
}

int firstStartLane()
{
    return opensWith(courseText, '6') ? 4 : 0;
}

int endStartLane()
{
    return opensWith(courseText, '6') ? 8 : 5;
}

int countCourseLaps(std::string_view text, LapCountMode mode)
{
    if (mode == LAPS_DRIVEN)
        return 1 + static_cast<int>(std::ranges::count_if(
                       text, [text](char letter) { return endsLap(text, letter); }));
    std::string_view inFront = text.substr(0, text.find('F'));
    inFront.remove_prefix(std::min<std::size_t>(2, inFront.size()));
    const auto opensLap = [text](char letter) {
        return opensWith(text, '0') ? letter == '1' : letter == '4' || letter == '7';
    };
    return 1 + static_cast<int>(std::ranges::count_if(inFront, opensLap));
}

LapTitle courseLapTitle(std::string_view text, int lap)
{
    LapTitle title;
    int current = 0;
    for (std::size_t i = 0; i < text.size() && text[i] != 'F'; ++i) {
        const char letter = text[i];
        if (current == lap && isSection(letter)) {
            title.names += sectionOf(letter).name;
            title.marks.resize(title.names.size(), ' ');
            if (i + 1 < text.size() && (text[i + 1] == 'S' || text[i + 1] == 'F'))
                title.marks.back() = text[++i];
        }
        if (isSection(letter) && endsLap(text, letter) && ++current > lap)
            break;
        if (text[i] == 'F')
            break;
        if (current == lap && !title.names.empty()) {
            title.names += '-';
            title.marks += ' ';
        }
    }
    return title;
}
