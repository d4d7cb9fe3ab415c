#pragma once

// The screen "Settings", over the main menu or over a race.

// A release of the left button, in pixels of the drawing area.
void releaseInSettings(int x, int y);

// A digit typed, or a key that edits or moves between the fields that are open. backward: Tab with
// Shift.
void keyInSettings(unsigned char key, bool backward);
void specialInSettings(int key);
