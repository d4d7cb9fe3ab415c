#pragma once

#include "app/table.h"

#include <cstdint>
#include <string_view>

// Text on the screen, in the bitmap fonts of GLUT with accented letters of our own. All text is
// Latin-1. Bitmap text keeps its pixel size whatever the window's size.

enum Font {
    FONT_BODY = 0,  // Helvetica 12: buttons, labels, dialogs, numbers
    FONT_FIXED = 1, // 8 by 13: text boxes, course lines
    FONT_SERIF = 2, // Times Roman 24: the names of the languages
    FONT_TITLE = 3, // Helvetica 18: titles, team tabs, the manual
};

enum Align { ALIGN_CENTRE = 0, ALIGN_LEFT = 1, ALIGN_RIGHT = 2 };

// Advance widths in pixels by character code; 0 for codes that the fonts don't hold.
extern const Table<std::uint8_t, 256> bodyWidths;
extern const Table<std::uint8_t, 256> titleWidths;

// Width in pixels as the alignment of drawText measures it: by the tables for FONT_BODY and
// FONT_TITLE, 6 pixels a character for the other two.
int textWidth(std::string_view text, Font font);

// Draws a line of text in the current colour; its base line lies 3 pixels below y. x is the centre,
// the left end or the right end of the text. Pixels of the current coordinates, y downward.
void drawText(float x, float y, Align align, std::string_view text, Font font = FONT_BODY);
