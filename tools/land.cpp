#include "land.h"

#include "board/section_shapes.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

struct Peak {
    double x, y;
    double spreadX, spreadY;
    double height;
};

// Mountains stand where A, E and C climb; B and F fall through open land.
// clang-format off
constexpr Peak PEAKS[] = {
    // x     y    spread      height
    { 268,  420,  46,  95,    0.95},
    { 262,  610,  44,  90,    0.80},
    { 282,  850,  58, 100,    0.95},
    { 500,  420,  62,  70,    0.85},
    { 395,  760,  30,  90,    0.30},
    {1560,  700,  46,  90,    1.00},
    {1500,  520,  62,  80,    0.85},
    {1640,  430,  26,  80,    0.55},
    {1470,  330,  40,  60,    0.55},
    { 925,  252,  75,  26,    0.75},
    {1340,  730,  70,  90,    0.50},
    {  20,  300,  34, 160,    0.50},
    {1935,  900,  30, 200,    0.60},
    {  60, 1110,  90,  60,    0.60},
    {1640,  200,  90,  26,    0.35},
};

// Where the plough goes, as ellipses that fade at their rim.
constexpr Peak FARMLAND[] = {
    // x     y    spread      weight
    {1150,  860, 260,  90,    1.6},
    {1400,  955, 420,  22,    1.6},
    { 740,  866, 120,  44,    1.6},
    {1560,  200, 110,  40,    1.2},
    { 700,  690,  60, 300,    0.0},
    { 420, 1060, 110,  90,    1.4},
    {1000,  600, 120,  90,    1.3},
    {1720,  800,  40,  60,    1.3},
    { 780,  300,  60, 110,    1.4},
    {1060,  250,  90,  26,    1.2},
    {1930,  400,  26, 300,    1.0},
    { 220, 1120, 240,  30,    0.8},
    {1000, 1140, 900,  12,    1.2},
};

constexpr Spot RIVER[] = {
    {905, 352}, {880, 420}, {902, 490}, {868, 560}, {905, 640}, {882, 730}, {915, 810}, {905, 880},
    {968, 925}, {1012, 980}, {1030, 1050}, {1016, 1122}, {1040, 1180},
};
// clang-format on

double bump(const Peak& peak, Spot at)
{
    const double u = (at.x - peak.x) / peak.spreadX;
    const double v = (at.y - peak.y) / peak.spreadY;
    return peak.height * std::exp(-(u * u + v * v));
}

double ridges(Spot at)
{
    double sum = 0;
    double weight = 0.55;
    double size = 64;
    for (int octave = 0; octave < 4; ++octave) {
        const double fold = 1 - std::abs(2 * swell(at.x, at.y, size, 70 + octave) - 1);
        sum += weight * fold * fold;
        weight *= 0.5;
        size *= 0.5;
    }
    return sum;
}

Colour meadow(Spot at)
{
    const double broad = swell(at.x, at.y, 120, 1);
    const double fine = swell(at.x, at.y, 14, 2);
    const Colour green = blend(rgb(0x97a968), rgb(0x7e9859), broad);
    return blend(green, rgb(0xabb078), 0.35 * fine);
}

Colour hillside(Spot at, double height)
{
    const double grain =
        0.16 * (swell(at.x, at.y, 18, 9) - 0.5) + 0.1 * (swell(at.x, at.y, 5, 8) - 0.5);
    const double h = height + grain;
    constexpr Colour ALP = rgb(0x9aa568);
    constexpr Colour SCREE = rgb(0xb7a888);
    const auto step = [h](double from, double to) {
        const double t = std::clamp((h - from) / (to - from), 0.0, 1.0);
        return t * t * (3 - 2 * t);
    };
    return blend(blend(meadow(at), ALP, step(0.12, 0.30)), SCREE, 0.75 * step(0.36, 0.62));
}

struct Field {
    int column = 0;
    int row = 0;
    Spot seed;
    double edge = 0; // to the nearest hedge, in units
};

