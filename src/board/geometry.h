#pragma once

#include "board/course.h"
#include "board/rider_motion.h"

#include <vector>

// Where a square, or a point between squares, lies on the picture of the board. Rules never ask.

// Where a rider on this square stands. Sets the heading in which he rides there, in radians. For a
// place that no piece of the course holds: the origin, and the heading stays.
BoardPoint boardPointOfSquare(int row, int lane, double& heading);

// Where a point between squares lies; on a curve the row is a real position on the arc. Sets the
// heading likewise. Where no piece of this lap holds the point it lies straight between the
// squares of the lane around it.
BoardPoint boardPointOnPath(float row, float lane, double& heading);

// The real row at which a square of a curve piece lies: the real squares of a lane are spread
// evenly along its arc, whatever rows they have.
float curveRowOfSquare(const CurvePiece& piece, int row, int lane);

// The position of a square along its lane: the square's row, or its real row on the curve piece
// that holds it.
float pathRowOfSquare(int row, int lane);

// The way on the picture from one square to the next of a route: along the road within a lane,
// straight to another lane. At least two points, in order; the headings turn with the road.
std::vector<WayPoint> wayBetween(Square from, Square to);
