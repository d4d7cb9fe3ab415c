#include "icon.h"

#include "canvas.h"
#include "riders.h"

#include <cairo-svg.h>

#include <array>
#include <cstdio>

namespace
{

constexpr std::array FILE_SIZES = {16, 22, 24, 32, 48, 64, 128, 256};
constexpr std::array WINDOW_SIZES = {16, 32, 48, 64};
constexpr int SMALL = 32; // up to here the figure is drawn with fewer and broader lines

constexpr double UNITS = 64; // the icon is drawn in a square of this size
constexpr Colour GRASS = rgb(0x6f9f4c);
constexpr Colour GRASS_LOW = rgb(0x4c7d35);
constexpr Colour ROAD = rgb(0x8d8a85);
constexpr Colour ROAD_EDGE = rgb(0xe9e6dc);
constexpr Colour DARK = rgb(0x16130f);
constexpr Colour SKIN = rgb(0xe0a274);

// One gradient for grass, edge and road: painted one over the other, each would show at the rim.
void drawGround(cairo_t* cr, double margin, double roadTop)
{
    cairo_pattern_t* ground = cairo_pattern_create_linear(0, 0, 0, UNITS);
    const auto stop = [&](double y, Colour colour) {
        cairo_pattern_add_color_stop_rgb(ground, y / UNITS, colour.r, colour.g, colour.b);
    };
    stop(0, GRASS);
    stop(roadTop, GRASS_LOW);
    stop(roadTop, ROAD_EDGE);
    stop(roadTop + 2.4, ROAD_EDGE);
    stop(roadTop + 2.4, ROAD);
    stop(UNITS, ROAD);
    traceRoundedBox(cr, margin, margin, UNITS - 2 * margin, UNITS - 2 * margin, 11);
    cairo_set_source(cr, ground);
    cairo_fill(cr);
    cairo_pattern_destroy(ground);
}

void drawLargeRider(cairo_t* cr)
{
    constexpr double SCALE = 0.61;
    cairo_save(cr);
    cairo_translate(cr, (UNITS - CYCLIST_WIDTH * SCALE) / 2, 6.5);
    cairo_scale(cr, SCALE, SCALE);
    drawCyclist(cr, kitOf(RIDER_PICTURE_COUNT - 1));
    cairo_restore(cr);
}

// The same figure as a few lines, each at least a pixel of the smallest icon.
void drawSmallRider(cairo_t* cr)
{
    const Colour jersey = kitOf(RIDER_PICTURE_COUNT - 1).jersey;
    const auto wheel = [&](double x) {
        traceEllipse(cr, {x, 46}, 10, 10);
        setColour(cr, DARK);
        cairo_set_line_width(cr, 4.2);
        cairo_stroke(cr);
    };
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
    wheel(16);
    wheel(48);
    strokeLine(cr, {{16, 46}, {24, 32}, {42, 32}, {48, 46}}, false, 3.6, rgb(0xb83a2a));
    strokeLine(cr, {{25, 26}, {35, 35}, {30, 48}}, false, 6.4, SKIN);
    strokeLine(cr, {{25, 26}, {33, 33}}, false, 7.4, DARK);
    strokeLine(cr, {{24, 24}, {41, 17}}, false, 11, jersey);
    strokeLine(cr, {{41, 19}, {47, 31}}, false, 5, jersey);
    fillEllipse(cr, {50, 12}, 7.4, 7.0, SKIN);
    fillShape(cr, {{41, 12}, {43, 6}, {50, 3}, {57, 6}, {59, 11}}, DARK);
}

void drawIcon(cairo_t* cr, bool small)
{
    cairo_set_line_join(cr, CAIRO_LINE_JOIN_ROUND);
    drawGround(cr, small ? 0 : 2, small ? 52 : 47);
    small ? drawSmallRider(cr) : drawLargeRider(cr);
}

cairo_surface_t* paint(int size)
{
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size, size);
    cairo_t* cr = cairo_create(surface);
    cairo_scale(cr, size / UNITS, size / UNITS);
    drawIcon(cr, size <= SMALL);
    cairo_destroy(cr);
    cairo_surface_flush(surface);
    return surface;
}

bool writePng(const std::string& file, int size)
{
    cairo_surface_t* surface = paint(size);
    const cairo_status_t status = cairo_surface_write_to_png(surface, file.c_str());
    cairo_surface_destroy(surface);
    return status == CAIRO_STATUS_SUCCESS;
}

bool writeSvg(const std::string& file)
{
    cairo_surface_t* surface = cairo_svg_surface_create(file.c_str(), UNITS, UNITS);
    cairo_svg_surface_set_document_unit(surface, CAIRO_SVG_UNIT_PX);
    cairo_t* cr = cairo_create(surface);
    drawIcon(cr, false);
    cairo_destroy(cr);
    cairo_surface_finish(surface);
    const cairo_status_t status = cairo_surface_status(surface);
    cairo_surface_destroy(surface);
    return status == CAIRO_STATUS_SUCCESS;
}

void putWord(std::string& bytes, std::uint32_t word)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<char>(word >> shift & 255U));
}

// Cairo's pixels carry their colour already multiplied with the alpha; a window's do not.
std::uint32_t undoAlpha(std::uint32_t pixel)
{
    const std::uint32_t alpha = pixel >> 24;
    if (alpha == 0)
        return 0;
    std::uint32_t plain = alpha << 24;
    for (unsigned shift = 0; shift < 24; shift += 8)
        plain |= (pixel >> shift & 255U) * 255 / alpha << shift;
    return plain;
}

// Words of four bytes, the highest first: for each size its width, its height and its pixels row by
// row as alpha, red, green, blue. That is what window managers read.
bool writeWindowIcon(const std::string& file)
{
    std::string bytes;
    for (const int size : WINDOW_SIZES) {
        cairo_surface_t* surface = paint(size);
        const auto* pixels =
            reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(surface));
        putWord(bytes, static_cast<std::uint32_t>(size));
        putWord(bytes, static_cast<std::uint32_t>(size));
        for (int i = 0; i < size * size; ++i)
            putWord(bytes, undoAlpha(pixels[i]));
        cairo_surface_destroy(surface);
    }
    std::FILE* out = std::fopen(file.c_str(), "wb");
    if (!out)
        return false;
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), out) == bytes.size();
    return std::fclose(out) == 0 && written;
}

} // namespace

bool paintIcons(const std::string& folder)
{
    bool written = writeSvg(folder + "gravelon.svg");
    for (const int size : FILE_SIZES)
        written = writePng(folder + "gravelon-" + std::to_string(size) + ".png", size) && written;
    return writeWindowIcon(folder + "window_icon.argb") && written;
}
