#pragma once

#include "app/game_state.h"
#include "app/view.h"
#include "board/course.h"
#include "race/race_state.h"

#include <initializer_list>
#include <ostream>
#include <string_view>
#include <utility>
#include <vector>

// Small races for the tests, and the means to play them.

constexpr std::string_view ONE_LAP = "01S23S4S5F12"; // sprints on rows 30, 60, 97; finish 114
constexpr std::string_view TWO_LAPS = "01234512345F12";
constexpr std::string_view FROM_START_2 = "64S5F12"; // a sprint on row 43; finish 60

// Squares of ONE_LAP.
constexpr Square FLAT = {13, 2};
constexpr Square COBBLES = {61, 4};  // -1
constexpr Square MOUNTAIN = {31, 2}; // -3

constexpr bool MOVED = true;

using Pair = Table<int, 2>; // dice, or the cards in their places

struct Placed {
    int rider;
    int row;
    int lane;
    bool hasMoved = false;
};

// As the game begins: no race, no names, nothing chosen, the fake host answering.
void forgetGame();

// A course with nobody on it but the riders given, in round 2, nobody on turn. All teams are
// computer teams. Riders that are not named have finished long ago.
void setUpRace(std::string_view text, const std::vector<Placed>& placed);

// A single stage without event cards, seeded; it waits for the first "Next".
void startSeededRace(std::string_view text, unsigned seed);

// Makes a team's riders those of a person.
void makeHuman(int team);

// Begins the turn of a rider who stands on the course, as nextTurn does for a person.
void beginPersonsTurn(int rider);

// A race on ONE_LAP with a person's rider on this square, before his throw, and nobody else.
void putPersonOnTurn(int rider, Square square);

// Answers what a computer race waits for, once. False when the stage is over.
bool advanceComputerRace();

// Answers until the stage is over.
void runComputerRace();

// A race of persons: as setUpRace, with all teams played by persons. nextTurn starts it.
void setUpPersonsRace(std::string_view text, const std::vector<Placed>& placed);

// Puts a rider who stands on the course on turn after a throw of so many moves, his first square on
// the path. For a person: he may be steered.
void beginPersonsMove(int rider, int moves);

// Steers the rider on turn, one step for each of the letters L, M and R.
void steer(std::string_view letters);

// Picks these cards for the person on turn, one after the other.
void pickCards(std::initializer_list<int> slots);

// Leaves a team these of its set of cards, the others spent.
void leaveCards(int team, std::initializer_list<int> slots);

// The cards of a team's set that are spent.
std::vector<int> spentCards(int team);

// Puts a won card, 14 to 17, into the rider's hand.
void giveWonCard(int slot, int rider, int value);

// Who is on turn, and what the race waits for.
using OnTurn = std::pair<int, GameState>;
inline OnTurn onTurn()
{
    return {race.currentRider, gameState};
}

inline Square squareOfRider(int rider)
{
    return {race.riders[rider].row, race.riders[rider].lane};
}

// The rider who holds exactly this square, or -1.
inline int occupant(int row, int lane)
{
    return course.courseOccupant[row][lane];
}

inline void PrintTo(const Square& square, std::ostream* out)
{
    *out << "row " << square.row << " lane " << square.lane;
}
