#pragma once

#include "land_map.h"

// Woods, single trees along the road, and a hedge.

enum class TreeKind { BUSH, BROADLEAF, POPLAR, CONIFER };

struct Tree {
    Spot foot;
    double size = 0; // about its height
    TreeKind kind = TreeKind::BROADLEAF;
    int seed = 0;
};

// All trees, the farthest first. map has the road, the water and whatever else is to stay clear.
std::vector<Tree> plantTrees(const LandMap& map, const std::vector<Square>& squares);

void paintTrees(cairo_t* cr, const std::vector<Tree>& trees);

// The shade that they throw to the lower right; to be clipped to the road.
void shadeBesideTrees(cairo_t* cr, const std::vector<Tree>& trees);
