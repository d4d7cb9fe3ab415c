#pragma once

#include "app/table.h"

// The two layers of a frame. The board layer has a viewport of its own and coordinates of the board
// picture; the screen layer is everything else, in pixels of the drawing area.

using Matrix = Table<double, 16>;

constexpr int CAMERA_SLOT_COUNT = 11;

struct Matrices {
    // 0 the screen layer, 1 and 2 the flat views, 3 to 10 the cameras of the perspective view.
    Table<Matrix, CAMERA_SLOT_COUNT> projectionMatrices{};
    Table<Matrix, 2> modelviewMatrices{}; // 0 the identity, 1 y turned round for the cameras
};

extern Matrices matrices;

// Fills all of them from the layout of the moment. Needs a GL context.
void computeMatrices();

// Make a layer current: viewport, matrices and depth test, whatever was drawn before. The matrix
// mode is left on the model view.
void useBoardLayer();
void useScreenLayer();
