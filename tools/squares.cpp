#include "squares.h"

#include "board/section_shapes.h"
#include "board/sections.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

// A lane that opens or closes in mid-road does so over this length. Where C leaves D the road
// widens more slowly, and the innermost lane of its F ends bluntly.
constexpr double taperOf(int section, int lane)
{
    if (section == 8 && lane == 1)
        return 0;
    return section == 7 ? 64 : 32;
}

// Where a lane that closes is at its end, in rows behind its last square.
constexpr double closingOf(int section, int lane)
{
    return section == 3 && lane == 4 ? 0.4 : 0.5;
}

struct Pieces {
    std::vector<StraightPiece> straights;
    std::vector<CurvePiece> curves;
};

// The pieces of a section such that each of its lanes is one unbroken band. Two sets of pieces are
// written in the rows or lanes of a neighbour: the first bend of B in the rows of E, and the strip
// behind the last line of F in the lanes of the next lap.
Pieces bandsOf(int section)
{
    const SectionShape& shape = sectionShape(section);
    Pieces pieces{{shape.straights.begin(), shape.straights.end()},
                  {shape.curves.begin(), shape.curves.end()}};
    if (section == 3) {
        for (int i = 0; i < 4; ++i) {
            pieces.curves[static_cast<std::size_t>(i)].rowFrom -= 13;
            pieces.curves[static_cast<std::size_t>(i)].rowTo -= 13;
        }
        CurvePiece& stub = pieces.curves[4]; // lane 1 runs out behind its only square
        stub.rowTo = 0.5F;
        stub.angleTo = 7.95F;
    }
    if (section == 5 || section == 8) {
        StraightPiece& strip = pieces.straights.back();
        strip.laneFrom += 3;
        strip.laneTo += 3;
    }
    return pieces;
}

Spot corner(const StraightPiece& piece, int i)
{
    return {static_cast<double>(piece.corner[i].x), static_cast<double>(piece.corner[i].y)};
}

template <typename Piece> double share(const Piece& piece, double lane)
{
    return (lane - static_cast<double>(piece.laneFrom)) /
           static_cast<double>(piece.laneTo - piece.laneFrom);
}

template <typename Piece> double progress(const Piece& piece, double row)
{
    return (row - static_cast<double>(piece.rowFrom)) /
           static_cast<double>(piece.rowTo - piece.rowFrom);
}

Spot spotOn(const StraightPiece& piece, double row, double lane)
{
    const double fr = progress(piece, row);
    const Spot from = blend(corner(piece, 0), corner(piece, 1), fr);
    const Spot to = blend(corner(piece, 3), corner(piece, 2), fr);
    return blend(from, to, share(piece, lane));
}

Spot spotOn(const CurvePiece& piece, double row, double lane)
{
    const double t = share(piece, lane);
    const double angle =
        static_cast<double>(piece.angleFrom) +
        progress(piece, row) * static_cast<double>(piece.angleTo - piece.angleFrom);
    const auto radius = [t](float from, float to) {
        return static_cast<double>(from) + t * static_cast<double>(to - from);
    };
    return {static_cast<double>(piece.centreX) +
                radius(piece.radiusXFrom, piece.radiusXTo) * std::cos(angle),
            static_cast<double>(piece.centreY) +
                radius(piece.radiusYFrom, piece.radiusYTo) * std::sin(angle)};
}

template <typename Piece> bool holds(const Piece& piece, double row, double lane)
{
    return static_cast<double>(piece.rowFrom) <= row && row <= static_cast<double>(piece.rowTo) &&
           static_cast<double>(piece.laneFrom) <= lane && lane <= static_cast<double>(piece.laneTo);
}

template <typename List> int pieceAt(const List& list, double row, double lane)
{
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (holds(list[i], row, lane))
            return static_cast<int>(i);
    }
    return -1;
}

template <typename Piece>
void sampleBand(LaneRun& run, const Piece& piece, double from, double to, int lane, int steps)
{
    for (int i = 0; i <= steps; ++i) {
        const double row = from + (to - from) * i / steps;
        run.push_back({row, spotOn(piece, row, lane - 0.5), spotOn(piece, row, lane),
                       spotOn(piece, row, lane + 0.5)});
    }
}

void measure(LaneRun& run)
{
    for (std::size_t i = 1; i < run.size(); ++i)
        run[i].along = run[i - 1].along + lengthOf(run[i].middle - run[i - 1].middle);
}

// The whole of a lane through a section, wherever a piece carries it.
LaneRun laneRun(const Pieces& pieces, int lane)
{
    std::vector<double> borders;
    const auto note = [&](const auto& piece) {
        if (holds(piece, static_cast<double>(piece.rowFrom), lane)) {
            borders.push_back(static_cast<double>(piece.rowFrom));
            borders.push_back(static_cast<double>(piece.rowTo));
        }
    };
    std::for_each(pieces.straights.begin(), pieces.straights.end(), note);
    std::for_each(pieces.curves.begin(), pieces.curves.end(), note);
    std::sort(borders.begin(), borders.end());
    borders.erase(std::unique(borders.begin(), borders.end()), borders.end());

    LaneRun run;
    for (std::size_t i = 0; i + 1 < borders.size(); ++i) {
        const double from = borders[i];
        const double to = borders[i + 1];
        const int straight = pieceAt(pieces.straights, (from + to) / 2, lane);
        const int curve = pieceAt(pieces.curves, (from + to) / 2, lane);
        if (straight >= 0)
            sampleBand(run, pieces.straights[static_cast<std::size_t>(straight)], from, to, lane,
                       16);
        else if (curve >= 0)
            sampleBand(run, pieces.curves[static_cast<std::size_t>(curve)], from, to, lane, 48);
    }
    measure(run);
    return run;
}

