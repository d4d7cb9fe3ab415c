#pragma once

#include "ai/route_walk.h"

// The thinking part of the computer player: one walk over the course that finds the best square for
// a throw, or a way to one given square. There is no chance in it.

// Walks from a real square with a budget of moves: throw plus the modifier of the start square, at
// most PATH_LETTERS_MAX. The best square comes back in best, the start square included. With a
// target best.path alone is written, and stays empty if there is no way; so it does for a target
// that is the start. A negative budget changes nothing.
void findRoute(Square from, int budget, const RouteQuestion& question, RouteBest& best);

// Fills course.reach12 and course.reach11, the furthest row for a throw of 12 and of 11, for every
// real square of the course.
void fillReachTables();
