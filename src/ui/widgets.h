#pragma once

#include <string_view>

// Controls are routines: each paints itself at a place in pixels from the values given and keeps
// nothing. All of them leave the current colour changed.

struct Colour {
    float red, green, blue;
};

constexpr Colour WHITE = {1.0f, 1.0f, 1.0f};
constexpr Colour BLACK = {0.0f, 0.0f, 0.0f};
constexpr Colour YELLOW = {1.0f, 1.0f, 0.0f};
constexpr Colour FAILURE_RED = {0.6f, 0.0f, 0.0f}; // of messages about files
constexpr Colour panelBlue = {0.0f, 0.0f, 0.2f};
constexpr Colour buttonGrey = {0.7f, 0.7f, 0.7f};
constexpr Colour disabledGrey = {0.5f, 0.5f, 0.5f};
constexpr Colour dialogTitleBlue = {0.0f, 0.0f, 0.5f};
constexpr Colour dieRed = {0.6f, 0.0f, 0.0f};

// clang-format off
constexpr Colour teamColour[4] =    {{0.0f, 0.6f, 0.0f}, {0.6f, 0.0f, 0.0f}, {0.0f, 0.0f, 0.0f}, {0.0f, 0.0f, 0.6f}};
constexpr Colour teamColourDim[4] = {{0.0f, 0.3f, 0.0f}, {0.3f, 0.0f, 0.0f}, {0.5f, 0.5f, 0.5f}, {0.0f, 0.0f, 0.3f}};
// clang-format on

// Sets the current GL colour; brightness scales all three parts.
void setColour(const Colour& colour, float brightness = 1.0f);

// A rectangle in the current colour, filled or as a one-pixel line loop. Pixels, y downward.
void fillRect(float x, float y, float w, float h);
void outlineRect(float x, float y, float w, float h);

constexpr int NO_ACCESS_KEY = -1;

// accessIndex is the character of the label that is underlined, or NO_ACCESS_KEY.
void drawButton(float x, float y, float w, float h, bool enabled, std::string_view text,
                int accessIndex);
void drawCheckBox(int x, int y, int h, std::string_view text, int accessIndex, bool enabled,
                  bool checked);
void drawRadioButton(int x, int y, int radius, bool selected, bool enabled);

// cursorPos counts characters from 0 and is read only with hasCursor.
void drawTextBox(int x, int y, int w, int h, std::string_view text, bool hasCursor, int cursorPos,
                 bool enabled);
void drawGroupFrame(int x, int y, int w, int h, std::string_view title);

// A white dialog body with its title bar above it; (x, y) is the top left of the body.
void drawDialogBox(float x, float y, float w, float h);

// A filled rectangle with round corners in the current colour.
void drawRoundedBox(float x, float y, float w, float h, float radius);
