#include "board/sections.h"

#include <initializer_list>
#include <string_view>

namespace
{

// One row of squares, or a run of equal rows. Lanes 0 to 7 from left to right: "." no road, "x" the
// lane runs on without a square of its own, a number what the square adds to a throw. Behind them
// the terrain of the eight lanes, a digit each.
struct SquareRow {
    int from, to;
    std::string_view lanes;
    std::string_view terrain;
};

// clang-format off
constexpr SquareRow SQUARES_START_1[] = {
    // rows       0  1  2  3  4  5  6  7    terrain
    { 0,  5,  " 0  0  0  0  0  .  .  .", "11111000"},
};

constexpr SquareRow SQUARES_A[] = {
    // rows       0  1  2  3  4  5  6  7    terrain
    { 0,  2,  " 0  0  0  0  0  .  .  .", "11111000"},
    { 3,  3,  " x  0  0  x  0  .  .  .", "11111000"},
    { 4,  4,  " 0  x  x  0  0  .  .  .", "11111000"},
    { 5,  5,  " x  0  0  x  x  .  .  .", "11111000"},
    { 6,  6,  " x  x  x  x  0  .  .  .", "11111000"},
    { 7, 10,  " 0  0  0  0  0  .  .  .", "11111000"},
    {11, 13,  " .  0  0  0  0  .  .  .", "01111000"},
    {14, 14,  " .  x  x  x -1  .  .  .", "03333000"},
    {15, 15,  " .  x -1 -1  x  .  .  .", "03333000"},
    {16, 16,  " . -1  x  x -1  .  .  .", "03333000"},
    {17, 17,  " .  x -1 -1 -1  .  .  .", "03333000"},
    {18, 18,  " . -1 -1 -1 -1  .  .  .", "03333000"},
    {19, 19,  " .  x  x  x -2  .  .  .", "03333000"},
    {20, 20,  " .  x -2 -2  x  .  .  .", "03333000"},
    {21, 21,  " . -2  x  x -2  .  .  .", "03333000"},
    {22, 22,  " .  x -2 -2 -2  .  .  .", "03333000"},
    {23, 24,  " . -2 -2 -2 -2  .  .  .", "03333000"},
};

constexpr SquareRow SQUARES_E[] = {
    // rows       0  1  2  3  4  5  6  7    terrain
    { 0,  2,  " . -3 -3 -3 -3  .  .  .", "03333000"},
    { 3,  3,  " . -3 -3 -3  x  .  .  .", "03333000"},
    { 4,  4,  " . -4  x  x -3  .  .  .", "03333000"},
    { 5,  5,  " .  x -4 -4  x  .  .  .", "03333000"},
    { 6,  6,  " . -4  x  x  x  .  .  .", "03333000"},
    { 7,  7,  " . -4 -4 -4 -4  .  .  .", "03333000"},
    { 8,  8,  " . -5 -5 -5 -5  .  .  .", "03333000"},
    { 9,  9,  " . -5 -5 -5  x  .  .  .", "03333000"},
    {10, 10,  " . -5  x  x -5  .  .  .", "03333000"},
    {11, 11,  " . -5 -5 -5  x  .  .  .", "03333000"},
    {12, 12,  " . -6 -6 -6 -6  .  .  .", "03333000"},
};

constexpr SquareRow SQUARES_B[] = {
    // rows       0  1  2  3  4  5  6  7    terrain
    { 0,  0,  " . +5 +5 +5 +5  .  .  .", "04444000"},
    { 1,  1,  " .  .  x  x +4  .  .  .", "00444000"},
    { 2,  2,  " .  .  x +4 +4  .  .  .", "00444000"},
    { 3,  4,  " .  . +4 +4 +4  .  .  .", "00444000"},
    { 5,  6,  " .  . +3 +3  .  .  .  .", "00440000"},
    { 7,  7,  " .  . +2 +2  .  .  .  .", "00440000"},
    { 8,  8,  " .  .  x +2  .  .  .  .", "00440000"},
    { 9, 10,  " .  . +2 +2  .  .  .  .", "00440000"},
    {11, 11,  " .  . +1 +1  0  .  .  .", "00441111"},
    {12, 12,  " .  . +1 +1  0  0  .  .", "00441111"},
    {13, 13,  " .  .  . +1  0  0  0  .", "00041111"},
    {14, 16,  " .  .  .  .  0  0  0  0", "00001111"},
};

constexpr SquareRow SQUARES_D[] = {
    // rows       0  1  2  3  4  5  6  7    terrain
    { 0,  0,  " .  .  .  . -1 -2 -3 -1", "00002222"},
    { 1,  1,  " .  .  .  . -3 -2 -2 -1", "00002222"},
    { 2,  2,  " .  .  .  . -2 -3 -1 -2", "00002222"},
    { 3,  3,  " .  .  .  . -1 -4 -1 -2", "00002222"},
    { 4,  4,  " .  .  .  . -2 -3  0 -2", "00002212"},
    { 5,  5,  " .  .  .  .  x  x  x -3", "00002222"},
    { 6,  6,  " .  .  .  .  x -2  0  x", "00002212"},
    { 7,  7,  " .  .  .  . -1  x  x -3", "00002222"},
    { 8,  8,  " .  .  .  .  x -2 -2 -4", "00002222"},
    { 9,  9,  " .  .  .  . -1 -1 -1 -1", "00002222"},
    {10, 10,  " .  .  .  . -1 -4 -2 -1", "00002222"},
    {11, 11,  " .  .  .  . -2  0 -3 -1", "00002222"},
    {12, 13,  " .  .  .  . -3 -1  0 -2", "00002212"},
    {14, 14,  " .  .  .  . -1 -2 -3 -3", "00002222"},
    {15, 15,  " .  .  .  . -1 -1 -4 -3", "00002222"},
    {16, 36,  " .  .  .  .  x  x  x  x", "00002222"},
};

constexpr SquareRow SQUARES_F_FROM_D[] = {
    // rows       0  1  2  3  4  5  6  7    terrain
    { 0,  0,  " .  .  .  .  0  x  x  0", "00001111"},
    { 1,  1,  " .  .  .  .  x  0  0  0", "00001111"},
    { 2,  2,  " .  .  .  .  x  0  0  x", "00001111"},
    { 3,  3,  " .  .  .  .  0  x  x  0", "00001111"},
    { 4,  9,  " .  .  .  .  0  0  0  0", "00001111"},
    {10, 16,  " .  .  .  0  0  0  0  0", "00011111"},
};

constexpr SquareRow SQUARES_START_2[] = {
    // rows       0  1  2  3  4  5  6  7    terrain
    { 0,  6,  " .  .  .  .  0  0  0  0", "00001111"},
};

constexpr SquareRow SQUARES_C[] = {
    // rows       0  1  2  3  4  5  6  7    terrain
    { 0,  0,  " .  .  .  . -1 -2 -3 -1", "00002222"},
    { 1,  1,  " .  .  .  . -3 -2 -2 -1", "00002222"},
    { 2,  2,  " .  .  .  . -2 -3 -1 -2", "00002222"},
    { 3,  3,  " .  .  .  . -1 -4 -1 -2", "00002222"},
    { 4,  4,  " .  .  .  . -2 -3  0 -2", "00002212"},
    { 5,  5,  " .  .  .  .  x  x  x -3", "00002222"},
    { 6,  6,  " .  .  .  .  x -2  0  x", "00002212"},
    { 7,  7,  " .  .  .  . -1  x  x -3", "00002222"},
    { 8,  8,  " .  .  .  .  x -2 -2 -4", "00002222"},
    { 9,  9,  " .  .  .  . -1 -1 -1 -1", "00002222"},
    {10, 10,  " .  .  .  . -1 -4 -2 -1", "00002222"},
    {11, 11,  " .  .  .  . -2  0 -3 -1", "00002222"},
    {12, 12,  " .  .  . -2 -3 -1  0  .", "00032212"},
    {13, 13,  " .  . -2 -2 -3 -1  .  .", "00332212"},
    {14, 14,  " . -2 -2 -2 -1  .  .  .", "03332222"},
    {15, 15,  " .  x -2 -2  .  .  .  .", "03332222"},
    {16, 16,  " . -2 -2 -2  .  .  .  .", "03330000"},
    {17, 17,  " .  x -2 -2  .  .  .  .", "03330000"},
    {18, 19,  " . -2 -2 -2  .  .  .  .", "03330000"},
    {20, 23,  " . -3 -3 -3  .  .  .  .", "03330000"},
    {24, 24,  " . -4 -4 -4  .  .  .  .", "03330000"},
    {25, 25,  " . -4 -4  x  .  .  .  .", "03330000"},
    {26, 27,  " . -4 -4 -4  .  .  .  .", "03330000"},
    {28, 28,  " . -4 -5 -5  .  .  .  .", "03330000"},
    {29, 30,  " . -5 -5 -5  .  .  .  .", "03330000"},
};

constexpr SquareRow SQUARES_F_FROM_C[] = {
    // rows       0  1  2  3  4  5  6  7    terrain
    { 0,  0,  " . +5 +5 +5  .  .  .  .", "04440000"},
    { 1,  2,  " . +4 +4 +4  .  .  .  .", "04440000"},
    { 3,  3,  " . +3 +3  x  .  .  .  .", "04440000"},
    { 4,  4,  " . +3 +3 +3  .  .  .  .", "04440000"},
    { 5,  5,  " . +3 +3  x  .  .  .  .", "04440000"},
    { 6,  6,  " . +3 +3 +3  .  .  .  .", "04440000"},
    { 7,  8,  " . +2 +2 +2  .  .  .  .", "04440000"},
    { 9,  9,  " .  x  x +2  .  .  .  .", "04440000"},
    {10, 10,  " . +2 +2 +2  .  .  .  .", "04440000"},
    {11, 11,  " .  x  x +2  .  .  .  .", "04440000"},
    {12, 12,  " . +2 +2 +1  .  .  .  .", "04440000"},
    {13, 13,  " . +1 +1 +1  .  .  .  .", "04440000"},
    {14, 14,  " . +1 +1 +1  0  0  0  0", "04441111"},
    {15, 15,  " .  . +1 +1  0  0  0  0", "04441111"},
    {16, 22,  " .  .  .  0  0  0  0  0", "00011111"},
};

//                               first end lane: a wall between lane and lane + 1 on the rows
//                               first to end - 1
constexpr LaneBarrier WALLS_A[] = {
    { 3,  7, 0},
    { 3,  7, 2},
    {14, 23, 1},
    {14, 23, 3},
};

constexpr LaneBarrier WALLS_E[] = {
    { 3,  7, 1},
    { 3,  7, 3},
    { 9, 12, 1},
    { 9, 12, 3},
};

constexpr LaneBarrier WALLS_B[] = {
    { 1,  4, 2},
    { 1,  3, 3},
    { 8, 10, 2},
};

constexpr LaneBarrier WALLS_D[] = {
    { 5,  9, 4},
    { 5,  9, 6},
};

constexpr LaneBarrier WALLS_F_FROM_D[] = {
    { 0,  4, 4},
    { 0,  4, 6},
};

constexpr LaneBarrier WALLS_C[] = {
    { 5,  9, 4},
    { 5,  9, 6},
    {15, 18, 1},
    {26, 30, 1},
    {24, 26, 2},
};

constexpr LaneBarrier WALLS_F_FROM_C[] = {
    { 3,  6, 2},
    { 9, 12, 2},
};

// clang-format on

constexpr int squareValue(std::string_view cell)
{
    const char last = cell.back();
    if (last == '.')
        return NO_SQUARE;
    if (last == 'x')
        return PASS_THROUGH;
    const bool negative = cell[cell.size() - 2] == '-';
    return negative ? -(last - '0') : last - '0';
}

constexpr int CELL_WIDTH = 3; // two characters and a blank

template <std::size_t N>
constexpr Section section(std::string_view name, const SquareRow (&table)[N],
                          std::span<const LaneBarrier> barriers)
{
    Section made{.name = name, .rowCount = table[N - 1].to + 1, .barriers = barriers};
    made.moveModifier = filled2<int, SECTION_MAX_ROWS, SECTION_LANES>(NO_SQUARE);
    for (const SquareRow& line : table) {
        for (int row = line.from; row <= line.to; ++row) {
            for (int lane = 0; lane < SECTION_LANES; ++lane) {
                const auto column = static_cast<std::size_t>(lane);
                made.moveModifier[row][lane] =
                    squareValue(line.lanes.substr(column * CELL_WIDTH, 2));
                made.terrain[row][lane] = line.terrain[column] - '0';
            }
        }
    }
    return made;
}

constexpr Table<Section, SECTION_COUNT> makeSections()
{
    return {{
        section("Start 1", SQUARES_START_1, {}),
        section("A", SQUARES_A, WALLS_A),
        section("E", SQUARES_E, WALLS_E),
        section("B", SQUARES_B, WALLS_B),
        section("D", SQUARES_D, WALLS_D),
        section("F", SQUARES_F_FROM_D, WALLS_F_FROM_D),
        section("Start 2", SQUARES_START_2, {}),
        section("C", SQUARES_C, WALLS_C),
        section("F", SQUARES_F_FROM_C, WALLS_F_FROM_C),
    }};
}

constexpr int rowsOf(std::initializer_list<int> numbers)
{
    int rows = 0;
    for (const int number : numbers)
        rows += makeSections()[number].rowCount;
    return rows;
}

static_assert(rowsOf({1, 2, 3, 4, 5}) == ROWS_PER_LAP);
static_assert(rowsOf({1, 2, 3, 7, 8}) == ROWS_PER_LAP);

} // namespace

constexpr Table<Section, SECTION_COUNT> sections = makeSections();
