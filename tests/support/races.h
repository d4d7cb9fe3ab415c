#pragma once

#include "race/race_state.h"

#include <initializer_list>
#include <string_view>

// Small races for the tests.

struct Placed {
    int rider;
    int row;
    int lane;
    bool hasMoved = false;
};

// A course with nobody on it but the riders given, in round 2, nobody on turn. All teams are
// computer teams. Riders that are not named have finished long ago.
void setUpRace(std::string_view text, std::initializer_list<Placed> placed);

// A race with all options at their start values, seeded; it waits for the first "Next".
void startSeededRace(std::string_view text, unsigned seed);

// Makes a team's riders those of a person.
void makeHuman(int team);

// Begins the turn of a rider who stands on the course, as nextTurn does for a person.
void beginPersonsTurn(int rider);

// Answers what a computer race waits for, once. False when the stage is over.
bool advanceComputerRace();

// Answers until the stage is over.
void runComputerRace();