LanePoint mix(const LanePoint& a, const LanePoint& b, double t)
{
    return {a.row + (b.row - a.row) * t, blend(a.left, b.left, t), blend(a.middle, b.middle, t),
            blend(a.right, b.right, t), a.along + (b.along - a.along) * t};
}

// The point of a run where a growing value, row or along, reaches what is asked; its ends beyond
// it.
LanePoint pointWhere(const LaneRun& run, double LanePoint::*value, double asked)
{
    for (std::size_t i = 0; i < run.size(); ++i) {
        if (run[i].*value < asked)
            continue;
        if (i == 0 || run[i].*value == run[i - 1].*value)
            return run[i];
        return mix(run[i - 1], run[i],
                   (asked - run[i - 1].*value) / (run[i].*value - run[i - 1].*value));
    }
    return run.back();
}

LaneRun cutOut(const LaneRun& run, double from, double to)
{
    LaneRun part{pointWhere(run, &LanePoint::along, from)};
    for (const LanePoint& point : run) {
        if (point.along > from && point.along < to)
            part.push_back(point);
    }
    part.push_back(pointWhere(run, &LanePoint::along, to));
    return part;
}

// Where a pawn stands: the middle of its place on a straight; on a bend the squares of a lane are
// spread evenly over the piece, whatever rows they have.
struct Place {
    Spot centre;
    int curve = -1; // -1 on a straight
    int squares = 0;
    int index = 0; // of the squares on the bend, from 0
};

Place placeOf(int section, int row, int lane)
{
    const SectionShape& shape = sectionShape(section);
    const int straight = pieceAt(shape.straights, row, lane);
    if (straight >= 0)
        return {spotOn(shape.straights[static_cast<std::size_t>(straight)], row, lane)};
    Place place;
    place.curve = pieceAt(shape.curves, row, lane);
    const CurvePiece& piece = shape.curves[static_cast<std::size_t>(place.curve)];
    const int last = static_cast<int>(std::floor(piece.rowTo));
    for (int r = static_cast<int>(std::ceil(piece.rowFrom)); r <= last; ++r) {
        if (r < 0 || !isRealSquare(sections[section].moveModifier[r][lane]))
            continue;
        ++place.squares;
        place.index += r < row ? 1 : 0;
    }
    const double at = (2.0 * place.index + 1) / (2.0 * place.squares);
    const double where =
        static_cast<double>(piece.rowFrom) + at * static_cast<double>(piece.rowTo - piece.rowFrom);
    place.centre = spotOn(piece, where, lane);
    return place;
}

struct Stop {
    int row;
    Place place;
    double along;
};

// How far along the lane a centre lies: at the nearest spot of the middle line about that row.
double alongOf(const LaneRun& run, Spot centre, int row)
{
    double nearest = 1e9;
    double along = 0;
    for (std::size_t i = 1; i < run.size(); ++i) {
        const LanePoint& a = run[i - 1];
        const LanePoint& b = run[i];
        const Spot step = b.middle - a.middle;
        const double square = step.x * step.x + step.y * step.y;
        if (std::abs(a.row - row) > 1.5 || square == 0)
            continue;
        const Spot off = centre - a.middle;
        const double t = std::clamp((off.x * step.x + off.y * step.y) / square, 0.0, 1.0);
        const double distance = lengthOf(off - step * t);
        if (distance < nearest - 1e-6) {
            nearest = distance;
            along = a.along + (b.along - a.along) * t;
        }
    }
    return along;
}

// Where one square ends and the next of the lane begins, as a length along the lane.
double cutBetween(int section, const LaneRun& run, const Stop& a, const Stop& b)
{
    const auto alongAtRow = [&](double row) { return pointWhere(run, &LanePoint::row, row).along; };
    if (a.place.curve >= 0 && a.place.curve == b.place.curve) {
        const CurvePiece& piece =
            sectionShape(section).curves[static_cast<std::size_t>(a.place.curve)];
        const double part = static_cast<double>(b.place.index) / a.place.squares;
        return alongAtRow(static_cast<double>(piece.rowFrom) +
                          part * static_cast<double>(piece.rowTo - piece.rowFrom));
    }
    const double half = alongAtRow(b.place.curve < 0 ? b.row - 0.5 : a.row + 0.5);
    if (a.place.curve < 0 && b.place.curve < 0)
        return alongAtRow((a.row + b.row) / 2.0);
    const double middle = (a.along + b.along) / 2;
    const bool mixed = a.place.curve < 0 || b.place.curve < 0;
    const bool even = std::abs(half - middle) < 0.14 * (b.along - a.along);
    return mixed && even ? half : middle;
}

