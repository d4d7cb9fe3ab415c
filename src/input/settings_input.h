#pragma once

#include "app/settings.h"

// The screen "Settings", over the main menu or over a race.

void chooseMovement(int smooth); // 1 smooth, 0 stepwise
void chooseRatio(const ScreenRatio& choice);
void takeDefaultSettings();

// "OK" keeps and writes them, "Cancel" brings back what was.
void confirmSettings();
void cancelSettings();

// A release of the left button, in pixels of the drawing area: puts the cursor into an open field.
void releaseInSettingsFields(int x, int y);

// A digit typed, or a key that edits or moves between the fields that are open. backward: Tab with
// Shift.
void keyInSettings(unsigned char key, bool backward);
void specialInSettings(int key);
