#include "marks.h"

#include "glyphs.h"
#include "road.h"

#include "board/sections.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace
{

constexpr double PAWN_RADIUS = 14;
constexpr double END_LINE_HALF = 5.6;
constexpr double WALL_WIDTH = 11.5;
constexpr Colour INK = rgb(0x1d1a1c);
constexpr Colour PAPER = rgb(0xfffdf4);

double beginOf(const Square& square)
{
    return square.run.front().along;
}
double endOf(const Square& square)
{
    return square.run.back().along;
}

// Half the room that an upright box takes along a direction.
double halfAlong(Spot direction, double halfWidth, double halfHeight)
{
    return std::abs(direction.x) * halfWidth + std::abs(direction.y) * halfHeight;
}

double roomAt(const Square& square, bool atEnd)
{
    const double line = !atEnd && square.row == 0 ? END_LINE_HALF : 0;
    return (atEnd ? endOf(square) : -beginOf(square)) - line;
}

// Numbers stand towards the begin of a square, so that the arrow has its end; where the begin is
// cut away, or too short for a number beside a pawn, it is the other way round.
bool numberAtEnd(const Square& square)
{
    constexpr double HALF_WIDTH = 12;
    constexpr double HALF_HEIGHT = 11;
    const double half = halfAlong(directionOnSquare(square, -20), HALF_WIDTH, HALF_HEIGHT);
    const bool narrow = roomAt(square, false) < PAWN_RADIUS + 2 * half + 2;
    return square.opens || (narrow && roomAt(square, true) > roomAt(square, false) + 3);
}

// The place of a mark beside the pawn, at the begin or the end of its square.
LanePoint markPlace(const Square& square, bool atEnd, double halfWidth, double halfHeight)
{
    const double limit = roomAt(square, atEnd);
    const double half =
        halfAlong(directionOnSquare(square, atEnd ? 20 : -20), halfWidth, halfHeight);
    const double wanted = std::max((PAWN_RADIUS + limit) / 2, limit - half - 12);
    const double away = std::min(wanted, limit - half - 4);
    return pointOnSquare(square, atEnd ? away : -away);
}

// Whether a wall runs along the square between a lane and its right neighbour.
bool wallBeside(const Square& square, int lane)
{
    const auto walls = sections[square.section].barriers;
    return std::any_of(walls.begin(), walls.end(), [&](const LaneBarrier& wall) {
        return wall.lane == lane && wall.firstRow <= square.row && square.row <= wall.endRow;
    });
}

void paintNumber(cairo_t* cr, const Square& square)
{
    if (square.modifier == 0)
        return;
    std::string text(1, square.modifier > 0 ? '+' : '-');
    text += std::to_string(std::abs(square.modifier));
    const bool onDark = square.terrain == TERRAIN_MOUNTAIN;
    const Colour ground = squareColour(square.terrain, square.modifier);
    const Lettering style{.height = 17.5,
                          .stroke = 3.5,
                          .ink = onDark ? PAPER : INK,
                          .halo = 2.2,
                          .haloInk = onDark ? blend(ground, rgb(0x200a0c), 0.55)
                                            : blend(ground, PAPER, 0.55),
                          .stretch = 0.82};
    const double halfWidth = letteringWidth(text, style) / 2 + style.stroke / 2;
    const LanePoint place = markPlace(square, numberAtEnd(square), halfWidth, 11);
    const double shift =
        (wallBeside(square, square.lane - 1) ? 1 : 0) - (wallBeside(square, square.lane) ? 1 : 0);
    const Spot across = unitOf(place.right - place.left);
    drawLettering(cr, text, place.middle + across * (shift * WALL_WIDTH / 5), style);
}

void drawArrow(cairo_t* cr, Spot centre, Spot direction, double length, Colour colour, double alpha)
{
    const Spot across{-direction.y, direction.x};
    const Spot tip = centre + direction * (length / 2);
    const Spot neck = tip - direction * (length * 0.48);
    const Spot tail = centre - direction * (length / 2);
    const double wide = length * 0.30;
    const double slim = length * 0.11;
    fillShape(cr,
              {tip, neck + across * wide, neck + across * slim, tail + across * slim,
               tail - across * slim, neck - across * slim, neck - across * wide},
              colour, alpha);
}

// Arrows of travel on every third square of a lane, moved from lane to lane like a draughtboard.
void paintArrow(cairo_t* cr, const Square& square)
{
    const bool atEnd = !numberAtEnd(square);
    const bool last = square.row + 1 == sections[square.section].rowCount;
    const double room = atEnd ? endOf(square) - (last ? END_LINE_HALF : 0) : -beginOf(square);
    const bool flat = square.terrain == TERRAIN_FLAT;
    if (room < PAWN_RADIUS + 18 || (square.row + 2 * square.lane) % 3 != 0 || square.closes ||
        square.opens)
        return;
    const double away = (PAWN_RADIUS + room) / 2;
    const double along = atEnd ? away : -away;
    const Colour ground = squareColour(square.terrain, square.modifier);
    const Colour ink = square.terrain == TERRAIN_MOUNTAIN ? blend(ground, PAPER, 0.62)
                                                          : blend(ground, INK, flat ? 0.45 : 0.62);
    drawArrow(cr, pointOnSquare(square, along).middle, directionOnSquare(square, along),
              std::min(27.0, room - PAWN_RADIUS - 4), ink, 1);
}

void paintWall(cairo_t* cr, const Outline& line)
{
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
    strokeLine(cr, line, false, WALL_WIDTH, rgb(0x241c1c));
    strokeLine(cr, line, false, 6.0, rgb(0xffd21f));
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_BUTT);
}

