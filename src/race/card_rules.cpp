#include "race/card_rules.h"

#include "board/course.h"
#include "race/race_state.h"
#include "race/rider_place.h"

int cardValueOf(int team, int slot)
{
    return slot < SET_CARD_COUNT ? cardValue[slot] : race.wonCardValue[team][slot - SET_CARD_COUNT];
}

bool ownsCard(int rider, int slot)
{
    if (slot < SET_CARD_COUNT)
        return cardOwner[slot] == riderPlace(rider) || cardOwner[slot] == -1;
    return race.wonCardRider[riderTeam(rider)][slot - SET_CARD_COUNT] == rider;
}

bool mayHandIn(int rider, int slot)
{
    const int team = riderTeam(rider);
    if (race.cardUsed[team][slot] != CARD_AVAILABLE || !ownsCard(rider, slot))
        return false;
    return terrainOf(rider) != TERRAIN_MOUNTAIN || cardValueOf(team, slot) != BLUE_CARD;
}

bool hasCardToHandIn(int rider)
{
    for (int slot = 0; slot < CARD_SLOT_COUNT; ++slot)
        if (mayHandIn(rider, slot))
            return true;
    return false;
}

bool cardPlayable(int slot)
{
    if (race.currentRider == -1 || race.roundNumber == 1)
        return false;
    return race.cardUsed[riderTeam(race.currentRider)][slot] == CARD_AVAILABLE &&
           ownsCard(race.currentRider, slot);
}
