#include "app/game_state.h"
#include "app/host.h"
#include "app/x11_platform.h"
#include "app/x11_window.h"
#include "board/animation.h"
#include "input/keyboard.h"
#include "input/mouse.h"
#include "store/settings_file.h"
#include "ui/frame.h"
#include "ui/loading.h"
#include "ui/reshape.h"
#include "ui/settings_screen.h"
#include "ui/texts.h"
#include "ui/textures.h"

#include <GL/freeglut.h>

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

static void registerCallbacks()
{
    glutReshapeFunc(onReshape);
    glutDisplayFunc(drawFrame);
    glutIdleFunc(onIdleLoad);
    glutMouseFunc(onMouse);
    glutMotionFunc(onDrag);
    glutPassiveMotionFunc(onHover);
    glutKeyboardFunc(onKeyDown);
    glutKeyboardUpFunc(onKeyUp);
    glutSpecialUpFunc(onSpecialUp);
    glutCloseFunc(onClose);
    host = {.redraw = drawFrame, .armTimer = armTimer, .quit = [] { std::exit(0); }};
}

int main(int argc, char** argv)
{
    std::srand(static_cast<unsigned>(std::time(nullptr)));
    openWindow(&argc, argv);
    registerCallbacks();
    introduceWindow();
    reportHeldKeysOnce();
    reportShiftTab();
    if (!coverMainMonitor())
        glutFullScreen();
    if (!loadTextures())
        return 0;
    readSettings();
    fillSettingsFields(settings);
    loadTexts();
    gameState = STATE_LOADING;
    glutMainLoop();
    return 0;
}
