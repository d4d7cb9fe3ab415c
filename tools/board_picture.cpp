#include "board_picture.h"

#include "canvas.h"
#include "cartouche.h"
#include "crowd.h"
#include "kerb.h"
#include "land.h"
#include "marks.h"
#include "mountains.h"
#include "road.h"
#include "scenery.h"
#include "squares.h"
#include "woods.h"

#include "board/pictures.h"
#include "board/section_shapes.h"

#include <algorithm>

// Pictures of sections are merged by their red alone, and a pixel without red would always lose.
static void keepRed(std::vector<std::uint8_t>& bytes)
{
    constexpr std::uint8_t LEAST_RED = 40;
    for (std::size_t i = 0; i < bytes.size(); i += 3)
        bytes[i] = std::max(bytes[i], LEAST_RED);
}

// Where no tree may stand, besides the road.
static std::vector<Outline> keptGround()
{
    std::vector<Outline> kept = sceneryGround();
    for (const Outline& outline : cartoucheGround())
        kept.push_back(outline);
    for (const Outline& outline : waterGround())
        kept.push_back(outline);
    for (const Outline& outline : trackGround())
        kept.push_back(outline);
    for (const Outline& outline : mountainGround())
        kept.push_back(outline);
    for (const Outline& outline : signGround())
        kept.push_back(outline);
    return kept;
}

// What stands beside the road throws its shade on it.
static void paintShade(cairo_t* cr, const std::vector<Square>& squares,
                       const std::vector<Tree>& trees)
{
    cairo_save(cr);
    cairo_new_path(cr);
    for (const Square& square : squares) {
        cairo_new_sub_path(cr);
        for (const Spot& point : square.outline)
            cairo_line_to(cr, point.x, point.y);
        cairo_close_path(cr);
    }
    cairo_clip(cr);
    cairo_push_group(cr);
    shadeBesideMountains(cr);
    shadeBesideTrees(cr, trees);
    cairo_pop_group_to_source(cr);
    cairo_paint_with_alpha(cr, 0.26);
    cairo_restore(cr);
}

static void paintFrame(cairo_t* cr)
{
    const double width = static_cast<double>(BOARD_WIDTH);
    const double height = static_cast<double>(BOARD_HEIGHT);
    strokeLine(cr, {{0, 0}, {width, 0}, {width, height}, {0, height}}, true, 14, rgb(0x4a3a2a));
    strokeLine(cr, {{0, 0}, {width, 0}, {width, height}, {0, height}}, true, 8, rgb(0xd9b56a));
}

std::vector<std::uint8_t> paintBoard()
{
    const double width = static_cast<double>(BOARD_WIDTH);
    const double height = static_cast<double>(BOARD_HEIGHT);
    Canvas canvas = openCanvas(BOARD_PICTURE_WIDTH, BOARD_PICTURE_HEIGHT, 4, width, height);
    const std::vector<Square> squares = printedSquares();
    const LandMap road = mapLand(squares, {});
    const LandMap edge = roadEdge(squares);
    paintLand(canvas.cr, road);
    paintWater(canvas.cr);
    const LandMap kept = mapLand(squares, keptGround());
    paintPaths(canvas.cr);
    paintMountains(canvas.cr);
    const std::vector<Tree> trees = plantTrees(kept, squares);
    paintTrees(canvas.cr, trees);
    paintVillages(canvas.cr);
    paintRoadBed(canvas.cr, edge);
    paintRoad(canvas.cr, squares);
    paintShade(canvas.cr, squares, trees);
    paintKerb(canvas.cr, edge);
    paintBridge(canvas.cr);
    paintPodium(canvas.cr);
    paintCars(canvas.cr);
    paintSpectators(canvas.cr, kept, squares);
    paintCartouche(canvas.cr);
    paintMarks(canvas.cr, squares);
    paintFrame(canvas.cr);
    std::vector<std::uint8_t> bytes = shrink(canvas);
    closeCanvas(canvas);
    keepRed(bytes);
    return bytes;
}
