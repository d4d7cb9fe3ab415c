#include "play/movement.h"

#include "app/game_state.h"
#include "app/host.h"
#include "board/course.h"
#include "board/geometry.h"
#include "play/following.h"
#include "play/turn_cycle.h"
#include "race/race_state.h"
#include "race/rider_place.h"
#include "race/scoring.h"
#include "race/step_rule.h"

static Rider& mover()
{
    return race.riders[race.currentRider];
}

static void moveTo(BoardPoint at)
{
    mover().x = at.x;
    mover().y = at.y;
    updateRiderLap(race.currentRider);
    redrawNow();
}

void stepRider(char letter)
{
    if (gameState != STATE_MOVE || race.stepsTaken >= race.moveBudget ||
        race.stepsTaken + 1 >= PATH_SQUARES_MAX)
        return;
    const Square landing = stepTarget(mover().row, mover().lane, letter, false);
    if (landing == NO_STEP)
        return;
    mover().row = landing.row;
    mover().lane = landing.lane;
    // For whom no square was free at the round's end, he is back with his first step.
    mover().offBoard = 0;
    race.pathSquares[++race.stepsTaken] = {static_cast<float>(landing.row),
                                           static_cast<float>(landing.lane)};
    moveTo(boardPointOfSquare(landing.row, landing.lane, mover().heading));
}

void undoStep()
{
    if (gameState != STATE_MOVE || race.stepsTaken <= 0)
        return;
    const PathSquare& before = race.pathSquares[--race.stepsTaken];
    mover().row = static_cast<int>(before.row);
    mover().lane = static_cast<int>(before.lane);
    moveTo(boardPointOnPath(before.row, before.lane, mover().heading));
}

static bool mayEndMove()
{
    return mover().row <= course.finishRow || race.stepsTaken == race.moveBudget;
}

// The followers come in behind the rider, or the next turn begins.
static void leaveToFollowers(int moves)
{
    gameState = STATE_TRANSIT;
    if (race.breakaway || mover().offBoard) {
        redrawNow();
        nextTurn();
        return;
    }
    followChain(static_cast<int>(race.moveStartRow), static_cast<int>(race.moveStartLane), moves,
                static_cast<int>(race.moveEndRow), static_cast<int>(race.moveEndLane));
}

void endHumanMove()
{
    if (gameState != STATE_MOVE || !mayEndMove())
        return;
    mover().hasMoved = 1;
    race.moveEndRow = static_cast<float>(mover().row);
    race.moveEndLane = static_cast<float>(mover().lane);
    recordCrossing(static_cast<int>(race.moveStartRow), mover().row, race.currentRider);
    mover().offBoard = race.stepsTaken == 0;
    if (!mover().offBoard)
        course.courseOccupant[mover().row][mover().lane] = race.currentRider;
    leaveToFollowers(race.stepsTaken);
}

void endComputerMove()
{
    mover().hasMoved = 1;
    race.moveEndRow = race.pathSquares[race.moveBudget].row;
    race.moveEndLane = race.pathSquares[race.moveBudget].lane;
    mover().offBoard = race.moveBudget == 0;
    if (!mover().offBoard) {
        recordCrossing(static_cast<int>(race.moveStartRow), static_cast<int>(race.moveEndRow),
                       race.currentRider);
        course.courseOccupant[mover().row][mover().lane] = race.currentRider;
    }
    redrawNow();
    leaveToFollowers(race.moveBudget);
}
