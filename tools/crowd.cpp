#include "crowd.h"

#include "board/sections.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

constexpr Colour SHADOW = rgb(0x2c3524);
constexpr Colour INK = rgb(0x33302c);
constexpr Colour GLASS = rgb(0x4a5a68);

constexpr std::array SHIRTS = {rgb(0xd8403a), rgb(0x3f6fc9), rgb(0xf0c43c),
                               rgb(0xf4f1e8), rgb(0x7a4a9a), rgb(0xe07f2e)};

struct Person {
    Spot foot;
    Colour shirt;
    bool cheers = false; // with a flag
};

void drawPerson(cairo_t* cr, const Person& person)
{
    const Spot foot = person.foot;
    fillEllipse(cr, foot + Spot{3.5, 0.5}, 6.5, 2.6, SHADOW, 0.45);
    fillEllipse(cr, foot + Spot{0, -3.5}, 3.2, 4.6, rgb(0x39435c));
    fillEllipse(cr, foot + Spot{0, -9.2}, 4.6, 5.8, blend(person.shirt, SHADOW, 0.5));
    fillEllipse(cr, foot + Spot{-0.5, -9.6}, 3.8, 5.1, person.shirt);
    fillEllipse(cr, foot + Spot{0, -16.4}, 3.5, 3.7, rgb(0x5a4030));
    fillEllipse(cr, foot + Spot{-0.4, -15.8}, 3.0, 3.1, rgb(0xecbd96));
    if (!person.cheers)
        return;
    const Spot hand = foot + Spot{5, -17};
    strokeLine(cr, {foot + Spot{3, -11}, hand, hand + Spot{1, -9}}, false, 1.6, INK);
    fillShape(cr, {hand + Spot{1, -9}, hand + Spot{11, -7}, hand + Spot{1, -2.5}}, person.shirt);
}

// One group at a kerb: people beside and behind each other, looking at the road.
std::vector<Person> groupAt(const Square& square, double along, bool onLeft, const LandMap& road,
                            int seed)
{
    constexpr double APART = 8.5;
    std::vector<Person> group;
    const int count = 5 + static_cast<int>(3.99 * chance(seed, 1, 302));
    for (int i = 0; i < count; ++i) {
        const double jitter = 4 * (chance(seed, i, 306) - 0.5);
        const LanePoint point = pointOnSquare(square, along + APART * (i - count / 2.0) + jitter);
        const Spot edge = onLeft ? point.left : point.right;
        const double back =
            i % 3 == 1 ? 21 + 5 * chance(seed, i, 303) : 14 + 3 * chance(seed, i, 303);
        const Spot at = edge + unitOf(edge - point.middle) * back;
        const bool inside = at.x > 14 && at.x < 1940 && at.y > 28 && at.y < 1140;
        const bool crowded = std::any_of(group.begin(), group.end(), [at](const Person& other) {
            return lengthOf(other.foot - at) < 7;
        });
        if (!inside || crowded || clearance(road, at) < 10.5 ||
            clearance(road, at - Spot{0, 17}) < 7 ||
            clearance(road, at + unitOf(edge - point.middle) * 14) < 12)
            continue;
        group.push_back({at, SHIRTS[static_cast<std::size_t>(chance(seed, i, 304) * 5.99)],
                         chance(seed, i, 305) < 0.3});
    }
    return group;
}

// How willingly people stand there: at the ends of sections, and where it is steep.
double drawOf(const Square& square)
{
    if (square.row >= sections[square.section].rowCount - 1)
        return 1;
    return square.terrain == TERRAIN_MOUNTAIN ? 0.1 * std::abs(square.modifier) : 0;
}

// A car from the side, with bicycles on its roof, driving to the right.
void drawCar(cairo_t* cr, Spot foot, Colour paint)
{
    fillEllipse(cr, foot + Spot{5, 0}, 26, 5, SHADOW, 0.45);
    const Outline cabin{foot + Spot{-15, -11}, foot + Spot{-10, -20}, foot + Spot{6, -20},
                        foot + Spot{13, -11}};
    strokeLine(cr, cabin, true, 2.4, INK);
    fillShape(cr, cabin, GLASS);
    strokeLine(cr, {foot + Spot{-1, -11}, foot + Spot{-1, -20}}, false, 2, paint);
    traceRoundedBox(cr, foot.x - 23, foot.y - 13, 46, 11, 4);
    setColour(cr, INK);
    cairo_set_line_width(cr, 2.4);
    cairo_stroke_preserve(cr);
    setColour(cr, paint);
    cairo_fill(cr);
    fillShape(cr,
              {foot + Spot{-21, -12}, foot + Spot{20, -12}, foot + Spot{21, -9.4},
               foot + Spot{-22, -9.4}},
              blend(paint, {1, 1, 1}, 0.4));
    for (const double x : {-13.0, 13.0}) {
        fillEllipse(cr, foot + Spot{x, -2}, 5, 5, INK);
        fillEllipse(cr, foot + Spot{x, -2}, 2.2, 2.2, rgb(0xc8c8c8));
    }
    strokeLine(cr, {foot + Spot{-10, -22}, foot + Spot{8, -22}}, false, 1.6, INK);
    for (const double x : {-7.0, 1.0}) {
        traceEllipse(cr, foot + Spot{x, -25}, 2.6, 2.6);
        traceEllipse(cr, foot + Spot{x + 5, -25}, 2.6, 2.6);
        setColour(cr, INK);
        cairo_set_line_width(cr, 1.3);
        cairo_stroke(cr);
    }
}

