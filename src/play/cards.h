#pragma once

// Which strength card may go where, the throw, and the cards won from event cards.

// Lays a playable card in playedCards or, in the hand-in states, in handInCards. What a rule
// forbids is ignored.
void pickCard(int slot);

// Takes back the card in place 0 or 1 of playedCards or handInCards. The doping card stays.
void unpickCard(int index);

// How many cards a person may put up in STATE_SKIP_HANDIN or STATE_EVENT_HANDIN: one for an event
// card that wants one and on cobbles, else one for each turn to miss, at most two.
int handInSlotCount();

// Only in STATE_TURN with a card laid.
void toggleBreakaway();

// "Throw" of a person's rider, only in STATE_TURN.
void humanThrow();

// "Throw" of the extra die, only in STATE_EVENT_DIE.
void throwExtraDie();

// The kind of card that a person chose, BLUE_CARD or WHITE_CARD; only in STATE_EVENT_CARD_KIND.
void receiveWonCard(int value);

// Whether the won card is used at once; only in STATE_EVENT_CARD_WHEN.
void useWonCard(bool now);
