#pragma once

#include "race/start_grid.h"

// The throw for the order, and the placing of the sixteen riders on the start grid.

// Throws for the team of currentRider. At the button for a person, at once for the computer.
void throwForOrder();

// The answer to "Next", only in STATE_ORDER_RESULT: the next team throws, a tie is thrown again, or
// placing begins.
void afterOrderThrow();

// Places currentRider on the cursor's square, if he may stand there. Only in STATE_PLACE_HUMAN.
void placeHumanRider();

// Places currentRider, a computer rider.
void placeComputerRider();

// The next rider to place, or the first turn of the race.
void nextPlacer();

// Moves the placing cursor, kept on the start grid. Only in STATE_PLACE_HUMAN.
void movePlacingCursor(int rows, int lanes);
