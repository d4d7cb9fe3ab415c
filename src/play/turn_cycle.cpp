#include "play/turn_cycle.h"

#include "ai/computer_turn.h"
#include "app/game_state.h"
#include "app/host.h"
#include "app/view.h"
#include "board/course.h"
#include "board/rider_motion.h"
#include "play/doping.h"
#include "race/race_state.h"
#include "race/rider_place.h"

#include <algorithm>

// Riders who are set back look for a square from this lane down.
static constexpr int SET_BACK_LANE = 21;

static void clearMove()
{
    race.followerPlan = filled<int, RIDER_COUNT>(-1);
    race.breakaway = 0;
    race.followerRider = -1;
    race.stepsTaken = 0;
    gameState = STATE_TRANSIT;
    race.dopingCardValue = -1;
    race.moveBudget = -1;
}

// The rider who has come in leaves the board for good, and with him the followers who stand
// directly behind him past the finish.
static void takeFinishersOff()
{
    if (race.currentRider == -1)
        return;
    const int lane = race.riders[race.currentRider].lane;
    for (int row = race.riders[race.currentRider].row; row > course.finishRow; --row) {
        if (occupantAt(row, lane) == -1 && squareAt(row, lane) != PASS_THROUGH)
            return;
        if (!onGrid(row, lane))
            continue;
        int& occupant = course.courseOccupant[row][lane];
        if (occupant != -1)
            race.riders[occupant].finished = 1;
        occupant = -1;
    }
}

static void clearThrow()
{
    race.playedCards = race.dice = race.handInCards = filled<int, 2>(-1);
    race.extraDie = -1;
    race.bonusMoves = 0;
    race.extraMoves = 0;
    race.eventRider = -1;
    redrawNow();
}

static bool roundIsOver()
{
    return std::ranges::all_of(
        race.riders, [](const Rider& rider) { return rider.hasMoved != 0 || rider.skipTurns > 0; });
}

static void placeAt(int rider, Square square)
{
    race.riders[rider].row = square.row;
    race.riders[rider].lane = square.lane;
    placeOnBoard(rider);
}

static Square nearestFreeBehind(Square from)
{
    for (int lane = from.lane; lane >= 0; --lane)
        if (isFree(from.row, lane))
            return {from.row, lane};
    for (int row = from.row - 1; row >= 0; --row)
        for (int lane = SET_BACK_LANE; lane >= 0; --lane)
            if (isFree(row, lane))
                return {row, lane};
    return {};
}

static void setRidersBack()
{
    Table<bool, RIDER_COUNT> passedOver{};
    for (;;) {
        const int rider = frontMostRider([&passedOver](const Rider& candidate) {
            return candidate.offBoard && candidate.skipTurns == 0 &&
                   !passedOver[static_cast<int>(&candidate - race.riders.begin())];
        });
        if (rider == -1)
            return;
        const Square square = nearestFreeBehind({race.riders[rider].row, race.riders[rider].lane});
        if (square == Square{}) {
            passedOver[rider] = true;
            continue;
        }
        placeAt(rider, square);
        course.courseOccupant[square.row][square.lane] = rider;
        race.riders[rider].offBoard = 0;
        redrawNow();
    }
}

// Whether somebody can play in the new round, or nobody is waiting for one.
static bool openRound()
{
    bool anyoneMissesTurn = false;
    bool anyonePlays = false;
    for (Rider& rider : race.riders) {
        if (rider.skipTurns > 0) {
            --rider.skipTurns;
            rider.hasMoved = 1;
            anyoneMissesTurn = true;
        } else if (rider.row <= course.finishRow) {
            rider.hasMoved = 0;
            anyonePlays = true;
        }
    }
    return anyonePlays || !anyoneMissesTurn;
}

static void endRound()
{
    do {
        ++race.roundNumber;
        redrawNow();
        setRidersBack();
    } while (!openRound());
}

static void chooseNextRider()
{
    race.currentRider = frontMostRider(
        [](const Rider& rider) { return rider.row <= course.finishRow && rider.hasMoved == 0; });
    if (race.currentRider != -1) {
        view.shownTeam = riderTeam(race.currentRider);
        updateRiderLap(race.currentRider);
    }
    redrawNow();
}

static void beginTurn()
{
    const Rider& rider = race.riders[race.currentRider];
    leaveSquare(race.currentRider);
    race.moveStartRow = static_cast<float>(rider.row);
    race.moveStartLane = static_cast<float>(rider.lane);
    restMotion();
    gameState = rider.isHuman ? STATE_TURN : STATE_COMPUTING;
    if (rider.isHuman)
        redrawNow();
    else
        playComputerTurn();
}

void nextTurn()
{
    clearMove();
    takeFinishersOff();
    clearThrow();
    if (roundIsOver())
        endRound();
    chooseNextRider();
    // Without a rider the race is over, also if one should be left over past the finish.
    if (race.currentRider == -1)
        startDopingControl();
    else
        beginTurn();
}

void liftOffBoard(int rider)
{
    race.riders[rider].offBoard = 1;
    race.riders[rider].hasMoved = 1;
    leaveSquare(rider);
    placeOnBoard(rider);
}

void leaveRound()
{
    if (gameState != STATE_NO_MOVE)
        return;
    gameState = STATE_TRANSIT;
    liftOffBoard(race.currentRider);
    race.moveBudget = 0;
    redrawNow();
    nextTurn();
}