bool isRoad(int section, int row, int lane)
{
    return row >= 0 && row < sections[section].rowCount && lane >= 0 && lane < SECTION_LANES &&
           sections[section].moveModifier[row][lane] != NO_SQUARE;
}

// The outline of a run, with the far corner taken off where the lane opens or closes in mid-road.
Outline outlineOf(const Square& square)
{
    const LaneRun& run = square.run;
    const double begin = run.front().along;
    const double end = run.back().along;
    const double length = taperOf(square.section, square.lane);
    const bool roadOnRight =
        isRoad(square.section, square.row + (square.opens ? -1 : 1), square.lane + 1);
    Outline left;
    Outline right;
    for (const LanePoint& point : run) {
        const bool taper = (square.opens && point.along < begin + length) ||
                           (square.closes && point.along > end - length);
        if (!taper || !roadOnRight)
            left.push_back(point.left);
        if (!taper || roadOnRight)
            right.push_back(point.right);
    }
    left.insert(left.end(), right.rbegin(), right.rend());
    return left;
}

void addSquares(std::vector<Square>& squares, int section, int lane, const LaneRun& run)
{
    std::vector<Stop> stops;
    for (int row = 0; row < sections[section].rowCount; ++row) {
        if (!isRealSquare(sections[section].moveModifier[row][lane]))
            continue;
        const Place place = placeOf(section, row, lane);
        stops.push_back({row, place, alongOf(run, place.centre, row)});
    }
    for (std::size_t i = 0; i < stops.size(); ++i) {
        const Stop& stop = stops[i];
        Square square{.section = section,
                      .row = stop.row,
                      .lane = lane,
                      .modifier = sections[section].moveModifier[stop.row][lane],
                      .terrain = sections[section].terrain[stop.row][lane],
                      .run = {},
                      .outline = {},
                      .centre = stop.place.centre};
        square.opens = stop.row > 0 && !isRoad(section, stop.row - 1, lane);
        square.closes =
            stop.row + 1 < sections[section].rowCount && !isRoad(section, stop.row + 1, lane);
        double from = i == 0 ? run.front().along : cutBetween(section, run, stops[i - 1], stop);
        double to =
            i + 1 == stops.size() ? run.back().along : cutBetween(section, run, stop, stops[i + 1]);
        if (square.opens)
            from = pointWhere(run, &LanePoint::row, stop.row - 0.5).along;
        if (square.closes)
            to = std::min(
                to, pointWhere(run, &LanePoint::row, stop.row + closingOf(section, lane)).along);
        square.run = cutOut(run, from, to);
        for (LanePoint& point : square.run)
            point.along -= stop.along;
        square.outline = outlineOf(square);
        squares.push_back(square);
    }
}

bool isPrinted(const std::vector<Square>& squares, const Square& square)
{
    return std::any_of(squares.begin(), squares.end(), [&](const Square& other) {
        return other.section != square.section && lengthOf(other.centre - square.centre) < 14;
    });
}

} // namespace

std::vector<Square> printedSquares()
{
    constexpr std::array ORDER = {6, 0, 1, 2, 3, 4, 5, 7, 8}; // the start grids rule their places
    std::vector<Square> squares;
    for (const int section : ORDER) {
        const Pieces pieces = bandsOf(section);
        std::vector<Square> own;
        for (int lane = 0; lane < SECTION_LANES; ++lane) {
            const LaneRun run = laneRun(pieces, lane);
            if (!run.empty())
                addSquares(own, section, lane, run);
        }
        for (const Square& square : own) {
            if (!isPrinted(squares, square))
                squares.push_back(square);
        }
    }
    return squares;
}

LanePoint pointOnSquare(const Square& square, double along)
{
    return pointWhere(square.run, &LanePoint::along, along);
}

Spot directionOnSquare(const Square& square, double along)
{
    const Spot before = pointOnSquare(square, along - 4).middle;
    const Spot after = pointOnSquare(square, along + 4).middle;
    return unitOf(after - before);
}

Outline laneBorder(int section, int lane, double rowFrom, double rowTo)
{
    const LaneRun run = laneRun(bandsOf(section), lane);
    const LanePoint from = pointWhere(run, &LanePoint::row, rowFrom);
    const LanePoint to = pointWhere(run, &LanePoint::row, rowTo);
    Outline line{from.right};
    for (const LanePoint& point : run) {
        if (point.row > rowFrom && point.row < rowTo)
            line.push_back(point.right);
    }
    line.push_back(to.right);
    return line;
}

Outline lineAcross(int section, double row)
{
    const Pieces pieces = bandsOf(section);
    Outline line;
    for (int lane = 0; lane < SECTION_LANES; ++lane) {
        const LaneRun run = laneRun(pieces, lane);
        if (run.empty() || run.front().row > row || run.back().row < row)
            continue;
        const LanePoint point = pointWhere(run, &LanePoint::row, row);
        if (line.empty())
            line.push_back(point.left);
        line.push_back(point.right);
    }
    return line;
}
