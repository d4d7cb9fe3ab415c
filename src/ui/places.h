#pragma once

#include "ui/rect.h"

// Where everything lies that is no control of the table in ui/controls, from the layout of the
// moment. Drawing and hit tests both ask here. An index outside its range gives a place further on
// in the same row or column.

// Boxes that can be dragged by their title bars.
Rect dialogBox();
Rect dialogTitleBar();
Rect scorecardBox(); // the sheet with the space for its buttons
Rect scorecardTitleBar();

// The panel of the race screen.
Rect cardPanel();         // without its tabs
Rect cardPlace(int slot); // 0 to 13 the set, 14 to 17 the won cards
Rect dicePlace(int die);  // 0 left, 1 right
Rect handInSlot(int slot);
Rect extraCardSlot();
Rect extraDicePlace();

Rect languageBox(int language);
Rect manualFrame();

// Fields of text.
Rect teamNameBox(int team);
Rect raceNameBox();
Rect settingsField(int field); // 0 step time, 1 step distance, 2 step delay
float settingsLabelX();        // the left end of their labels

// Courses.
Rect coursePicture(int course);
Rect courseCell(int course); // the picture with its caption
Rect sectionRadio(int choice);
Rect sectionRadios(int choiceCount); // the list as a whole, half a line above and below included
Rect overviewPicture();              // the whole board, also behind a saved course

Rect movementFrame();
Rect ratioFrame();

// Race list.
Rect raceListFrame();
Rect raceListNames(); // where names are hit, all columns

// Check boxes and radio buttons answer to their label as well: their place reaches over it to the
// right. For a check box x, y and h are those of the box itself; the circle of a radio button,
// whose centre is (x, y) and whose diameter is h, stands at the left end, at half height.
Rect checkBoxArea(float x, float y, float size);
Rect radioArea(float x, float y, float h, float right);

// Labels keep their pixel size on any window; this is room for the longest of them.
constexpr float LABEL_ROOM = 150.0f;
