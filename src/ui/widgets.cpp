#include "ui/widgets.h"

#include "board/trig_tables.h"
#include "ui/layout.h"
#include "ui/text.h"

#include <GL/gl.h>

constexpr float FIXED_ADVANCE = 8.0f;  // of a character in FONT_FIXED
constexpr float UNDERLINE_DROP = 5.0f; // from the middle of a label to its underline

static Colour currentColour = WHITE;

void setColour(const Colour& colour, float brightness)
{
    currentColour = {colour.red * brightness, colour.green * brightness, colour.blue * brightness};
    glColor3f(currentColour.red, currentColour.green, currentColour.blue);
}

// Mesa puts shapes of one colour into a batch without it and shapes of several into one with it,
// and compiles a program for either, which takes longer than all of the drawing. So the colour is
// told within each of the shapes that most screens are made of.
static void beginShape(GLenum mode)
{
    glBegin(mode);
    glColor3f(currentColour.red, currentColour.green, currentColour.blue);
}

static void addCorners(float x, float y, float w, float h)
{
    glVertex2f(x, y);
    glVertex2f(x, y + h);
    glVertex2f(x + w, y + h);
    glVertex2f(x + w, y);
}

void fillRect(float x, float y, float w, float h)
{
    beginShape(GL_QUADS);
    addCorners(x, y, w, h);
    glEnd();
}

void outlineRect(float x, float y, float w, float h)
{
    beginShape(GL_LINE_LOOP);
    addCorners(x, y, w, h);
    glEnd();
}

// Underlines the character of the label that is the control's key. x is the label's left end, y its
// middle. A label too short for its key has no underline.
static void drawAccessLine(float x, float y, std::string_view text, int accessIndex)
{
    if (accessIndex < 0 || accessIndex >= static_cast<int>(text.size()))
        return;
    const std::size_t index = static_cast<std::size_t>(accessIndex);
    const float before = static_cast<float>(textWidth(text.substr(0, index), FONT_BODY));
    const float width = static_cast<float>(textWidth(text.substr(index, 1), FONT_BODY));

    beginShape(GL_LINES);
    glVertex2f(x + before, y + UNDERLINE_DROP);
    glVertex2f(x + before + width - 1.0f, y + UNDERLINE_DROP);
    glEnd();
}

void drawButton(float x, float y, float w, float h, bool enabled, std::string_view text,
                int accessIndex)
{
    const float centreX = x + w * 0.5f;
    const float centreY = y + h * 0.5f;
    const float labelW = static_cast<float>(textWidth(text, FONT_BODY));

    setColour(buttonGrey);
    fillRect(x, y, w, h);
    setColour(enabled ? BLACK : disabledGrey);
    drawAccessLine(centreX + 1.0f - labelW * 0.5f, centreY, text, accessIndex);
    drawText(centreX, centreY, ALIGN_CENTRE, text);
}

// Four triangles that reach in from the edges leave a cross of what lies below them.
static void drawCross(float x, float y, float d, float h)
{
    // clang-format off
    constexpr float corners[12][2] = {
        {0.1f, 0.0f}, {0.9f, 0.0f}, {0.5f, 0.4f},   // top
        {0.0f, 0.1f}, {0.0f, 0.9f}, {0.4f, 0.5f},   // left
        {0.1f, 1.0f}, {0.9f, 1.0f}, {0.5f, 0.6f},   // bottom
        {1.0f, 0.1f}, {1.0f, 0.9f}, {0.6f, 0.5f},   // right
    };
    // clang-format on
    glBegin(GL_TRIANGLES);
    for (const auto& corner : corners)
        glVertex2f(x + corner[0] * d, y + corner[1] * h);
    glEnd();
}

void drawCheckBox(int x, int y, int h, std::string_view text, int accessIndex, bool enabled,
                  bool checked)
{
    const float left = static_cast<float>(x);
    const float top = static_cast<float>(y);
    const float height = static_cast<float>(h);
    const float d = aspectFix() * height;
    const Colour& paper = enabled ? WHITE : disabledGrey;

    setColour(checked ? BLACK : paper);
    fillRect(left, top, d, height);
    setColour(paper);
    if (checked)
        drawCross(left, top, d, height);

    const float labelX = left + 1.15f * d;
    const float labelY = top + 0.55f * height;
    drawText(labelX, labelY, ALIGN_LEFT, text);
    drawAccessLine(labelX, labelY, text, accessIndex);
}

