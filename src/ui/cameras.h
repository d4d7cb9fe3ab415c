#pragma once

#include "app/table.h"

// The eight cameras of the perspective view stand round the board, each looking at its centre.

constexpr int FIRST_PERSPECTIVE_CAMERA = 3;
constexpr int PERSPECTIVE_CAMERA_COUNT = 8;

struct Eye {
    double x, y, z;
};

// In the coordinates of the perspective view, where the board lies at negative y: a rider at board
// point (x, y) stands at (x, -y). Entry i belongs to camera FIRST_PERSPECTIVE_CAMERA + i.
// clang-format off
constexpr Table<Eye, PERSPECTIVE_CAMERA_COUNT> cameraEyes = {{
    //     x        y       z
    {  977.0, -1152.0, 1400.0},
    { 2247.1, -1324.8, 1400.0},
    { 2344.8,  -576.0, 1400.0},
    { 2247.1,   172.8, 1400.0},
    {  977.0,   230.4, 1400.0},
    { -293.1,   172.8, 1400.0},
    { -390.8,  -576.0, 1400.0},
    { -293.1, -1324.8, 1400.0},
}};
// clang-format on

constexpr Eye cameraTarget = {977.0, -576.0, 0.0};
