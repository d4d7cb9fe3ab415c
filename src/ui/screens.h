#pragma once

// The full screens outside a race, on the blue band.

void drawLoadingScreen();
void drawMainMenu();

// Its controls are grey behind the dialog of STATE_SETUP_MESSAGE.
void drawTeamSetup();

void drawCourseSelection();
