#include "play/placing.h"

#include "ai/computer_choices.h"
#include "app/game_state.h"
#include "app/host.h"
#include "board/course.h"
#include "play/turn_cycle.h"
#include "race/race_state.h"
#include "race/rider_place.h"

#include <algorithm>
#include <cstdlib>

static constexpr int THROW_AGAIN = -1;
static constexpr int THROW_OUT = 0;

static bool onTurnIsHuman()
{
    return race.riders[race.currentRider].isHuman != 0;
}

void throwForOrder()
{
    if (gameState != STATE_ORDER_THROW)
        return;
    const int both = std::rand() % 36;
    race.dice[0] = both / 6 + 1;
    race.dice[1] = both % 6 + 1;
    race.teamThrow[riderTeam(race.currentRider)] = race.dice[0] + race.dice[1];
    enter(STATE_ORDER_RESULT);
}

static void placeNext()
{
    redrawNow();
    gameState = onTurnIsHuman() ? STATE_PLACE_HUMAN : STATE_PLACE_COMPUTER;
    redrawNow();
    if (!onTurnIsHuman())
        placeComputerRider();
}

static void throwNext()
{
    int team = riderTeam(race.currentRider);
    do {
        team = (team + 1) % TEAM_COUNT;
    } while (race.teamThrow[team] == THROW_OUT);
    race.currentRider = team * RIDERS_PER_TEAM;
    enter(STATE_ORDER_THROW);
    if (!onTurnIsHuman())
        throwForOrder();
}

void afterOrderThrow()
{
    if (gameState != STATE_ORDER_RESULT)
        return;
    race.dice = filled<int, 2>(-1);
    if (std::ranges::count(race.teamThrow, THROW_AGAIN) > 0) {
        throwNext();
        return;
    }
    const auto highest = std::ranges::max_element(race.teamThrow);
    if (std::ranges::count(race.teamThrow, *highest) == 1) {
        const auto team = static_cast<int>(highest - race.teamThrow.begin());
        race.firstPlacer = race.currentRider = team * RIDERS_PER_TEAM;
        placeNext();
        return;
    }
    const int tied = *highest;
    for (int& thrown : race.teamThrow)
        thrown = thrown == tied ? THROW_AGAIN : THROW_OUT;
    redrawNow();
    throwNext();
}

static void standOnGrid(Square square)
{
    Rider& rider = race.riders[race.currentRider];
    rider.row = square.row;
    rider.lane = square.lane;
    course.courseOccupant[square.row][square.lane] = race.currentRider;
    placeOnBoard(race.currentRider);
    race.placingRow = 0;
    race.placingLane = firstStartLane();
    redrawNow();
    nextPlacer();
}

void placeHumanRider()
{
    if (gameState == STATE_PLACE_HUMAN &&
        mayPlaceOn(race.placingRow, race.placingLane, race.currentRider))
        standOnGrid({race.placingRow, race.placingLane});
}

void placeComputerRider()
{
    standOnGrid(chooseStartSquare(race.currentRider));
}

// One rider from each team in turn, beginning with the team that won the throw; then their second
// riders, and so on.
void nextPlacer()
{
    if ((race.currentRider + 1) % RIDER_COUNT == race.firstPlacer) {
        race.placingRow = race.placingLane = -1;
        redrawNow();
        enter(STATE_TRANSIT);
        nextTurn();
        return;
    }
    race.currentRider = (race.currentRider + RIDERS_PER_TEAM) % RIDER_COUNT;
    if (riderTeam(race.currentRider) == riderTeam(race.firstPlacer))
        ++race.currentRider;
    placeNext();
}

void movePlacingCursor(int rows, int lanes)
{
    if (gameState != STATE_PLACE_HUMAN)
        return;
    race.placingRow = std::clamp(race.placingRow + rows, 0, START_ROWS - 1);
    race.placingLane = std::clamp(race.placingLane + lanes, firstStartLane(), endStartLane() - 1);
    redrawNow();
}
