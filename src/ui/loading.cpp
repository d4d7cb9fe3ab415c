#include "ui/loading.h"

#include "app/game_state.h"
#include "app/host.h"
#include "board/designer.h"
#include "board/pictures.h"
#include "board/section_shapes.h"
#include "ui/layout.h"
#include "ui/models.h"
#include "ui/picture_strip.h"
#include "ui/scale.h"
#include "ui/textures.h"
#include "ui/widgets.h"

#include <GL/freeglut.h>

LoadingProgress loadingProgress;

constexpr int SETTLING_MS = 150;

// Painting takes its time, and pixels don't depend on the layout: once is enough.
static bool sectionPaintDone = false;

// The working texture is loaded within the list: its pixels travel with it.
static void compilePicture(unsigned list, const Picture& picture, GLint filter, float w, float h)
{
    glNewList(list, GL_COMPILE);
    setColour(WHITE);
    glBindTexture(GL_TEXTURE_2D, textureNames[7]);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, filter);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, filter);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_DECAL);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, picture.width, picture.height, 0, GL_RGB,
                 GL_UNSIGNED_BYTE, picture.bytes.data());
    glEnable(GL_TEXTURE_2D);
    drawPicture({0.0f, 0.0f, w, h});
    glDisable(GL_TEXTURE_2D);
    glEndList();
}

static void loadSection(int section)
{
    if (!sectionPaintDone)
        paintSection(section);
    compilePicture(lists.sectionLists[section], sectionPixels[section], GL_LINEAR, BOARD_WIDTH,
                   BOARD_HEIGHT);
    loadingProgress.sections = section;
    redrawNow();
}

static void loadCourse(int index)
{
    if (!sectionPaintDone)
        paintCourse(index, fixedCourses[index]);
    compilePicture(lists.courseLists[index], coursePixels[index], GL_NEAREST, layout.coursePicW,
                   layout.coursePicH);
    loadingProgress.courses = index + 1;
    redrawNow();
}

static void loadPictureLists()
{
    loadingProgress = {};
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    for (int section = 0; section < SECTION_COUNT; ++section)
        loadSection(section);
    for (int index = 0; index < FIXED_COURSE_COUNT; ++index)
        loadCourse(index);
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
    if (layout.viewW <= 0 || layout.viewH <= 0 || !sizeSettled())
        return;
    if (gameState == STATE_LOADING)
        loadPictureLists();
    glutIdleFunc(nullptr);
    gameState = STATE_MAIN_MENU;
    redrawNow();
}

void reloadPictures()
{
    if (gameState == STATE_LOADING || !sectionPaintDone)
        return;
    const GameState interrupted = gameState;
    gameState = STATE_LOADING;
    loadPictureLists();
    gameState = interrupted;
}
