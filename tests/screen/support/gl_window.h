#pragma once

#include "ui/rect.h"
#include "ui/widgets.h"

#include <cstdint>
#include <vector>

// One small GLUT window for all tests, and behind it a screen of any size into which frames are
// painted, so that no window manager has a say in it.

// Gives the screen another size and reports it to the program, as a window would.
void resizeScreen(int width, int height);

// A program that has just started, with English texts and no race, on the main menu of a screen of
// this size. The timer is the fake host's; whatever the rules want painted is painted.
void startProgram(int width, int height);

// All of that but the screen.
void forgetEverything();

struct Pixel {
    int red, green, blue;
    friend bool operator==(const Pixel&, const Pixel&) = default;
};

// What the screen shows; row 0 is its top.
struct Image {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> bytes;

    Pixel at(int x, int y) const;
    Pixel at(float x, float y) const; // in the drawing area
    friend bool operator==(const Image&, const Image&) = default;
};

Image screenshot();

Pixel pixelOf(const Colour& colour);

// Where a point of the board is seen, in pixels of the screen.
struct ScreenPoint {
    int x, y;
};
ScreenPoint seenAt(float boardX, float boardY);
