#pragma once

#include "canvas.h"

#include <vector>

// The printed furniture of the map: its title, a legend without words and a wind rose.

// The ground that they cover.
std::vector<Outline> cartoucheGround();

void paintCartouche(cairo_t* cr);
