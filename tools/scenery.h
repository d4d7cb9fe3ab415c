#pragma once

#include "land_map.h"

// Houses, paths and the podium: what people have put on the land.

// Outlines that trees keep clear of: villages, their lanes, the podium.
std::vector<Outline> sceneryGround();

// Lanes between the villages, with a footbridge over the river.
void paintPaths(cairo_t* cr);
void paintVillages(cairo_t* cr);
void paintPodium(cairo_t* cr);
