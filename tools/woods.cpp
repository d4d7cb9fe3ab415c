#include "woods.h"

#include "land.h"

#include "board/sections.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr Colour SHADOW = rgb(0x2c3524);
constexpr Colour SUN = rgb(0xdfe6a0);

// In the picture of B two bits of land are lit. What is dark looks there like dimmed meadow.
constexpr Spot HEDGE{652.3, 822};
constexpr double HEDGE_LENGTH = 88;
constexpr Spot COPSE[] = {{767, 713}, {754, 718}, {764, 729}};

// How thick the woods stand at a spot, 0 for none.
double woodland(Spot at)
{
    const double height = heightAt(at);
    const double patches = swell(at.x, at.y, 95, 81) * 0.75 + swell(at.x, at.y, 34, 82) * 0.35;
    const double slope = height > 0.08 && height < 0.5 ? 0.1 : 0;
    const double farm = tilledAt(at) > 0.45 ? 0.3 : 0;
    return patches + slope - farm;
}

bool hasRoom(const LandMap& map, Spot foot, double size)
{
    return clearance(map, foot) >= size * 0.45 + 7 &&
           clearance(map, foot - Spot{0, size * 0.6}) >= size * 0.4 + 6;
}

// A tree where the woods stand thick: tall within, low at their rim.
bool growTree(Tree& tree, const LandMap& map)
{
    const double thick = woodland(tree.foot) - 0.64;
    const bool alone = chance(tree.seed, 1, 93) > 0.988;
    if (thick < 0 && !alone)
        return false;
    const double depth = std::clamp(thick / 0.14, 0.0, 1.0);
    tree.size = 8 + 9 * depth * chance(tree.seed, 2, 93) + 5 * chance(tree.seed, 3, 93);
    if (alone)
        tree.size = 15;
    const double kind = chance(tree.seed, 4, 93);
    if (heightAt(tree.foot) > 0.13)
        tree.kind = TreeKind::CONIFER;
    else if (depth < 0.35 && !alone && kind < 0.5)
        tree.kind = TreeKind::BUSH;
    else
        tree.kind = kind > 0.86 ? TreeKind::POPLAR : TreeKind::BROADLEAF;
    return hasRoom(map, tree.foot, tree.size);
}

// Avenues beside flat road, on the side from which their shade falls on it.
void plantAvenues(std::vector<Tree>& trees, const LandMap& map, const std::vector<Square>& squares)
{
    for (const Square& square : squares) {
        const int seed = square.section * 1000 + square.row * 10 + square.lane;
        if (square.terrain != TERRAIN_FLAT)
            continue;
        for (const double t : {0.3, 0.75}) {
            const double begin = square.run.front().along;
            const LanePoint point =
                pointOnSquare(square, begin + t * (square.run.back().along - begin));
            for (const Spot edge : {point.left, point.right}) {
                const Spot out = unitOf(edge - point.middle);
                const int own = seed + static_cast<int>(100 * t);
                if (out.x + out.y > -0.5 || chance(own, 5, 93) > 0.6)
                    continue;
                Tree tree{edge + out * 19, 13 + 5 * chance(own, 6, 93), TreeKind::BROADLEAF, own};
                tree.kind = chance(own, 7, 93) < 0.4 ? TreeKind::POPLAR : TreeKind::BROADLEAF;
                if (hasRoom(map, tree.foot, tree.size) && tree.foot.x > 16 && tree.foot.y > 20)
                    trees.push_back(tree);
            }
        }
    }
}

// Its leaves: woods of one kind are of one green, and no two trees quite the same.
Colour leafOf(const Tree& tree)
{
    const double wood = swell(tree.foot.x, tree.foot.y, 70, 97);
    const double own = 0.3 * (chance(tree.seed, 8, 93) - 0.5);
    if (tree.kind == TreeKind::CONIFER)
        return blend(rgb(0x3f6247), rgb(0x5d7d55), std::clamp(wood + own, 0.0, 1.0));
    return blend(rgb(0x4f7a3d), rgb(0x87994a), std::clamp(wood + own, 0.0, 1.0));
}

void drawBush(cairo_t* cr, const Tree& tree, Colour leaf)
{
    const double s = tree.size * 0.62;
    fillEllipse(cr, tree.foot, s * 0.8, s * 0.55, blend(leaf, SHADOW, 0.45));
    fillEllipse(cr, tree.foot - Spot{s * 0.15, s * 0.18}, s * 0.6, s * 0.4, leaf);
    fillEllipse(cr, tree.foot - Spot{s * 0.3, s * 0.3}, s * 0.28, s * 0.2, blend(leaf, SUN, 0.4));
}

// A crown of boughs, dark below on the right and bright above on the left.
void drawBroadleaf(cairo_t* cr, const Tree& tree, Colour leaf)
{
    const double s = tree.size;
    const Spot crown = tree.foot - Spot{0, s * 0.32};
    const double wide = 0.40 + 0.14 * chance(tree.seed, 9, 93);
    fillEllipse(cr, crown + Spot{s * 0.05, s * 0.06}, s * (wide + 0.12), s * 0.56,
                blend(leaf, SHADOW, 0.5));
    const int boughs = 5 + static_cast<int>(2.9 * chance(tree.seed, 10, 93));
    for (int i = 0; i < boughs; ++i) {
        const double angle = 6.2832 * (i + 0.6 * chance(tree.seed, i, 98)) / boughs;
        const Spot way{std::cos(angle), std::sin(angle)};
        const double sun = -(way.x + way.y) * 0.5;
        const Colour tone =
            sun > 0 ? blend(leaf, SUN, 0.38 * sun) : blend(leaf, SHADOW, -0.4 * sun);
        fillEllipse(cr, crown + Spot{way.x * s * wide * 0.72, way.y * s * 0.34}, s * 0.25, s * 0.23,
                    tone);
    }
    fillEllipse(cr, crown - Spot{s * 0.05, s * 0.06}, s * 0.27, s * 0.25, blend(leaf, SUN, 0.1));
    fillEllipse(cr, crown - Spot{s * 0.19, s * 0.24}, s * 0.17, s * 0.14, blend(leaf, SUN, 0.45));
}

