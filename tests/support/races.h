#pragma once

#include "race/race_state.h"

#include <initializer_list>
#include <ostream>
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

// A single stage without event cards, seeded; it waits for the first "Next".
void startSeededRace(std::string_view text, unsigned seed);

// Makes a team's riders those of a person.
void makeHuman(int team);

// Begins the turn of a rider who stands on the course, as nextTurn does for a person.
void beginPersonsTurn(int rider);

// Answers what a computer race waits for, once. False when the stage is over.
bool advanceComputerRace();

// Answers until the stage is over.
void runComputerRace();

// A race of persons: as setUpRace, with all teams played by persons. nextTurn starts it.
void setUpPersonsRace(std::string_view text, std::initializer_list<Placed> placed);

// Puts a rider who stands on the course on turn after a throw of so many moves, his first square on
// the path. For a person: he may be steered.
void beginPersonsMove(int rider, int moves);

// Steers the rider on turn, one step for each of the letters L, M and R.
void steer(std::string_view letters);

Square squareOfRider(int rider);

// The rider who holds exactly this square, or -1.
int occupant(int row, int lane);

inline void PrintTo(const Square& square, std::ostream* out)
{
    *out << "row " << square.row << " lane " << square.lane;
}
