#include "scenery.h"

#include "glyphs.h"
#include "land.h"

#include "board/section_shapes.h"
#include "board/sections.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

constexpr Colour SHADOW = rgb(0x2c3524);

Outline boxRound(Spot centre, double halfWidth, double halfHeight)
{
    return {centre + Spot{-halfWidth, -halfHeight}, centre + Spot{halfWidth, -halfHeight},
            centre + Spot{halfWidth, halfHeight}, centre + Spot{-halfWidth, halfHeight}};
}

void drawLeafTree(cairo_t* cr, Spot foot, double size, double tone)
{
    const Colour leaf = blend(rgb(0x5f8646), rgb(0x7e9a4c), tone);
    fillEllipse(cr, foot + Spot{size * 0.35, size * 0.25}, size * 0.75, size * 0.5, SHADOW, 0.38);
    fillEllipse(cr, foot + Spot{0, -size * 0.2}, size * 0.66, size * 0.66,
                blend(leaf, SHADOW, 0.4));
    fillEllipse(cr, foot + Spot{-size * 0.08, -size * 0.28}, size * 0.56, size * 0.56, leaf);
    fillEllipse(cr, foot + Spot{-size * 0.22, -size * 0.44}, size * 0.27, size * 0.25,
                blend(leaf, rgb(0xe4ecb0), 0.42));
}

void drawConifer(cairo_t* cr, Spot foot, double size, double tone)
{
    const Colour needle = blend(rgb(0x4a6e4c), rgb(0x5f8058), tone);
    fillEllipse(cr, foot + Spot{size * 0.35, size * 0.2}, size * 0.6, size * 0.32, SHADOW, 0.38);
    const Spot top = foot + Spot{0, -size * 1.15};
    const Outline tree{top, foot + Spot{size * 0.5, 0.1 * size},
                       foot + Spot{-size * 0.5, 0.1 * size}};
    fillShape(cr, tree, blend(needle, SHADOW, 0.35));
    fillShape(cr, {top, foot + Spot{size * 0.04, 0.1 * size}, foot + Spot{-size * 0.5, 0.1 * size}},
              needle);
}

// How thick the woods stand at a spot, 0 for none.
double woodland(Spot at)
{
    const double height = heightAt(at);
    if (height > 0.5)
        return 0;
    const double patches = swell(at.x, at.y, 95, 81) * 0.75 + swell(at.x, at.y, 34, 82) * 0.35;
    const double slope = height > 0.08 && height < 0.34 ? 0.1 : 0;
    const double farm = tilledAt(at) > 0.45 ? 0.3 : 0;
    return patches + slope - farm;
}

// Walls below a roof with its ridge along x; the sunny side is the left.
void drawHouse(cairo_t* cr, Spot foot, double width, double depth, Colour roof)
{
    const double wall = 8;
    const double half = width / 2;
    fillShape(cr,
              {foot + Spot{-half + 4, 0}, foot + Spot{half, 0}, foot + Spot{half + 9, -3},
               foot + Spot{half + 9, -wall - 4}, foot + Spot{half, -wall}},
              SHADOW, 0.4);
    fillShape(cr,
              {foot + Spot{-half, 0}, foot + Spot{half, 0}, foot + Spot{half, -wall},
               foot + Spot{-half, -wall}},
              rgb(0xf0e6d0));
    fillShape(cr, boxRound(foot + Spot{-half * 0.4, -3.4}, 1.6, 3.4), rgb(0x6d5138));
    fillShape(cr, boxRound(foot + Spot{half * 0.4, -4.4}, 1.9, 1.9), rgb(0x6a7f8c));
    const Outline shape{foot + Spot{-half - 2, -wall + 1}, foot + Spot{-half + 3, -wall - depth},
                        foot + Spot{half - 3, -wall - depth}, foot + Spot{half + 2, -wall + 1}};
    fillShape(cr, shape, roof);
    fillShape(
        cr, {shape[0], shape[1], shape[1] + Spot{width * 0.3, 0}, shape[0] + Spot{width * 0.3, 0}},
        blend(roof, rgb(0xffe9cc), 0.25));
    strokeLine(cr, shape, true, 1.2, blend(roof, SHADOW, 0.5));
}

void drawChurch(cairo_t* cr, Spot foot)
{
    drawHouse(cr, foot + Spot{12, 0}, 40, 14, rgb(0x8c5a4a));
    const Spot tower = foot + Spot{-16, 1};
    fillShape(cr, boxRound(tower + Spot{0, -16}, 8, 16), rgb(0xf3ead8));
    fillShape(cr, boxRound(tower + Spot{5.5, -16}, 2.5, 16), rgb(0xc9bda6));
    const Outline spire{tower + Spot{-10, -32}, tower + Spot{0, -60}, tower + Spot{10, -32}};
    fillShape(cr, spire, rgb(0x5f6d7c));
    fillShape(cr, {spire[0], spire[1], tower + Spot{-1, -32}}, rgb(0x8795a3));
    strokeLine(cr, spire, true, 1.2, rgb(0x3c444e));
    fillEllipse(cr, tower + Spot{0, -22}, 3.4, 3.4, rgb(0x51606c));
}

