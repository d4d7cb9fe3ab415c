#pragma once

// Where a rider stands, on the course and on the picture of the board.

// Terrain under a rider.
int terrainOf(int rider);

// Takes a rider off the grid. Who was lifted off the board is not on it: his square may be
// another's.
void leaveSquare(int rider);

// Sets riderLapCount to the laps that lie behind the rider's row.
void updateRiderLap(int rider);

// Brings x, y and heading of a rider to his square.
void placeOnBoard(int rider);
