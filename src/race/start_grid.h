#pragma once

// The squares on which a race starts.

constexpr int START_ROWS = 4;

// Whether the rider may be placed there: an empty square of the start grid, and no team-mate in the
// start rows of that lane.
bool mayPlaceOn(int row, int lane, int rider);
