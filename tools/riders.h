#pragma once

#include "canvas.h"

// A racing cyclist from the side, riding to the right.
constexpr double CYCLIST_WIDTH = 93;
constexpr double CYCLIST_HEIGHT = 82;

// Teams are told apart by more than their colour, which not every eye can do: by the pattern of the
// jersey, and by light or dark shorts.
enum class Pattern { PLAIN, HOOPS, HALVES, DOTS };

struct Kit {
    Colour jersey;
    Colour trim; // of the pattern and the helmet
    Colour shorts;
    Colour sleeve;
    Colour frame;
    Pattern pattern;
};

constexpr int RIDER_PICTURE_COUNT = 5; // the four teams, then the winner of a sprint

const Kit& kitOf(int picture);

// Draws the figure in a box of CYCLIST_WIDTH x CYCLIST_HEIGHT from the origin.
void drawCyclist(cairo_t* cr, const Kit& kit);

// The picture of a team's rider, 64 x 64 pixels on the key colour, without a pixel in between.
std::vector<std::uint8_t> paintRider(int picture);
