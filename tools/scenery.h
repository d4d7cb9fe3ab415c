#pragma once

#include "land_map.h"
#include "squares.h"

// Woods, houses, people and cars: everything that stands on the land.

// Outlines that woods keep clear of: villages, their lanes, the podium.
std::vector<Outline> sceneryGround();

// map has the road, the water and whatever else is to stay clear.
void paintWoods(cairo_t* cr, const LandMap& map);
// Lanes between the villages, with a footbridge over the river.
void paintPaths(cairo_t* cr);
void paintVillages(cairo_t* cr);
void paintPodium(cairo_t* cr);
void paintSpectators(cairo_t* cr, const LandMap& road, const std::vector<Square>& squares);
void paintTeamCars(cairo_t* cr);
