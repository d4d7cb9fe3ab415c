#include "race/event_deck.h"

#include "race/race_state.h"

#include <cstdlib>
#include <utility>

EventDeck deck;

static constexpr int EVENT_TOTAL = 7;

void rebuildEventCards()
{
    for (int i = 0; i < EVENT_CARD_COUNT; ++i)
        deck.eventDeck[i] = i;
    for (int i = 0; i < EVENT_CARD_COUNT; ++i)
        std::swap(deck.eventDeck[i], deck.eventDeck[std::rand() % EVENT_CARD_COUNT]);
}

bool drawsEventCard()
{
    if (race.movesTotal != EVENT_TOTAL || race.roundNumber == 1 || !raceSetup.eventCardsOn)
        return false;
    deck.eventCardPos = (deck.eventCardPos + 1) % EVENT_CARD_COUNT;
    return true;
}
