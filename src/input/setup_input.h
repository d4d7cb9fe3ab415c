#pragma once

// "Team Setup": who plays, under which names, and what kind of race.

// A release of the left button, in pixels of the drawing area.
void releaseInTeamSetup(int x, int y);

// A character typed, or a key that edits or moves between the fields.
void keyInTeamSetup(unsigned char key);
void specialInTeamSetup(int key);
