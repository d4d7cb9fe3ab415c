#include "board/geometry.h"

#include "board/trig_tables.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace
{

constexpr double FULL_TURN = 6.2831853;
constexpr double QUARTER_TURN = 1.570796325;

// A place on the picture and the direction of travel there, in radians: 0 to
// the right, pi / 2 down.
struct Placement {
    BoardPoint at;
    double heading = 0.0;
};

template <typename Piece> bool holds(const Piece& piece, float row, float lane)
{
    return piece.rowFrom <= row && row <= piece.rowTo && piece.laneFrom <= lane &&
           lane <= piece.laneTo;
}

float between(float from, float to, float part)
{
    return from + part * (to - from);
}

template <typename Piece> float rowPart(const Piece& piece, float row)
{
    return (row - piece.rowFrom) / (piece.rowTo - piece.rowFrom);
}

template <typename Piece> float lanePart(const Piece& piece, float lane)
{
    return (lane - piece.laneFrom) / (piece.laneTo - piece.laneFrom);
}

Placement placeOn(const StraightPiece& piece, float row, float lane)
{
    const auto& corner = piece.corner;
    const float fr = rowPart(piece, row);
    const float fl = lanePart(piece, lane);
    const BoardPoint a = {between(corner[0].x, corner[1].x, fr),
                          between(corner[0].y, corner[1].y, fr)};
    const BoardPoint b = {between(corner[3].x, corner[2].x, fr),
                          between(corner[3].y, corner[2].y, fr)};
    const float yc = between(corner[0].y, corner[3].y, fl);
    const float yd = between(corner[1].y, corner[2].y, fl);
    const double across =
        std::hypot(static_cast<double>(a.x - b.x), static_cast<double>(a.y - b.y));
    const double turn = std::acos(std::clamp(static_cast<double>(b.y - a.y) / across, -1.0, 1.0));
    return {.at = {between(a.x, b.x, fl), between(yc, yd, fr)},
            .heading = corner[1].y <= corner[0].y ? -turn : turn};
}

int wholeDegrees(double angle)
{
    const int degree = static_cast<int>(std::fmod(angle * 360 / FULL_TURN, 360.0) + 0.5);
    return degree < 0 ? degree + 360 : degree;
}

Placement placeOn(const CurvePiece& piece, float row, float lane)
{
    const float fl = lanePart(piece, lane);
    const float rx = between(piece.radiusXFrom, piece.radiusXTo, fl);
    const float ry = between(piece.radiusYFrom, piece.radiusYTo, fl);
    const double angle =
        static_cast<double>(between(piece.angleFrom, piece.angleTo, rowPart(piece, row)));
    const int degree = wholeDegrees(angle);
    float x = cosTable[degree] * rx;
    float y = sinTable[degree] * ry;
    if (piece.tilt != 0.0f) {
        const int tilt = wholeDegrees(static_cast<double>(piece.tilt));
        const float turnedX = x * cosTable[tilt] - y * sinTable[tilt];
        y = x * sinTable[tilt] + y * cosTable[tilt];
        x = turnedX;
    }
    const bool backwards = piece.angleTo <= piece.angleFrom;
    return {.at = {piece.centreX + x, piece.centreY + y},
            .heading = backwards ? angle - QUARTER_TURN : angle + QUARTER_TURN};
}

template <typename Piece>
const Piece* findPiece(const std::vector<Piece>& pieces,
                       const Table<PieceRange, COURSE_MAX_ROWS>& piecesOfRow, float row, float lane)
{
    if (row < 0.0f || row >= static_cast<float>(COURSE_MAX_ROWS))
        return nullptr;
    const PieceRange& range = piecesOfRow[static_cast<int>(row)];
    const auto end = pieces.begin() + range.end;
    const auto found =
        std::find_if(pieces.begin() + range.first, end,
                     [row, lane](const Piece& piece) { return holds(piece, row, lane); });
    return found == end ? nullptr : &*found;
}

const StraightPiece* findStraight(float row, float lane)
{
    return findPiece(course.courseStraights, course.straightsOfRow, row, lane);
}

const CurvePiece* findCurve(float row, float lane)
{
    return findPiece(course.courseCurves, course.curvesOfRow, row, lane);
}

// The curve that holds a square, unless a straight piece does: where both
// overlap that one wins.
const CurvePiece* curveOfSquare(int row, int lane)
{
    const auto r = static_cast<float>(row);
    const auto l = static_cast<float>(lane);
    return findStraight(r, l) ? nullptr : findCurve(r, l);
}

std::optional<Placement> placeOfSquare(int row, int lane)
{
    const auto r = static_cast<float>(row);
    const auto l = static_cast<float>(lane);
    if (const StraightPiece* straight = findStraight(r, l))
        return placeOn(*straight, r, l);
    if (const CurvePiece* curve = findCurve(r, l))
        return placeOn(*curve, curveRowOfSquare(*curve, row, lane), l);
    return std::nullopt;
}

bool isRoad(int row, float laneFrom, float laneTo)
{
    for (int lane = static_cast<int>(std::ceil(laneFrom)); static_cast<float>(lane) <= laneTo;
         ++lane)
        if (squareAt(row, lane) == NO_SQUARE)
            return false;
    return true;
}

// A short piece between two rows may count its lanes as those of the next lap:
// at the end of a lap the road is numbered anew. Such a piece says nothing
// about a rider of this lap.
template <typename Piece> bool countsLanesOfThisLap(const Piece& piece)
{
    const int firstRow = static_cast<int>(std::ceil(piece.rowFrom));
    if (static_cast<float>(firstRow) <= piece.rowTo)
        return true;
    return isRoad(firstRow - 1, piece.laneFrom, piece.laneTo) &&
           isRoad(firstRow, piece.laneFrom, piece.laneTo);
}

std::optional<Placement> placeOnPiece(float row, float lane)
{
    if (const StraightPiece* straight = findStraight(row, lane);
        straight && countsLanesOfThisLap(*straight))
        return placeOn(*straight, row, lane);
    if (const CurvePiece* curve = findCurve(row, lane); curve && countsLanesOfThisLap(*curve))
        return placeOn(*curve, row, lane);
    return std::nullopt;
}

double headingFromTo(BoardPoint from, BoardPoint to)
{
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    if (dx == 0.0 && dy == 0.0)
        return 0.0;
    const double turn = std::acos(std::clamp(dx / std::hypot(dx, dy), -1.0, 1.0));
    return dy <= 0.0 ? -turn : turn;
}

// Straight between the two squares of the lane around a point that no piece
// holds.
std::optional<Placement> placeBetweenSquares(float row, float lane)
{
    const int l = static_cast<int>(std::lround(lane));
    const int behind = skipPassThrough(static_cast<int>(std::floor(row)), l, -1);
    const int ahead = skipPassThrough(static_cast<int>(std::ceil(row)), l, 1);
    const auto from = placeOfSquare(behind, l);
    const auto to = placeOfSquare(ahead, l);
    if (!from || !to)
        return from ? from : to;
    const float first = pathRowOfSquare(behind, l);
    const float last = pathRowOfSquare(ahead, l);
    const float part = last > first ? std::clamp((row - first) / (last - first), 0.0f, 1.0f) : 0.0f;
    return Placement{
        .at = {between(from->at.x, to->at.x, part), between(from->at.y, to->at.y, part)},
        .heading = headingFromTo(from->at, to->at)};
}

BoardPoint settle(const std::optional<Placement>& place, double& heading)
{
    if (!place)
        return {};
    heading = place->heading;
    return place->at;
}

} // namespace

