#pragma once

#include "board/sections.h"

#include <span>

// Board coordinates: the picture of the board covers 1954 by 1152 units, x to the right, y
// downward.
constexpr float BOARD_WIDTH = 1954.0f;
constexpr float BOARD_HEIGHT = 1152.0f;

struct BoardPoint {
    float x = 0.0f;
    float y = 0.0f;
};

struct BoardPixel {
    int x;
    int y;
};

// A quadrilateral of road. Corner 0 lies at (rowFrom, laneFrom), 1 at (rowTo, laneFrom), 2 at
// (rowTo, laneTo), 3 at (rowFrom, laneTo). The flag is for the section pictures alone.
struct StraightPiece {
    float rowFrom, rowTo;
    float laneFrom, laneTo;
    bool painted;
    Table<BoardPoint, 4> corner;
};

// A sector of a ring between two concentric ellipses. Angles are radians, may lie below 0 or above
// 2 pi, and rowFrom may have the greater one. tilt turns the whole ellipse.
struct CurvePiece {
    float rowFrom, rowTo;
    float laneFrom, laneTo;
    float centreX, centreY;
    float radiusXFrom, radiusXTo; // at laneFrom, at laneTo
    float radiusYFrom, radiusYTo;
    float angleFrom, angleTo; // at rowFrom, at rowTo
    float tilt = 0.0f;
};

// Land that belongs to a section's road in its picture, where no piece covers it.
using MaskPolygon = std::span<const BoardPixel>;

struct SectionShape {
    std::span<const StraightPiece> straights; // up to 20
    std::span<const CurvePiece> curves;       // up to 19
    std::span<const MaskPolygon> masks;       // up to 3
};

// section is 0 to 8.
const SectionShape& sectionShape(int section);
