#include "race/step_rule.h"

#include "board/course.h"

static bool wallStops(int row, int lane, char letter)
{
    if (letter == 'R')
        return course.wallOnRight[row][lane] != 0;
    return letter == 'L' && course.wallOnRight[row][lane - 1] != 0;
}

Square stepTarget(int row, int lane, char letter, bool reachOnly)
{
    const Square entry = stepEntry(row, lane, letter);
    if (squareAt(entry.row, entry.lane) == NO_SQUARE || wallStops(row, lane, letter))
        return NO_STEP;
    if (reachOnly)
        return {row, lane};
    const Square landing = {skipPassThrough(entry.row, entry.lane, 1), entry.lane};
    if (squareAt(landing.row, landing.lane) == NO_SQUARE ||
        occupantAt(landing.row, landing.lane) != -1)
        return NO_STEP;
    return landing;
}
