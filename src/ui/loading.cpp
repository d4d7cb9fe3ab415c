#include "ui/loading.h"

#include "app/game_state.h"
#include "app/host.h"
#include "board/designer.h"
#include "board/pictures.h"
#include "ui/layout.h"
#include "ui/scale.h"

#include <GL/freeglut.h>

LoadingProgress loadingProgress;

constexpr int SETTLING_MS = 150;

constexpr int FRAME_MS = 16; // no screen shows more of the bar than that

// Once is enough: pixels don't depend on the layout.
static bool sectionPaintDone = false;

static void showProgress()
{
    static int lastFrame = glutGet(GLUT_ELAPSED_TIME);
    const int now = glutGet(GLUT_ELAPSED_TIME);
    const bool last = loadingProgress.courses == FIXED_COURSE_COUNT;
    if (!last && now - lastFrame < FRAME_MS)
        return;
    lastFrame = now;
    redrawNow();
}

static void paintPictures()
{
    loadingProgress = {};
    for (int section = 0; section < SECTION_COUNT; ++section) {
        paintSection(section);
        loadingProgress.sections = section;
        showProgress();
    }
    for (int index = 0; index < FIXED_COURSE_COUNT; ++index) {
        paintCourse(index, fixedCourses[index]);
        loadingProgress.courses = index + 1;
        showProgress();
    }
    sectionPaintDone = true;
}

// The window opens at a size of its own and fills the screen a moment later. Loading for the first
// size would be done for nothing, so a window that is smaller than the screen gets that moment.
static bool sizeSettled()
{
    static const int firstAsked = glutGet(GLUT_ELAPSED_TIME);
    const bool fullScreen = windowCovers(glutGet(GLUT_SCREEN_WIDTH), glutGet(GLUT_SCREEN_HEIGHT));
    return fullScreen || glutGet(GLUT_ELAPSED_TIME) - firstAsked > SETTLING_MS;
}

void onIdleLoad()
{
    if (layout.viewW <= 0 || layout.viewH <= 0)
        return;
    if (!sizeSettled())
        return showProgress();
    if (!sectionPaintDone)
        paintPictures();
    glutIdleFunc(nullptr);
    gameState = STATE_MAIN_MENU;
    redrawNow();
}
