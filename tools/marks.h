#pragma once

#include "squares.h"

#include <vector>

// The ground of the signs with the letters of the sections.
std::vector<Outline> signGround();

// Everything printed on the road: numbers, arrows, walls, lines, letters, start grids.
void paintMarks(cairo_t* cr, const std::vector<Square>& squares);
