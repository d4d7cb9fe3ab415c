#pragma once

#include "screen/support/gl_window.h"

#include <string>
#include <vector>

// What the screen says. The test program is linked so that every drawText and drawDialogBox is
// noted on its way.

struct DrawnText {
    std::string words;
    Rect place; // from its left end, as high as a capital letter
    Pixel colour;
    bool onBox; // of the dialog or the score sheet, which lie on top
};

// Paints a frame and tells its texts, in the order in which they were drawn; those that begin
// within a place of the drawing area; and their words, with a bar between texts.
std::vector<DrawnText> drawnTexts();
std::vector<DrawnText> textsAt(const Rect& place);
std::string wordsAt(const Rect& place);

// Whether just these words stand somewhere.
bool screenSays(const std::string& words);
