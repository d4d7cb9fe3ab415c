#pragma once

#include "land_map.h"

// The rim of the road. All squares have one together, however their pieces are joined.

// How far every spot is from that rim, negative on the road.
LandMap roadEdge(const std::vector<Square>& squares);

// Under the squares: shadow and bed.
void paintRoadBed(cairo_t* cr, const LandMap& edge);

// Over them: the kerb, and its shade on the road.
void paintKerb(cairo_t* cr, const LandMap& edge);