// Fields are the cells round seeds that are strewn over a grid.
Field fieldAt(Spot at)
{
    constexpr double SIZE = 52;
    const Spot bent = at + Spot{10 * swell(at.x, at.y, 60, 31), 10 * swell(at.x, at.y, 60, 32)};
    const int column = static_cast<int>(std::floor(bent.x / SIZE));
    const int row = static_cast<int>(std::floor(bent.y / SIZE));
    double first = 1e9;
    double second = 1e9;
    Field field;
    for (int j = row - 1; j <= row + 1; ++j) {
        for (int i = column - 1; i <= column + 1; ++i) {
            const Spot seed{(i + 0.15 + 0.7 * chance(i, j, 41)) * SIZE,
                            (j + 0.15 + 0.7 * chance(i, j, 42)) * SIZE};
            const double away = lengthOf(seed - bent);
            if (away < first) {
                second = first;
                first = away;
                field.column = i;
                field.row = j;
                field.seed = seed;
            } else if (away < second) {
                second = away;
            }
        }
    }
    field.edge = (second - first) / 2;
    return field;
}

// Crops in furrows; a vineyard is rows of bushes.
Colour crop(Spot at, const Field& field)
{
    constexpr std::array CROPS = {rgb(0xd6c277), rgb(0xb3bf6d), rgb(0xc7a873),
                                  rgb(0x8fae63), rgb(0xdccf94), rgb(0xa2a95c)};
    const double kind = chance(field.column, field.row, 51);
    const double angle = M_PI * chance(field.column, field.row, 52);
    const double across = at.x * std::cos(angle) + at.y * std::sin(angle);
    const double along = at.y * std::cos(angle) - at.x * std::sin(angle);
    const double furrow = std::sin(across * 1.05);
    if (kind > 0.82) {
        const bool bush = std::sin(across * 0.72) > 0.1 && std::sin(along * 1.1) > -0.55;
        return bush ? rgb(0x6f8d4d) : rgb(0xc9ad82);
    }
    const Colour base = CROPS[static_cast<std::size_t>(kind / 0.82 * 5.999)];
    return blend(base, furrow > 0 ? rgb(0xf4e9c0) : rgb(0x6b6a3a), 0.13 * std::abs(furrow));
}

Colour landAt(Spot at, const LandMap& road)
{
    const double height = heightAt(at);
    const Colour ground = hillside(at, height);
    if (height > 0.17 || clearance(road, at) < 13)
        return ground;
    const Field field = fieldAt(at);
    const bool tilled = tilledAt(field.seed) > 0.5 && heightAt(field.seed) < 0.14 &&
                        clearance(road, field.seed) > 15;
    if (!tilled)
        return ground;
    if (field.edge < 1.6)
        return rgb(0x728a50);
    if (chance(field.column, field.row, 53) < 0.16)
        return ground;
    return crop(at, field);
}

double lightOn(Spot at)
{
    constexpr double REACH = 2.2;
    const double slopeX = heightAt(at + Spot{REACH, 0}) - heightAt(at - Spot{REACH, 0});
    const double slopeY = heightAt(at + Spot{0, REACH}) - heightAt(at - Spot{0, REACH});
    return std::clamp((slopeX + slopeY) * 4.2, -0.42, 0.42);
}

Outline smooth(const Outline& points)
{
    Outline line;
    for (std::size_t i = 1; i + 2 < points.size(); ++i) {
        for (int k = 0; k < 12; ++k) {
            const double t = k / 12.0;
            const Spot a = points[i - 1];
            const Spot b = points[i];
            const Spot c = points[i + 1];
            const Spot d = points[i + 2];
            line.push_back((b * 2 + (c - a) * t + (a * 2 - b * 5 + c * 4 - d) * (t * t) +
                            (b * 3 - a - c * 3 + d) * (t * t * t)) *
                           0.5);
        }
    }
    return line;
}

Outline lakeShore()
{
    Outline shore;
    for (int i = 0; i < 72; ++i) {
        const double angle = 2 * M_PI * i / 72;
        const Spot way{std::cos(angle), std::sin(angle)};
        const double swing = 0.82 + 0.3 * swell(way.x * 40 + 500, way.y * 40 + 500, 26, 61);
        shore.push_back({918 + way.x * 56 * swing, 322 + way.y * 42 * swing});
    }
    return shore;
}

// From the lake to the edge of the board.
Outline riverCourse()
{
    Outline points(std::begin(RIVER), std::end(RIVER));
    points.insert(points.begin(), {915, 330});
    points.push_back({1060, 1240});
    return smooth(points);
}

} // namespace

