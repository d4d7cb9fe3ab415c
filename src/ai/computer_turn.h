#pragma once

#include "race/race_state.h"

// A computer rider's turn: cards, breakaway, throw and route.

// Plays the turn of currentRider in STATE_COMPUTING, up to the animation of his route, an event
// card, or STATE_NO_MOVE.
void playComputerTurn();

// Finds the route for a throw of so many moves with its bonuses, before the modifier of the square,
// and sets the rider in motion. start is the square that the search takes as the best so far, with
// row -1 for none.
void planComputerMove(int moves, Square start);

// Pays one card for the four moves of an event card and sets the rider in motion.
void computerHandInForMoves();
