#pragma once

#include "app/game_state.h"

// Goes over to a state, keeping the present one to go back to.
void openOverlay(GameState state);

// Screens that open on top of the race and go back to where it stood. Each stores the state to go
// back to and paints.

void openQuitConfirm();
void openScorecard();
void openPositions();

// Keeps what "Cancel" brings back, see settingsBackup.
void openSettings();

// Back to where the overlay was opened; a move that it froze goes on.
void closeOverlay();

// Leaves the race as it stands, without saving; the mark of the sprint winner goes.
void toMainMenu();
