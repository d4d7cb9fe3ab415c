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
constexpr Colour START_GREEN = rgb(0x1f7a3c); // of signs and grids alike

double beginOf(const Square& square)
{
    return square.run.front().along;
}
double endOf(const Square& square)
{
    return square.run.back().along;
}

// From the pawn's place to the line at either end of its square.
double roomAt(const Square& square, bool atEnd)
{
    const bool endLine =
        atEnd ? square.row + 1 == sections[square.section].rowCount : square.row == 0;
    return (atEnd ? endOf(square) : -beginOf(square)) - (endLine ? END_LINE_HALF : 0);
}

// Whether a wall runs along the square between a lane and its right neighbour.
bool wallBeside(const Square& square, int lane)
{
    const auto walls = sections[square.section].barriers;
    return std::any_of(walls.begin(), walls.end(), [&](const LaneBarrier& wall) {
        return wall.lane == lane && wall.firstRow <= square.row && square.row <= wall.endRow;
    });
}

constexpr Lettering NUMBER_STYLE{.height = 17.5, .stroke = 3.5, .halo = 1.9, .stretch = 0.82};
constexpr double NUMBER_HALF_HEIGHT = 10.5;
constexpr double ROUNDING = 4;

struct NumberPlace {
    std::string text; // none on a square of 0
    Spot at;
    double halfWidth = 0;
    bool atEnd = false; // of the square; the arrow has the other end
};

// Half the room that an upright number takes along a direction; its corners are empty.
double halfAlong(const NumberPlace& number, Spot direction)
{
    const double x = std::abs(direction.x) * number.halfWidth;
    const double y = std::abs(direction.y) * NUMBER_HALF_HEIGHT;
    return (x + y + lengthOf({x, y})) / 2;
}

// What is free between a number, without its empty corners, and a pawn.
double gapToPawn(const NumberPlace& number, Spot pawn)
{
    const Spot off = pawn - number.at;
    return lengthOf({std::max(0.0, std::abs(off.x) - number.halfWidth + ROUNDING),
                     std::max(0.0, std::abs(off.y) - NUMBER_HALF_HEIGHT + ROUNDING)}) -
           PAWN_RADIUS - ROUNDING;
}

double lacking(double gap, double wanted)
{
    return std::max(0.0, wanted - gap);
}

// How badly a number stands where it is: under a pawn, or so near to another number that the two
// read as one.
double crowding(const NumberPlace& number, const Square& square, const std::vector<Square>& squares,
                const std::vector<NumberPlace>& placed)
{
    const double covered = lacking(gapToPawn(number, square.centre), 0.5);
    double sum =
        covered * (3 + 1.5 * covered) + 1.2 * lacking(gapToPawn(number, square.centre), 4.5);
    for (const Square& other : squares) {
        if (&other != &square && lengthOf(other.centre - number.at) < 40)
            sum += 2 * lacking(gapToPawn(number, other.centre), 0.5);
    }
    for (const NumberPlace& other : placed) {
        const Spot off = other.at - number.at;
        if (!other.text.empty() && lengthOf(off) < 60)
            sum += 4 * std::min(lacking(std::abs(off.x) - number.halfWidth - other.halfWidth, 8.5),
                                lacking(std::abs(off.y) - 2 * NUMBER_HALF_HEIGHT, 1));
    }
    return sum;
}

// How badly it stands on its square, so far from the line at its end and from the middle of its
// lane: over a line or a wall.
double overlap(const NumberPlace& number, const Square& square, double along, double aside)
{
    const LanePoint point = pointOnSquare(square, along);
    const double end = roomAt(square, number.atEnd) - std::abs(along) -
                       halfAlong(number, directionOnSquare(square, along));
    const double side = lengthOf(point.right - point.left) / 2 -
                        halfAlong(number, unitOf(point.right - point.left));
    const auto line = [&](int lane) { return wallBeside(square, lane) ? WALL_WIDTH / 2 : 1.2; };
    const auto cost = [](double over) { return over * (2 + over); };
    return cost(lacking(end, 2.4)) + 0.1 * std::abs(end - 6) + 0.3 * std::abs(aside) +
           cost(lacking(side - aside, line(square.lane))) +
           cost(lacking(side + aside, line(square.lane - 1)));
}

// Numbers stand towards the begin of a square, unless it is cut away or has no room for them.
constexpr double AT_END = 25;

NumberPlace placeNumber(const Square& square, const std::vector<Square>& squares,
                        const std::vector<NumberPlace>& placed)
{
    NumberPlace best;
    if (square.modifier == 0)
        return best;
    NumberPlace number;
    number.text = square.modifier > 0 ? '+' : '-';
    number.text += std::to_string(std::abs(square.modifier));
    number.halfWidth = (letteringWidth(number.text, NUMBER_STYLE) + NUMBER_STYLE.stroke) / 2;
    double least = 1e9;
    for (const bool atEnd : {false, true}) {
        if (atEnd ? square.closes : square.opens)
            continue;
        number.atEnd = atEnd;
        for (double away = PAWN_RADIUS; away < roomAt(square, atEnd); away += 1) {
            const double along = atEnd ? away : -away;
            const LanePoint point = pointOnSquare(square, along);
            for (double aside = -6; aside <= 6; aside += 1) {
                number.at = point.middle + unitOf(point.right - point.left) * aside;
                const double cost = crowding(number, square, squares, placed) +
                                    overlap(number, square, along, aside) + (atEnd ? AT_END : 0);
                if (cost < least) {
                    least = cost;
                    best = number;
                }
            }
        }
    }
    return best;
}

