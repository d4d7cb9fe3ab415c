#include "race/step_rule.h"

static int stepOf(char letter)
{
    return letter == 'L' ? STEP_LEFT : letter == 'R' ? STEP_RIGHT : STEP_AHEAD;
}

Square stepTarget(int row, int lane, char letter, bool reachOnly)
{
    const int step = stepOf(letter);
    const Square landing = {course.stepRows[row][lane][step], lane + STEP_LANES[step]};
    if (landing.row == STEP_REFUSED)
        return NO_STEP;
    if (reachOnly)
        return {row, lane};
    return isFree(landing.row, landing.lane) ? landing : NO_STEP;
}
