#define GL_GLEXT_PROTOTYPES
#include "screen/support/gl_window.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/settings.h"
#include "app/view.h"
#include "board/course.h"
#include "board/designer.h"
#include "board/rider_motion.h"
#include "race/event_deck.h"
#include "race/race_state.h"
#include "store/race_file.h"
#include "support/fake_host.h"
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

#include <cstdio>
#include <cstdlib>
#include <filesystem>

static unsigned frameBuffer = 0;
static unsigned colourBuffer = 0;
static unsigned depthBuffer = 0;

static void loadPictures()
{
    const std::filesystem::path here = std::filesystem::current_path();
    std::filesystem::current_path(SOURCE_DIR "/data");
    if (!loadTextures())
        std::exit(1);
    std::filesystem::current_path(here);
}

static void openTestWindow(int* argc, char** argv)
{
    glutInit(argc, argv);
    glutInitDisplayMode(GLUT_DOUBLE | GLUT_DEPTH);
    glutInitWindowSize(64, 64);
    glutCreateWindow("Gravelon tests");
    glutDisplayFunc(drawFrame);
    glGenFramebuffers(1, &frameBuffer);
    glGenRenderbuffers(1, &colourBuffer);
    glGenRenderbuffers(1, &depthBuffer);
    loadPictures();
}

static void sizeBuffers(int width, int height)
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
}

void resizeScreen(int width, int height)
{
    sizeBuffers(width, height);
    onReshape(width, height);
}

void forgetEverything()
{
    installFakeHost();
    settings = {};
    settingsScreen = {};
    ratioChosenByProgram = false;
    raceSetup = {};
    teamSetup = {};
    raceList = {};
    racePreview = {};
    course = {};
    courseText.clear();
    courseScreens = {};
    race = {};
    deck = {};
    view = {};
    motion = {};
    manualPage = 0;
    returnState = STATE_TRANSIT;
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
    std::vector<std::uint8_t> upsideDown(row * static_cast<std::size_t>(image.height));
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(0, 0, image.width, image.height, GL_RGB, GL_UNSIGNED_BYTE, upsideDown.data());
    for (auto end = upsideDown.end(); end != upsideDown.begin();) {
        const auto begin = end - static_cast<std::ptrdiff_t>(row);
        image.bytes.insert(image.bytes.end(), begin, end);
        end = begin;
    }
    return image;
}

static int byteOf(float part)
{
    return static_cast<int>(part * 255.0f + 0.5f);
}

Pixel pixelOf(const Colour& colour, float brightness)
{
    return {byteOf(colour.red * brightness), byteOf(colour.green * brightness),
            byteOf(colour.blue * brightness)};
}

bool closeTo(Pixel a, Pixel b, int tolerance)
{
    return std::abs(a.red - b.red) <= tolerance && std::abs(a.green - b.green) <= tolerance &&
           std::abs(a.blue - b.blue) <= tolerance;
}

int countPixels(const Image& image, const Rect& rect, Pixel pixel)
{
    int count = 0;
    for (float y = rect.y; y < rect.y + rect.h; y += 1.0f)
        for (float x = rect.x; x < rect.x + rect.w; x += 1.0f)
            count += closeTo(image.at(x, y), pixel, 1) ? 1 : 0;
    return count;
}

ScreenPoint seenAt(float boardX, float boardY)
{
    const GLint viewport[] = {
        static_cast<int>(layout.boardViewX) + layout.viewX, static_cast<int>(layout.boardViewY),
        static_cast<int>(layout.boardViewW), static_cast<int>(layout.boardViewH)};
    const Matrix& modelview = matrices.modelviewMatrices[view.viewMode == VIEW_FLAT ? 0 : 1];
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    gluProject(static_cast<double>(boardX), static_cast<double>(boardY), 0.0, modelview.begin(),
               matrices.projectionMatrices[view.cameraIndex].begin(), viewport, &x, &y, &z);
    return {static_cast<int>(x), layout.windowH - 1 - static_cast<int>(y)};
}

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    openTestWindow(&argc, argv);
    return RUN_ALL_TESTS();
}
