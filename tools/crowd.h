#pragma once

#include "land_map.h"

// Who has come to see the race, and the cars that follow it.

void paintSpectators(cairo_t* cr, const LandMap& road, const std::vector<Square>& squares);

// Team cars and campers, each row on its track beside the road.
void paintCars(cairo_t* cr);

// The tracks, to be kept clear of trees.
std::vector<Outline> trackGround();