void paintWalls(cairo_t* cr)
{
    for (int section = 0; section < SECTION_COUNT; ++section) {
        for (const LaneBarrier& wall : sections[section].barriers)
            paintWall(cr, laneBorder(section, wall.lane, wall.firstRow - 0.5, wall.endRow + 0.5));
    }
}

// A chequered ribbon across the road where a section ends, with a post on each side: here a sprint
// or the finish may lie.
void paintEndLine(cairo_t* cr, Spot from, Spot to)
{
    const Spot across = unitOf(to - from);
    const Spot ahead{across.y, -across.x};
    const double length = lengthOf(to - from);
    const int checks = static_cast<int>(std::round(length / 5.4));
    const double side = length / checks;
    const auto box = [&](double along, double over, double wide, double high) -> Outline {
        const Spot start = from + across * along + ahead * over;
        return {start, start + across * wide, start + across * wide + ahead * high,
                start + ahead * high};
    };
    fillShape(cr, box(-8, -END_LINE_HALF, length + 16, 2 * END_LINE_HALF), INK);
    fillShape(cr, box(-6, -4.4, length + 12, 8.8), PAPER);
    for (int i = 0; i < checks; ++i)
        fillShape(cr, box(i * side, i % 2 == 0 ? 0 : -4.4, side, 4.4), INK);
    for (const Spot post : {from - across * 9, to + across * 9}) {
        fillEllipse(cr, post, 7, 7, INK);
        fillEllipse(cr, post, 4.8, 4.8, rgb(0xd8262c));
    }
}

// The ends of sections, on shared road once.
void paintEndLines(cairo_t* cr)
{
    struct End {
        int section;
        double row;
    };
    constexpr End ENDS[] = {{0, 5.5}, {1, 24.5}, {2, 12.5}, {3, 16.5}, {4, 26}, {7, 30.5}};
    for (const End& end : ENDS) {
        const Outline line = lineAcross(end.section, end.row);
        paintEndLine(cr, line.front(), line.back());
    }
}

void paintPlate(cairo_t* cr, Spot centre, double half, Colour colour)
{
    const auto plate = [&](double inset, Spot shift) {
        traceRoundedBox(cr, centre.x - half + inset + shift.x, centre.y - 19 + inset + shift.y,
                        2 * (half - inset), 2 * (19 - inset), 9 - inset);
    };
    plate(0, {2.5, 3.5});
    setColour(cr, rgb(0x20281c), 0.4);
    cairo_fill(cr);
    plate(0, {});
    setColour(cr, PAPER);
    cairo_fill(cr);
    plate(2.6, {});
    setColour(cr, colour);
    cairo_fill(cr);
}

constexpr Lettering SIGN_STYLE{.height = 21, .stroke = 5, .ink = PAPER, .halo = 0, .haloInk = {}};

