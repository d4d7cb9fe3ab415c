#include "play/doping.h"

#include "app/game_state.h"
#include "board/course.h"
#include "play/overlays.h"
#include "play/stage_end.h"
#include "race/race_state.h"
#include "race/rider_place.h"

#include <cstdlib>

// The first place of the throw that is free for the card, or -1. On cobbles both must be.
static int placeForCard()
{
    const bool alone = terrainOf(race.currentRider) == TERRAIN_COBBLES;
    for (int place = 0; place < 2; ++place)
        if (race.playedCards[place] == -1 && (!alone || race.playedCards[1 - place] == -1))
            return place;
    return -1;
}

bool mayDope()
{
    return gameState == STATE_TURN && race.dopingNumber[race.currentRider] == -1;
}

void askDoping()
{
    if (!mayDope() || placeForCard() == -1)
        return;
    openOverlay(STATE_CONFIRM_DOPING);
}

void confirmDoping()
{
    if (gameState != STATE_CONFIRM_DOPING)
        return;
    race.dopingNumber[race.currentRider] = std::rand() % 6 + 1;
    enter(STATE_DOPING_NUMBER);
}

// The card is a blue one but where only white ones may be played.
void takeDopingCard()
{
    if (gameState != STATE_DOPING_NUMBER)
        return;
    race.playedCards[placeForCard()] = DOPING_CARD;
    race.dopingCardValue =
        terrainOf(race.currentRider) == TERRAIN_MOUNTAIN ? WHITE_CARD : BLUE_CARD;
    enter(STATE_TURN);
}

bool isCaught(int rider)
{
    const int number = race.dopingNumber[rider];
    return number != -1 && (number == race.dopingDraw[0] || number == race.dopingDraw[1]);
}

// One random number for two different ones, each ordered pair equally likely.
void startDopingControl()
{
    const int both = std::rand() % 30;
    race.dopingDraw = {both / 5 + 1, both % 5 + 1};
    if (race.dopingDraw[1] >= race.dopingDraw[0])
        ++race.dopingDraw[1];
    race.anyDoping = 0;
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        race.anyDoping |= isCaught(rider);
    enter(STATE_DOPING_DRAW);
}

bool counterDieAcquits()
{
    return race.counterDie == race.dopingNumber[race.currentRider];
}

// Nobody moves up into his places.
static void disqualify(int rider)
{
    race.riders[rider].disqualified = 1;
    for (int& slot : race.resultSlots)
        if (slot == rider)
            slot = -1;
}

static void countercheckNext()
{
    do {
        if (++race.currentRider == RIDER_COUNT) {
            race.currentRider = -1;
            closeStage();
            return;
        }
    } while (!isCaught(race.currentRider));
    race.counterDie = std::rand() % 6 + 1;
    if (!counterDieAcquits())
        disqualify(race.currentRider);
    enter(STATE_DOPING_COUNTERCHECK);
}

void afterDopingDraw()
{
    if (gameState != STATE_DOPING_DRAW)
        return;
    race.currentRider = -1;
    countercheckNext();
}

void nextCountercheck()
{
    if (gameState == STATE_DOPING_COUNTERCHECK)
        countercheckNext();
}
