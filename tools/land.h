#pragma once

#include "land_map.h"

// The country that the road runs through: relief, meadows, fields and water. Light falls from the
// upper left on everything.

// Height of the land, 0 in the plain to about 1 on a summit.
double heightAt(Spot at);

// How much of the land is tilled, 0 to 1.
double tilledAt(Spot at);

// Outlines of lake and river.
std::vector<Outline> waterGround();

void paintLand(cairo_t* cr, const LandMap& road);
void paintWater(cairo_t* cr);

// Parapets where the road crosses the river; painted after the road.
void paintBridge(cairo_t* cr);
