#pragma once

#include "canvas.h"

#include <string_view>

// Digits and letters drawn as strokes of our own, so that the pictures don't depend on the fonts of
// a machine.

struct Lettering {
    double height = 20; // of a capital
    double stroke = 4;  // width of the pen
    Colour ink{};
    double halo = 0; // width of a rim round the pen, 0 for none
    Colour haloInk{1, 1, 1};
    double stretch = 1; // wider or narrower than tall
    double nib = 1;     // of a broad pen held aslant: how thin its thin strokes are
};

// Width of a line of lettering; characters without a glyph take the space of a blank.
double letteringWidth(std::string_view text, const Lettering& style);

// Draws the text upright round a centre.
void drawLettering(cairo_t* cr, std::string_view text, Spot centre, const Lettering& style);
