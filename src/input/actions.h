#pragma once

#include "app/game_state.h"

#include <string>

// What a control does outside the rules of the race. Mouse and keyboard call the same.

// From the main menu.
void openTeamSetup();

// "OK" on the team setup screen: goes on to the choice of a course, or tells what is missing.
void confirmTeamSetup();

// Names the files of a race of several stages: baseName is that of its race file without the
// extension. Any other race has none but that of its standings.
void nameRaceFiles(const std::string& baseName);
void forgetRaceFiles();

// To the choice of a course, and back to the present state from there.
void goToCourses();

// Starts a race on the fixed course under the mouse, if there is one.
void chooseHoveredCourse();
void leaveCourseSelection();

// Flat view to perspective view and back, each with the camera it had last.
void toggleView();

// The next camera of the present view, or the one before.
enum CameraStep { CAMERA_NEXT, CAMERA_PREVIOUS };
void changeCamera(CameraStep step);

// Shows the cards of a team, 0 to 3, in the card panel.
void showTeam(int team);
