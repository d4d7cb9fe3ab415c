#include "mountains.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

constexpr Colour LIT = rgb(0xcdbfa4);
constexpr Colour LIT_DEEP = rgb(0xa89a86);
constexpr Colour SHADED = rgb(0x7d7473);
constexpr Colour SHADED_DEEP = rgb(0x5f5a60);
constexpr Colour SNOW = rgb(0xfbfaf6);
constexpr Colour SNOW_SHADED = rgb(0xb4bfd0);
constexpr Colour EDGE = rgb(0x4d474a);
constexpr Colour SCREE = rgb(0xa59a80);
constexpr Colour FOOT_SHADE = rgb(0x3a4232);

struct Peak {
    Spot foot;
    double left, right; // how far its flanks reach to either side
    double height;
    double lean; // of its top to the right
    int range;
};

// clang-format off
constexpr std::array PEAKS = {
    //   foot        left  right height lean range
    // Between A and E, going away to the north.
    Peak{{ 274,  356},  24,   26,   40,    4, 0},
    Peak{{ 256,  398},  28,   34,   58,   -3, 0},
    Peak{{ 284,  440},  36,   28,   64,    5, 0},
    Peak{{ 260,  488},  32,   42,   84,   -2, 0},
    Peak{{ 282,  544},  48,   34,   84,    6, 0},
    Peak{{ 256,  606},  44,   54,  110,   -4, 0},
    Peak{{ 290,  672},  66,   40,   98,    4, 0},
    Peak{{ 244,  742},  46,   58,  128,   -2, 0},
    Peak{{ 218,  826},  24,   34,   62,    2, 0},
    Peak{{ 326,  846},  44,   30,   56,    4, 0},
    Peak{{ 266,  896},  66,   84,  184,   -6, 0},
    // Within the bend of A.
    Peak{{ 548,  440},  30,   32,   52,    3, 1},
    Peak{{ 506,  470},  34,   40,   84,   -4, 1},
    // Between the climb of C and that of F.
    Peak{{1568,  640},  20,   22,   58,    1, 2},
    Peak{{1582,  706},  30,   20,   62,    3, 2},
    Peak{{1546,  726},  24,   36,   70,   -3, 2},
    Peak{{1548,  806},  42,   50,  112,    4, 2},
    // At the edges of the board.
    Peak{{  34,  292},  20,   22,   48,    2, 3},
    Peak{{  32,  362},  19,   26,   74,   -3, 3},
    Peak{{ 136, 1124},  22,   26,   34,    2, 4},
    Peak{{  96, 1126},  30,   34,   58,    3, 4},
    Peak{{  48, 1130},  32,   40,   88,   -4, 4},
    Peak{{1932,  800},  14,   12,   42,    2, 5},
    Peak{{1926,  872},  18,   18,   66,   -2, 5},
    Peak{{1930,  948},  20,   14,   54,    1, 5},
};
// clang-format on

constexpr int LONG_RANGE = 0;

Spot topOf(const Peak& peak)
{
    return peak.foot + Spot{peak.lean, -peak.height};
}

int seedOf(const Peak& peak)
{
    return static_cast<int>(peak.foot.x) * 3 + static_cast<int>(peak.foot.y);
}

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

// From the top over a shoulder down to a foot: flanks are steep above and run out below.
Outline flank(const Peak& peak, double reach, int seed)
{
    const Spot top = topOf(peak);
    const Spot end = peak.foot + Spot{reach, 0};
    const double bulge = 0.40 + 0.14 * chance(seed, 1, 403);
    const Spot shoulder{top.x + (end.x - top.x) * bulge, top.y + peak.height * (bulge + 0.02)};
    Outline line = crag(top, shoulder, peak.height * 0.03, seed);
    const Outline lower = crag(shoulder, end, peak.height * 0.025, seed + 7);
    line.insert(line.end(), lower.begin() + 1, lower.end());
    return line;
}

struct Faces {
    Outline left, right, ridge; // each from the top down
};

Faces facesOf(const Peak& peak)
{
    const int seed = seedOf(peak);
    const Spot end = peak.foot + Spot{(peak.right - peak.left) * 0.25 + peak.right * 0.1, 4};
    return {flank(peak, -peak.left, seed), flank(peak, peak.right, seed + 1),
            crag(topOf(peak), end, (peak.left + peak.right) * 0.055, seed + 2)};
}

Outline between(const Outline& down, const Outline& up)
{
    Outline shape = down;
    shape.insert(shape.end(), up.rbegin(), up.rend());
    return shape;
}

Spot along(const Outline& line, double t)
{
    const double at = t * static_cast<double>(line.size() - 1);
    const auto i = static_cast<std::size_t>(at);
    return i + 1 < line.size() ? blend(line[i], line[i + 1], at - static_cast<double>(i))
                               : line.back();
}

void fillDownward(cairo_t* cr, const Outline& shape, const Peak& peak, Colour above, Colour below)
{
    cairo_pattern_t* shade =
        cairo_pattern_create_linear(0, peak.foot.y - peak.height, 0, peak.foot.y + 4);
    cairo_pattern_add_color_stop_rgb(shade, 0.25, above.r, above.g, above.b);
    cairo_pattern_add_color_stop_rgb(shade, 1, below.r, below.g, below.b);
    tracePath(cr, shape, true);
    cairo_set_source(cr, shade);
    cairo_fill(cr);
    cairo_pattern_destroy(shade);
}

