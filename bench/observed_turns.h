#pragma once

#include "race/race_state.h"

#include <vector>

// The turns of computer riders as they are played in real races.

struct ObservedTurn {
    int rider = -1;
    Square from;
    int budget = 0; // moves of the throw with the modifier of the square
    double seconds = 0.0;
    double floorSeconds = 0.0; // one walk over the squares in reach, right behind it
};

// Plays a seeded race to its end and tells its turns.
std::vector<ObservedTurn> observeTurns(unsigned seed);

// The least that a turn has to do: visits every square in reach once and judges none.
void walkSquaresInReach(const ObservedTurn& turn);

constexpr const char* OBSERVED_COURSE = "01S23S4S5F12";
