#include "kerb.h"

#include "board/section_shapes.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr Colour KERB_DARK = rgb(0x3a332e);
constexpr Colour KERB = rgb(0xece7db);
constexpr Colour LINE = rgb(0x3b3430);
constexpr Colour SHADE = rgb(0x20281c);

constexpr int SMOOTHING = 5; // cells; evens out the steps where two pieces of road meet

std::vector<float> coverage(const std::vector<Square>& squares, int width, int height)
{
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_A8, width, height);
    cairo_t* cr = cairo_create(surface);
    for (const Square& square : squares) {
        fillShape(cr, square.outline, {});
        strokeLine(cr, square.outline, true, 1.5, {});
    }
    cairo_surface_flush(surface);
    const unsigned char* cells = cairo_image_surface_get_data(surface);
    const int stride = cairo_image_surface_get_stride(surface);
    std::vector<float> covered;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            covered.push_back(static_cast<float>(cells[y * stride + x]) / 255.0F);
    cairo_destroy(cr);
    cairo_surface_destroy(surface);
    return covered;
}

// The mean of the cells about each, along rows (step 1) or columns (step the width).
void blurLine(std::vector<float>& cells, std::size_t first, std::size_t step, int count)
{
    std::vector<float> line;
    for (int i = 0; i < count; ++i)
        line.push_back(cells[first + step * static_cast<std::size_t>(i)]);
    const auto at = [&](int i) {
        return line[static_cast<std::size_t>(std::clamp(i, 0, count - 1))];
    };
    float sum = 0;
    for (int i = -SMOOTHING; i <= SMOOTHING; ++i)
        sum += at(i);
    for (int i = 0; i < count; ++i) {
        cells[first + step * static_cast<std::size_t>(i)] = sum / (2 * SMOOTHING + 1);
        sum += at(i + SMOOTHING + 1) - at(i - SMOOTHING);
    }
}

void blur(std::vector<float>& cells, int width, int height)
{
    const auto w = static_cast<std::size_t>(width);
    for (int round = 0; round < 2; ++round) {
        for (int y = 0; y < height; ++y)
            blurLine(cells, w * static_cast<std::size_t>(y), 1, width);
        for (int x = 0; x < width; ++x)
            blurLine(cells, static_cast<std::size_t>(x), w, height);
    }
}

// What a spot so far from the rim shows: colour and how much of it.
struct Paint {
    Colour colour;
    double alpha;
};

using Painter = Paint (*)(const LandMap& edge, Spot at);

void paintField(cairo_t* cr, const LandMap& edge, Painter painter)
{
    cairo_surface_t* surface =
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, edge.width, edge.height);
    auto* pixels = reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(surface));
    const int stride = cairo_image_surface_get_stride(surface) / 4;
    const auto part = [](double value) {
        return static_cast<std::uint32_t>(std::clamp(value, 0.0, 1.0) * 255 + 0.5);
    };
    for (int y = 0; y < edge.height; ++y) {
        for (int x = 0; x < edge.width; ++x) {
            const Paint paint = painter(edge, {x + 0.5, y + 0.5});
            pixels[y * stride + x] =
                part(paint.alpha) << 24 | part(paint.colour.r * paint.alpha) << 16 |
                part(paint.colour.g * paint.alpha) << 8 | part(paint.colour.b * paint.alpha);
        }
    }
    cairo_surface_mark_dirty(surface);
    cairo_set_source_surface(cr, surface, 0, 0);
    cairo_paint(cr);
    cairo_surface_destroy(surface);
}

double distanceAt(const LandMap& edge, Spot at)
{
    const int x = std::clamp(static_cast<int>(at.x), 0, edge.width - 1);
    const int y = std::clamp(static_cast<int>(at.y), 0, edge.height - 1);
    return static_cast<double>(edge.distance[static_cast<std::size_t>(y * edge.width + x)]);
}

// 0 before a distance and 1 behind it, with the width of a cell in between.
double beyond(double distance, double from)
{
    return std::clamp(distance - from + 0.5, 0.0, 1.0);
}

Paint bedAt(const LandMap& edge, Spot at)
{
    constexpr double SHADOW_REACH = 7;
    if (distanceAt(edge, at) < 3)
        return {LINE, 1};
    const double shadow = distanceAt(edge, at - Spot{4, 6}) - SHADOW_REACH;
    return {SHADE, 0.36 * std::clamp(0.5 - shadow / 5, 0.0, 1.0)};
}

Paint kerbAt(const LandMap& edge, Spot at)
{
    constexpr double SHADE_REACH = 11;
    const double distance = distanceAt(edge, at);
    if (distance < -1.7)
        return {SHADE, 0.22 * std::clamp(1 + distance / SHADE_REACH, 0.0, 1.0)};
    const Colour inner = blend(LINE, KERB, beyond(distance, 1.2));
    return {blend(inner, KERB_DARK, beyond(distance, 4.7)),
            beyond(distance, -1.2) * (1 - beyond(distance, 6.5))};
}

} // namespace

LandMap roadEdge(const std::vector<Square>& squares)
{
    constexpr float FAR = 1e6F;
    LandMap edge;
    edge.width = static_cast<int>(BOARD_WIDTH);
    edge.height = static_cast<int>(BOARD_HEIGHT);
    std::vector<float> cells = coverage(squares, edge.width, edge.height);
    blur(cells, edge.width, edge.height);
    const auto cell = [&](int x, int y) {
        return cells[static_cast<std::size_t>(std::clamp(y, 0, edge.height - 1) * edge.width +
                                              std::clamp(x, 0, edge.width - 1))];
    };
    // Cells at the rim know how far it is from how fast the blurred road fades there.
    for (int y = 0; y < edge.height; ++y) {
        for (int x = 0; x < edge.width; ++x) {
            const float fadeX = (cell(x + 1, y) - cell(x - 1, y)) / 2;
            const float fadeY = (cell(x, y + 1) - cell(x, y - 1)) / 2;
            const float off = std::abs(cell(x, y) - 0.5F);
            const float fade = std::hypot(fadeX, fadeY);
            edge.distance.push_back(off < fade ? off / fade : FAR);
        }
    }
    spreadDistances(edge, 1);
    for (std::size_t i = 0; i < cells.size(); ++i)
        if (cells[i] > 0.5F)
            edge.distance[i] = -edge.distance[i];
    return edge;
}

void paintRoadBed(cairo_t* cr, const LandMap& edge)
{
    paintField(cr, edge, bedAt);
}

void paintKerb(cairo_t* cr, const LandMap& edge)
{
    paintField(cr, edge, kerbAt);
}