constexpr Spot PATH_WEST[] = {{1080, 880}, {1030, 866}, {985, 872}, {940, 862}, {906, 846},
                              {870, 850},  {830, 868},  {790, 880}, {690, 884}};
constexpr Spot PATH_NORTH[] = {{1190, 850}, {1178, 822}, {1120, 806}, {1040, 800},
                               {975, 776},  {944, 700},  {930, 600},  {946, 520},
                               {976, 430},  {962, 330},  {985, 290}};
constexpr Spot PATH_EAST[] = {{1300, 876}, {1345, 888}, {1372, 920},
                              {1420, 940}, {1540, 940}, {1640, 946}};
constexpr Spot FOOTBRIDGE{909, 846};

// In the picture of B two bits of land are lit. What is dark looks there like dimmed meadow.
constexpr Spot HEDGE{652.3, 822};
constexpr double HEDGE_LENGTH = 88;
constexpr Spot COPSE[] = {{767, 713}, {754, 718}, {764, 729}};

// A path with its corners cut off, time after time.
template <typename Points> Outline rounded(const Points& points)
{
    Outline line(std::begin(points), std::end(points));
    for (int round = 0; round < 3; ++round) {
        Outline finer{line.front()};
        for (std::size_t i = 1; i < line.size(); ++i) {
            finer.push_back(blend(line[i - 1], line[i], 0.25));
            finer.push_back(blend(line[i - 1], line[i], 0.75));
        }
        finer.push_back(line.back());
        line = finer;
    }
    return line;
}

Outline bandRound(const Outline& line, double half)
{
    Outline left;
    Outline right;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const Spot way = unitOf(line[i] - line[i - 1]);
        left.push_back(line[i] + Spot{-way.y, way.x} * half);
        right.push_back(line[i] - Spot{-way.y, way.x} * half);
    }
    left.insert(left.end(), right.rbegin(), right.rend());
    return left;
}

struct Hamlet {
    Spot centre;
    double halfWidth, halfHeight;
    int houses;
    bool church;
};

constexpr std::array HAMLETS = {
    Hamlet{{1190, 872}, 118, 52, 17, true},
    Hamlet{{1585, 204}, 62, 20, 6, false},
    Hamlet{{735, 872}, 62, 24, 6, false},
};

void drawHamlet(cairo_t* cr, const Hamlet& hamlet, int seed)
{
    constexpr std::array ROOFS = {rgb(0xb5573c), rgb(0xc46a45), rgb(0xa04a3a), rgb(0xb87a50),
                                  rgb(0x8d5546)};
    std::vector<Spot> feet;
    for (int i = 0; i < hamlet.houses * 12 && static_cast<int>(feet.size()) < hamlet.houses; ++i) {
        const Spot at =
            hamlet.centre + Spot{(2 * chance(i, 1, seed) - 1) * (hamlet.halfWidth - 14),
                                 (2 * chance(i, 2, seed) - 1) * (hamlet.halfHeight - 6) + 8};
        const bool onSquare = hamlet.church && std::abs(at.x - hamlet.centre.x) < 50 &&
                              std::abs(at.y - hamlet.centre.y) < 34;
        const bool free = std::none_of(feet.begin(), feet.end(), [&](Spot other) {
            return std::abs(other.x - at.x) < 31 && std::abs(other.y - at.y) < 19;
        });
        if (free && !onSquare)
            feet.push_back(at);
    }
    std::sort(feet.begin(), feet.end(), [](Spot a, Spot b) { return a.y < b.y; });
    if (hamlet.church) {
        fillEllipse(cr, hamlet.centre + Spot{0, 6}, 46, 24, rgb(0xd9cba6));
        strokeLine(cr,
                   {hamlet.centre + Spot{-hamlet.halfWidth, 10},
                    hamlet.centre + Spot{hamlet.halfWidth, 4}},
                   false, 7, rgb(0xd9cba6));
        drawChurch(cr, hamlet.centre + Spot{0, 8});
    }
    for (std::size_t i = 0; i < feet.size(); ++i) {
        const int n = static_cast<int>(i);
        drawHouse(cr, feet[i], 21 + 6 * chance(n, 3, seed), 9 + 3 * chance(n, 4, seed),
                  ROOFS[static_cast<std::size_t>(chance(n, 5, seed) * 4.99)]);
    }
}

