#include "riders.h"

#include "board/pictures.h"

#include <algorithm>
#include <array>

namespace
{

constexpr Colour OUTLINE = rgb(0x16130f);
constexpr Colour SKIN = rgb(0xd99a6c);
constexpr Colour SKIN_SHADE = rgb(0xa86d47);
constexpr Colour TYRE = rgb(0x2b2926);
constexpr Colour RIM = rgb(0xb9bcc0);
constexpr Colour SOCK = rgb(0xf0f0ea);
constexpr Colour SHOE = rgb(0x3a3a40);

constexpr double RIM_WIDTH = 2.5;

// clang-format off
//   jersey         trim           shorts         sleeve         frame          pattern
constexpr std::array<Kit, RIDER_PICTURE_COUNT> KITS = {{
    {rgb(0x1fa83c), rgb(0xf6f8f2), rgb(0xf6f8f2), rgb(0x1fa83c), rgb(0xd7dad6), Pattern::PLAIN},
    {rgb(0xd9232b), rgb(0xfaf6f0), rgb(0x2a1214), rgb(0xd9232b), rgb(0xd8d2ca), Pattern::HOOPS},
    {rgb(0x2a2b30), rgb(0xf6f6f4), rgb(0x1c1d21), rgb(0xf6f6f4), rgb(0xe4e4e0), Pattern::HALVES},
    {rgb(0xf4f6fb), rgb(0x2454d6), rgb(0xf8fafd), rgb(0x2454d6), rgb(0x4f74d8), Pattern::DOTS},
    {rgb(0xf4b73c), rgb(0xfff3d8), rgb(0x2a2014), rgb(0xf4b73c), rgb(0xb83a2a), Pattern::PLAIN},
}};
// clang-format on

constexpr Spot REAR{22.5, 58};
constexpr Spot FRONT{71, 58};
constexpr double WHEEL = 16.4;
constexpr Spot CRANK{43.5, 60};
constexpr Spot SADDLE{34.5, 36.5};
constexpr Spot HEAD_TUBE{63, 39};
constexpr Spot HAND{71.5, 40};
constexpr Spot HIP{36, 31.5};
constexpr Spot SHOULDER{58.5, 20.5};
constexpr Spot ELBOW{62.5, 34};
constexpr Spot HEAD{68, 12.5};

void limb(cairo_t* cr, const Outline& line, double width, Colour colour)
{
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
    strokeLine(cr, line, false, width, colour);
}

// Every part is drawn twice: first all of them wider and dark, as the outline of the figure.
struct Pen {
    cairo_t* cr;
    bool rim;

