#pragma once

// The controls and panels of the race screen: everything but the board, the dialogs and the
// scorecard. It shows values and decides nothing.
void drawRacePanel();
