#pragma once

// "Continue existing race": the list of races, and the race chosen on it.

// From the main menu. No race is chosen yet.
void openRaceFiles();

// A release of the left button, in pixels of the drawing area: chooses the race whose name is
// there. False if there is none.
bool releaseOnRaceName(int x, int y);

// The race chosen, if one is: on to its next stage, or to its score sheet.
void continueRace();
void openStandings();

// Turns the list by so many columns.
void turnRaceList(int columns);
