#include "mountains.h"

#include "land.h"

#include <algorithm>
#include <vector>

namespace
{

constexpr Colour LIT = rgb(0xc3b59c);
constexpr Colour SHADED = rgb(0x857b76);
constexpr Colour SNOW = rgb(0xfaf9f6);
constexpr Colour SNOW_SHADED = rgb(0xb9c2d0);
constexpr Colour EDGE = rgb(0x5b534e);
constexpr Colour FOOT = rgb(0xa3ad70);

struct Summit {
    Spot foot;
    double width;
    double height;
    int seed;
};

// A broken line between two spots, bent aside by chance.
Outline crag(Spot from, Spot to, double swing, int seed)
{
    constexpr int STEPS = 6;
    Outline line;
    for (int i = 0; i <= STEPS; ++i) {
        const double bend = i == 0 || i == STEPS ? 0 : swing * (2 * chance(i, seed, 401) - 1);
        line.push_back(blend(from, to, static_cast<double>(i) / STEPS) + Spot{bend, bend * 0.5});
    }
    return line;
}

void append(Outline& line, const Outline& more, bool backward)
{
    if (backward)
        line.insert(line.end(), more.rbegin(), more.rend());
    else
        line.insert(line.end(), more.begin(), more.end());
}

// Rock that runs out into grass at its foot.
void fillSlope(cairo_t* cr, const Outline& slope, Colour rock, const Summit& summit)
{
    cairo_pattern_t* shade =
        cairo_pattern_create_linear(0, summit.foot.y - summit.height, 0, summit.foot.y);
    const Colour grass = blend(FOOT, rock, 0.25);
    cairo_pattern_add_color_stop_rgba(shade, 0, rock.r, rock.g, rock.b, 1);
    cairo_pattern_add_color_stop_rgba(shade, 0.55, rock.r, rock.g, rock.b, 1);
    cairo_pattern_add_color_stop_rgba(shade, 1, grass.r, grass.g, grass.b, 0.9);
    tracePath(cr, slope, true);
    cairo_set_source(cr, shade);
    cairo_fill(cr);
    cairo_pattern_destroy(shade);
}

// The snow ends in tongues that hang down the gullies.
void drawSnow(cairo_t* cr, const Summit& summit, const Outline& left, const Outline& right,
              const Outline& ridge)
{
    const auto down = [&](const Outline& line, double t) {
        const double at = t * static_cast<double>(line.size() - 1);
        const auto i = static_cast<std::size_t>(at);
        return i + 1 < line.size() ? blend(line[i], line[i + 1], at - static_cast<double>(i))
                                   : line.back();
    };
    const double depth = 0.34 + 0.12 * chance(summit.seed, 3, 402);
    const auto cap = [&](const Outline& side, Colour colour) {
        const Spot outer = down(side, depth * 0.85);
        const Spot inner = down(ridge, depth);
        const Spot tongue{0, summit.height * 0.10};
        fillShape(cr,
                  {side[0], down(side, depth * 0.4), outer,
                   blend(outer, inner, 0.25) - tongue * 0.6, blend(outer, inner, 0.5) + tongue,
                   blend(outer, inner, 0.75) - tongue * 0.4, inner + tongue * 0.6,
                   down(ridge, depth * 0.5)},
                  colour);
    };
    cap(left, SNOW);
    cap(right, SNOW_SHADED);
}

void drawSummit(cairo_t* cr, const Summit& summit)
{
    const double half = summit.width / 2;
    const Spot top =
        summit.foot + Spot{half * 0.3 * (chance(summit.seed, 1, 402) - 0.5), -summit.height};
    const double swing = summit.width * 0.045;
    const Outline left = crag(top, summit.foot + Spot{-half, 0}, swing, summit.seed);
    const Outline right = crag(top, summit.foot + Spot{half, 0}, swing, summit.seed + 1);
    const Outline ridge =
        crag(top, summit.foot + Spot{half * 0.12, 3}, summit.width * 0.11, summit.seed + 2);
    fillShape(cr,
              {summit.foot + Spot{half * 0.2, 2}, summit.foot + Spot{half * 1.2, 3},
               top + Spot{half * 0.7, summit.height * 0.6}},
              rgb(0x3a4430), 0.25);
    Outline lit = left;
    append(lit, ridge, true);
    Outline shaded = right;
    append(shaded, ridge, true);
    fillSlope(cr, lit, LIT, summit);
    fillSlope(cr, shaded, SHADED, summit);
    for (int i = 1; i <= 3; ++i) { // gullies on the sunny side
        const Spot from =
            blend(top, summit.foot + Spot{-half * 0.55 + half * 0.2 * i, 0}, 0.34 + 0.1 * i);
        strokeLine(cr,
                   crag(from, from + Spot{-half * 0.06, summit.height * 0.2}, 1.5, summit.seed + i),
                   false, 1.4, SHADED, 0.55);
    }
    if (summit.height > 40)
        drawSnow(cr, summit, left, right, ridge);
    strokeLine(cr, left, false, 1.3, EDGE, 0.6);
    strokeLine(cr, right, false, 1.3, EDGE, 0.6);
}

// Whether a summit stands clear of everything with its foot, its flanks and its top.
bool hasRoom(const LandMap& map, const Summit& summit)
{
    for (int i = 0; i <= 8; ++i) {
        const double t = i / 8.0;
        for (const double side : {-0.5, 0.5}) {
            const Spot at = summit.foot + Spot{side * summit.width * (1 - t), -summit.height * t};
            if (clearance(map, at) < 9)
                return false;
        }
    }
    return summit.foot.y < 1140 && summit.foot.y - summit.height > 10;
}

} // namespace

namespace
{

struct Candidate {
    Spot foot;
    double rise;
    int seed;
};

// Spots on high ground, the highest first.
std::vector<Candidate> highGround()
{
    constexpr double STEP = 15;
    std::vector<Candidate> spots;
    for (int j = 0; j * STEP < 1150; ++j) {
        for (int i = 0; i * STEP < 1950; ++i) {
            const Spot foot{(i + chance(i, j, 403)) * STEP, (j + chance(i, j, 404)) * STEP};
            const double rise = heightAt(foot - Spot{0, 24});
            if (rise > 0.36)
                spots.push_back({foot, rise, j * 200 + i});
        }
    }
    std::sort(spots.begin(), spots.end(),
              [](const Candidate& a, const Candidate& b) { return a.rise > b.rise; });
    return spots;
}

} // namespace

void paintMountains(cairo_t* cr, const LandMap& map)
{
    std::vector<Summit> summits;
    for (const Candidate& spot : highGround()) {
        for (double size = std::min(104.0, 46 + 84 * spot.rise); size >= 34; size -= 4) {
            const Summit summit{spot.foot, size, size * (0.84 + 0.2 * chance(spot.seed, 5, 405)),
                                spot.seed};
            const bool crowded =
                std::any_of(summits.begin(), summits.end(), [&](const Summit& other) {
                    const Spot gap = other.foot - spot.foot;
                    return lengthOf({gap.x, gap.y * 1.35}) < 0.36 * (other.width + size);
                });
            if (crowded || !hasRoom(map, summit))
                continue;
            summits.push_back(summit);
            break;
        }
    }
    std::sort(summits.begin(), summits.end(),
              [](const Summit& a, const Summit& b) { return a.foot.y < b.foot.y; });
    for (const Summit& summit : summits)
        drawSummit(cr, summit);
}