void drawCamper(cairo_t* cr, Spot foot, Colour stripe)
{
    constexpr Colour WALL = rgb(0xf3efe4);
    fillEllipse(cr, foot + Spot{6, 0}, 34, 6, SHADOW, 0.45);
    const Outline body{foot + Spot{-29, -3}, foot + Spot{-29, -28}, foot + Spot{26, -28},
                       foot + Spot{28, -20}, foot + Spot{20, -19},  foot + Spot{26, -12},
                       foot + Spot{29, -10}, foot + Spot{29, -3}};
    strokeLine(cr, body, true, 2.4, INK);
    fillShape(cr, body, WALL);
    fillShape(
        cr,
        {foot + Spot{-29, -11}, foot + Spot{27, -11}, foot + Spot{29, -7}, foot + Spot{-29, -7}},
        stripe);
    for (const double x : {-22.0, -8.0})
        fillShape(cr,
                  {foot + Spot{x, -23}, foot + Spot{x + 9, -23}, foot + Spot{x + 9, -15},
                   foot + Spot{x, -15}},
                  GLASS);
    fillShape(
        cr,
        {foot + Spot{11, -18}, foot + Spot{18, -18}, foot + Spot{23, -12}, foot + Spot{11, -12}},
        GLASS);
    for (const double x : {-17.0, 19.0}) {
        fillEllipse(cr, foot + Spot{x, -2}, 5.4, 5.4, INK);
        fillEllipse(cr, foot + Spot{x, -2}, 2.4, 2.4, rgb(0xc8c8c8));
    }
}

struct Car {
    Spot foot;
    Colour paint;
    bool camper = false;
};

struct Track {
    Spot from, to;
};

// clang-format off
constexpr std::array TRACKS = {Track{{744, 246}, {890, 250}}, Track{{1395, 952}, {1668, 956}}};

constexpr std::array CARS = {
    Car{{ 772, 247}, rgb(0x2f9a48)},
    Car{{ 826, 249}, rgb(0xcc3a36)},
    Car{{ 872, 250}, rgb(0x3c68c4)},
    Car{{1424, 953}, rgb(0x4a4b52)},
    Car{{1482, 954}, rgb(0xf0c43c)},
    Car{{1548, 955}, rgb(0xcc3a36), true},
    Car{{1634, 956}, rgb(0x3c68c4), true},
};
// clang-format on

} // namespace

std::vector<Outline> trackGround()
{
    std::vector<Outline> ground;
    for (const Track& track : TRACKS)
        ground.push_back({track.from + Spot{-8, -28}, track.to + Spot{8, -28},
                          track.to + Spot{8, 8}, track.from + Spot{-8, 8}});
    return ground;
}

void paintSpectators(cairo_t* cr, const LandMap& road, const std::vector<Square>& squares)
{
    constexpr double GROUPS_APART = 190;
    std::vector<Person> crowd;
    std::vector<Spot> places;
    for (const double least : {0.9, 0.4, 0.2}) {
        for (const Square& square : squares) {
            const int seed = square.section * 1000 + square.row * 10 + square.lane;
            const bool taken = std::any_of(places.begin(), places.end(), [&](Spot place) {
                return lengthOf(place - square.centre) < GROUPS_APART;
            });
            if (taken || drawOf(square) < least)
                continue;
            for (const bool onLeft : {true, false}) {
                const std::vector<Person> group = groupAt(square, 0, onLeft, road, seed);
                if (group.size() < 4)
                    continue;
                crowd.insert(crowd.end(), group.begin(), group.end());
                places.push_back(square.centre);
                break;
            }
        }
    }
    std::sort(crowd.begin(), crowd.end(),
              [](const Person& a, const Person& b) { return a.foot.y < b.foot.y; });
    for (const Person& person : crowd)
        drawPerson(cr, person);
}

void paintCars(cairo_t* cr)
{
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
    for (const Track& track : TRACKS) {
        strokeLine(cr, {track.from, track.to}, false, 15, rgb(0x8d8a5c));
        strokeLine(cr, {track.from, track.to}, false, 12, rgb(0xd2c49c));
        strokeLine(cr, {track.from + Spot{0, 3}, track.to + Spot{0, 3}}, false, 2.4, rgb(0xb3a37c));
        strokeLine(cr, {track.from - Spot{0, 3}, track.to - Spot{0, 3}}, false, 2.4, rgb(0xb3a37c));
    }
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_BUTT);
    for (const Car& car : CARS)
        car.camper ? drawCamper(cr, car.foot, car.paint) : drawCar(cr, car.foot, car.paint);
}
