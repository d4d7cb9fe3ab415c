#pragma once

#include "app/table.h"

// The deck of event cards.

constexpr int EVENT_CARD_COUNT = 30;

struct EventDeck {
    Table<int, EVENT_CARD_COUNT> eventDeck{}; // a permutation of 0 to 29
    int eventCardPos = 0;                     // the card in hand; goes on from stage to stage
};

extern EventDeck deck;

// Shuffles the deck. eventCardPos stays.
void rebuildEventCards();

// After a throw: if it draws an event card, advances the deck to it and returns true.
bool drawsEventCard();
