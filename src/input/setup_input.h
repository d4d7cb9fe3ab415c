#pragma once

// "Team Setup": who plays, under which names, and what kind of race.

// A release of the left button, in pixels of the drawing area.
void releaseInTeamSetup(int x, int y);

// A character typed, or a key that edits or moves between the fields. backward: Tab with Shift.
void keyInTeamSetup(unsigned char key, bool backward);
void specialInTeamSetup(int key);
