#include "canvas.h"

#include <algorithm>
#include <cmath>

double lengthOf(Spot a)
{
    return std::sqrt(a.x * a.x + a.y * a.y);
}

Spot unitOf(Spot a)
{
    const double length = lengthOf(a);
    return length > 0 ? a * (1 / length) : Spot{1, 0};
}

double chance(int a, int b, int seed)
{
    auto h = static_cast<std::uint32_t>(a) * 0x9E3779B1U ^
             static_cast<std::uint32_t>(b) * 0x85EBCA77U ^
             static_cast<std::uint32_t>(seed) * 0xC2B2AE3DU;
    h = (h ^ h >> 15) * 0x2C1B3C6DU;
    h = (h ^ h >> 12) * 0x297A2D39U;
    h ^= h >> 15;
    return static_cast<double>(h >> 8) / 16777216.0;
}

double swell(double x, double y, double size, int seed)
{
    const double u = x / size;
    const double v = y / size;
    const int column = static_cast<int>(std::floor(u));
    const int row = static_cast<int>(std::floor(v));
    const auto ease = [](double t) { return t * t * (3 - 2 * t); };
    const double s = ease(u - column);
    const double t = ease(v - row);
    const double upper = chance(column, row, seed) * (1 - s) + chance(column + 1, row, seed) * s;
    const double lower =
        chance(column, row + 1, seed) * (1 - s) + chance(column + 1, row + 1, seed) * s;
    return upper * (1 - t) + lower * t;
}

Canvas openCanvas(int width, int height, int scale, double unitsX, double unitsY)
{
    Canvas canvas;
    canvas.scale = scale;
    canvas.surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, width * scale, height * scale);
    canvas.cr = cairo_create(canvas.surface);
    cairo_scale(canvas.cr, width * scale / unitsX, height * scale / unitsY);
    cairo_set_line_join(canvas.cr, CAIRO_LINE_JOIN_ROUND);
    return canvas;
}

void closeCanvas(Canvas& canvas)
{
    cairo_destroy(canvas.cr);
    cairo_surface_destroy(canvas.surface);
    canvas = {};
}

std::vector<std::uint8_t> shrink(const Canvas& canvas)
{
    cairo_surface_flush(canvas.surface);
    const int scale = canvas.scale;
    const int width = cairo_image_surface_get_width(canvas.surface) / scale;
    const int height = cairo_image_surface_get_height(canvas.surface) / scale;
    const int stride = cairo_image_surface_get_stride(canvas.surface) / 4;
    const auto* pixels =
        reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(canvas.surface));
    const auto area = static_cast<std::uint32_t>(scale * scale);
    std::vector<std::uint8_t> bytes;
    bytes.reserve(static_cast<std::size_t>(width * height) * 3);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            std::uint32_t sum[3] = {};
            for (int k = 0; k < scale * scale; ++k) {
                const std::uint32_t pixel =
                    pixels[(y * scale + k / scale) * stride + x * scale + k % scale];
                for (unsigned part = 0; part < 3; ++part)
                    sum[part] += pixel >> (16 - 8 * part) & 255U;
            }
            for (const std::uint32_t part : sum)
                bytes.push_back(static_cast<std::uint8_t>((part + area / 2) / area));
        }
    }
    return bytes;
}

void setColour(cairo_t* cr, Colour colour, double alpha)
{
    cairo_set_source_rgba(cr, colour.r, colour.g, colour.b, alpha);
}

void tracePath(cairo_t* cr, const Outline& points, bool closed)
{
    cairo_new_path(cr);
    for (const Spot& point : points)
        cairo_line_to(cr, point.x, point.y);
    if (closed)
        cairo_close_path(cr);
}

void fillShape(cairo_t* cr, const Outline& points, Colour colour, double alpha)
{
    tracePath(cr, points, true);
    setColour(cr, colour, alpha);
    cairo_fill(cr);
}

void strokeLine(cairo_t* cr, const Outline& points, bool closed, double width, Colour colour,
                double alpha)
{
    tracePath(cr, points, closed);
    setColour(cr, colour, alpha);
    cairo_set_line_width(cr, width);
    cairo_stroke(cr);
}

void traceEllipse(cairo_t* cr, Spot centre, double radiusX, double radiusY)
{
    cairo_new_path(cr);
    cairo_save(cr);
    cairo_translate(cr, centre.x, centre.y);
    cairo_scale(cr, radiusX, radiusY);
    cairo_arc(cr, 0, 0, 1, 0, 2 * M_PI);
    cairo_close_path(cr);
    cairo_restore(cr);
}

void fillEllipse(cairo_t* cr, Spot centre, double radiusX, double radiusY, Colour colour,
                 double alpha)
{
    traceEllipse(cr, centre, radiusX, radiusY);
    setColour(cr, colour, alpha);
    cairo_fill(cr);
}

void traceRoundedBox(cairo_t* cr, double x, double y, double width, double height, double radius)
{
    const double r = std::min({radius, width / 2, height / 2});
    cairo_new_path(cr);
    cairo_arc(cr, x + width - r, y + r, r, -M_PI / 2, 0);
    cairo_arc(cr, x + width - r, y + height - r, r, 0, M_PI / 2);
    cairo_arc(cr, x + r, y + height - r, r, M_PI / 2, M_PI);
    cairo_arc(cr, x + r, y + r, r, M_PI, 3 * M_PI / 2);
    cairo_close_path(cr);
}
