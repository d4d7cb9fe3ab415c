#include "ai/computer_turn.h"

#include "ai/route_search.h"
#include "app/game_state.h"
#include "app/host.h"
#include "board/course.h"
#include "board/rider_motion.h"
#include "race/card_rules.h"
#include "race/dice.h"
#include "race/event_deck.h"
#include "race/rider_place.h"
#include "race/step_rule.h"

namespace
{

constexpr int NO_THROW = -1;
constexpr int HIGHEST_THROW = 12;
constexpr int AVERAGE_THROW = 7;
constexpr int GOAL_FINISH = LINE_COUNT; // the finish is within reach of two throws
constexpr int GOAL_PAST_CLIMB = -10;
constexpr int FIRST_BLUE_TEAM_CARD = 10;
constexpr int FIRST_WHITE_TEAM_CARD = 12;

Square squareOfMover()
{
    const Rider& rider = race.riders[race.currentRider];
    return {rider.row, rider.lane};
}

int modifierOf(Square square)
{
    return squareAt(square.row, square.lane);
}

// What a rider would like to throw, and what for.
struct Wish {
    int needed = NO_THROW;
    int maxSprint = -1; // the furthest line that lies next, or one of the goals
};

// One search of the trials. The line of the last best square goes on into the next trial.
RouteBest trial(Square from, int thrown, int sprint, Square start = {})
{
    RouteBest best{.sprint = sprint, .row = start.row, .lane = start.lane};
    findRoute(from, thrown + modifierOf(from), {.rider = race.currentRider}, best);
    return best;
}

// As far as a throw of 12 could bring him with nobody in his way.
int furthestRow(Square from)
{
    return course.reach12[from.row][from.lane];
}

// The smallest throw that brings the rider past a further line than the smaller ones do.
Wish wishForLine(int& sprint)
{
    Wish wish;
    const Square from = squareOfMover();
    const int line = nextLine(from.row);
    if (line == LINE_COUNT || furthestRow(from) <= lineRow(line)) {
        race.movesTotal = HIGHEST_THROW;
        sprint = wish.maxSprint = line; // for which no throw will do
        return wish;
    }
    for (int thrown = 1; thrown <= HIGHEST_THROW; ++thrown) {
        race.movesTotal = thrown;
        sprint = trial(from, thrown, sprint).sprint;
        if (sprint <= wish.maxSprint)
            continue;
        wish.maxSprint = sprint;
        if (thrown != 1 && thrown + modifierOf(from) > 1) {
            wish.needed = thrown;
            return wish;
        }
    }
    return wish;
}

// No line within a throw of 12: the finish with a throw more, or the end of the last climb.
void wishForGoal(Wish& wish, int& sprint)
{
    const Square from = squareOfMover();
    const RouteBest best12 = trial(from, HIGHEST_THROW, sprint);
    const Square end = {best12.row, best12.lane};
    if (furthestRow(end) > course.finishRow &&
        trial(end, AVERAGE_THROW, best12.sprint, {0, 0}).row > course.finishRow) {
        wish = {.needed = HIGHEST_THROW, .maxSprint = GOAL_FINISH};
        return;
    }
    if (furthestRow(from) <= course.lastClimbRow)
        return;
    for (int thrown = 5; thrown <= 10; ++thrown) {
        if (trial(from, thrown, sprint).row > course.lastClimbRow) {
            wish = {.needed = thrown, .maxSprint = GOAL_PAST_CLIMB};
            return;
        }
    }
}

bool isWorthCards(const Wish& wish)
{
    if (wish.needed == NO_THROW)
        return false;
    if (wish.maxSprint == GOAL_PAST_CLIMB)
        return true;
    if (wish.maxSprint == GOAL_FINISH)
        return race.resultSlots[RESULT_SLOT_COUNT - 1] == -1;
    return wish.maxSprint >= 1 && wish.maxSprint <= SPRINT_COUNT &&
           race.resultSlots[wish.maxSprint * SPRINT_PLACES - 1] == -1;
}

bool takeSlot(int place, int slot)
{
    int& used = race.cardUsed[riderTeam(race.currentRider)][slot];
    if (used != CARD_AVAILABLE)
        return false;
    race.playedCards[place] = slot;
    used = CARD_SPENT;
    return true;
}

// A card of this value for a place of the throw: the rider's own before his team's two.
bool takeCard(int place, int value)
{
    const int owner = riderPlace(race.currentRider);
    for (int slot = 0; slot < SET_CARD_COUNT; ++slot)
        if (cardOwner[slot] == owner && cardValue[slot] == value && takeSlot(place, slot))
            return true;
    const int first = value == BLUE_CARD ? FIRST_BLUE_TEAM_CARD : FIRST_WHITE_TEAM_CARD;
    return takeSlot(place, first) || takeSlot(place, first + 1);
}

bool takeBlueOrWhite(int place)
{
    return takeCard(place, BLUE_CARD) || takeCard(place, WHITE_CARD);
}

void layCards(int needed)
{
    if (needed <= 2)
        return;
    switch (terrainOf(race.currentRider)) {
    case TERRAIN_MOUNTAIN:
        takeCard(0, WHITE_CARD);
        if (needed > 6)
            takeCard(1, WHITE_CARD);
        return;
    case TERRAIN_COBBLES:
        takeBlueOrWhite(0);
        return;
    default:
        if (takeBlueOrWhite(0) && needed > cardValue[race.playedCards[0]] + 1)
            takeBlueOrWhite(1);
    }
}

// A rider breaks away unless at least a quarter of those who could follow are his team-mates.
void decideBreakaway()
{
    if (race.playedCards[0] == -1 && race.playedCards[1] == -1)
        return;
    const Square from = squareOfMover();
    int total = 0;
    int own = 0;
    for (int row = from.row - 1; row >= 0; --row) {
        if (terrainAt(row, from.lane) != terrainAt(row + 1, from.lane))
            break;
        const int rider = occupantAt(row, from.lane);
        if (rider != -1 && race.riders[rider].hasMoved == 0) {
            ++total;
            own += riderTeam(rider) == riderTeam(race.currentRider);
        } else if (squareAt(row, from.lane) != PASS_THROUGH) {
            break;
        }
    }
    race.breakaway = total == 0 || own * 4 < total;
    redrawNow();
}

bool hasCardToLay()
{
    for (int slot = 0; slot < SET_CARD_COUNT; ++slot)
        if (cardPlayable(slot))
            return true;
    return false;
}

// The wish takes most of a turn to find, and without a card nothing follows from it.
void chooseCards()
{
    if (!hasCardToLay())
        return;
    int sprint = -1;
    Wish wish = wishForLine(sprint);
    if (wish.needed == NO_THROW)
        wishForGoal(wish, sprint);
    if (!isWorthCards(wish))
        return;
    layCards(wish.needed);
    decideBreakaway();
}

void layRoute(const RoutePath& path)
{
    Square at = squareOfMover();
    for (int step = 0; step < path.length; ++step) {
        at = stepTarget(at.row, at.lane, path.letters[step], false);
        race.pathSquares[step + 1] = {static_cast<float>(at.row), static_cast<float>(at.lane)};
    }
    race.moveBudget = path.length;
}

} // namespace

