#pragma once

#include <cairo.h>

#include <cstdint>
#include <vector>

// What every file of the painter draws with: points, colours, chance that is the same on every run,
// and a surface that is larger than the picture and scaled down at the end.

struct Spot {
    double x = 0;
    double y = 0;
};

constexpr Spot operator+(Spot a, Spot b)
{
    return {a.x + b.x, a.y + b.y};
}
constexpr Spot operator-(Spot a, Spot b)
{
    return {a.x - b.x, a.y - b.y};
}
constexpr Spot operator*(Spot a, double k)
{
    return {a.x * k, a.y * k};
}
constexpr Spot blend(Spot a, Spot b, double t)
{
    return a + (b - a) * t;
}
double lengthOf(Spot a);
Spot unitOf(Spot a); // (1, 0) for a zero vector

using Outline = std::vector<Spot>;

// Colour parts run from 0 to 1.
struct Colour {
    double r = 0;
    double g = 0;
    double b = 0;
};

constexpr Colour blend(Colour a, Colour b, double t)
{
    return {a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t};
}

// 0xRRGGBB
constexpr Colour rgb(unsigned hex)
{
    return {static_cast<double>(hex >> 16 & 255U) / 255.0,
            static_cast<double>(hex >> 8 & 255U) / 255.0, static_cast<double>(hex & 255U) / 255.0};
}

// 0 to 1, fixed by three whole numbers.
double chance(int a, int b, int seed);

// Smooth chance over the plane: 0 to 1, one swell about every `size` units.
double swell(double x, double y, double size, int seed);

struct Canvas {
    cairo_surface_t* surface = nullptr;
    cairo_t* cr = nullptr;
    int scale = 1; // surface pixels to a pixel of the picture
};

// A canvas for a picture of width x height pixels that covers unitsX x unitsY units of drawing.
Canvas openCanvas(int width, int height, int scale, double unitsX, double unitsY);
void closeCanvas(Canvas& canvas);

// The picture: three bytes a pixel, each the mean of its scale x scale surface pixels.
std::vector<std::uint8_t> shrink(const Canvas& canvas);

// Short forms of what is drawn over and over.
void setColour(cairo_t* cr, Colour colour, double alpha = 1.0);
void tracePath(cairo_t* cr, const Outline& points, bool closed);
void fillShape(cairo_t* cr, const Outline& points, Colour colour, double alpha = 1.0);
void strokeLine(cairo_t* cr, const Outline& points, bool closed, double width, Colour colour,
                double alpha = 1.0);
void traceEllipse(cairo_t* cr, Spot centre, double radiusX, double radiusY);
void fillEllipse(cairo_t* cr, Spot centre, double radiusX, double radiusY, Colour colour,
                 double alpha = 1.0);
void traceRoundedBox(cairo_t* cr, double x, double y, double width, double height, double radius);
