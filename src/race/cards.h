#pragma once

// Which strength card may go where, the throw, and the cards won from event cards.

// Lays a playable card in playedCards or, in the hand-in states, in handInCards. What a rule
// forbids is ignored.
void pickCard(int slot);

// Takes back the card in place 0 or 1 of playedCards or handInCards. The doping card stays.
void unpickCard(int index);

// Only in STATE_TURN with a card laid.
void toggleBreakaway();

// Turns one random number and the cards laid into dice.
void throwDice();

// "Throw" of a person's rider, only in STATE_TURN.
void humanThrow();

// "Throw" of the extra die, only in STATE_EVENT_DIE.
void throwExtraDie();

// The kind of card that a person chose, BLUE_CARD or WHITE_CARD; only in STATE_EVENT_CARD_KIND.
void receiveWonCard(int value);

// Whether the won card is used at once; only in STATE_EVENT_CARD_WHEN.
void useWonCard(bool now);
