#pragma once

#include "land_map.h"

// Where the peaks stand; no tree grows there.
std::vector<Outline> mountainGround();

// Ranges of peaks, each from its farthest and smallest to its nearest and largest.
void paintMountains(cairo_t* cr);

// The shade that they throw on what lies to their right; to be clipped to the road.
void shadeBesideMountains(cairo_t* cr);
