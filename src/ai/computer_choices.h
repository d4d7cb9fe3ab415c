#pragma once

#include "race/race_state.h"

// The computer's answers to what a person is asked, other than its move.

// The square of the start grid that the rider takes.
Square chooseStartSquare(int rider);

// Whether the rider follows to the target square instead of waiting for his own turn. He is off the
// grid while he thinks.
bool computerFollows(int rider, Square target);

// Spends the cards that buy off the rider's turns to miss, as many as he may hand in.
void payForLostTurns(int rider);