float curveRowOfSquare(const CurvePiece& piece, int row, int lane)
{
    int before = 0; // up to this row
    int behind = 0;
    const int lastRow = static_cast<int>(piece.rowTo);
    for (int r = static_cast<int>(std::ceil(piece.rowFrom)); r <= lastRow; ++r)
        if (isRealSquare(squareAt(r, lane)))
            ++(r <= row ? before : behind);
    if (before + behind == 0)
        return static_cast<float>(row);
    const float part =
        static_cast<float>(2 * (before - 1) + 1) / static_cast<float>(2 * (before + behind));
    return piece.rowFrom + part * (piece.rowTo - piece.rowFrom);
}

float pathRowOfSquare(int row, int lane)
{
    const CurvePiece* curve = curveOfSquare(row, lane);
    return curve ? curveRowOfSquare(*curve, row, lane) : static_cast<float>(row);
}

BoardPoint boardPointOfSquare(int row, int lane, double& heading)
{
    return settle(placeOfSquare(row, lane), heading);
}

BoardPoint boardPointOnPath(float row, float lane, double& heading)
{
    const auto place = placeOnPiece(row, lane);
    return settle(place ? place : placeBetweenSquares(row, lane), heading);
}

namespace
{

constexpr float SAMPLE_ROWS = 0.5f;
constexpr float FINEST_ROWS = 0.01f;
constexpr double SHARPEST_TURN = 0.15; // radians between two points of a way

// Appends a point unless it is the last one again or lies behind it: where two
// pieces overlap by a unit or two a rider doesn't step back.
void extendWay(std::vector<WayPoint>& way, const Placement& place)
{
    const WayPoint& last = way.back();
    const float dx = place.at.x - last.at.x;
    const float dy = place.at.y - last.at.y;
    const double onward = dx * std::cos(last.heading) + dy * std::sin(last.heading);
    if (onward <= 0.0)
        return;
    way.push_back(
        {.at = place.at, .heading = place.heading, .distance = last.distance + std::hypot(dx, dy)});
}

void closeWay(std::vector<WayPoint>& way, const Placement& end)
{
    const WayPoint& last = way.back();
    const float rest = std::hypot(end.at.x - last.at.x, end.at.y - last.at.y);
    way.push_back({.at = end.at, .heading = end.heading, .distance = last.distance + rest});
}

// Adds points of the lane between two rows, more where the road bends, none
// where no piece says how it runs: there the way leads straight on.
void followRoad(std::vector<WayPoint>& way, float fromRow, float toRow, float lane)
{
    const float rows = toRow - fromRow;
    const auto halve = [&] {
        const float middle = (fromRow + toRow) / 2;
        followRoad(way, fromRow, middle, lane);
        followRoad(way, middle, toRow, lane);
    };
    if (rows > SAMPLE_ROWS) {
        halve();
        return;
    }
    const auto place = placeOnPiece(toRow, lane);
    const bool bends = !place || std::abs(std::remainder(place->heading - way.back().heading,
                                                         FULL_TURN)) > SHARPEST_TURN;
    if (bends && rows > FINEST_ROWS)
        halve();
    else if (place)
        extendWay(way, *place);
}

} // namespace

std::vector<WayPoint> wayBetween(Square from, Square to)
{
    const Placement start = placeOfSquare(from.row, from.lane).value_or(Placement{});
    const Placement end = placeOfSquare(to.row, to.lane).value_or(Placement{});
    const double straight = headingFromTo(start.at, end.at);
    const bool sameLane = from.lane == to.lane;
    std::vector<WayPoint> way = {
        {.at = start.at, .heading = sameLane ? start.heading : straight, .distance = 0.0f}};
    if (sameLane) {
        followRoad(way, pathRowOfSquare(from.row, from.lane), pathRowOfSquare(to.row, to.lane),
                   static_cast<float>(to.lane));
    }
    closeWay(way, {.at = end.at, .heading = sameLane ? end.heading : straight});
    return way;
}
