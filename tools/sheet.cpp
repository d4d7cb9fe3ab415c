#include "sheet.h"

#include "canvas.h"
#include "glyphs.h"
#include "riders.h"

#include "board/pictures.h"

#include <cmath>
#include <string>

namespace
{

constexpr double SHEET_WIDTH = 1072;
constexpr double SHEET_HEIGHT = 1419;
constexpr double UNIT_X = SHEET_WIDTH / SCORECARD_PICTURE_SIZE; // of one pixel
constexpr double UNIT_Y = SHEET_HEIGHT / SCORECARD_PICTURE_SIZE;

constexpr Colour PAPER = rgb(0xffffff);
constexpr Colour INK = rgb(0x26303c);
constexpr Colour SOFT = rgb(0xeef1f4);
constexpr Colour GOLD = rgb(0xe0a01e);

// The sheet is shown without filtering, so lines and areas lie on whole pixels.
double onX(double u)
{
    return std::round(u / UNIT_X) * UNIT_X;
}
double onY(double v)
{
    return std::round(v / UNIT_Y) * UNIT_Y;
}

void area(cairo_t* cr, double left, double top, double right, double bottom, Colour colour)
{
    fillShape(cr,
              {{onX(left), onY(top)},
               {onX(right), onY(top)},
               {onX(right), onY(bottom)},
               {onX(left), onY(bottom)}},
              colour);
}

// Lines two pixels thick.
void lineDown(cairo_t* cr, double u, double top, double bottom)
{
    const double x = onX(u) - UNIT_X;
    fillShape(cr,
              {{x, onY(top) - UNIT_Y},
               {x + 2 * UNIT_X, onY(top) - UNIT_Y},
               {x + 2 * UNIT_X, onY(bottom) + UNIT_Y},
               {x, onY(bottom) + UNIT_Y}},
              INK);
}

void lineAcross(cairo_t* cr, double v, double left, double right)
{
    const double y = onY(v) - UNIT_Y;
    fillShape(cr,
              {{onX(left) - UNIT_X, y},
               {onX(right) + UNIT_X, y},
               {onX(right) + UNIT_X, y + 2 * UNIT_Y},
               {onX(left) - UNIT_X, y + 2 * UNIT_Y}},
              INK);
}

void write(cairo_t* cr, const std::string& text, Spot centre, double height, Colour ink)
{
    drawLettering(cr, text, centre,
                  {.height = height,
                   .stroke = height * 0.2,
                   .ink = ink,
                   .halo = 0,
                   .haloInk = {},
                   .stretch = 0.9});
}

// Signs of the columns, about 30 units high.
void drawSigma(cairo_t* cr, Spot at, double size, Colour ink)
{
    const double w = size * 0.36;
    const double h = size * 0.5;
    strokeLine(cr,
               {at + Spot{w, -h}, at + Spot{-w, -h}, at + Spot{w * 0.2, 0}, at + Spot{-w, h},
                at + Spot{w, h}},
               false, size * 0.17, ink);
}

void drawBolt(cairo_t* cr, Spot at, double size)
{
    const auto p = [&](double x, double y) { return at + Spot{x * size, y * size}; };
    const Outline bolt{p(0.12, -0.55), p(-0.32, 0.08), p(-0.03, 0.08),
                       p(-0.14, 0.55), p(0.32, -0.14), p(0.03, -0.14)};
    strokeLine(cr, bolt, true, 4, INK);
    fillShape(cr, bolt, GOLD);
}

void drawFlag(cairo_t* cr, Spot at)
{
    constexpr double SIDE = 7;
    fillShape(cr,
              {at + Spot{-18, -16}, at + Spot{-14, -16}, at + Spot{-14, 19}, at + Spot{-18, 19}},
              INK);
    for (int i = 0; i < 12; ++i) {
        const int column = i % 4;
        const int row = i / 4;
        const Spot low = at + Spot{-14 + column * SIDE, -16 + row * SIDE};
        fillShape(cr, {low, low + Spot{SIDE, 0}, low + Spot{SIDE, SIDE}, low + Spot{0, SIDE}},
                  (column + row) % 2 == 0 ? INK : PAPER);
    }
    strokeLine(cr, {at + Spot{-14, -16}, at + Spot{14, -16}, at + Spot{14, 5}, at + Spot{-14, 5}},
               true, 2, INK);
}

void drawPodium(cairo_t* cr, Spot at)
{
    fillShape(cr,
              {at + Spot{-24, 16}, at + Spot{-24, 2}, at + Spot{-8, 2}, at + Spot{-8, -12},
               at + Spot{8, -12}, at + Spot{8, 5}, at + Spot{24, 5}, at + Spot{24, 16}},
              INK);
    write(cr, "1", at + Spot{0, 2}, 14, PAPER);
}

void placeCyclist(cairo_t* cr, Spot centre, double height, const Kit& kit)
{
    cairo_save(cr);
    cairo_translate(cr, centre.x, centre.y);
    cairo_scale(cr, height / CYCLIST_HEIGHT, height / CYCLIST_HEIGHT);
    cairo_translate(cr, -CYCLIST_WIDTH / 2, -CYCLIST_HEIGHT / 2);
    drawCyclist(cr, kit);
    cairo_restore(cr);
}

// The sixteen places: place, rider, points, sprint points, total.
void drawFinishTable(cairo_t* cr)
{
    // The right edge keeps a block of the JPEG file away from the team table, which the general
    // page shows by itself.
    constexpr double COLUMNS[] = {60, 124, 194, 258, 342, 416};
    constexpr int POINTS[] = {50, 40, 35, 32, 30, 28, 26, 24, 22, 20, 18, 16, 14, 12, 10, 8};
    constexpr double HEAD = 318;
    constexpr double TOP = 365.2;
    constexpr double STEP = 59.6;
    constexpr double BOTTOM = TOP + 16 * STEP;
    area(cr, COLUMNS[0], HEAD, COLUMNS[5], TOP, rgb(0xdfe5ea));
    for (int row = 0; row < 16; ++row) {
        const double v = TOP + row * STEP;
        const double middle = v + STEP / 2;
        constexpr Colour MEDALS[] = {rgb(0xfbe6a4), rgb(0xcbd5e0), rgb(0xf0d3b4)};
        const Colour ground = row % 2 == 0 ? PAPER : SOFT;
        area(cr, COLUMNS[0], v, COLUMNS[5], v + STEP, row < 3 ? MEDALS[row] : ground);
        write(cr, std::to_string(row + 1), {92, middle}, 29, INK);
        write(cr, std::to_string(POINTS[row]), {226, middle}, 25, rgb(0x5b6672));
    }
    for (int row = 0; row <= 16; ++row)
        lineAcross(cr, TOP + row * STEP, COLUMNS[0], COLUMNS[5]);
    lineAcross(cr, HEAD, COLUMNS[0], COLUMNS[5]);
    for (const double u : COLUMNS)
        lineDown(cr, u, HEAD, BOTTOM);
    drawPodium(cr, {92, 341});
    placeCyclist(cr, {159, 342}, 40, kitOf(1));
    drawFlag(cr, {226, 341});
    drawBolt(cr, {300, 341}, 36);
    drawSigma(cr, {380, 341}, 28, INK);
}

// The first three of up to three sprints.
void drawSprintTable(cairo_t* cr)
{
    constexpr double COLUMNS[] = {501, 626, 754, 882, 1010};
    constexpr double HEAD = 530;
    constexpr double TOP = 581;
    constexpr double STEP = 66;
    constexpr const char* POINTS[] = {"10", "5", "3"};
    constexpr Colour MEDALS[] = {rgb(0xfbe6a4), rgb(0xcbd5e0), rgb(0xf0d3b4)};
    area(cr, COLUMNS[1], HEAD, COLUMNS[4], TOP, rgb(0xdfe5ea));
    for (int row = 0; row < 3; ++row) {
        area(cr, COLUMNS[0], TOP + row * STEP, COLUMNS[4], TOP + (row + 1) * STEP, MEDALS[row]);
        const double middle = TOP + (row + 0.5) * STEP;
        write(cr, std::to_string(row + 1), {533, middle}, 31, INK);
        write(cr, POINTS[row], {586, middle}, 25, rgb(0x5b6672));
    }
    for (int i = 0; i < 3; ++i) {
        drawBolt(cr, {676.0 + 128 * i, 556}, 38);
        write(cr, std::to_string(i + 1), {708.0 + 128 * i, 556}, 27, INK);
        lineAcross(cr, TOP + i * STEP, COLUMNS[0], COLUMNS[4]);
    }
    lineAcross(cr, TOP + 3 * STEP, COLUMNS[0], COLUMNS[4]);
    lineAcross(cr, HEAD, COLUMNS[1], COLUMNS[4]);
    lineDown(cr, COLUMNS[0], TOP, TOP + 3 * STEP);
    for (int i = 1; i < 5; ++i)
        lineDown(cr, COLUMNS[i], HEAD, TOP + 3 * STEP);
}

// In signs: the points of the finish and those of the sprints are the total.
void drawLegend(cairo_t* cr)
{
    constexpr double LEFT = 626;
    constexpr double RIGHT = 1010;
    constexpr double TOP = 372;
    constexpr double BOTTOM = 450;
    constexpr double MIDDLE = (TOP + BOTTOM) / 2;
    area(cr, LEFT, TOP, RIGHT, BOTTOM, SOFT);
    for (const double v : {TOP, BOTTOM})
        lineAcross(cr, v, LEFT, RIGHT);
    for (const double u : {LEFT, RIGHT})
        lineDown(cr, u, TOP, BOTTOM);
    drawFlag(cr, {690, MIDDLE});
    drawBolt(cr, {818, MIDDLE}, 44);
    drawSigma(cr, {946, MIDDLE}, 34, INK);
    strokeLine(cr, {{740, MIDDLE}, {768, MIDDLE}}, false, 5, INK);
    strokeLine(cr, {{754, MIDDLE - 14}, {754, MIDDLE + 14}}, false, 5, INK);
    for (const double v : {MIDDLE - 8, MIDDLE + 8})
        strokeLine(cr, {{868, v}, {896, v}}, false, 5, INK);
}

constexpr double TEAM_LEFT = 442.5;
constexpr double TEAM_WIDTH = 141;
constexpr double TEAM_HEAD = 879;
constexpr double TEAM_TOP = 949.9;
constexpr double TEAM_STEP = 74.25;
constexpr double TEAM_SUM = TEAM_TOP + 4 * TEAM_STEP;
constexpr double TEAM_BOTTOM = 1317;

// The rider numbers stand right in the corners: on a small window the totals leave no more room.
void drawTeamColumn(cairo_t* cr, int team)
{
    constexpr Colour DEEP[] = {rgb(0x127a2c), rgb(0xa81c22), rgb(0x2c2d32), rgb(0x1d3f9e)};
    constexpr Colour TINT[] = {rgb(0xe2f3e2), rgb(0xf9e3e2), rgb(0xe9e9ea), rgb(0xe1e8f8)};
    constexpr Colour SUM[] = {rgb(0xbfe3c2), rgb(0xf0c3c1), rgb(0xcfcfd2), rgb(0xbccbee)};
    const double left = TEAM_LEFT + TEAM_WIDTH * team;
    const double right = left + TEAM_WIDTH;
    const int first = 10 * team + 21;
    area(cr, left, TEAM_HEAD, right, TEAM_TOP, DEEP[team]);
    area(cr, left, TEAM_TOP, right, TEAM_SUM, TINT[team]);
    area(cr, left, TEAM_SUM, right, TEAM_BOTTOM, SUM[team]);
    write(cr, std::to_string(first) + "-" + std::to_string(first + 3),
          {left + TEAM_WIDTH / 2, (TEAM_HEAD + TEAM_TOP) / 2}, 27, PAPER);
    for (int i = 0; i < 4; ++i)
        write(cr, std::to_string(first + i), {left + 22, TEAM_TOP + TEAM_STEP * i + 17}, 18,
              DEEP[team]);
    drawSigma(cr, {left + 17, TEAM_SUM + 18}, 19, DEEP[team]);
}

void drawTeamTable(cairo_t* cr)
{
    for (int team = 0; team < 4; ++team)
        drawTeamColumn(cr, team);
    const double right = TEAM_LEFT + 4 * TEAM_WIDTH;
    lineAcross(cr, TEAM_HEAD, TEAM_LEFT, right);
    for (int i = 0; i <= 4; ++i) {
        lineAcross(cr, TEAM_TOP + TEAM_STEP * i, TEAM_LEFT, right);
        lineDown(cr, TEAM_LEFT + TEAM_WIDTH * i, TEAM_HEAD, TEAM_BOTTOM);
    }
    lineAcross(cr, TEAM_BOTTOM, TEAM_LEFT, right);
}

// Hills as far as the eye reaches: one band of them, its crest rising and falling with chance.
void drawHills(cairo_t* cr, double base, double rise, int seed, Colour colour, double bottom)
{
    Outline hills{{60, bottom}};
    for (int u = 60; u <= 1012; u += 8)
        hills.push_back({static_cast<double>(u), base - rise * swell(u, seed, 130, seed) -
                                                     rise * 0.4 * swell(u, seed, 47, seed + 1)});
    hills.push_back({1012, bottom});
    fillShape(cr, hills, colour);
}

// One of the first three, upright with his arms up. The pattern lies on the jersey as on the road.
void drawWinner(cairo_t* cr, Spot foot, const Kit& kit)
{
    constexpr Colour SKIN = rgb(0xd99a6c);
    const auto part = [&](const Outline& line, double width, Colour colour) {
        cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
        strokeLine(cr, line, false, width + 3, INK);
        strokeLine(cr, line, false, width, colour);
    };
    for (const double side : {-1.0, 1.0}) {
        part({foot + Spot{4 * side, -18}, foot + Spot{5 * side, -2}}, 5, SKIN);
        part({foot + Spot{4 * side, -26}, foot + Spot{4.6 * side, -17}}, 7, kit.shorts);
        part({foot + Spot{14 * side, -56}, foot + Spot{18 * side, -69}}, 4.4, SKIN);
        part({foot + Spot{7 * side, -48}, foot + Spot{14 * side, -56}}, 6, kit.sleeve);
    }
    const Outline torso{foot + Spot{-10, -51}, foot + Spot{10, -51}, foot + Spot{8, -26},
                        foot + Spot{-8, -26}};
    strokeLine(cr, torso, true, 3, INK);
    fillShape(cr, torso, kit.jersey);
    if (kit.pattern == Pattern::HOOPS)
        for (const double y : {-44.0, -34.0})
            fillShape(cr,
                      {foot + Spot{-9, y}, foot + Spot{9, y}, foot + Spot{8.6, y + 5},
                       foot + Spot{-8.6, y + 5}},
                      kit.trim);
    if (kit.pattern == Pattern::DOTS)
        for (const Spot& dot : {Spot{-4, -45}, Spot{4, -38}, Spot{-3, -31}})
            fillEllipse(cr, foot + dot, 3.4, 3.4, kit.trim);
    fillEllipse(cr, foot + Spot{0, -60}, 8, 9, INK);
    fillEllipse(cr, foot + Spot{0, -60}, 6.5, 7.5, SKIN);
    fillShape(
        cr, {foot + Spot{-7, -61}, foot + Spot{-5, -68}, foot + Spot{5, -68}, foot + Spot{7, -61}},
        kit.pattern == Pattern::DOTS ? kit.trim : kit.jersey);
}

// The steps that the first three stand on, the winner in the middle.
void drawHonours(cairo_t* cr, Spot foot)
{
    struct Step {
        double x, height;
        const char* place;
        int kit;
        Colour face;
    };
    constexpr Step STEPS[] = {{-74, 30, "2", 3, rgb(0xb9c3cc)},
                              {74, 20, "3", 1, rgb(0xcf9a6a)},
                              {0, 44, "1", 4, rgb(0xe6bb4a)}};
    for (const Step& step : STEPS) {
        const Spot at = foot + Spot{step.x, 0};
        drawWinner(cr, at - Spot{0, step.height}, kitOf(step.kit));
        const Outline block{at + Spot{-36, 0}, at + Spot{-36, -step.height},
                            at + Spot{36, -step.height}, at + Spot{36, 0}};
        strokeLine(cr, block, true, 4, INK);
        fillShape(cr, block, step.face);
        fillShape(cr, {block[1], block[2], block[2] + Spot{0, 6}, block[1] + Spot{0, 6}},
                  blend(step.face, PAPER, 0.5));
        write(cr, step.place, at - Spot{0, step.height / 2 - 3}, step.height * 0.42, INK);
    }
}

// A landscape as the head of the sheet: the first three on their steps, and the others coming in.
void drawVignette(cairo_t* cr)
{
    constexpr double TOP = 122;
    constexpr double BOTTOM = 292;
    cairo_save(cr);
    cairo_rectangle(cr, onX(60), onY(TOP), onX(1010) - onX(60), onY(BOTTOM) - onY(TOP));
    cairo_clip(cr);
    setColour(cr, rgb(0xd8eaf4));
    cairo_paint(cr);
    fillEllipse(cr, {880, 168}, 30, 30, rgb(0xfbe09a));
    drawHills(cr, 225, 74, 11, rgb(0xb4cbd6), BOTTOM);
    drawHills(cr, 240, 58, 23, rgb(0x9fc0a8), BOTTOM);
    drawHills(cr, 258, 40, 37, rgb(0x8db47c), BOTTOM);
    area(cr, 60, 264, 1012, BOTTOM, rgb(0xe6dfcf));
    area(cr, 60, 260, 1012, 265, rgb(0x6d675c));
    const double places[] = {125, 236, 372, 478};
    const int order[] = {1, 0, 3, 2};
    for (int i = 0; i < 4; ++i)
        placeCyclist(cr, {places[i], 234}, 88, kitOf(order[i]));
    drawHonours(cr, {770, 286});
    cairo_restore(cr);
    lineAcross(cr, TOP, 60, 1010);
    lineAcross(cr, BOTTOM, 60, 1010);
    lineDown(cr, 60, TOP, BOTTOM);
    lineDown(cr, 1010, TOP, BOTTOM);
}

} // namespace

std::vector<std::uint8_t> paintSheet()
{
    Canvas canvas =
        openCanvas(SCORECARD_PICTURE_SIZE, SCORECARD_PICTURE_SIZE, 4, SHEET_WIDTH, SHEET_HEIGHT);
    setColour(canvas.cr, PAPER);
    cairo_paint(canvas.cr);
    drawVignette(canvas.cr);
    drawFinishTable(canvas.cr);
    drawLegend(canvas.cr);
    drawSprintTable(canvas.cr);
    drawTeamTable(canvas.cr);
    std::vector<std::uint8_t> bytes = shrink(canvas);
    closeCanvas(canvas);
    return bytes;
}
