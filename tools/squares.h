#pragma once

#include "canvas.h"

#include <vector>

// The printed squares of the board, worked out from the tables that the rules use.

// A place on a lane: its middle line and its two sides, in board units.
struct LanePoint {
    double row = 0;
    Spot left;
    Spot middle;
    Spot right;
    double along = 0; // length of the middle line up to here
};

using LaneRun = std::vector<LanePoint>;

struct Square {
    int section = 0;
    int row = 0;
    int lane = 0;
    int modifier = 0;
    int terrain = 0;
    LaneRun run;         // from its begin to its end, along counted from its centre
    Outline outline;     // closed
    Spot centre;         // where a pawn stands
    bool opens = false;  // its lane begins here in mid-road
    bool closes = false; // its lane ends here in mid-road
};

// Every square once; where sections share the road, as the first of them has it.
std::vector<Square> printedSquares();

// The lane at a distance from the square's centre, held within the square.
LanePoint pointOnSquare(const Square& square, double along);

// Direction of travel at a distance from the square's centre, as a unit vector.
Spot directionOnSquare(const Square& square, double along);

// The side of a lane towards lane + 1 from one row of a section to another: where a wall stands.
Outline laneBorder(int section, int lane, double rowFrom, double rowTo);

// The line across the road at a row, from the left kerb to the right one.
Outline lineAcross(int section, double row);
