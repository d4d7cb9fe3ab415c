#pragma once

#include "ui/fonts.h"

#include <string>
#include <string_view>

// Text on the screen, in the bitmap fonts of GLUT with accented letters of our own. All text is
// Latin-1. Bitmap text keeps its size in logical pixels whatever the window's size.

// Width in pixels as the alignment of drawText measures it: by the tables for FONT_BODY and
// FONT_TITLE, 6 pixels a character for the other two.
int textWidth(std::string_view text, Font font);

// The text, or as much of its beginning as the room allows, in pixels, with "..." behind it. A name
// from outside may be of any length.
std::string cutToWidth(std::string_view text, float room, Font font = FONT_BODY);

// Draws a line of text in the current colour; its base line lies 3 pixels below y. x is the centre,
// the left end or the right end of the text. Pixels of the current coordinates, y downward. A line
// that would begin outside the viewport isn't drawn at all. Needs GLUT to have been started.
void drawText(float x, float y, Align align, std::string_view text, Font font = FONT_BODY);