void drawPerson(cairo_t* cr, Spot foot, Colour shirt)
{
    fillEllipse(cr, foot + Spot{2, 0.6}, 3.4, 1.6, SHADOW, 0.45);
    fillEllipse(cr, foot + Spot{0, -3}, 2.7, 4.2, blend(shirt, SHADOW, 0.55));
    fillEllipse(cr, foot + Spot{-0.3, -3.3}, 2.1, 3.5, shirt);
    fillEllipse(cr, foot + Spot{0, -8.2}, 2.2, 2.2, rgb(0xe6b48c));
}

void drawCar(cairo_t* cr, Spot centre, Colour paint)
{
    traceRoundedBox(cr, centre.x - 14, centre.y - 4, 32, 13, 5);
    setColour(cr, SHADOW, 0.4);
    cairo_fill(cr);
    traceRoundedBox(cr, centre.x - 16, centre.y - 8, 32, 15, 5);
    setColour(cr, blend(paint, SHADOW, 0.45));
    cairo_fill(cr);
    traceRoundedBox(cr, centre.x - 15, centre.y - 7, 30, 13, 4);
    setColour(cr, paint);
    cairo_fill(cr);
    traceRoundedBox(cr, centre.x - 8, centre.y - 5.6, 17, 10.2, 3);
    setColour(cr, rgb(0x46535e));
    cairo_fill(cr);
    traceRoundedBox(cr, centre.x - 4.5, centre.y - 5.2, 10, 9.4, 2);
    setColour(cr, blend(paint, {1, 1, 1}, 0.3));
    cairo_fill(cr);
    for (const double x : {-3.0, 1.5, 6.0}) // bicycles on the roof
        strokeLine(cr, {centre + Spot{x - 2, -4}, centre + Spot{x + 1, 3.4}}, false, 1.4,
                   rgb(0x33302c));
}

} // namespace

std::vector<Outline> sceneryGround()
{
    std::vector<Outline> ground;
    for (const Hamlet& hamlet : HAMLETS)
        ground.push_back(boxRound(hamlet.centre, hamlet.halfWidth, hamlet.halfHeight));
    ground.push_back(boxRound({652, 422}, 44, 40));
    for (const Outline& path : {rounded(PATH_WEST), rounded(PATH_NORTH), rounded(PATH_EAST)})
        ground.push_back(bandRound(path, 4));
    return ground;
}

void paintWoods(cairo_t* cr, const LandMap& map)
{
    constexpr double STEP_X = 12.5;
    constexpr double STEP_Y = 9.5;
    for (int j = 0; j * STEP_Y < 1160; ++j) {
        for (int i = 0; i * STEP_X < 1960; ++i) {
            const Spot at{(i + chance(i, j, 91)) * STEP_X, (j + chance(i, j, 92)) * STEP_Y};
            const double height = heightAt(at);
            const double size = 9 + 5 * chance(i, j, 94);
            const bool hedgerow = woodland(at) < 0.66 && chance(i, j, 93) < 0.985;
            if (hedgerow || clearance(map, at) < size + 7 || clearance(map, at - Spot{0, size}) < 8)
                continue;
            if (height > 0.13)
                drawConifer(cr, at, size * 1.05, chance(i, j, 95));
            else
                drawLeafTree(cr, at, size, chance(i, j, 95));
        }
    }
    for (int i = 0; i * 6.5 < HEDGE_LENGTH; ++i) {
        const Spot bush = HEDGE + Spot{1.2 * (chance(i, 1, 96) - 0.5), 6.5 * i};
        fillEllipse(cr, bush + Spot{2.5, 2}, 4.6, 4.4, SHADOW, 0.38);
        fillEllipse(cr, bush, 4.6, 4.8, rgb(0x566238));
        fillEllipse(cr, bush - Spot{1, 1.2}, 2.6, 2.6, rgb(0x64743f));
    }
    for (const Spot& at : COPSE)
        drawLeafTree(cr, at, 13, 0);
}

void paintPaths(cairo_t* cr)
{
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
    for (const Outline& path : {rounded(PATH_WEST), rounded(PATH_NORTH), rounded(PATH_EAST)}) {
        strokeLine(cr, path, false, 8, rgb(0x8d8a5c));
        strokeLine(cr, path, false, 5.4, rgb(0xdccfa8));
    }
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_BUTT);
    const Outline deck{FOOTBRIDGE + Spot{-15, 1}, FOOTBRIDGE + Spot{15, -2}};
    strokeLine(cr, deck, false, 13, rgb(0x5a4632));
    strokeLine(cr, deck, false, 8, rgb(0xb08a5c));
}

void paintVillages(cairo_t* cr)
{
    for (std::size_t i = 0; i < HAMLETS.size(); ++i)
        drawHamlet(cr, HAMLETS[i], 200 + static_cast<int>(i));
}

