#include "play/events.h"

#include "ai/computer_turn.h"
#include "app/game_state.h"
#include "board/course.h"
#include "play/hand_in.h"
#include "race/card_rules.h"
#include "race/crashes.h"
#include "race/event_deck.h"
#include "race/race_state.h"
#include "race/rider_place.h"

#include <cstdlib>

namespace
{

enum EventKind { LOST_TURNS, CRASH, FREE_CARD, EXTRA_DIE, EXTRA_SPACES, PAID_SPACES };

struct EventCard {
    EventKind kind;
    int amount; // turns the drawing rider misses, or spaces
    int breakaway = 0;
};

// clang-format off
constexpr Table<EventCard, EVENT_CARD_COUNT> eventCards = {
    // 0 to 4
    EventCard{LOST_TURNS, 1}, {LOST_TURNS, 1}, {LOST_TURNS, 1}, {LOST_TURNS, 1}, {LOST_TURNS, 1},
    // 5 to 11
    {LOST_TURNS, 2}, {LOST_TURNS, 2}, {LOST_TURNS, 2}, {LOST_TURNS, 2}, {LOST_TURNS, 2}, {LOST_TURNS, 2}, {LOST_TURNS, 2},
    // 12 to 14
    {CRASH, 1}, {CRASH, 1}, {CRASH, 2},
    // 15 to 20
    {FREE_CARD, 0}, {FREE_CARD, 0}, {FREE_CARD, 0}, {EXTRA_DIE, 0}, {EXTRA_DIE, 0}, {EXTRA_DIE, 0},
    // 21 to 29
    {EXTRA_SPACES, 2}, {EXTRA_SPACES, 2, 1}, {EXTRA_SPACES, 3}, {EXTRA_SPACES, 3}, {EXTRA_SPACES, 4},
    {EXTRA_SPACES, 4}, {EXTRA_SPACES, 4, 1}, {EXTRA_SPACES, 4, 1}, {PAID_SPACES, 0}};
// clang-format on

Rider& drawingRider()
{
    return race.riders[race.currentRider];
}

// A computer rider's throw stands; the bonus comes on top of it.
void moveOnWith(int bonus)
{
    const Rider& rider = drawingRider();
    race.movesTotal += bonus;
    enter(STATE_COMPUTING);
    planComputerMove(race.dice[0] + race.dice[1] + bonus, {rider.row, rider.lane});
}

void answerForLostTurns()
{
    enter(STATE_TRANSIT);
    if (drawingRider().isHuman)
        askHandIn();
    else
        computerHandIn();
}

void loseTurns(int turns)
{
    race.eventRider = race.currentRider;
    drawingRider().skipTurns = turns;
    answerForLostTurns();
}

// The rider on turn is off the grid; for the crash he lies on his square.
void crash(int turns)
{
    race.eventRider = race.currentRider;
    Rider& rider = drawingRider();
    int& square = course.courseOccupant[rider.row][rider.lane];
    square = race.currentRider;
    crashChain(rider.row, rider.lane, rider.row);
    square = -1;
    rider.skipTurns = turns;
    answerForLostTurns();
}

void giveStrengthCard()
{
    if (drawingRider().isHuman) {
        enter(STATE_EVENT_CARD_KIND);
        return;
    }
    race.bonusMoves = terrainOf(race.currentRider) == TERRAIN_MOUNTAIN ? WHITE_CARD : BLUE_CARD;
    moveOnWith(race.bonusMoves);
}

void giveExtraDie()
{
    enter(STATE_EVENT_DIE);
    if (drawingRider().isHuman)
        return;
    race.extraDie = std::rand() % 6 + 1;
    moveOnWith(race.extraDie);
}

void giveSpaces(int spaces)
{
    race.extraMoves = spaces;
    if (!drawingRider().isHuman) {
        moveOnWith(spaces);
        return;
    }
    race.moveBudget += spaces;
    enter(STATE_MOVE);
}

void sellSpaces()
{
    if (!hasCardToHandIn(race.currentRider))
        enter(STATE_EVENT_NO_CARD);
    else if (drawingRider().isHuman)
        enter(STATE_EVENT_HANDIN);
    else
        computerHandInForMoves();
}

} // namespace

void applyEventCard()
{
    if (gameState != STATE_EVENT_CARD)
        return;
    const EventCard& card = eventCards[deck.eventDeck[deck.eventCardPos]];
    race.breakaway |= card.breakaway;
    switch (card.kind) {
    case LOST_TURNS:
        return loseTurns(card.amount);
    case CRASH:
        return crash(card.amount);
    case FREE_CARD:
        return giveStrengthCard();
    case EXTRA_DIE:
        return giveExtraDie();
    case EXTRA_SPACES:
        return giveSpaces(card.amount);
    case PAID_SPACES:
        return sellSpaces();
    }
}

void goOnWithoutEventCard()
{
    if (gameState != STATE_EVENT_NO_CARD)
        return;
    if (drawingRider().isHuman) {
        enter(STATE_MOVE);
        return;
    }
    enter(STATE_COMPUTING);
    planComputerMove(race.movesTotal, {0, 0});
}
