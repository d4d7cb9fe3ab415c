#include "ui/textures.h"

#include "board/pictures.h"
#include "ui/picture_strip.h"
#include "ui/widgets.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <string>

Table<unsigned, 7> textureNames{};

constexpr int RIDER_PICTURE_COUNT = 5;
constexpr int FIRST_RIDER_TEXTURE = 1;
constexpr int SCORECARD_TEXTURE = 6;

static Table<unsigned, SECTION_COUNT> sectionTextures{};
static Table<unsigned, FIXED_COURSE_COUNT> courseTextures{};

static void buildTexture(int texture, const Picture& picture)
{
    const GLenum format = picture.components == 4 ? GL_RGBA : GL_RGB;
    glBindTexture(GL_TEXTURE_2D, textureNames[texture]);
    gluBuild2DMipmaps(GL_TEXTURE_2D, picture.components, picture.width, picture.height, format,
                      GL_UNSIGNED_BYTE, picture.bytes.data());
}

static bool loadBoard()
{
    boardPicture.width = BOARD_PICTURE_WIDTH;
    boardPicture.height = BOARD_PICTURE_HEIGHT;
    if (!loadPicture("board.dat", boardPicture, false))
        return false;
    buildTexture(0, boardPicture);
    return true;
}

static bool loadRiders(Picture& scratch)
{
    scratch.width = RIDER_PICTURE_SIZE;
    scratch.height = RIDER_PICTURE_SIZE;
    for (int i = 0; i < RIDER_PICTURE_COUNT; ++i) {
        const std::string fileName = "cyclist" + std::to_string(i) + ".dat";
        if (!loadPicture(fileName.c_str(), scratch, true))
            return false;
        buildTexture(FIRST_RIDER_TEXTURE + i, scratch);
    }
    return true;
}

// A race can be played without a score sheet, so a missing one only looks wrong.
static void loadScorecard(Picture& scratch)
{
    scratch.width = SCORECARD_PICTURE_SIZE;
    scratch.height = SCORECARD_PICTURE_SIZE;
    if (!loadPicture("scorecard.dat", scratch, false)) {
        scratch.components = 3;
        scratch.bytes.resize(static_cast<std::size_t>(3 * scratch.width * scratch.height));
    }
    buildTexture(SCORECARD_TEXTURE, scratch);
}

bool loadTextures()
{
    glAlphaFunc(GL_GREATER, 0.0f);
    glGenTextures(textureNames.size(), textureNames.begin());

    Picture scratch;
    if (!loadBoard() || !loadRiders(scratch))
        return false;
    loadScorecard(scratch);
    return true;
}

static unsigned textureOf(unsigned& name, const Picture& picture)
{
    if (name == 0) {
        glGenTextures(1, &name);
        glBindTexture(GL_TEXTURE_2D, name);
        glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
        glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, picture.width, picture.height, 0, GL_RGB,
                     GL_UNSIGNED_BYTE, picture.bytes.data());
    }
    return name;
}

void drawSectionPicture(int section, const Rect& at)
{
    setColour(WHITE);
    drawPictureOf(textureOf(sectionTextures[section], sectionPixels[section]), GL_LINEAR, at);
}

void drawCoursePicture(int index, const Rect& at)
{
    setColour(WHITE);
    drawPictureOf(textureOf(courseTextures[index], coursePixels[index]), GL_NEAREST, at);
}
