#pragma once

#include "app/table.h"
#include "board/course.h"

// The one step rule that all movers share. A step goes one row forward: 'M' straight ahead, 'L' to
// lane - 1, 'R' to lane + 1. Where it enters PASS_THROUGH squares it goes on along the lane to the
// first square behind them, all in one step.

constexpr Square NO_STEP = {-1, -1};

// By Step.
constexpr Table<char, STEP_COUNT> STEP_LETTERS = {'M', 'L', 'R'};

// The landing square of a step from a square of the grid, or NO_STEP if it is refused: by the edge
// of the road, by a wall between the lanes, or by a rider on the landing square. With reachOnly
// riders don't count and an allowed step returns the square stepped from.
Square stepTarget(int row, int lane, char letter, bool reachOnly);
