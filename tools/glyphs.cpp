#include "glyphs.h"

#include <charconv>

namespace
{

// Drawn in a box 6 high. M moves, L draws a line, C a curve.
struct Glyph {
    char letter;
    double width;
    std::string_view path;
};

// clang-format off
constexpr Glyph GLYPHS[] = {
    {'0', 4.0, "M2 0 C3.3 0 4 1.2 4 3 C4 4.8 3.3 6 2 6 C.7 6 0 4.8 0 3 C0 1.2 .7 0 2 0"},
    {'1', 2.6, "M.5 1.4 L2.1 0 L2.1 6"},
    {'2', 4.0, "M.2 1.6 C.3 .6 1.1 0 2 0 C3.1 0 3.8 .7 3.8 1.7 C3.8 2.9 2.9 3.5 .1 6 L3.9 6"},
    {'3', 4.0, "M.2 .9 C.7 .3 1.3 0 2 0 C3.1 0 3.7 .6 3.7 1.5 C3.7 2.4 3 2.8 1.6 2.8 C3.1 2.8 3.9 3.4 3.9 4.4 C3.9 5.4 3.1 6 2 6 C1.1 6 .4 5.7 0 5"},
    {'4', 4.2, "M3 6 L3 0 L0 4.3 L4.2 4.3"},
    {'5', 4.0, "M3.6 0 L.6 0 L.4 2.7 C.9 2.3 1.5 2.2 2 2.2 C3.2 2.2 3.9 3 3.9 4.1 C3.9 5.3 3.1 6 1.9 6 C1.1 6 .5 5.7 .1 5.2"},
    {'6', 4.0, "M3.5 .6 C3 .2 2.6 0 2.1 0 C.7 0 .1 1.6 .1 3.6 C.1 5.2 .8 6 2 6 C3.2 6 3.9 5.2 3.9 4.1 C3.9 3 3.2 2.3 2.1 2.3 C1.2 2.3 .4 2.9 .1 3.7"},
    {'7', 4.0, "M.1 0 L3.9 0 L1.5 6"},
    {'8', 4.0, "M2 0 C3 0 3.6 .6 3.6 1.4 C3.6 2.2 3 2.8 2 2.8 C1 2.8 .4 2.2 .4 1.4 C.4 .6 1 0 2 0 M2 2.8 C3.2 2.8 3.9 3.5 3.9 4.4 C3.9 5.4 3.2 6 2 6 C.8 6 .1 5.4 .1 4.4 C.1 3.5 .8 2.8 2 2.8"},
    {'9', 4.0, "M.5 5.4 C1 5.8 1.4 6 1.9 6 C3.3 6 3.9 4.4 3.9 2.4 C3.9 .8 3.2 0 2 0 C.8 0 .1 .8 .1 1.9 C.1 3 .8 3.7 1.9 3.7 C2.8 3.7 3.6 3.1 3.9 2.3"},
    {'+', 3.6, "M1.8 1.4 L1.8 5 M0 3.2 L3.6 3.2"},
    {'-', 2.2, "M0 3.2 L2.2 3.2"},
    {'=', 3.6, "M0 2.2 L3.6 2.2 M0 4 L3.6 4"},
    {'A', 4.4, "M0 6 L2.2 0 L4.4 6 M.8 4.1 L3.6 4.1"},
    {'B', 4.0, "M.2 0 L.2 6 L2.2 6 C3.4 6 3.9 5.3 3.9 4.4 C3.9 3.5 3.3 2.8 2.2 2.8 L.2 2.8 M2.2 2.8 C3.1 2.8 3.6 2.2 3.6 1.4 C3.6 .6 3.1 0 2.1 0 L.2 0"},
    {'C', 4.2, "M4.1 1.2 C3.6 .4 3 0 2.2 0 C.8 0 0 1.2 0 3 C0 4.8 .8 6 2.2 6 C3 6 3.6 5.6 4.1 4.8"},
    {'D', 4.2, "M.2 0 L.2 6 L1.8 6 C3.4 6 4.2 4.8 4.2 3 C4.2 1.2 3.4 0 1.8 0 L.2 0"},
    {'E', 3.6, "M3.6 0 L.2 0 L.2 6 L3.6 6 M.2 2.9 L3 2.9"},
    {'F', 3.6, "M3.6 0 L.2 0 L.2 6 M.2 2.9 L3 2.9"},
    {'G', 4.5, "M4.1 1.1 C3.6 .4 3 0 2.2 0 C.8 0 0 1.2 0 3 C0 4.8 .8 6 2.3 6 C3.6 6 4.4 5.2 4.4 3.4 L2.5 3.4"},
    {'r', 2.4, "M.2 2 L.2 6 M.2 3.6 C.6 2.4 1.3 1.9 2.4 2.1"},
    {'a', 3.4, "M3.2 2 L3.2 6 M3.2 4 C3.2 2.8 2.6 2 1.6 2 C.6 2 0 2.8 0 4 C0 5.2 .6 6 1.6 6 C2.6 6 3.2 5.2 3.2 4"},
    {'v', 3.4, "M0 2 L1.7 6 L3.4 2"},
    {'e', 3.4, "M.1 4 L3.3 4 C3.3 2.8 2.7 2 1.7 2 C.7 2 0 2.8 0 4 C0 5.2 .7 6 1.8 6 C2.4 6 2.9 5.7 3.2 5.2"},
    {'l', 1.0, "M.5 0 L.5 6"},
    {'o', 3.4, "M1.7 2 C2.7 2 3.4 2.8 3.4 4 C3.4 5.2 2.7 6 1.7 6 C.7 6 0 5.2 0 4 C0 2.8 .7 2 1.7 2"},
    {'n', 3.2, "M.2 2 L.2 6 M.2 3.8 C.4 2.6 1 2 1.8 2 C2.7 2 3.1 2.6 3.1 3.6 L3.1 6"},
};
// clang-format on

constexpr double GLYPH_HEIGHT = 6;
constexpr double BLANK_WIDTH = 2.5;

const Glyph* findGlyph(char letter)
{
    for (const Glyph& glyph : GLYPHS) {
        if (glyph.letter == letter)
            return &glyph;
    }
    return nullptr;
}

double takeNumber(std::string_view& path)
{
    while (!path.empty() && path.front() == ' ')
        path.remove_prefix(1);
    double value = 0;
    const auto end = std::from_chars(path.data(), path.data() + path.size(), value).ptr;
    path.remove_prefix(static_cast<std::size_t>(end - path.data()));
    return value;
}

void tracePen(cairo_t* cr, std::string_view path, Spot origin, double unitX, double unitY)
{
    const auto take = [&]() -> Spot {
        const double x = takeNumber(path);
        const double y = takeNumber(path);
        return {origin.x + x * unitX, origin.y + y * unitY};
    };
    while (!path.empty()) {
        const char command = path.front();
        path.remove_prefix(1);
        if (command == 'M' || command == 'L') {
            const Spot to = take();
            (command == 'M' ? cairo_move_to : cairo_line_to)(cr, to.x, to.y);
        } else if (command == 'C') {
            const Spot a = take();
            const Spot b = take();
            const Spot to = take();
            cairo_curve_to(cr, a.x, a.y, b.x, b.y, to.x, to.y);
        }
    }
}

void strokeWithNib(cairo_t* cr, double width, double nib)
{
    constexpr double ASLANT = -0.5; // radians
    cairo_save(cr);
    cairo_rotate(cr, ASLANT);
    cairo_scale(cr, 1, nib);
    cairo_set_line_width(cr, width);
    cairo_stroke_preserve(cr);
    cairo_restore(cr);
}

double gapOf(const Lettering& style)
{
    return style.stroke + style.height * 0.09;
}

} // namespace