void drawPoplar(cairo_t* cr, const Tree& tree, Colour leaf)
{
    const double s = tree.size;
    const Spot crown = tree.foot - Spot{0, s * 0.62};
    fillEllipse(cr, crown, s * 0.3, s * 0.74, blend(leaf, SHADOW, 0.48));
    fillEllipse(cr, crown - Spot{s * 0.07, s * 0.04}, s * 0.2, s * 0.62, leaf);
    fillEllipse(cr, crown - Spot{s * 0.12, s * 0.16}, s * 0.09, s * 0.36, blend(leaf, SUN, 0.4));
}

void drawConifer(cairo_t* cr, const Tree& tree, Colour leaf)
{
    const double s = tree.size;
    const double half = s * (0.34 + 0.12 * chance(tree.seed, 11, 93));
    for (const double tier : {0.0, 0.42}) {
        const Spot foot = tree.foot - Spot{0, s * tier};
        const double wide = half * (1 - 0.45 * tier);
        const Spot top = tree.foot - Spot{0, s * (1.0 + 0.62 * tier)};
        fillShape(cr, {top, foot + Spot{wide, 0}, foot + Spot{-wide, 0}},
                  blend(leaf, SHADOW, 0.42));
        fillShape(cr, {top, foot + Spot{wide * 0.05, 0}, foot + Spot{-wide, 0}}, leaf);
    }
}

void drawTree(cairo_t* cr, const Tree& tree)
{
    const Colour leaf = leafOf(tree);
    switch (tree.kind) {
    case TreeKind::BUSH:
        return drawBush(cr, tree, leaf);
    case TreeKind::BROADLEAF:
        return drawBroadleaf(cr, tree, leaf);
    case TreeKind::POPLAR:
        return drawPoplar(cr, tree, leaf);
    case TreeKind::CONIFER:
        return drawConifer(cr, tree, leaf);
    }
}

void drawHedge(cairo_t* cr)
{
    for (int i = 0; i * 6.5 < HEDGE_LENGTH; ++i) {
        const Spot bush = HEDGE + Spot{1.2 * (chance(i, 1, 96) - 0.5), 6.5 * i};
        fillEllipse(cr, bush + Spot{2.5, 2}, 4.6, 4.4, SHADOW, 0.38);
        fillEllipse(cr, bush, 4.6, 4.8, rgb(0x566238));
        fillEllipse(cr, bush - Spot{1, 1.2}, 2.6, 2.6, rgb(0x64743f));
    }
}

} // namespace

std::vector<Tree> plantTrees(const LandMap& map, const std::vector<Square>& squares)
{
    constexpr double STEP_X = 11;
    constexpr double STEP_Y = 8.5;
    std::vector<Tree> trees;
    for (int j = 0; j * STEP_Y < 1160; ++j) {
        for (int i = 0; i * STEP_X < 1960; ++i) {
            Tree tree;
            tree.foot = {(i + chance(i, j, 91)) * STEP_X, (j + chance(i, j, 92)) * STEP_Y};
            tree.seed = i + j * 200;
            if (growTree(tree, map))
                trees.push_back(tree);
        }
    }
    plantAvenues(trees, map, squares);
    for (const Spot& at : COPSE)
        trees.push_back({at, 13, TreeKind::BROADLEAF, static_cast<int>(at.x)});
    std::sort(trees.begin(), trees.end(),
              [](const Tree& a, const Tree& b) { return a.foot.y < b.foot.y; });
    return trees;
}

void paintTrees(cairo_t* cr, const std::vector<Tree>& trees)
{
    // One shade for all, so that a clump has a dark side and not each tree its own.
    cairo_push_group(cr);
    for (const Tree& tree : trees)
        fillEllipse(cr, tree.foot + Spot{tree.size * 0.42, tree.size * 0.16}, tree.size * 0.78,
                    tree.size * 0.46, SHADOW);
    cairo_pop_group_to_source(cr);
    cairo_paint_with_alpha(cr, 0.42);
    for (const Tree& tree : trees)
        drawTree(cr, tree);
    drawHedge(cr);
}

void shadeBesideTrees(cairo_t* cr, const std::vector<Tree>& trees)
{
    for (const Tree& tree : trees) {
        const double s = tree.size;
        const double far = tree.kind == TreeKind::POPLAR ? 1.5 : 1.0;
        for (int i = 0; i < 4; ++i) {
            const double reach = 0.5 + 0.42 * i * far;
            fillEllipse(cr,
                        tree.foot + Spot{s * (reach + 0.3 * chance(tree.seed, i, 99)),
                                         s * (0.55 * reach + 0.3 * chance(tree.seed, i, 100))},
                        s * (0.5 - 0.06 * i), s * (0.36 - 0.04 * i), SHADOW);
        }
    }
}
