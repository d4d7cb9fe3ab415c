#pragma once

// "Team Setup": who plays, under which names, and what kind of race.

void changePlayer(int team); // person to computer and back
void chooseStages(bool several);
void toggleEventCards();

// A release of the left button, in pixels of the drawing area: puts the cursor into a name. False
// if there is none.
bool releaseInNameFields(int x, int y);

// A character typed, or a key that edits or moves between the fields. backward: Tab with Shift.
void keyInTeamSetup(unsigned char key, bool backward);
void specialInTeamSetup(int key);