void paintPodium(cairo_t* cr)
{
    constexpr Spot CENTRE{652, 422};
    fillEllipse(cr, CENTRE + Spot{0, 4}, 45, 40, rgb(0xd9cba6));
    fillEllipse(cr, CENTRE + Spot{0, 4}, 41, 36, rgb(0xe6dabb));
    struct Step {
        double x, rise;
        std::string_view place;
        Colour face;
    };
    constexpr Step STEPS[] = {
        {-23, 9, "2", rgb(0xb9c0c6)}, {23, 6, "3", rgb(0xc98d5a)}, {0, 14, "1", rgb(0xe3b23c)}};
    fillShape(cr,
              {CENTRE + Spot{-30, 22}, CENTRE + Spot{42, 22}, CENTRE + Spot{46, 14},
               CENTRE + Spot{34, -4}},
              SHADOW, 0.35);
    for (const Step& step : STEPS) {
        const Spot front = CENTRE + Spot{step.x, 20};
        const double lid = front.y - step.rise;
        fillShape(cr,
                  {{front.x - 11.5, front.y},
                   {front.x + 11.5, front.y},
                   {front.x + 11.5, lid},
                   {front.x - 11.5, lid}},
                  blend(step.face, SHADOW, 0.25));
        fillShape(cr,
                  {{front.x - 11.5, lid},
                   {front.x + 11.5, lid},
                   {front.x + 11.5, lid - 15},
                   {front.x - 11.5, lid - 15}},
                  blend(step.face, {1, 1, 1}, 0.35));
        strokeLine(cr,
                   {{front.x - 11.5, front.y},
                    {front.x + 11.5, front.y},
                    {front.x + 11.5, lid - 15},
                    {front.x - 11.5, lid - 15}},
                   true, 1.6, rgb(0x4a4136));
        drawLettering(
            cr, step.place, {front.x, lid - 7.5},
            {.height = 10, .stroke = 2.4, .ink = rgb(0x3a3128), .halo = 0, .haloInk = {}});
    }
}

// Small groups by the steep climbs and the ends of sections.
void paintSpectators(cairo_t* cr, const LandMap& road, const std::vector<Square>& squares)
{
    constexpr std::array SHIRTS = {rgb(0xd8403a), rgb(0x3f6fc9), rgb(0xf0c43c),
                                   rgb(0xf4f1e8), rgb(0x3d9a52), rgb(0xd97f3a)};
    std::vector<Spot> feet;
    for (const Square& square : squares) {
        const bool steep = square.terrain == TERRAIN_MOUNTAIN && square.modifier <= -4;
        const bool closing = square.row >= sections[square.section].rowCount - 1;
        const double share = steep                                ? 0.55
                             : closing                            ? 1.0
                             : square.terrain == TERRAIN_MOUNTAIN ? 0.16
                                                                  : 0.0;
        const int seed = square.section * 1000 + square.row * 10 + square.lane;
        if (chance(seed, 8, 301) >= share)
            continue;
        const double span = square.run.back().along - square.run.front().along;
        const double middle = square.run.front().along + span * (0.35 + 0.3 * chance(seed, 9, 301));
        for (int i = 0; i < 18; ++i) {
            const LanePoint point = pointOnSquare(square, middle + 34 * (chance(i, 1, seed) - 0.5));
            const Spot edge = i % 2 == 0 ? point.left : point.right;
            const Spot at = edge + unitOf(edge - point.middle) * (12 + 9 * chance(i, 2, seed));
            const double room = clearance(road, at);
            const bool inside = at.x > 8 && at.x < 1946 && at.y > 12 && at.y < 1146;
            if (inside && room > 10 && room < 24 && clearance(road, at - Spot{0, 9}) > 7)
                feet.push_back(at);
        }
    }
    std::sort(feet.begin(), feet.end(), [](Spot a, Spot b) { return a.y < b.y; });
    for (std::size_t i = 0; i < feet.size(); ++i)
        drawPerson(cr, feet[i],
                   SHIRTS[static_cast<std::size_t>(chance(static_cast<int>(i), 7, 300) * 5.99)]);
}

void paintTeamCars(cairo_t* cr)
{
    struct Car {
        Spot at;
        Colour paint;
    };
    const Car cars[] = {
        {{748, 232}, rgb(0x2f9a48)},  {{790, 233}, rgb(0xcc3a36)},  {{832, 232}, rgb(0x55565c)},
        {{874, 233}, rgb(0x3c68c4)},  {{1440, 961}, rgb(0x2f9a48)}, {{1482, 959}, rgb(0xf0c43c)},
        {{1524, 961}, rgb(0xcc3a36)},
    };
    for (const Car& car : cars)
        drawCar(cr, car.at, car.paint);
}
