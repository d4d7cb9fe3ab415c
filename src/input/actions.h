#pragma once

// What a control does outside the rules of the race. Mouse and keyboard call the same.

// From the main menu.
void openTeamSetup();

// "OK" on the team setup screen: goes on to the choice of a course, or tells what is missing.
void confirmTeamSetup();
void closeSetupMessage();

// Starts a race on the fixed course under the mouse, if there is one.
void chooseHoveredCourse();
void leaveCourseSelection();

// "OK" to an event card that can't be played: the turn goes on as if it hadn't been drawn.
void goOnWithoutEventCard();

// Flat view to perspective view and back, each with the camera it had last.
void toggleView();

// The next camera of the present view, or the one before.
enum CameraStep { CAMERA_NEXT, CAMERA_PREVIOUS };
void changeCamera(CameraStep step);

// Shows the cards of a team, 0 to 3, in the card panel.
void showTeam(int team);
