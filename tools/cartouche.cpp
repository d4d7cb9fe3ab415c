#include "cartouche.h"

#include "glyphs.h"
#include "road.h"

#include "board/sections.h"

#include <cmath>

namespace
{

constexpr Spot TITLE{1130, 590};
constexpr double TITLE_HALF = 150;
constexpr Spot LEGEND{1216, 716};
constexpr double LEGEND_HALF_X = 128;
constexpr double LEGEND_HALF_Y = 68;
constexpr Spot ROSE{1012, 712};
constexpr double ROSE_RADIUS = 52;

constexpr Colour PAPER = rgb(0xf6efdc);
constexpr Colour PAPER_SHADE = rgb(0xd8c9a4);
constexpr Colour INK = rgb(0x3d3026);
constexpr Colour RED = rgb(0xa8322c);
constexpr Colour GOLD = rgb(0xd9a534);

Outline groundRound(Spot centre, double halfX, double halfY)
{
    return {centre + Spot{-halfX, -halfY}, centre + Spot{halfX, -halfY},
            centre + Spot{halfX, halfY}, centre + Spot{-halfX, halfY}};
}

void shadedBox(cairo_t* cr, Spot centre, double halfX, double halfY, double radius)
{
    traceRoundedBox(cr, centre.x - halfX + 4, centre.y - halfY + 5, 2 * halfX, 2 * halfY, radius);
    setColour(cr, rgb(0x2c3524), 0.4);
    cairo_fill(cr);
    traceRoundedBox(cr, centre.x - halfX, centre.y - halfY, 2 * halfX, 2 * halfY, radius);
    setColour(cr, PAPER);
    cairo_fill_preserve(cr);
    setColour(cr, INK);
    cairo_set_line_width(cr, 3);
    cairo_stroke(cr);
    traceRoundedBox(cr, centre.x - halfX + 5, centre.y - halfY + 5, 2 * halfX - 10, 2 * halfY - 10,
                    radius - 3);
    setColour(cr, GOLD);
    cairo_set_line_width(cr, 2);
    cairo_stroke(cr);
}

// A swallow-tailed end of the ribbon behind the title; side -1 left, 1 right.
void drawTail(cairo_t* cr, int side)
{
    const auto p = [&](double x, double y) { return TITLE + Spot{side * (TITLE_HALF + x), y}; };
    fillShape(cr, {p(-26, -14), p(34, -14), p(20, 10), p(34, 34), p(-26, 34)},
              blend(RED, INK, 0.25));
    strokeLine(cr, {p(-26, -14), p(34, -14), p(20, 10), p(34, 34), p(-26, 34)}, true, 2.4, INK);
    fillShape(cr, {p(-26, 24), p(0, 24), p(-26, 34)}, blend(RED, INK, 0.65));
}

void drawTitle(cairo_t* cr)
{
    drawTail(cr, -1);
    drawTail(cr, 1);
    shadedBox(cr, TITLE, TITLE_HALF, 33, 9);
    Lettering style{.height = 38,
                    .stroke = 9.4,
                    .ink = blend(PAPER_SHADE, INK, 0.3),
                    .halo = 0,
                    .haloInk = {},
                    .stretch = 0.98,
                    .nib = 0.42};
    drawLettering(cr, "Gravelon", TITLE + Spot{3.2, 3.6}, style);
    style.ink = RED;
    drawLettering(cr, "Gravelon", TITLE, style);
}

enum class Card { WHITE, EITHER };

// A white card, or one that may be blue or white.
void drawCard(cairo_t* cr, Spot centre, Card card)
{
    constexpr Colour BLUE = rgb(0x2c4fd0);
    const auto outline = [&] { traceRoundedBox(cr, centre.x - 11, centre.y - 16, 22, 32, 4.5); };
    outline();
    setColour(cr, rgb(0xffffff));
    cairo_fill(cr);
    if (card == Card::EITHER) {
        cairo_save(cr);
        outline();
        cairo_clip(cr);
        fillShape(cr, {centre + Spot{11, -16}, centre + Spot{-11, -16}, centre + Spot{-11, 16}},
                  BLUE);
        cairo_restore(cr);
    }
    outline();
    setColour(cr, INK);
    cairo_set_line_width(cr, 2.2);
    cairo_stroke(cr);

    // Their values, as on the cards of the game.
    Lettering value{.height = 15, .stroke = 2.8, .ink = BLUE, .halo = 0, .haloInk = {}};
    if (card == Card::WHITE)
        return drawLettering(cr, "5", centre, value);
    value.height = 10.5;
    value.stroke = 2.3;
    drawLettering(cr, "5", centre + Spot{4.4, 7.8}, value);
    value.ink = rgb(0xffffff);
    drawLettering(cr, "6", centre + Spot{-4.4, -7.8}, value);
}

// The four terrains, and below each the strength cards that a rider may play there: how many, and
// whether they may be blue.
void drawLegend(cairo_t* cr)
{
    struct Entry {
        int terrain, modifier;
        int cards;
        Card kind;
    };
    constexpr Entry ENTRIES[] = {{TERRAIN_FLAT, 0, 2, Card::EITHER},
                                 {TERRAIN_COBBLES, -2, 1, Card::EITHER},
                                 {TERRAIN_MOUNTAIN, -3, 2, Card::WHITE},
                                 {TERRAIN_DESCENT, 3, 2, Card::EITHER}};
    shadedBox(cr, LEGEND, LEGEND_HALF_X, LEGEND_HALF_Y, 10);
    Spot at = LEGEND + Spot{-87, -26};
    for (const Entry& entry : ENTRIES) {
        const Outline swatch = groundRound(at, 24, 23);
        paintSurface(cr, swatch, entry.terrain, entry.modifier, {1, 0});
        strokeLine(cr, swatch, true, 2.4, INK);
        for (int i = 0; i < entry.cards; ++i)
            drawCard(cr, at + Spot{26.0 * i - 13 * (entry.cards - 1), 56}, entry.kind);
        at.x += 58;
    }
}

void drawRose(cairo_t* cr)
{
    fillEllipse(cr, ROSE + Spot{3, 4}, ROSE_RADIUS - 8, ROSE_RADIUS - 8, rgb(0x2c3524), 0.3);
    fillEllipse(cr, ROSE, ROSE_RADIUS - 8, ROSE_RADIUS - 8, PAPER);
    traceEllipse(cr, ROSE, ROSE_RADIUS - 12, ROSE_RADIUS - 12);
    setColour(cr, GOLD);
    cairo_set_line_width(cr, 2);
    cairo_stroke(cr);
    traceEllipse(cr, ROSE, ROSE_RADIUS - 8, ROSE_RADIUS - 8);
    setColour(cr, INK);
    cairo_set_line_width(cr, 2.6);
    cairo_stroke(cr);
    for (int i = 0; i < 8; ++i) {
        const int point =
            (2 * i + 1) % 8 + (i < 4 ? 0 : -1); // the diagonals first, the quarters over them
        const double angle = point * M_PI / 4;
        const double reach = point % 2 == 0 ? ROSE_RADIUS + 2 : ROSE_RADIUS * 0.62;
        const Spot way{std::sin(angle), -std::cos(angle)};
        const Spot side{-way.y, way.x};
        const Spot tip = ROSE + way * reach;
        fillShape(cr, {tip, ROSE + (way + side) * 7, ROSE}, point == 0 ? RED : INK);
        fillShape(cr, {tip, ROSE + (way - side) * 7, ROSE},
                  point == 0 ? blend(RED, PAPER, 0.4) : PAPER_SHADE);
        strokeLine(cr, {tip, ROSE + (way + side) * 7, ROSE, ROSE + (way - side) * 7}, true, 1.2,
                   INK);
    }
}

} // namespace

std::vector<Outline> cartoucheGround()
{
    return {groundRound(TITLE, TITLE_HALF + 36, 38),
            groundRound(LEGEND, LEGEND_HALF_X, LEGEND_HALF_Y),
            groundRound(ROSE, ROSE_RADIUS, ROSE_RADIUS)};
}

void paintCartouche(cairo_t* cr)
{
    drawTitle(cr);
    drawLegend(cr);
    drawRose(cr);
}
