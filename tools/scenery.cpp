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
constexpr Spot PATH_EAST[] = {{1300, 876}, {1345, 888}, {1370, 922}, {1395, 950}, {1440, 953}};
constexpr Spot FOOTBRIDGE{909, 846};

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
