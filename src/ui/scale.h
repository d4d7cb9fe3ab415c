#pragma once

// Logical pixels: layout, widths of texts and the mouse speak of them, and the window has scale()
// device pixels to each, both ways. On a monitor of twice the density everything is laid out as on
// a smaller one and drawn twice as finely. This is the one place that knows.

// What the desktop says, 1 to 4; 0 where it says nothing. To be set before the first reshape.
extern int desktopScale;

// The scale of a desktop with so many dots to an inch, 96 being 1; 0 for 0.
int scaleOfDensity(double dotsPerInch);

// Takes the window's size in device pixels. Without a word of the desktop the scale is the largest
// with which the window has 1280 by 800 logical pixels, and 1 below 2560 by 1600.
void takeWindowSize(int deviceW, int deviceH);

int scale();

// The window in logical pixels. What is left over of a size that the scale doesn't divide stays
// black, at the right and at the bottom.
int logicalWindowW();
int logicalWindowH();

// Whether the window covers so many device pixels.
bool windowCovers(int deviceW, int deviceH);

int toLogical(int device);

// glViewport, glLineWidth and glPointSize for logical pixels; y counts from the window's bottom.
void setViewport(float x, float y, float w, float h);
void setLineWidth(float w);