// One place for each square.
std::vector<NumberPlace> placeNumbers(const std::vector<Square>& squares)
{
    std::vector<NumberPlace> placed;
    placed.reserve(squares.size());
    for (const Square& square : squares)
        placed.push_back(placeNumber(square, squares, placed));
    return placed;
}

void paintNumber(cairo_t* cr, const Square& square, const NumberPlace& number)
{
    const bool onDark = square.terrain == TERRAIN_MOUNTAIN;
    const Colour ground = squareColour(square.terrain, square.modifier);
    Lettering style = NUMBER_STYLE;
    style.ink = onDark ? PAPER : INK;
    const double light = square.terrain == TERRAIN_COBBLES ? 0.85 : 0.55;
    style.haloInk = onDark ? blend(ground, rgb(0x200a0c), 0.55) : blend(ground, PAPER, light);
    drawLettering(cr, number.text, number.at, style);
}

// Where a number at the end of a square meets that at the begin of the next, a darker line parts
// them.
void partNumbers(cairo_t* cr, const std::vector<Square>& squares,
                 const std::vector<NumberPlace>& numbers)
{
    for (std::size_t i = 0; i < squares.size(); ++i) {
        if (numbers[i].text.empty() || !numbers[i].atEnd)
            continue;
        const LanePoint& end = squares[i].run.back();
        for (std::size_t k = 0; k < squares.size(); ++k) {
            const LanePoint& begin = squares[k].run.front();
            if (!numbers[k].text.empty() && !numbers[k].atEnd &&
                lengthOf(begin.middle - end.middle) < 6)
                strokeLine(cr, {end.left, end.right}, false, 4.6, INK);
        }
    }
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
void paintArrow(cairo_t* cr, const Square& square, const NumberPlace& number)
{
    const bool atEnd = !number.atEnd;
    const double room = roomAt(square, atEnd);
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

// A letter with an arrow to where its way goes on from a fork.
void paintForkSign(cairo_t* cr, std::string_view text, Spot centre, Spot way)
{
    paintPlate(cr, centre, 26, rgb(0x28477c));
    drawLettering(cr, text, centre + Spot{10, 0}, SIGN_STYLE);
    drawArrow(cr, centre + Spot{-13, 0}, unitOf(way), 26, PAPER, 1);
}

// A waving flag and the number of the start.
void paintStartSign(cairo_t* cr, std::string_view number, Spot centre)
{
    paintPlate(cr, centre, 27, START_GREEN);
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

// Each at the beginning of its section, on free land.
constexpr Sign SIGNS[] = {{"A", {424, 216}},  {"E", {324, 754}},  {"D", {1232, 960}},
                          {"C", {1274, 960}}, {"F", {1737, 234}}, {"F", {1358, 568}}};

struct ForkSign {
    std::string_view text;
    Spot at;
    Spot way;
};

// C begins on the road of D; where it leaves that, both stand once more. B has no land of its own
// behind its line, only beside the climb that leads there.
constexpr ForkSign FORK_SIGNS[] = {
    {"C", {1729, 795}, {-0.6, -1}}, {"D", {1729, 838}, {0, -1}}, {"B", {776, 600}, {-1, 0}}};

constexpr Spot START_SIGNS[] = {{928, 239}, {489, 1050}};

void paintLetters(cairo_t* cr)
{
    for (const Sign& sign : SIGNS)
        paintSign(cr, sign.text, sign.at);
    for (const ForkSign& sign : FORK_SIGNS)
        paintForkSign(cr, sign.text, sign.at, sign.way);
    paintStartSign(cr, "1", START_SIGNS[0]);
    paintStartSign(cr, "2", START_SIGNS[1]);
}

// A start place: a bold frame open to the back, as riders stand in it.
void paintGridPlace(cairo_t* cr, const Square& square)
{
    const LanePoint front = pointOnSquare(square, endOf(square) - 4);
    const LanePoint back = pointOnSquare(square, endOf(square) - 34);
    const auto inset = [](Spot edge, Spot middle) { return edge + unitOf(middle - edge) * 4.2; };
    strokeLine(cr,
               {inset(back.left, back.middle), inset(front.left, front.middle),
                inset(front.right, front.middle), inset(back.right, back.middle)},
               false, 4.6, START_GREEN);
}

// The places, and the line in front of them.
void paintStartGrids(cairo_t* cr, const std::vector<Square>& squares)
{
    for (const Square& square : squares) {
        if ((square.section == 0 || square.section == 6) && square.row < 4)
            paintGridPlace(cr, square);
    }
    for (const int section : {0, 6}) {
        const Outline line = lineAcross(section, 3.5);
        strokeLine(cr, line, false, 9, PAPER);
        strokeLine(cr, line, false, 5.5, START_GREEN);
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
    for (const ForkSign& sign : FORK_SIGNS)
        keep(sign.at, 28);
    return ground;
}

void paintMarks(cairo_t* cr, const std::vector<Square>& squares)
{
    paintStartGrids(cr, squares);
    const std::vector<NumberPlace> numbers = placeNumbers(squares);
    for (std::size_t i = 0; i < squares.size(); ++i)
        paintArrow(cr, squares[i], numbers[i]);
    partNumbers(cr, squares, numbers);
    paintWalls(cr);
    paintEndLines(cr);
    for (std::size_t i = 0; i < squares.size(); ++i)
        paintNumber(cr, squares[i], numbers[i]);
    paintLetters(cr);
}
