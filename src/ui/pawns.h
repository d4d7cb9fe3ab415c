#pragma once

#include "ui/models.h"

constexpr float SMALL_PAWN = 0.7f;

// A flat pawn with its number, its centre at (x, y) in pixels. scale is 1 or SMALL_PAWN.
void drawPawnAt(int rider, float x, float y, float scale = 1.0f);