    void line(const Outline& points, double width, Colour colour) const
    {
        limb(cr, points, width + (rim ? RIM_WIDTH : 0), rim ? OUTLINE : colour);
    }
    void ring(Spot centre, double radius, double width, Colour colour) const
    {
        traceEllipse(cr, centre, radius, radius);
        setColour(cr, rim ? OUTLINE : colour);
        cairo_set_line_width(cr, width + (rim ? 1.6 : 0));
        cairo_stroke(cr);
    }
    void shape(const Outline& points, Colour colour) const
    {
        if (rim)
            strokeLine(cr, points, true, RIM_WIDTH, OUTLINE);
        fillShape(cr, points, rim ? OUTLINE : colour);
    }
};

void drawWheel(const Pen& pen, Spot hub)
{
    pen.ring(hub, WHEEL, 3.2, TYRE);
    if (!pen.rim)
        pen.ring(hub, WHEEL - 2.2, 1.5, RIM);
    pen.line({hub + Spot{-0.1, 0}, hub + Spot{0.1, 0}}, 3.6, RIM);
}

void drawFrame(const Pen& pen, Colour colour)
{
    const Spot seat{36.8, 43};
    pen.line({REAR, CRANK, HEAD_TUBE + Spot{0.6, 3}}, 2.6, colour);
    pen.line({REAR, seat, HEAD_TUBE}, 2.4, colour);
    pen.line({SADDLE, CRANK}, 2.6, colour);
    pen.line({HEAD_TUBE, HEAD_TUBE + Spot{1.4, 5}, FRONT}, 2.6, colour);
    pen.line({SADDLE + Spot{-5, -0.5}, SADDLE + Spot{5, 0}}, 3, TYRE);
    pen.line({HEAD_TUBE, HEAD_TUBE + Spot{6, -1}, HAND + Spot{2.4, 1.6}, HAND + Spot{0, 5}}, 2.4,
             TYRE);
}

void drawLeg(const Pen& pen, Spot knee, Spot foot, bool near, const Kit& kit)
{
    const Colour skin = near ? SKIN : SKIN_SHADE;
    const Colour shorts = near ? kit.shorts : blend(kit.shorts, OUTLINE, 0.35);
    const Spot ankle = foot + Spot{-2.2, -2.6};
    pen.line({knee, ankle}, 5.2, skin);
    pen.line({blend(knee, ankle, 0.72), ankle}, 4.6, SOCK);
    pen.line({ankle + Spot{-0.5, 1.8}, foot + Spot{4.2, 1.2}}, 3.6, SHOE);
    pen.line({HIP + Spot{1, 1.5}, blend(HIP, knee, 0.96)}, 7.2, skin);
    pen.line({HIP + Spot{1, 1.5}, blend(HIP, knee, 0.66)}, 8.6, shorts);
}

// Bold enough to be seen on a rider who is 35 pixels high on the screen.
void drawPattern(cairo_t* cr, const Kit& kit)
{
    switch (kit.pattern) {
    case Pattern::PLAIN:
        return;
    case Pattern::HOOPS: // round the chest, so they stand across the slope of the back
        for (const double x : {37.5, 50.0})
            strokeLine(cr, {{x - 3.6, 10}, {x + 6, 42}}, false, 6, kit.trim);
        return;
    case Pattern::HALVES:
        fillShape(cr, {{44, 10}, {70, 10}, {70, 42}, {51, 42}}, kit.trim);
        return;
    case Pattern::DOTS:
        for (const Spot& dot : {Spot{36, 31}, Spot{44.6, 22.4}, Spot{54.6, 21.6}})
            fillEllipse(cr, dot, 4.4, 4.4, kit.trim);
        return;
    }
}

void drawBody(const Pen& pen, const Kit& kit)
{
    const Outline torso{{30.5, 32}, {33, 25.5}, {41, 19.5}, {51, 15.8}, {58, 15.6}, {62.6, 18.6},
                        {62, 24},   {54, 27.4}, {46, 31},   {41, 36.5}, {35, 37}};
    pen.shape(torso, kit.jersey);
    if (pen.rim)
        return;
    cairo_save(pen.cr);
    tracePath(pen.cr, torso, true);
    cairo_clip(pen.cr);
    fillShape(pen.cr,
              {{33, 25.5}, {41, 19.5}, {51, 15.8}, {58, 15.6}, {52, 18.4}, {42, 23}, {35, 29}},
              blend(kit.jersey, {1, 1, 1}, 0.28));
    drawPattern(pen.cr, kit);
    cairo_restore(pen.cr);
}

void drawArm(const Pen& pen, const Kit& kit)
{
    pen.line({ELBOW, HAND + Spot{-0.6, 0}}, 4.4, SKIN);
    pen.line({HAND + Spot{-1.4, 0}, HAND + Spot{0.6, 0.6}}, 4.4, TYRE);
    pen.line({SHOULDER, blend(SHOULDER, ELBOW, 0.9)}, 6.4, kit.sleeve);
}

void drawHead(const Pen& pen, const Kit& kit)
{
    pen.line({SHOULDER + Spot{2, -2.5}, HEAD + Spot{-2.5, 3}}, 5, SKIN_SHADE);
    pen.line({HEAD + Spot{0.4, 1.4}, HEAD + Spot{1.4, 2.6}}, 9.4, SKIN);
    const Outline helmet{HEAD + Spot{-9.5, 1.5}, HEAD + Spot{-6.5, -4.2}, HEAD + Spot{-0.5, -7},
                         HEAD + Spot{5, -4.8},   HEAD + Spot{7.4, -0.4},  HEAD + Spot{0.5, 0.2},
                         HEAD + Spot{-3.4, 2}};
    pen.shape(helmet, kit.jersey);
    if (!pen.rim) {
        fillShape(pen.cr,
                  {helmet[1], helmet[2], helmet[3], HEAD + Spot{4, -3}, HEAD + Spot{-5.6, -1.6}},
                  kit.trim);
        limb(pen.cr, {HEAD + Spot{2.4, 1.8}, HEAD + Spot{6, 1.4}}, 2, OUTLINE);
    }
}

} // namespace

