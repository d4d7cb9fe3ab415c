#pragma once

#include "ai/route_walk.h"

// Compares a square that a search has reached with the best so far and, if it is accepted, makes it
// the best, with path as the way. With simulateFollowers race.followerPlan then says who would
// follow.
void judgeSquare(const Candidate& candidate, const RoutePath& path, RouteBest& best);