double heightAt(Spot at)
{
    double sum = 0;
    for (const Peak& peak : PEAKS)
        sum += bump(peak, at);
    return sum < 0.01 ? sum : sum * (0.52 + 0.62 * ridges(at));
}

double tilledAt(Spot at)
{
    double sum = 0;
    for (const Peak& patch : FARMLAND)
        sum += bump(patch, at);
    return sum * (0.75 + 0.5 * swell(at.x, at.y, 70, 44));
}

std::vector<Outline> waterGround()
{
    constexpr double HALF = 11;
    Outline left;
    Outline right;
    const Outline river = riverCourse();
    for (std::size_t i = 1; i < river.size(); ++i) {
        const Spot way = unitOf(river[i] - river[i - 1]);
        left.push_back(river[i] + Spot{-way.y, way.x} * HALF);
        right.push_back(river[i] - Spot{-way.y, way.x} * HALF);
    }
    left.insert(left.end(), right.rbegin(), right.rend());
    return {left, lakeShore()};
}

void paintLand(cairo_t* cr, const LandMap& road)
{
    constexpr int WIDTH = 2048;
    constexpr int HEIGHT = 1024;
    const double stepX = static_cast<double>(BOARD_WIDTH) / WIDTH;
    const double stepY = static_cast<double>(BOARD_HEIGHT) / HEIGHT;
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, WIDTH, HEIGHT);
    auto* pixels = reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(surface));
    const int stride = cairo_image_surface_get_stride(surface) / 4;
    const auto part = [](double value) {
        return static_cast<std::uint32_t>(std::clamp(value, 0.0, 1.0) * 255 + 0.5);
    };
    for (int y = 0; y < HEIGHT; ++y) {
        for (int x = 0; x < WIDTH; ++x) {
            const Spot at{(x + 0.5) * stepX, (y + 0.5) * stepY};
            const double light = lightOn(at);
            const Colour lit = light > 0 ? blend(landAt(at, road), rgb(0xfffbe6), light)
                                         : blend(landAt(at, road), rgb(0x3d4254), -light);
            pixels[y * stride + x] = part(lit.r) << 16 | part(lit.g) << 8 | part(lit.b);
        }
    }
    cairo_surface_mark_dirty(surface);
    cairo_save(cr);
    cairo_scale(cr, stepX, stepY);
    cairo_set_source_surface(cr, surface, 0, 0);
    cairo_paint(cr);
    cairo_restore(cr);
    cairo_surface_destroy(surface);
}

void paintWater(cairo_t* cr)
{
    constexpr Colour BANK = rgb(0x6f8a58);
    constexpr Colour DEEP = rgb(0x4f93b8);
    constexpr Colour BRIGHT = rgb(0x86c0d8);
    const Outline river = riverCourse();
    const Outline lake = lakeShore();
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
    strokeLine(cr, lake, true, 8, BANK);
    strokeLine(cr, river, false, 23, BANK);
    strokeLine(cr, river, false, 17, DEEP);
    fillShape(cr, lake, DEEP);
    Outline glint;
    for (const Spot& point : river)
        glint.push_back(point + Spot{-2.2, -1.4});
    strokeLine(cr, glint, false, 7, BRIGHT, 0.7);
    for (int i = 0; i < 16; ++i) {
        const Spot at{884 + 64 * chance(i, 1, 66), 300 + 44 * chance(i, 2, 66)};
        strokeLine(cr, {at, at + Spot{7 + 9 * chance(i, 3, 66), 0}}, false, 2, BRIGHT, 0.8);
    }
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_BUTT);
}

void paintBridge(cairo_t* cr)
{
    constexpr Spot PARAPETS[][2] = {{{984, 976}, {1044, 980}}, {{990, 1128.5}, {1050, 1128.5}}};
    for (const auto& wall : PARAPETS) {
        strokeLine(cr, {wall[0] + Spot{-3, 0}, wall[1] + Spot{3, 0}}, false, 13, rgb(0x4a443e));
        strokeLine(cr, {wall[0], wall[1]}, false, 8.5, rgb(0xb9ae9c));
        for (int i = 0; i <= 6; ++i) {
            const Spot joint = blend(wall[0], wall[1], i / 6.0);
            strokeLine(cr, {joint + Spot{0, -4}, joint + Spot{0, 4}}, false, 1.8, rgb(0x6d645a));
        }
    }
}
