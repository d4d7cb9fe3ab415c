#define GL_GLEXT_PROTOTYPES
#include "screen/support/gl_window.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/view.h"
#include "board/designer.h"
#include "support/races.h"
#include "ui/frame.h"
#include "ui/layout.h"
#include "ui/loading.h"
#include "ui/manual_pages.h"
#include "ui/matrices.h"
#include "ui/race_list.h"
#include "ui/reshape.h"
#include "ui/settings_screen.h"
#include "ui/team_setup.h"
#include "ui/texts.h"
#include "ui/textures.h"

#include <GL/freeglut.h>
#include <GL/glext.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

static unsigned frameBuffer = 0;
static unsigned colourBuffer = 0;
static unsigned depthBuffer = 0;

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    glutInit(&argc, argv);
    glutInitDisplayMode(GLUT_DOUBLE | GLUT_DEPTH);
    glutInitWindowSize(64, 64);
    glutCreateWindow("Gravelon tests");
    glutDisplayFunc(drawFrame);
    glGenFramebuffers(1, &frameBuffer);
    glGenRenderbuffers(1, &colourBuffer);
    glGenRenderbuffers(1, &depthBuffer);
    const std::filesystem::path here = std::filesystem::current_path();
    std::filesystem::current_path(SOURCE_DIR "/data");
    if (!loadTextures())
        std::exit(1);
    std::filesystem::current_path(here);
    return RUN_ALL_TESTS();
}

void resizeScreen(int width, int height)
{
    glBindRenderbuffer(GL_RENDERBUFFER, colourBuffer);
    glRenderbufferStorage(GL_RENDERBUFFER, GL_RGBA8, width, height);
    glBindRenderbuffer(GL_RENDERBUFFER, depthBuffer);
    glRenderbufferStorage(GL_RENDERBUFFER, GL_DEPTH_COMPONENT24, width, height);
    glBindFramebuffer(GL_FRAMEBUFFER, frameBuffer);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, colourBuffer);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, depthBuffer);
    if (glCheckFramebufferStatus(GL_FRAMEBUFFER) != GL_FRAMEBUFFER_COMPLETE) {
        std::fputs("This OpenGL can't paint into memory.\n", stderr);
        std::exit(1);
    }
    onReshape(width, height);
}

void forgetEverything()
{
    forgetGame();
    settingsScreen = {};
    ratioChosenByProgram = false;
    teamSetup = {};
    raceList = {};
    courseScreens = {};
    manualPage = 0;
}

void startProgram(int width, int height)
{
    forgetEverything();
    host.redraw = drawFrame;
    windowOpen = true;
    loadTexts();
    gameState = STATE_LOADING;
    resizeScreen(width, height);
    while (gameState == STATE_LOADING)
        onIdleLoad();
}

Pixel Image::at(int x, int y) const
{
    const std::size_t i = 3 * static_cast<std::size_t>(y * width + x);
    return {bytes[i], bytes[i + 1], bytes[i + 2]};
}

Pixel Image::at(float x, float y) const
{
    return at(layout.viewX + static_cast<int>(x), layout.viewY + static_cast<int>(y));
}

Image screenshot()
{
    Image image{layout.windowW, layout.windowH, {}};
    const std::size_t row = 3 * static_cast<std::size_t>(image.width);
    image.bytes.resize(row * static_cast<std::size_t>(image.height));
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    std::uint8_t* line = image.bytes.data();
    for (int y = image.height - 1; y >= 0; --y, line += row)
        glReadPixels(0, y, image.width, 1, GL_RGB, GL_UNSIGNED_BYTE, line);
    return image;
}

static int byteOf(float part)
{
    return static_cast<int>(std::lrint(part * 255.0f));
}

Pixel pixelOf(const Colour& colour)
{
    return {byteOf(colour.red), byteOf(colour.green), byteOf(colour.blue)};
}

ScreenPoint seenAt(float boardX, float boardY)
{
    const GLint viewport[] = {
        static_cast<int>(layout.boardViewX) + layout.viewX, static_cast<int>(layout.boardViewY),
        static_cast<int>(layout.boardViewW), static_cast<int>(layout.boardViewH)};
    const Matrix& modelview = matrices.modelviewMatrices[view.viewMode == VIEW_FLAT ? 0 : 1];
    double seen[3] = {};
    gluProject(static_cast<double>(boardX), static_cast<double>(boardY), 0.0, modelview.begin(),
               matrices.projectionMatrices[view.cameraIndex].begin(), viewport, &seen[0], &seen[1],
               &seen[2]);
    return {static_cast<int>(seen[0]), layout.windowH - 1 - static_cast<int>(seen[1])};
}
