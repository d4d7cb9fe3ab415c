#include "ui/textures.h"

#include "board/pictures.h"
#include "ui/picture_strip.h"
#include "ui/widgets.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <string>

Table<unsigned, 7> textureNames{};

constexpr int RIDER_PICTURE_COUNT = 5;
constexpr int BOARD_TEXTURE = 0;
constexpr int FIRST_RIDER_TEXTURE = 1;
constexpr int SCORECARD_TEXTURE = 6;

static Table<unsigned, SECTION_COUNT> sectionTextures{};
static Table<unsigned, FIXED_COURSE_COUNT> courseTextures{};

static GLenum formatOf(const Picture& picture)
{
    return picture.components == 4 ? GL_RGBA : GL_RGB;
}

// In its own size alone, which is a power of two.
static void buildTexture(unsigned name, const Picture& picture)
{
    glBindTexture(GL_TEXTURE_2D, name);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(formatOf(picture)), picture.width,
                 picture.height, 0, formatOf(picture), GL_UNSIGNED_BYTE, picture.bytes.data());
}

static bool loadBoard()
{
    boardPicture.width = BOARD_PICTURE_WIDTH;
    boardPicture.height = BOARD_PICTURE_HEIGHT;
    if (!loadPicture("board.dat", boardPicture, false))
        return false;
    buildTexture(textureNames[BOARD_TEXTURE], boardPicture);
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
        buildTexture(textureNames[FIRST_RIDER_TEXTURE + i], scratch);
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
    buildTexture(textureNames[SCORECARD_TEXTURE], scratch);
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

void buildBoardMipmaps()
{
    static bool built = false;
    if (built)
        return;
    built = true;
    glBindTexture(GL_TEXTURE_2D, textureNames[BOARD_TEXTURE]);
    gluBuild2DMipmaps(GL_TEXTURE_2D, boardPicture.components, boardPicture.width,
                      boardPicture.height, formatOf(boardPicture), GL_UNSIGNED_BYTE,
                      boardPicture.bytes.data());
}

static unsigned textureOf(unsigned& name, const Picture& picture)
{
    if (name == 0) {
        glGenTextures(1, &name);
        buildTexture(name, picture);
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
