#pragma once

#include "app/table.h"

#include <span>
#include <string_view>

// The nine sections of the printed board as the rules see them. Rows count in the direction of
// travel, lanes towards the rider's right hand.

constexpr int SECTION_COUNT = 9;
constexpr int SECTION_MAX_ROWS = 37;
constexpr int SECTION_LANES = 8;

// Values of moveModifier that are no square. Any other value is a real square and is added to the
// throw of a rider who starts his move there.
constexpr int NO_SQUARE = -99;    // the road does not reach here
constexpr int PASS_THROUGH = -10; // the lane runs on through this row at no cost

constexpr bool isRealSquare(int modifier)
{
    return modifier != NO_SQUARE && modifier != PASS_THROUGH;
}

enum Terrain : int {
    TERRAIN_NONE = 0,
    TERRAIN_FLAT = 1,
    TERRAIN_COBBLES = 2,  // one strength card in a throw at the most
    TERRAIN_MOUNTAIN = 3, // no strength cards of value 6
    TERRAIN_DESCENT = 4,
};

// A wall between lane and lane + 1, for a rider on a row from firstRow to endRow - 1. It stops
// changes of lane, never the way ahead.
struct LaneBarrier {
    int firstRow;
    int endRow;
    int lane;
};

using SectionSquares = Table2<int, SECTION_MAX_ROWS, SECTION_LANES>;

struct Section {
    std::string_view name; // up to 7 characters
    int rowCount = 0;      // 6 to 37
    SectionSquares moveModifier{};
    SectionSquares terrain{};
    std::span<const LaneBarrier> barriers;
};

extern const Table<Section, SECTION_COUNT> sections;

// The sections that may come directly after a section, -1 for an empty slot. Nothing leads back to
// the two start sections.
// clang-format off
constexpr Table2<int, SECTION_COUNT, 2> sectionSuccessors = {{
    {1, -1}, {2, -1}, {3, -1}, {4, 7}, {5, -1}, {1, -1}, {4, 7}, {8, -1}, {1, -1},
}};
// clang-format on

// The two ways through the loop have as many rows: sections 1, 2, 3 and then 4, 5 or 7, 8.
constexpr int ROWS_PER_LAP = 109;
