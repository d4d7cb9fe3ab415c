#include "road.h"

#include "board/sections.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace
{

constexpr Colour SQUARE_LINE = rgb(0x3b3430);

struct Shades {
    Colour gentle;
    Colour steep;
    int range; // modifiers from gentle to steep
};

// The four lie apart in lightness as well as in hue.
constexpr Shades FLAT{rgb(0xc3c5cb), rgb(0xc3c5cb), 1};
constexpr Shades COBBLES{rgb(0xc9b48a), rgb(0x93784c), 4};
constexpr Shades CLIMB{rgb(0xcf7a50), rgb(0x94202f), 5};
constexpr Shades DESCENT{rgb(0xa2dea2), rgb(0x2f9778), 4};

Spot boxMin(const Outline& shape)
{
    Spot low = shape.front();
    for (const Spot& point : shape)
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
    return low;
}

Spot boxMax(const Outline& shape)
{
    Spot high = shape.front();
    for (const Spot& point : shape)
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
    return high;
}

// Setts laid in rows across the lane, every second row moved by half a stone.
void layCobbles(cairo_t* cr, const Outline& shape, Colour base, Spot direction)
{
    constexpr double LENGTH = 7.4;
    constexpr double WIDTH = 10.2;
    const Spot low = boxMin(shape);
    const Spot high = boxMax(shape);
    const Spot middle = blend(low, high, 0.5);
    const int reach = static_cast<int>(lengthOf(high - low) / LENGTH / 2) + 2;
    cairo_save(cr);
    tracePath(cr, shape, true);
    cairo_clip(cr);
    fillShape(cr, shape, blend(base, rgb(0x4a3a22), 0.42));
    cairo_translate(cr, middle.x, middle.y);
    cairo_rotate(cr, std::atan2(direction.y, direction.x));
    for (int row = -reach; row <= reach; ++row) {
        for (int stone = -reach; stone <= reach; ++stone) {
            const int seed = static_cast<int>(middle.x) * 7 + static_cast<int>(middle.y);
            const double tone = chance(row, stone, seed);
            const Colour face = tone < 0.5 ? blend(base, rgb(0x6b5430), 0.30 * (0.5 - tone) * 2)
                                           : blend(base, rgb(0xfff2d0), 0.34 * (tone - 0.5) * 2);
            const double shift = (row % 2 != 0 ? WIDTH / 2 : 0.0);
            traceRoundedBox(cr, row * LENGTH - LENGTH / 2 + 0.6,
                            stone * WIDTH + shift - WIDTH / 2 + 0.6, LENGTH - 1.2, WIDTH - 1.2,
                            2.2);
            setColour(cr, face);
            cairo_fill(cr);
        }
    }
    cairo_restore(cr);
}

// Fine grit, so that asphalt isn't a flat colour.
void strewGrit(cairo_t* cr, const Outline& shape, Colour base, int seed)
{
    const Spot low = boxMin(shape);
    const Spot high = boxMax(shape);
    cairo_save(cr);
    tracePath(cr, shape, true);
    cairo_clip(cr);
    const int grains = static_cast<int>((high.x - low.x) * (high.y - low.y) / 26);
    for (int i = 0; i < grains; ++i) {
        const Spot at{low.x + (high.x - low.x) * chance(i, 1, seed),
                      low.y + (high.y - low.y) * chance(i, 2, seed)};
        const bool light = chance(i, 3, seed) < 0.5;
        fillEllipse(cr, at, 1.1, 1.1,
                    light ? blend(base, {1, 1, 1}, 0.5) : blend(base, {0.15, 0.1, 0.1}, 0.22), 0.8);
    }
    cairo_restore(cr);
}

// Climbs carry chevrons uphill, descents long streaks: the surface itself tells them apart.
void drawChevrons(cairo_t* cr, const Outline& shape, Colour base, Spot direction)
{
    const Spot low = boxMin(shape);
    const Spot high = boxMax(shape);
    const Spot middle = blend(low, high, 0.5);
    const double reach = lengthOf(high - low);
    cairo_save(cr);
    tracePath(cr, shape, true);
    cairo_clip(cr);
    cairo_translate(cr, middle.x, middle.y);
    cairo_rotate(cr, std::atan2(direction.y, direction.x));
    setColour(cr, blend(base, rgb(0x2a0a10), 0.35), 0.55);
    cairo_set_line_width(cr, 2.6);
    for (double x = -reach; x < reach; x += 13) {
        cairo_move_to(cr, x - 10, -17);
        cairo_line_to(cr, x, 0);
        cairo_line_to(cr, x - 10, 17);
    }
    cairo_stroke(cr);
    cairo_restore(cr);
}

void drawStreaks(cairo_t* cr, const Outline& shape, Colour base, Spot direction, int seed)
{
    const Spot low = boxMin(shape);
    const Spot high = boxMax(shape);
    cairo_save(cr);
    tracePath(cr, shape, true);
    cairo_clip(cr);
    const int streaks = static_cast<int>((high.x - low.x) * (high.y - low.y) / 420);
    for (int i = 0; i < streaks; ++i) {
        const Spot at{low.x + (high.x - low.x) * chance(i, 5, seed),
                      low.y + (high.y - low.y) * chance(i, 6, seed)};
        strokeLine(cr, {at, at + direction * (16 + 20 * chance(i, 7, seed))}, false, 1.5,
                   blend(base, {1, 1, 1}, 0.7), 0.5);
    }
    cairo_restore(cr);
}

// Across the lane, 0 its left side and 1 its right one.
Outline lineAlong(const Square& square, double across)
{
    Outline line;
    for (const LanePoint& point : square.run)
        line.push_back(blend(point.left, point.right, across));
    return line;
}

// Asphalt has a life behind it: dark tracks where wheels run, mended places and cracks.
void wearAsphalt(cairo_t* cr, const Square& square)
{
    const int seed = square.section * 1000 + square.row * 10 + square.lane;
    cairo_save(cr);
    tracePath(cr, square.outline, true);
    cairo_clip(cr);
    fillShape(cr, square.outline, chance(seed, 1, 71) < 0.5 ? rgb(0x8f8b84) : rgb(0xe6e6ea),
              0.2 * chance(seed, 2, 71));
    for (const double across : {0.24, 0.76}) {
        strokeLine(cr, lineAlong(square, across), false, 12, rgb(0x777a84), 0.10);
        strokeLine(cr, lineAlong(square, across), false, 6, rgb(0x6b6e78), 0.09);
    }
    const double begin = square.run.front().along;
    const double length = square.run.back().along - begin;
    if (chance(seed, 3, 71) < 0.13) {
        const double from = begin + length * (0.1 + 0.5 * chance(seed, 4, 71));
        const LanePoint a = pointOnSquare(square, from);
        const LanePoint b = pointOnSquare(square, from + 18 + 16 * chance(seed, 5, 71));
        const double left = chance(seed, 6, 71) < 0.5 ? 0.05 : 0.5;
        const Outline patch{blend(a.left, a.right, left), blend(b.left, b.right, left),
                            blend(b.left, b.right, left + 0.45),
                            blend(a.left, a.right, left + 0.45)};
        fillShape(cr, patch, rgb(0x868992), 0.35);
        strokeLine(cr, patch, true, 1.2, rgb(0x565963), 0.4);
    }
    if (chance(seed, 7, 71) < 0.2) {
        const double from = begin + length * (0.2 + 0.6 * chance(seed, 8, 71));
        Outline crack;
        for (int i = 0; i <= 6; ++i) {
            const LanePoint point = pointOnSquare(square, from + 9 * (chance(i, seed, 72) - 0.5));
            crack.push_back(blend(point.left, point.right, 0.05 + 0.15 * i));
        }
        strokeLine(cr, crack, false, 1.3, rgb(0x4f5058), 0.55);
    }
    cairo_restore(cr);
}

// A light edge on the side of the sun and a dark one away from it give each square a slight bevel.
void bevel(cairo_t* cr, const Square& square)
{
    cairo_save(cr);
    tracePath(cr, square.outline, true);
    cairo_clip(cr);
    cairo_translate(cr, 1.6, 1.8);
    strokeLine(cr, square.outline, true, 2.2, {1, 1, 1}, 0.38);
    cairo_restore(cr);
}

} // namespace

