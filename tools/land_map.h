#pragma once

#include "canvas.h"
#include "squares.h"

#include <vector>

// How far every spot of the board is from what must stay clear.
struct LandMap {
    int width = 0;
    int height = 0;
    std::vector<float> distance; // board units, 0 on what is kept clear
};

// Distances from the road and, if given, from further outlines.
LandMap mapLand(const std::vector<Square>& squares, const std::vector<Outline>& reserved);

// Lets every cell know its distance from the nearest one that has 0 or little; a cell is so many
// units wide.
void spreadDistances(LandMap& map, int units);

// 0 on kept ground; spots outside the board count as on its edge.
double clearance(const LandMap& map, Spot at);
