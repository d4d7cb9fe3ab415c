#pragma once

#include "squares.h"

#include <vector>

// The colour of a square: one hue and lightness for each terrain, deeper where it is steeper.
Colour squareColour(int terrain, int modifier);

// The surface of every square and its outline.
void paintRoad(cairo_t* cr, const std::vector<Square>& squares);

// Fills a shape with the surface of a terrain, as the road has it.
void paintSurface(cairo_t* cr, const Outline& shape, int terrain, int modifier, Spot direction);
