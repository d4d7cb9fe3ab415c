#include "app/game_state.h"
#include "app/host.h"
#include "input/keyboard.h"
#include "input/mouse.h"
#include "play/animation.h"
#include "store/settings_file.h"
#include "ui/frame.h"
#include "ui/layout.h"
#include "ui/loading.h"
#include "ui/reshape.h"
#include "ui/scale.h"
#include "ui/settings_screen.h"
#include "ui/texts.h"
#include "ui/textures.h"
#include "x11_platform.h"
#include "x11_window.h"

#include <GL/freeglut.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <ctime>

static void armTimer(int ms)
{
    glutTimerFunc(static_cast<unsigned>(ms), onMoveTimer, 0);
}

static void onClose()
{
    windowOpen = false;
}

static void openWindow(int* argc, char** argv)
{
    glutInit(argc, argv);
    glutInitDisplayMode(GLUT_DOUBLE | GLUT_DEPTH);
    // Without a window manager a full screen keeps the offset that the window had.
    glutInitWindowPosition(0, 0);
    glutInitWindowSize(1280, 960);
    glutCreateWindow("Gravelon");
    glClearColor(0.0f, 0.0f, 0.0f, 0.0f);
    glHint(GL_PERSPECTIVE_CORRECTION_HINT, GL_NICEST);
    glHint(GL_POINT_SMOOTH_HINT, GL_NICEST);
    windowOpen = true;
}

static bool filledByGlut = false;

static void fillScreen()
{
    const bool covered = coverMainMonitor();
    if (managerMakesFullScreen())
        return askForFullScreen(true);
    if (!covered)
        glutFullScreen();
    filledByGlut = true;
}

static void leaveFullScreen()
{
    if (managerMakesFullScreen())
        return askForFullScreen(false);
    glutLeaveFullScreen();
    filledByGlut = false;
}

// The window between: of the size that it would have had, as far as the screen has room for it.
static void changeScreen()
{
    if (!(managerMakesFullScreen() ? managerShowsFullScreen() : filledByGlut))
        return fillScreen();
    leaveFullScreen();
    glutReshapeWindow(std::min(1280 * scale(), glutGet(GLUT_SCREEN_WIDTH) * 9 / 10),
                      std::min(960 * scale(), glutGet(GLUT_SCREEN_HEIGHT) * 9 / 10));
}

// GLUT's first report is of the size that was asked for; the window may have another by then.
static void onReport(int, int)
{
    if (layout.viewW == 0)
        takeUpWindowAnew();
    onReshape(glutGet(GLUT_WINDOW_WIDTH), glutGet(GLUT_WINDOW_HEIGHT));
}

// While loading, onIdleLoad paints as often as it is worth it.
static void onDisplay()
{
    if (gameState != STATE_LOADING)
        drawFrame();
}

static void registerCallbacks()
{
    glutReshapeFunc(onReport);
    glutDisplayFunc(onDisplay);
    glutIdleFunc(onIdleLoad);
    glutMouseFunc(onMouse);
    glutMotionFunc(onDrag);
    glutPassiveMotionFunc(onHover);
    glutKeyboardFunc(onKeyDown);
    glutKeyboardUpFunc(onKeyUp);
    glutSpecialUpFunc(onSpecialUp);
    glutCloseFunc(onClose);
    host = {.redraw = drawFrame,
            .armTimer = armTimer,
            .toggleFullScreen = changeScreen,
            .quit = [] { std::exit(0); }};
}

int main(int argc, char** argv)
{
    std::srand(static_cast<unsigned>(std::time(nullptr)));
    // A file that may grow no further is a failed save, and no reason to end.
    std::signal(SIGXFSZ, SIG_IGN);
    openWindow(&argc, argv);
    registerCallbacks();
    introduceWindow();
    reportHeldKeysOnce();
    reportShiftTab();
    desktopScale = scaleOfDensity(dotsPerInch());
    fillScreen();
    if (!loadTextures())
        return 0;
    readSettings();
    fillSettingsFields(settings);
    loadTexts();
    gameState = STATE_LOADING;
    glutMainLoop();
    return 0;
}