Colour squareColour(int terrain, int modifier)
{
    const Shades& shades = terrain == TERRAIN_COBBLES    ? COBBLES
                           : terrain == TERRAIN_MOUNTAIN ? CLIMB
                           : terrain == TERRAIN_DESCENT  ? DESCENT
                                                         : FLAT;
    const int step = std::max(0, std::abs(modifier) - 1);
    return blend(shades.gentle, shades.steep,
                 std::min(1.0, static_cast<double>(step) / shades.range));
}

void paintSurface(cairo_t* cr, const Outline& shape, int terrain, int modifier, Spot direction)
{
    const Colour base = squareColour(terrain, modifier);
    const int seed = static_cast<int>(shape.front().x) * 31 + static_cast<int>(shape.front().y);
    if (terrain == TERRAIN_COBBLES) {
        layCobbles(cr, shape, base, direction);
        return;
    }
    fillShape(cr, shape, base);
    if (terrain == TERRAIN_MOUNTAIN)
        drawChevrons(cr, shape, base, direction);
    if (terrain == TERRAIN_DESCENT)
        drawStreaks(cr, shape, base, direction, seed);
    if (terrain == TERRAIN_FLAT)
        strewGrit(cr, shape, base, seed);
}

void paintRoad(cairo_t* cr, const std::vector<Square>& squares)
{
    // The first in the list are painted last: the start grids rule where sections overlap.
    for (auto square = squares.rbegin(); square != squares.rend(); ++square) {
        paintSurface(cr, square->outline, square->terrain, square->modifier,
                     directionOnSquare(*square, 0));
        if (square->terrain == TERRAIN_FLAT)
            wearAsphalt(cr, *square);
        bevel(cr, *square);
        strokeLine(cr, square->outline, true, 2.4, SQUARE_LINE, 0.95);
    }
}
