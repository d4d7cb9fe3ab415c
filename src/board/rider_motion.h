#pragma once

#include "board/section_shapes.h"

#include <vector>

// Where the rider on turn stands while the timer carries him. His way from square to square is a
// line of points on the picture: along the road where he stays in his lane, straight where he
// changes it. While he is carried the tick alone writes his x, y and heading.

struct WayPoint {
    BoardPoint at;
    double heading; // radians
    float distance; // board units from the way's beginning
};

struct RiderMotion {
    std::vector<WayPoint> way; // to the next square; empty before the first step
    float wayDone = 0.0f;      // board units
};

extern RiderMotion motion;

// The rider stands still: his turn begins, or his move has ended.
void restMotion();