double letteringWidth(std::string_view text, const Lettering& style)
{
    const double unit = style.height / GLYPH_HEIGHT * style.stretch;
    double width = 0;
    for (const char letter : text) {
        const Glyph* glyph = findGlyph(letter);
        width += (glyph == nullptr ? BLANK_WIDTH : glyph->width) * unit + gapOf(style);
    }
    return width - gapOf(style);
}

void drawLettering(cairo_t* cr, std::string_view text, Spot centre, const Lettering& style)
{
    const double unit = style.height / GLYPH_HEIGHT;
    double x = centre.x - letteringWidth(text, style) / 2;
    cairo_new_path(cr);
    for (const char letter : text) {
        const Glyph* glyph = findGlyph(letter);
        if (glyph != nullptr)
            tracePen(cr, glyph->path, {x, centre.y - style.height / 2}, unit * style.stretch, unit);
        x += (glyph == nullptr ? BLANK_WIDTH : glyph->width) * unit * style.stretch + gapOf(style);
    }
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
    if (style.halo > 0) {
        setColour(cr, style.haloInk);
        strokeWithNib(cr, style.stroke + 2 * style.halo, style.nib);
    }
    setColour(cr, style.ink);
    strokeWithNib(cr, style.stroke, style.nib);
    cairo_new_path(cr);
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_BUTT);
}
