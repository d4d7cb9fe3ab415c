#pragma once

constexpr int MOVES_FOR_CARD = 4; // what an event card gives for a card handed in

// Which strength cards a rider may use. A card is named by its slot: 0 to 13 the team's set, 14 to
// 17 the cards won in the race.

// The value of the card in a slot of a team, 5 or 6; -1 for a slot that never held a won card.
int cardValueOf(int team, int slot);

// Whether the card is the rider's own, his team's, or won by him.
bool ownsCard(int rider, int slot);

// Whether the rider may hand in the card: available, owned, and not blue on a mountain.
bool mayHandIn(int rider, int slot);

// Whether he has any such card.
bool hasCardToHandIn(int rider);

// Whether currentRider may use the card at all. Strength cards don't exist in round 1.
bool cardPlayable(int slot);
