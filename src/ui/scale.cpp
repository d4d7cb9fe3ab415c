#include "ui/scale.h"

#include <GL/gl.h>

#include <algorithm>
#include <cmath>

static constexpr int SCALE_MAX = 4;

int desktopScale = 0;

static int present = 1;
static int windowW = 0; // device pixels
static int windowH = 0;

int scaleOfDensity(double dotsPerInch)
{
    constexpr double usual = 96.0;
    if (!(dotsPerInch > 0.0))
        return 0;
    return static_cast<int>(std::clamp(std::round(dotsPerInch / usual), 1.0, double{SCALE_MAX}));
}

static int scaleForSize()
{
    constexpr int roomW = 1280;
    constexpr int roomH = 800;
    return std::clamp(std::min(windowW / roomW, windowH / roomH), 1, SCALE_MAX);
}

void takeWindowSize(int deviceW, int deviceH)
{
    windowW = deviceW;
    windowH = deviceH;
    present = desktopScale > 0 ? desktopScale : scaleForSize();
}

int scale()
{
    return present;
}

int logicalWindowW()
{
    return windowW / present;
}

int logicalWindowH()
{
    return windowH / present;
}

bool windowCovers(int deviceW, int deviceH)
{
    return windowW >= deviceW && windowH >= deviceH;
}

int toLogical(int device)
{
    return device >= 0 ? device / present : -((present - 1 - device) / present);
}

static int deviceLength(float logical)
{
    return static_cast<int>(logical * static_cast<float>(present));
}

void setViewport(float x, float y, float w, float h)
{
    const int below = windowH - logicalWindowH() * present;
    glViewport(deviceLength(x), below + deviceLength(y), deviceLength(w), deviceLength(h));
}

void setLineWidth(float w)
{
    glLineWidth(w * static_cast<float>(present));
    glPointSize(w * static_cast<float>(present));
}
