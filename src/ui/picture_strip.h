#pragma once

#include "ui/rect.h"

// Texture coordinates of the part of a picture that is shown. Pictures are stored mirrored, so that
// s runs from right to left.
struct Crop {
    float left, right, top, bottom;
};

constexpr Crop wholePicture = {1.0f, 0.0f, 0.0f, 1.0f};

// The texture that is bound, on a rectangle.
void drawPicture(const Rect& at, const Crop& crop = wholePicture);

// The same with its own colours, whatever has been set before; filter is GL_LINEAR or GL_NEAREST.
void drawPictureOf(unsigned texture, int filter, const Rect& at, const Crop& crop = wholePicture);
