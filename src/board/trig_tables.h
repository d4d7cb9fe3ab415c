#pragma once

#include "app/table.h"

// Sine and cosine of whole degrees, 0 to 360. Curves of the board and round shapes on the screen go
// through them, so that a place on a curve is fixed to whole degrees.
extern const Table<float, 361> sinTable;
extern const Table<float, 361> cosTable;