const Kit& kitOf(int picture)
{
    return KITS[static_cast<std::size_t>(picture)];
}

void drawCyclist(cairo_t* cr, const Kit& kit)
{
    cairo_save(cr);
    cairo_set_line_join(cr, CAIRO_LINE_JOIN_ROUND);
    const auto twice = [&](auto draw) {
        draw(Pen{cr, true});
        draw(Pen{cr, false});
    };
    twice([&](const Pen& pen) { drawLeg(pen, {50, 36.5}, {50.2, 53}, false, kit); });
    twice([&](const Pen& pen) {
        drawWheel(pen, REAR);
        drawWheel(pen, FRONT);
        drawFrame(pen, kit.frame);
    });
    twice([&](const Pen& pen) { drawLeg(pen, {50.5, 46.5}, {41.5, 69}, true, kit); });
    twice([&](const Pen& pen) { drawBody(pen, kit); });
    twice([&](const Pen& pen) { drawHead(pen, kit); });
    twice([&](const Pen& pen) { drawArm(pen, kit); });
    cairo_restore(cr);
}

// A pixel counts as figure if the figure covers most of it. What is left of the ground in it
// becomes outline, so that no pixel is a mixture with the key colour.
static void addPixel(std::vector<std::uint8_t>& bytes, double r, double g, double b, double cover)
{
    if (cover < 0.5) {
        bytes.insert(bytes.end(), {255, 255, 0});
        return;
    }
    const Colour mixed = blend(OUTLINE, {r / cover, g / cover, b / cover}, cover);
    for (const double part : {mixed.r, mixed.g, mixed.b})
        bytes.push_back(static_cast<std::uint8_t>(std::clamp(part, 0.0, 1.0) * 255 + 0.5));
}

std::vector<std::uint8_t> paintRider(int picture)
{
    constexpr int FINE = 8;
    constexpr int SIZE = RIDER_PICTURE_SIZE * FINE;
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, SIZE, SIZE);
    cairo_t* cr = cairo_create(surface);
    cairo_scale(cr, SIZE / CYCLIST_WIDTH, SIZE / CYCLIST_HEIGHT);
    drawCyclist(cr, kitOf(picture));
    cairo_surface_flush(surface);
    const auto* pixels =
        reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(surface));
    std::vector<std::uint8_t> bytes;
    for (int i = 0; i < RIDER_PICTURE_SIZE * RIDER_PICTURE_SIZE; ++i) {
        double sum[4] = {};
        for (int k = 0; k < FINE * FINE; ++k) {
            const int y = i / RIDER_PICTURE_SIZE * FINE + k / FINE;
            const int x = i % RIDER_PICTURE_SIZE * FINE + k % FINE;
            for (unsigned part = 0; part < 4; ++part)
                sum[part] += static_cast<double>(pixels[y * SIZE + x] >> (24 - 8 * part) & 255U);
        }
        constexpr double ALL = 255.0 * FINE * FINE;
        addPixel(bytes, sum[1] / ALL, sum[2] / ALL, sum[3] / ALL, sum[0] / ALL);
    }
    cairo_destroy(cr);
    cairo_surface_destroy(surface);
    return bytes;
}