static void fillOctagon(float x, float y, float radiusX, float radiusY)
{
    glBegin(GL_TRIANGLE_FAN);
    glVertex2f(x, y);
    for (int degree = 0; degree <= 360; degree += 45)
        glVertex2f(x + cosTable[degree] * radiusX, y + sinTable[degree] * radiusY);
    glEnd();
}

void drawRadioButton(int x, int y, int radius, bool selected, bool enabled)
{
    const float centreX = static_cast<float>(x);
    const float centreY = static_cast<float>(y);
    const float radiusY = static_cast<float>(radius);
    const float radiusX = aspectFix() * radiusY;

    setColour(enabled ? WHITE : disabledGrey);
    fillOctagon(centreX, centreY, radiusX, radiusY);
    if (!selected)
        return;
    setColour(BLACK);
    fillOctagon(centreX, centreY, radiusX * 0.5f, radiusY * 0.5f);
}

void drawTextBox(int x, int y, int w, int h, std::string_view text, bool hasCursor, int cursorPos,
                 bool enabled)
{
    const float left = static_cast<float>(x);
    const float top = static_cast<float>(y);
    const float height = static_cast<float>(h);
    const float middle = top + height * 0.5f;

    setColour(enabled ? WHITE : disabledGrey);
    fillRect(left, top, static_cast<float>(w), height);
    setColour(BLACK);
    drawText(left + 1.0f, middle, ALIGN_LEFT, text, FONT_FIXED);
    if (hasCursor)
        drawText(left + 1.0f + static_cast<float>(cursorPos) * FIXED_ADVANCE, middle, ALIGN_LEFT,
                 "_", FONT_FIXED);
}

void drawGroupFrame(int x, int y, int w, int h, std::string_view title)
{
    const float left = static_cast<float>(x);
    const float top = static_cast<float>(y);
    const float right = left + static_cast<float>(w);
    const float bottom = top + static_cast<float>(h);
    const float titleX = left + layout.frameTitleInset;

    glBegin(GL_LINE_STRIP);
    glVertex2f(titleX, top);
    glVertex2f(left, top);
    glVertex2f(left, bottom);
    glVertex2f(right, bottom);
    glVertex2f(right, top);
    glVertex2f(titleX + static_cast<float>(textWidth(title, FONT_BODY)), top);
    glEnd();
    drawText(titleX, top, ALIGN_LEFT, title);
}

void drawDialogBox(float x, float y, float w, float h)
{
    setColour(dialogTitleBlue);
    fillRect(x, y - layout.titleBarH, w, layout.titleBarH);
    setColour(WHITE);
    fillRect(x, y, w, h);
}

static float wholePixel(float x)
{
    return static_cast<float>(static_cast<int>(x));
}

// Corner 0 is the lower right, then clockwise on the screen. Degrees run clockwise as well, since y
// points down.
static void drawRoundCorner(float x, float y, float radius, int corner)
{
    glBegin(GL_TRIANGLE_FAN);
    glVertex2f(x, y);
    for (int k = 4 * corner; k <= 4 * corner + 4; ++k) {
        const int degree = k * 360 / 16;
        glVertex2f(x + cosTable[degree] * radius, y + sinTable[degree] * radius);
    }
    glEnd();
}

// Corners stand on whole pixels, or the four of them would look unlike. The rectangles begin where
// the left and upper ones stand, so that no gap is left between them.
void drawRoundedBox(float x, float y, float w, float h, float radius)
{
    const float left = wholePixel(x + radius);
    const float top = wholePixel(y + radius);
    const float right = wholePixel(x + radius + wholePixel(w - 2.0f * radius));
    const float bottom = wholePixel(y + radius + wholePixel(h - 2.0f * radius));

    glBegin(GL_QUADS);
    addCorners(x, top, w, y + h - radius - top);
    addCorners(left, y, x + w - radius - left, h);
    glEnd();

    drawRoundCorner(right, bottom, radius, 0);
    drawRoundCorner(left, bottom, radius, 1);
    drawRoundCorner(left, top, radius, 2);
    drawRoundCorner(right, top, radius, 3);
}
