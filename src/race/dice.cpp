#include "race/dice.h"

#include "app/host.h"
#include "race/card_rules.h"
#include "race/race_state.h"

#include <cstdlib>

static int valueInPlace(int card, int thrown)
{
    if (card == -1)
        return thrown;
    if (card == DOPING_CARD)
        return race.dopingCardValue;
    return cardValueOf(riderTeam(race.currentRider), card);
}

void throwDice()
{
    const int both = std::rand() % 36;
    race.dice[0] = valueInPlace(race.playedCards[0], both % 6 + 1);
    race.dice[1] = valueInPlace(race.playedCards[1], both / 6 + 1);
    redrawNow();
}
