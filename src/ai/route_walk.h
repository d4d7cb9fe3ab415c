#pragma once

#include "app/table.h"
#include "race/race_state.h"

#include <string_view>

// The walk over the squares that a rider can reach, and the records that a search fills.

constexpr int PATH_LETTERS_MAX = 18; // a throw of 7, an extra die of 6 and a start modifier of +5

// The letters of a way, one for each step: 'M' straight ahead, 'L', 'R'.
struct RoutePath {
    Table<char, PATH_LETTERS_MAX> letters{};
    int length = 0;

    std::string_view text() const { return {letters.begin(), static_cast<std::size_t>(length)}; }
    bool empty() const { return length == 0; }
};

// The best square so far. The caller resets it before a search, or starts it on a real square.
struct RouteBest {
    int sprint = -1; // the line that lies next from the square
    int row = -1;    // -1: none yet
    int lane = -1;
    int own = 0;      // team-mates in the chains of riders beside the square
    int oppAhead = 0; // opponents in the chain ahead
    int oppBehind = 0;
    int near = 99;      // steps to the nearest team-mate in those chains
    double share = 0.0; // own share of the followers simulated
    RoutePath path{};
};

struct RouteQuestion {
    int rider = -1;                 // whose team the square is judged for
    Square target{};                // a square to reach, or none
    bool simulateFollowers = false; // count who would follow to the square
    bool reachOnly = false;         // riders left out; only the furthest square counts
};

// A square that the walk has reached.
struct Candidate {
    Square at;
    int budget; // moves left on arrival
    const RouteQuestion& question;
};

// Compares a candidate with the best square and replaces it if the candidate is better.
using Judge = void (*)(const Candidate& candidate, const RoutePath& path, RouteBest& best);

// Walks from a real square, depth first, straight ahead before left before right. With a target
// best.path becomes a way to it; with reachOnly best becomes the furthest square; else every square
// is put before the judge, the end of each way first and the start square last. A judge may itself
// walk to targets.
void walkRoutes(Square from, int budget, const RouteQuestion& question, RouteBest& best,
                Judge judge);

// Whether the rider can come to the square in at most so many moves. Not if he stands there.
bool reachesSquare(int rider, Square from, Square target, int moves);
