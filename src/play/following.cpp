#include "play/following.h"

#include "ai/computer_choices.h"
#include "ai/route_walk.h"
#include "app/game_state.h"
#include "app/host.h"
#include "app/view.h"
#include "board/course.h"
#include "play/turn_cycle.h"
#include "race/race_state.h"
#include "race/rider_place.h"
#include "race/scoring.h"

static void writeBack(int rider)
{
    const Rider& record = race.riders[rider];
    if (!record.offBoard)
        course.courseOccupant[record.row][record.lane] = rider;
}

static void endChain()
{
    writeBack(race.currentRider);
    redrawNow();
    nextTurn();
    redrawNow();
}

static Square squareBehind(int row, int lane)
{
    return {skipPassThrough(row - 1, lane, -1), lane};
}

static bool mayDraft(int follower, Square from, int startRow, int startLane)
{
    const int terrain = terrainAt(from.row, from.lane);
    return terrain == terrainAt(startRow, startLane) && terrain != TERRAIN_NONE &&
           race.riders[follower].hasMoved == 0;
}

// The follower stays on his own lap, on whichever lap the square in front of him was found.
static Square onOwnLap(Square target, int presentRow)
{
    for (int row = target.row % ROWS_PER_LAP; row < COURSE_MAX_ROWS; row += ROWS_PER_LAP)
        if (row > presentRow)
            return {row, target.lane + (row - target.row) / ROWS_PER_LAP * LANES_PER_LAP};
    return target;
}

static void refuse()
{
    writeBack(race.followerRider);
    redrawNow();
    nextTurn();
}

static void follow(Square from, Square target, int moves)
{
    const int follower = race.followerRider;
    Rider& rider = race.riders[follower];
    const Square to = onOwnLap(target, rider.row);
    rider.row = to.row;
    rider.lane = to.lane;
    rider.hasMoved = 1;
    course.courseOccupant[to.row][to.lane] = follower;
    recordCrossing(from.row, to.row, follower);
    placeOnBoard(follower);
    updateRiderLap(follower);
    redrawNow();
    followChain(from.row, from.lane, moves, target.row, target.lane);
}

static void askPerson(Square from, Square target)
{
    gameState = STATE_FOLLOW_PROMPT;
    view.shownTeam = riderTeam(race.followerRider);
    redrawNow();
    race.moveStartRow = static_cast<float>(from.row);
    race.moveStartLane = static_cast<float>(from.lane);
    race.moveEndRow = static_cast<float>(target.row);
    race.moveEndLane = static_cast<float>(target.lane);
}

void followChain(int startRow, int startLane, int moves, int endRow, int endLane)
{
    Square from = squareBehind(startRow, startLane);
    const int follower = occupantAt(from.row, from.lane);
    if (follower == -1) {
        endChain();
        return;
    }
    // He may stand on the same printed square on another lap: all goes on in his lap.
    const Rider& rider = race.riders[follower];
    if (rider.row != from.row) {
        endRow += rider.row - from.row;
        endLane += rider.lane - from.lane;
        from = {rider.row, rider.lane};
    }
    const Square target = squareBehind(endRow, endLane);
    if (!mayDraft(follower, from, startRow, startLane)) {
        endChain();
        return;
    }
    race.followerRider = follower;
    course.courseOccupant[from.row][from.lane] = -1;
    if (!reachesSquare(follower, from, target, moves)) {
        writeBack(follower);
        race.stepsTaken = 0;
        writeBack(race.currentRider);
        redrawNow();
        nextTurn();
    } else if (rider.isHuman) {
        askPerson(from, target);
    } else if (computerFollows(follower, target)) {
        follow(from, target, moves);
    } else {
        refuse();
    }
}

void followYes()
{
    if (gameState != STATE_FOLLOW_PROMPT)
        return;
    enter(STATE_TRANSIT);
    follow({static_cast<int>(race.moveStartRow), static_cast<int>(race.moveStartLane)},
           {static_cast<int>(race.moveEndRow), static_cast<int>(race.moveEndLane)},
           race.moveBudget);
}

void followNo()
{
    if (gameState == STATE_FOLLOW_PROMPT)
        refuse();
}
