#pragma once

#include <string>
#include <string_view>
#include <vector>

// What the list of races keeps. The race that is chosen stands in raceSetup by its names, and what
// its file holds in racePreview and raceSetup.raceStages.
struct RaceList {
    std::vector<std::string> raceFileList; // extension included, in the order of the folder
    int raceListPage = 0;                  // the first column shown
};

extern RaceList raceList;

// Reads the folder, from the first column on.
void openRaceList();

// Reads the folder again if it has changed since. The columns shown stay where they are as long as
// there are any.
void refreshRaceList();

// Without the extension.
std::string raceBaseNameOf(std::string_view fileName);

// Whether a race is chosen.
bool raceChosen();

// Whether there are columns to the left and to the right of those shown.
bool racesBefore();
bool racesBehind();

// The entry at a place in pixels of the drawing area, or -1.
int raceEntryAt(int x, int y);
