#pragma once

// "Continue existing race": the list of races, and the race chosen on it.

// From the main menu. No race is chosen yet.
void openRaceFiles();

// A release of the left button, in pixels of the drawing area.
void releaseInRaceFiles(int x, int y);

void keyInRaceFiles(unsigned char key);