void paintSign(cairo_t* cr, std::string_view text, Spot centre)
{
    paintPlate(cr, centre, letteringWidth(text, SIGN_STYLE) / 2 + 11, rgb(0x28477c));
    drawLettering(cr, text, centre, SIGN_STYLE);
}

// A letter with an arrow to where its way leaves the shared road.
void paintForkSign(cairo_t* cr, std::string_view text, Spot centre)
{
    paintPlate(cr, centre, 26, rgb(0x28477c));
    drawLettering(cr, text, centre + Spot{10, 0}, SIGN_STYLE);
    drawArrow(cr, centre + Spot{-13, 0}, unitOf({-0.35, -1}), 26, PAPER, 1);
}

// A waving flag and the number of the start.
void paintStartSign(cairo_t* cr, std::string_view number, Spot centre)
{
    paintPlate(cr, centre, 27, rgb(0x1f7a3c));
    const Spot pole = centre + Spot{-16, 0};
    strokeLine(cr, {pole + Spot{0, -12}, pole + Spot{0, 13}}, false, 3, PAPER);
    cairo_new_path(cr);
    cairo_move_to(cr, pole.x, pole.y - 12);
    cairo_curve_to(cr, pole.x + 6, pole.y - 16, pole.x + 10, pole.y - 8, pole.x + 17, pole.y - 11);
    cairo_line_to(cr, pole.x + 17, pole.y + 2);
    cairo_curve_to(cr, pole.x + 10, pole.y + 5, pole.x + 6, pole.y - 3, pole.x, pole.y + 1);
    setColour(cr, PAPER);
    cairo_fill(cr);
    drawLettering(cr, number, centre + Spot{14, 0}, SIGN_STYLE);
}

struct Sign {
    std::string_view text;
    Spot at;
};

// Each at the beginning of its section, on free land. C stands where D begins and again where it
// leaves D.
constexpr Sign SIGNS[] = {
    {"A", {424, 216}},  {"E", {324, 754}},  {"B", {774, 597}},  {"D", {1232, 960}},
    {"C", {1274, 960}}, {"F", {1737, 234}}, {"F", {1358, 568}},
};
constexpr Spot FORK_SIGN{1727, 806};

constexpr Spot START_SIGNS[] = {{1000, 243}, {489, 1066}};

void paintLetters(cairo_t* cr)
{
    for (const Sign& sign : SIGNS)
        paintSign(cr, sign.text, sign.at);
    paintForkSign(cr, "C", FORK_SIGN);
    paintStartSign(cr, "1", START_SIGNS[0]);
    paintStartSign(cr, "2", START_SIGNS[1]);
}

// A start place: a bold frame open to the back, as riders stand in it.
void paintGridPlace(cairo_t* cr, const Square& square)
{
    const Colour blue = rgb(0x2459c4);
    const LanePoint front = pointOnSquare(square, endOf(square) - 4);
    const LanePoint back = pointOnSquare(square, endOf(square) - 34);
    const auto inset = [](Spot edge, Spot middle) { return edge + unitOf(middle - edge) * 4.2; };
    strokeLine(cr,
               {inset(back.left, back.middle), inset(front.left, front.middle),
                inset(front.right, front.middle), inset(back.right, back.middle)},
               false, 4.2, blue);
}

void paintStartGrids(cairo_t* cr, const std::vector<Square>& squares)
{
    for (const Square& square : squares) {
        if ((square.section == 0 || square.section == 6) && square.row < 4)
            paintGridPlace(cr, square);
    }
}

} // namespace

std::vector<Outline> signGround()
{
    std::vector<Outline> ground;
    const auto keep = [&](Spot at, double half) {
        ground.push_back({at + Spot{-half, -20}, at + Spot{half, -20}, at + Spot{half, 20},
                          at + Spot{-half, 20}});
    };
    for (const Sign& sign : SIGNS)
        keep(sign.at, 20);
    for (const Spot& at : START_SIGNS)
        keep(at, 28);
    keep(FORK_SIGN, 28);
    return ground;
}

void paintMarks(cairo_t* cr, const std::vector<Square>& squares)
{
    paintStartGrids(cr, squares);
    for (const Square& square : squares)
        paintArrow(cr, square);
    paintWalls(cr);
    paintEndLines(cr);
    for (const Square& square : squares)
        paintNumber(cr, square);
    paintLetters(cr);
}
