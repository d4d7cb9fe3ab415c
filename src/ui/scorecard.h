#pragma once

// The result of a stage on a sheet over the race screen: the finish in order with the points of
// each rider, and the teams by their sums.
void drawScorecard();