// Ribs that run down from the ridge: dark ones on the side of the sun, bright ones in the shade.
void drawRibs(cairo_t* cr, const Peak& peak, const Faces& faces)
{
    const int ribs = peak.height > 80 ? 4 : 2;
    for (int i = 0; i < ribs; ++i) {
        const double t = 0.22 + 0.62 * i / ribs;
        const double drop = 0.2 + 0.12 * chance(i, seedOf(peak), 405);
        const auto rib = [&](const Outline& side, double wide) -> Outline {
            const Spot from = along(faces.ridge, t);
            const Spot to = blend(along(faces.ridge, t + drop), along(side, t + drop), wide);
            return {from, to, along(faces.ridge, t + drop * 0.55)};
        };
        fillShape(cr, rib(faces.left, 0.62), LIT_DEEP, 0.75);
        fillShape(cr, rib(faces.right, 0.5), blend(SHADED, LIT, 0.35), 0.6);
    }
}

// The snow ends in tongues that hang down the gullies.
void drawSnow(cairo_t* cr, const Peak& peak, const Faces& faces)
{
    const double depth = 0.30 + 0.10 * chance(seedOf(peak), 3, 402);
    const auto cap = [&](const Outline& side, Colour colour) {
        const Spot outer = along(side, depth * 0.9);
        const Spot inner = along(faces.ridge, depth * 0.9);
        const Spot tongue{0, peak.height * 0.08};
        fillShape(cr,
                  {side[0], along(side, depth * 0.3), along(side, depth * 0.6), outer,
                   blend(outer, inner, 0.2) - tongue * 0.7, blend(outer, inner, 0.42) + tongue,
                   blend(outer, inner, 0.62) - tongue * 0.5, blend(outer, inner, 0.84) + tongue,
                   inner, along(faces.ridge, depth * 0.6), along(faces.ridge, depth * 0.3)},
                  colour);
    };
    cap(faces.left, SNOW);
    cap(faces.right, SNOW_SHADED);
}

void drawPeak(cairo_t* cr, const Peak& peak)
{
    const Faces faces = facesOf(peak);
    fillDownward(cr, between(faces.left, faces.ridge), peak, LIT, blend(LIT, SCREE, 0.7));
    fillDownward(cr, between(faces.right, faces.ridge), peak, SHADED_DEEP,
                 blend(SHADED, SCREE, 0.25));
    drawRibs(cr, peak, faces);
    if (peak.height > 50)
        drawSnow(cr, peak, faces);
    strokeLine(cr, faces.left, false, 1.2, EDGE, 0.45);
    strokeLine(cr, faces.right, false, 1.4, EDGE, 0.75);
}

// The body that the peaks of a range stand on, bright to the left of their feet, dark to the right.
void drawBody(cairo_t* cr, int range)
{
    Outline left;
    Outline right;
    Outline spine;
    for (const Peak& peak : PEAKS) {
        if (peak.range != range)
            continue;
        const double room = peak.height * 0.1;
        left.push_back(peak.foot + Spot{-peak.left * 0.9, -room});
        right.push_back(peak.foot + Spot{peak.right * 0.9, -room});
        spine.push_back(peak.foot - Spot{0, room});
    }
    fillShape(cr, between(left, spine), blend(LIT, SCREE, 0.6));
    fillShape(cr, between(right, spine), blend(SHADED, SCREE, 0.35));
}

// Broken rock all round the foot of a range, darker where the sun doesn't reach.
void drawApron(cairo_t* cr, int range)
{
    for (const Peak& peak : PEAKS) {
        if (peak.range != range)
            continue;
        Outline rubble;
        for (int i = 0; i < 26; ++i) {
            const double angle = 2 * M_PI * i / 26;
            const double wide = angle < M_PI / 2 || angle > 3 * M_PI / 2 ? peak.right : peak.left;
            const double swing = 0.92 + 0.24 * chance(i, seedOf(peak), 406);
            rubble.push_back(peak.foot + Spot{std::cos(angle) * (wide + 4) * swing,
                                              -peak.height * 0.12 +
                                                  std::sin(angle) * peak.height * 0.2 * swing});
        }
        fillShape(cr, rubble, SCREE, 0.85);
    }
    cairo_push_group(cr);
    for (const Peak& peak : PEAKS)
        if (peak.range == range)
            fillEllipse(cr, peak.foot + Spot{peak.right * 0.62, 2}, peak.right * 0.72,
                        4 + peak.height * 0.06, FOOT_SHADE);
    cairo_pop_group_to_source(cr);
    cairo_paint_with_alpha(cr, 0.4);
}

} // namespace

std::vector<Outline> mountainGround()
{
    std::vector<Outline> ground;
    for (const Peak& peak : PEAKS)
        ground.push_back({topOf(peak), peak.foot + Spot{peak.right * 0.6, -peak.height * 0.2},
                          peak.foot + Spot{-peak.left * 0.6, -peak.height * 0.2}});
    return ground;
}

void paintMountains(cairo_t* cr)
{
    int apron = -1;
    for (const Peak& peak : PEAKS) {
        if (peak.range != apron) {
            apron = peak.range;
            drawApron(cr, apron);
            if (apron == LONG_RANGE)
                drawBody(cr, apron);
        }
        drawPeak(cr, peak);
    }
}

void shadeBesideMountains(cairo_t* cr)
{
    for (const Peak& peak : PEAKS)
        fillShape(cr,
                  {peak.foot + Spot{0, 4}, peak.foot + Spot{peak.right * 1.3, 6},
                   peak.foot + Spot{peak.right + peak.height * 0.42, -peak.height * 0.22},
                   topOf(peak) + Spot{peak.right, peak.height * 0.5}},
                  FOOT_SHADE);
}
