#pragma once

// The full screens outside a race, on the blue band.

void drawLoadingScreen();
void drawMainMenu();
void drawLanguages();
void drawManual();
void drawSettings();

// Its controls are grey behind the dialog of STATE_SETUP_MESSAGE.
void drawTeamSetup();

void drawCourseSelection();
void drawCourseDesigner();
void drawSavedCourses();

// The race files of the current folder; grey behind the score sheet in STATE_RACE_STANDINGS.
void drawRaceFiles();
