#include "play/cards.h"

#include "app/game_state.h"
#include "app/host.h"
#include "board/course.h"
#include "race/card_rules.h"
#include "race/dice.h"
#include "race/event_deck.h"
#include "race/race_state.h"
#include "race/rider_place.h"

#include <algorithm>
#include <cstdlib>

static bool handingIn()
{
    return gameState == STATE_SKIP_HANDIN || gameState == STATE_EVENT_HANDIN;
}

static bool blueOnMountain(int slot)
{
    return terrainOf(race.currentRider) == TERRAIN_MOUNTAIN &&
           cardValueOf(riderTeam(race.currentRider), slot) == BLUE_CARD;
}

static void layCard(Table<int, 2>& places, int slot)
{
    race.cardUsed[riderTeam(race.currentRider)][slot] = CARD_SPENT;
    places[places[0] == -1 ? 0 : 1] = slot;
    redrawNow();
}

static bool placeFreeForThrow()
{
    if (terrainOf(race.currentRider) == TERRAIN_COBBLES)
        return race.playedCards[0] == -1 && race.playedCards[1] == -1;
    return race.playedCards[0] == -1 || race.playedCards[1] == -1;
}

int handInSlotCount()
{
    if (gameState == STATE_EVENT_HANDIN || terrainOf(race.currentRider) == TERRAIN_COBBLES)
        return 1;
    return std::clamp(race.riders[race.currentRider].skipTurns, 1, 2);
}

static bool placeFreeForHandIn()
{
    return race.handInCards[0] == -1 || (race.handInCards[1] == -1 && handInSlotCount() == 2);
}

void pickCard(int slot)
{
    if (!cardPlayable(slot) || blueOnMountain(slot))
        return;
    if (gameState == STATE_TURN && placeFreeForThrow())
        layCard(race.playedCards, slot);
    else if (handingIn() && placeFreeForHandIn())
        layCard(race.handInCards, slot);
}

void unpickCard(int index)
{
    if (gameState != STATE_TURN && !handingIn())
        return;
    Table<int, 2>& places = handingIn() ? race.handInCards : race.playedCards;
    const int slot = places[index];
    if (slot == -1 || slot == DOPING_CARD)
        return;
    race.cardUsed[riderTeam(race.currentRider)][slot] = CARD_AVAILABLE;
    places[index] = -1;
    if (gameState == STATE_TURN && race.playedCards[0] == -1 && race.playedCards[1] == -1)
        race.breakaway = 0;
    redrawNow();
}

void toggleBreakaway()
{
    if (gameState != STATE_TURN || (race.playedCards[0] == -1 && race.playedCards[1] == -1))
        return;
    race.breakaway = 1 - race.breakaway;
    redrawNow();
}

void humanThrow()
{
    if (gameState != STATE_TURN)
        return;
    const Rider& rider = race.riders[race.currentRider];
    enter(STATE_TRANSIT);
    throwDice();
    race.movesTotal = race.dice[0] + race.dice[1];
    redrawNow();
    race.moveBudget = race.movesTotal + course.moveModifier[rider.row][rider.lane];
    race.stepsTaken = 0;
    if (race.moveBudget < 1) {
        enter(STATE_NO_MOVE);
        return;
    }
    race.pathSquares[0] = {static_cast<float>(rider.row), static_cast<float>(rider.lane)};
    gameState = drawsEventCard() ? STATE_EVENT_CARD : STATE_MOVE;
    redrawNow();
}

void throwExtraDie()
{
    if (gameState != STATE_EVENT_DIE)
        return;
    race.extraDie = std::rand() % 6 + 1;
    race.moveBudget += race.extraDie;
    race.movesTotal += race.extraDie;
    enter(STATE_MOVE);
}

// The first slot for won cards that holds no available card, as an index from 0; -1 if all do.
static int freeWonCard(int team)
{
    for (int k = 0; k < WON_CARD_COUNT; ++k)
        if (race.cardUsed[team][SET_CARD_COUNT + k] != CARD_AVAILABLE)
            return k;
    return -1;
}

static void keepWonCard(int team)
{
    const int k = freeWonCard(team);
    if (k != -1)
        race.cardUsed[team][SET_CARD_COUNT + k] = CARD_AVAILABLE;
}

void receiveWonCard(int value)
{
    if (gameState != STATE_EVENT_CARD_KIND)
        return;
    const int team = riderTeam(race.currentRider);
    const int k = freeWonCard(team);
    if (k != -1) {
        race.wonCardRider[team][k] = race.currentRider;
        race.wonCardValue[team][k] = value;
    }
    gameState = STATE_EVENT_CARD_WHEN;
    // It can't be used here, so there is nothing to ask.
    if (terrainOf(race.currentRider) == TERRAIN_MOUNTAIN && value == BLUE_CARD) {
        keepWonCard(team);
        gameState = STATE_MOVE;
    }
    redrawNow();
}

void useWonCard(bool now)
{
    if (gameState != STATE_EVENT_CARD_WHEN)
        return;
    const int team = riderTeam(race.currentRider);
    const int k = freeWonCard(team);
    if (!now) {
        keepWonCard(team);
    } else if (k != -1) {
        race.moveBudget += race.wonCardValue[team][k];
        race.bonusMoves += race.wonCardValue[team][k];
    }
    enter(STATE_MOVE);
}
