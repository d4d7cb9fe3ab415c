#include "land_map.h"

#include "board/section_shapes.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr int UNITS = 2; // board units a cell
constexpr float FAR = 1e6F;

void markKept(LandMap& map, const std::vector<Square>& squares,
              const std::vector<Outline>& reserved)
{
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_A8, map.width, map.height);
    cairo_t* cr = cairo_create(surface);
    cairo_scale(cr, 1.0 / UNITS, 1.0 / UNITS);
    for (const Square& square : squares) {
        fillShape(cr, square.outline, {}, 1);
        strokeLine(cr, square.outline, true, 3, {});
    }
    for (const Outline& outline : reserved)
        fillShape(cr, outline, {}, 1);
    cairo_surface_flush(surface);
    const unsigned char* cells = cairo_image_surface_get_data(surface);
    const int stride = cairo_image_surface_get_stride(surface);
    for (int y = 0; y < map.height; ++y) {
        for (int x = 0; x < map.width; ++x)
            map.distance.push_back(cells[y * stride + x] > 127 ? 0.0F : FAR);
    }
    cairo_destroy(cr);
    cairo_surface_destroy(surface);
}

// One pass of the distance transform; step 1 from the top left, -1 from the bottom right.
void spread(LandMap& map, int step, float side)
{
    const float diagonal = 1.4142F * side;
    const auto cell = [&](int x, int y) -> float& {
        return map.distance[static_cast<std::size_t>(y * map.width + x)];
    };
    const auto inside = [&](int x, int y) {
        return x >= 0 && x < map.width && y >= 0 && y < map.height;
    };
    for (int j = 0; j < map.height; ++j) {
        for (int i = 0; i < map.width; ++i) {
            const int x = step > 0 ? i : map.width - 1 - i;
            const int y = step > 0 ? j : map.height - 1 - j;
            const auto take = [&](int dx, int dy, float cost) {
                if (inside(x + dx, y + dy))
                    cell(x, y) = std::min(cell(x, y), cell(x + dx, y + dy) + cost);
            };
            take(-step, 0, side);
            take(0, -step, side);
            take(-step, -step, diagonal);
            take(step, -step, diagonal);
        }
    }
}

} // namespace

LandMap mapLand(const std::vector<Square>& squares, const std::vector<Outline>& reserved)
{
    LandMap map;
    map.width = static_cast<int>(BOARD_WIDTH) / UNITS;
    map.height = static_cast<int>(BOARD_HEIGHT) / UNITS;
    map.distance.reserve(static_cast<std::size_t>(map.width * map.height));
    markKept(map, squares, reserved);
    spreadDistances(map, UNITS);
    return map;
}

void spreadDistances(LandMap& map, int units)
{
    spread(map, 1, static_cast<float>(units));
    spread(map, -1, static_cast<float>(units));
}

double clearance(const LandMap& map, Spot at)
{
    const int x = std::clamp(static_cast<int>(at.x) / UNITS, 0, map.width - 1);
    const int y = std::clamp(static_cast<int>(at.y) / UNITS, 0, map.height - 1);
    return static_cast<double>(map.distance[static_cast<std::size_t>(y * map.width + x)]);
}