void planComputerMove(int moves, Square start)
{
    const Square from = squareOfMover();
    const int budget = moves + modifierOf(from);
    race.pathSquares[0] = {static_cast<float>(from.row), static_cast<float>(from.lane)};
    restMotion();
    if (budget < 1) {
        enter(STATE_NO_MOVE);
        return;
    }
    RouteBest best{.row = start.row, .lane = start.lane};
    findRoute(from, budget, {.rider = race.currentRider, .simulateFollowers = true}, best);
    layRoute(best.path);
    // For whom no square was free at the round's end, he is back with his first step.
    if (race.moveBudget > 0)
        race.riders[race.currentRider].offBoard = 0;
    enter(STATE_ANIMATE);
    armMoveTimer(0);
}

void playComputerTurn()
{
    redrawNow();
    chooseCards();
    throwDice();
    race.movesTotal = race.dice[0] + race.dice[1];
    if (drawsEventCard()) {
        enter(STATE_EVENT_CARD);
        return;
    }
    planComputerMove(race.movesTotal, {});
}

void computerHandInForMoves()
{
    for (int slot = 0; slot < SET_CARD_COUNT; ++slot) {
        if (!mayHandIn(race.currentRider, slot))
            continue;
        race.cardUsed[riderTeam(race.currentRider)][slot] = CARD_SPENT;
        break;
    }
    race.extraMoves = MOVES_FOR_CARD;
    race.movesTotal += race.extraMoves;
    redrawNow();
    gameState = STATE_COMPUTING;
    planComputerMove(race.dice[0] + race.dice[1] + race.extraMoves, {0, 0});
}
