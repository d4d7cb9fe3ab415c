#include "race/crashes.h"

#include "board/course.h"
#include "race/race_state.h"

#include <algorithm>

// Unlike for a step, the barrier's end row counts: a rider beside its end is still behind it.
static bool barrierBetween(int row, int lowerLane)
{
    return std::ranges::any_of(course.courseBarriers, [=](const LaneBarrier& barrier) {
        return barrier.lane == lowerLane && barrier.firstRow <= row && row <= barrier.endRow;
    });
}

static void spreadTo(int row, int lane, int startRow)
{
    const int rider = occupantAt(row, lane);
    if (rider != -1 && race.riders[rider].skipTurns == 0)
        crashChain(row, lane, startRow);
}

// A side lane, from the row `front` back to the row behind which `back` lies.
static void spreadAlong(int lane, int front, int back, int startRow)
{
    for (int row = front; row > back; --row)
        spreadTo(row, lane, startRow);
}

void crashChain(int row, int lane, int startRow)
{
    Rider& rider = race.riders[occupantAt(row, lane)];
    rider.skipTurns = 1;
    rider.pendingHandIn = 1;

    // Behind row 0 nobody can be reached.
    const int back = skipPassThrough(row - 1, lane, -1);
    if (back >= 0)
        spreadTo(back, lane, startRow);
    if (lane > 0 && squareAt(row, lane - 1) != PASS_THROUGH && !barrierBetween(row, lane - 1))
        spreadAlong(lane - 1, row, back, startRow);

    // In the row where it began a crash doesn't spread to the higher lane.
    const int front = row == startRow ? row - 1 : row;
    if (lane < COURSE_LANES - 1 && squareAt(row, lane + 1) != PASS_THROUGH &&
        !barrierBetween(row, lane))
        spreadAlong(lane + 1, front, back, startRow);
}
