#pragma once

#include "ui/fonts.h"

#include <string_view>

// The letters of the bitmap fonts. At scale 1 they are GLUT's own and the accented ones of
// ui/glyphs; at a larger one each of their pixels is a square of that many.

// Makes the letters for the present scale. Draws over the back buffer, from which GLUT's own are
// read. Needs a GL context.
void prepareLetters();

// Draws from the raster position on, without measuring.
void drawLetters(std::string_view text, Font font);
