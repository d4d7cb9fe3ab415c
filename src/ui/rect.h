#pragma once

// A rectangle in pixels of the drawing area, y downward. All four edges belong to it.
struct Rect {
    float x = 0.0f;
    float y = 0.0f;
    float w = 0.0f;
    float h = 0.0f;

    constexpr bool contains(float px, float py) const
    {
        return px >= x && px <= x + w && py >= y && py <= y + h;
    }

    constexpr bool contains(int px, int py) const
    {
        return contains(static_cast<float>(px), static_cast<float>(py));
    }
};
