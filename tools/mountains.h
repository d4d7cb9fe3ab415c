#pragma once

#include "land_map.h"

// Draws summits on the high ground, wherever there is room beside what map keeps clear.
void paintMountains(cairo_t* cr, const LandMap& map);
