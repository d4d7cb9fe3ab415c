#include "ui/models.h"

#include "app/game_state.h"
#include "app/view.h"
#include "board/section_shapes.h"
#include "board/trig_tables.h"
#include "race/race_state.h"
#include "ui/cameras.h"
#include "ui/layout.h"
#include "ui/picture_strip.h"
#include "ui/text.h"
#include "ui/textures.h"
#include "ui/widgets.h"

#include <GL/gl.h>
#include <GL/glext.h>

#include <cmath>
#include <cstring>
#include <string>

DisplayLists lists;

constexpr float PAWN_RADIUS = 14.0f;
constexpr float PAWN_HEIGHT = 18.0f;
constexpr float FIGURE_HALF_WIDTH = 46.5f;
constexpr float FIGURE_TOP = 94.0f;
constexpr float FIGURE_FOOT = 12.0f;
constexpr Colour outlineGrey = {0.2f, 0.2f, 0.2f};

constexpr int RING_POINTS = 16; // the last one meets the first
constexpr int RING_SIDES = RING_POINTS - 1;

struct RingPoint {
    float x, y;
};

static RingPoint ringPoint(int i)
{
    const double angle = 2.0 * i * 3.14159265 / RING_SIDES;
    return {static_cast<float>(std::cos(angle)), static_cast<float>(std::sin(angle))};
}

static void addRing(float radius, float z)
{
    for (int i = 0; i < RING_POINTS; ++i) {
        const RingPoint point = ringPoint(i);
        glVertex3f(point.x * radius, point.y * radius, z);
    }
}

// Round on the screen, whatever the shape of its pixels.
static void addFlatRing()
{
    for (int i = 0; i < RING_POINTS; ++i) {
        const int degree = i * 360 / RING_SIDES;
        glVertex2f(cosTable[degree] * PAWN_RADIUS * aspectFix(), sinTable[degree] * PAWN_RADIUS);
    }
}

static void compilePawnDisc(unsigned list)
{
    glNewList(list, GL_COMPILE);
    glBegin(GL_TRIANGLE_FAN);
    glVertex2f(0.0f, 0.0f);
    addFlatRing();
    glEnd();
    glEndList();
}

// The hub of the upper side lies on the ground: from above the body looks like a shallow dish.
static void compilePawnBody(unsigned list)
{
    glNewList(list, GL_COMPILE);
    glBegin(GL_TRIANGLE_FAN);
    glVertex3f(0.0f, 0.0f, 0.0f);
    addRing(PAWN_RADIUS, PAWN_HEIGHT);
    glEnd();
    glBegin(GL_TRIANGLE_STRIP);
    for (int i = 0; i < RING_POINTS; ++i) {
        const RingPoint point = ringPoint(i);
        glVertex3f(point.x * PAWN_RADIUS, point.y * PAWN_RADIUS, PAWN_HEIGHT);
        glVertex3f(point.x * PAWN_RADIUS, point.y * PAWN_RADIUS, 0.0f);
    }
    glEnd();
    glEndList();
}

static void compileFlatOutline(unsigned list)
{
    glNewList(list, GL_COMPILE);
    setColour(outlineGrey);
    glBegin(GL_LINE_STRIP);
    addFlatRing();
    glEnd();
    glEndList();
}

static void beginTexture(int texture, GLint filter, GLint environment)
{
    glBindTexture(GL_TEXTURE_2D, textureNames[texture]);
    glEnable(GL_TEXTURE_2D);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, filter);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, filter);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, environment);
}

static void endTexture()
{
    glDisable(GL_TEXTURE_2D);
}

// The cyclist of the picture looks to its right edge, where s is 0. That edge lies at (frontX,
// frontY) on the ground, the left one opposite.
static void drawFigure(int texture, float frontX, float frontY)
{
    setColour(WHITE);
    beginTexture(texture, GL_LINEAR, GL_MODULATE);
    glBegin(GL_TRIANGLE_STRIP);
    glTexCoord2f(0.0f, 0.0f);
    glVertex3f(frontX, frontY, FIGURE_TOP);
    glTexCoord2f(1.0f, 0.0f);
    glVertex3f(-frontX, -frontY, FIGURE_TOP);
    glTexCoord2f(0.0f, 1.0f);
    glVertex3f(frontX, frontY, FIGURE_FOOT);
    glTexCoord2f(1.0f, 1.0f);
    glVertex3f(-frontX, -frontY, FIGURE_FOOT);
    glEnd();
    endTexture();
}

// Pawns ride along their own x axis, so a turned figure has its front there.
static void compilePawnTop(unsigned list, int figure, bool turned)
{
    glNewList(list, GL_COMPILE);
    setColour(outlineGrey);
    for (const float z : {0.0f, PAWN_HEIGHT}) {
        glBegin(GL_LINE_STRIP);
        addRing(PAWN_RADIUS, z);
        glEnd();
    }
    if (turned)
        drawFigure(figure, FIGURE_HALF_WIDTH, 0.0f);
    else
        drawFigure(figure, 0.0f, FIGURE_HALF_WIDTH);
    glEndList();
}

static void compilePicture(unsigned list, int texture, GLint filter, float w, float h,
                           const Crop& crop)
{
    glNewList(list, GL_COMPILE);
    drawPictureOf(textureNames[texture], filter, {0.0f, 0.0f, w, h}, crop);
    glEndList();
}

// How many times as far the driver can sample along a slant as across it; 1 if it can't.
static float mostAnisotropy()
{
    const auto* extensions = reinterpret_cast<const char*>(glGetString(GL_EXTENSIONS));
    float most = 1.0f;
    if (extensions && std::strstr(extensions, "GL_EXT_texture_filter_anisotropic"))
        glGetFloatv(GL_MAX_TEXTURE_MAX_ANISOTROPY_EXT, &most);
    return most;
}

// The board for the perspective view, where its far half would break into dots without mipmaps.
static void compileSlantedBoard(unsigned list)
{
    const float anisotropy = mostAnisotropy();
    const auto slant = [anisotropy](float most) {
        if (anisotropy > 1.0f)
            glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MAX_ANISOTROPY_EXT, most);
    };
    glNewList(list, GL_COMPILE);
    beginTexture(0, GL_LINEAR, GL_DECAL);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
    slant(anisotropy);
    drawPicture({0.0f, 0.0f, BOARD_WIDTH, BOARD_HEIGHT}, wholePicture);
    slant(1.0f);
    endTexture();
    glEndList();
}

static void compileRoundedBox(unsigned list, float x, float y, float w, float h, float radius)
{
    glNewList(list, GL_COMPILE);
    drawRoundedBox(x, y, w, h, radius);
    glEndList();
}

static void compileCards()
{
    const float cardW = layout.cardW;
    const float cardH = layout.cardH;
    const float outerRadius = static_cast<float>(layout.viewW) / 112.0f;
    const float innerRadius = static_cast<float>(layout.viewW) / 224.0f;
    const float innerW = cardW / 1.5f;
    const float innerH = cardH * 3.0f / 8.0f;

    compileRoundedBox(lists.cardOuterList, 0.0f, 0.0f, cardW, cardH, outerRadius);
    compileRoundedBox(lists.cardFrameList, cardW / 6.0f - innerW * 0.1f,
                      cardH / 8.0f - innerH * 0.1f, innerW * 1.2f, innerH * 1.2f, innerRadius);
    compileRoundedBox(lists.cardInnerList, cardW / 6.0f, cardH / 8.0f, innerW, innerH, innerRadius);
}

static void compileDice()
{
    glNewList(lists.dieList, GL_COMPILE);
    setColour(dieRed);
    drawRoundedBox(0.0f, 0.0f, layout.cardH, layout.cardH,
                   static_cast<float>(layout.viewW) / 112.0f);
    glEndList();

    glNewList(lists.pipList, GL_COMPILE);
    setColour(WHITE);
    glBegin(GL_TRIANGLE_FAN);
    glVertex2f(0.0f, 0.0f);
    addRing(layout.cardH / 10.0f, 0.0f);
    glEnd();
    glEndList();
}

static void compileScorecards()
{
    constexpr Crop teamTable = {0.6f, 0.057f, 0.58f, 0.932f};
    compilePicture(lists.scorecardList, 6, GL_NEAREST, layout.scorecardW, layout.scorecardPicH,
                   wholePicture);
    compilePicture(lists.scorecardInnerList, 6, GL_NEAREST, layout.scorecardW * 0.543f,
                   layout.scorecardPicH * 0.352f, teamTable);
}

static void deleteLists(unsigned first, int count)
{
    if (first != 0)
        glDeleteLists(first, count);
}

static void deleteAllLists()
{
    deleteLists(lists.pawnDiscList, 2);
    deleteLists(lists.pawnTopLists[0], 6);
    deleteLists(lists.pawnTurnedLists[0], 6);
    deleteLists(lists.boardList, 2);
    deleteLists(lists.cardOuterList, 3);
    deleteLists(lists.dieList, 1);
    deleteLists(lists.pipList, 1);
    deleteLists(lists.scorecardList, 1);
    deleteLists(lists.scorecardInnerList, 1);
}

template <int N> static void reserveLists(Table<unsigned, N>& block)
{
    unsigned next = glGenLists(N);
    for (unsigned& list : block)
        list = next++;
}

static void reserveAllLists()
{
    lists.pawnDiscList = glGenLists(2);
    lists.pawnBodyList = lists.pawnDiscList + 1;
    reserveLists(lists.pawnTopLists);
    lists.boardList = glGenLists(2);
    lists.slantedBoardList = lists.boardList + 1;
    lists.cardOuterList = glGenLists(3);
    lists.cardFrameList = lists.cardOuterList + 1;
    lists.cardInnerList = lists.cardOuterList + 2;
    lists.dieList = glGenLists(1);
    lists.pipList = glGenLists(1);
    lists.scorecardList = glGenLists(1);
    lists.scorecardInnerList = glGenLists(1);
    reserveLists(lists.pawnTurnedLists);
}

void buildDisplayLists()
{
    deleteAllLists();
    reserveAllLists();

    compilePawnDisc(lists.pawnDiscList);
    compilePawnBody(lists.pawnBodyList);
    compileFlatOutline(lists.pawnTopLists[0]);
    for (int figure = 1; figure <= WINNER_FIGURE; ++figure) {
        compilePawnTop(lists.pawnTopLists[figure], figure, false);
        compilePawnTop(lists.pawnTurnedLists[figure], figure, true);
    }
    compilePicture(lists.boardList, 0, GL_LINEAR, BOARD_WIDTH, BOARD_HEIGHT, wholePicture);
    compileSlantedBoard(lists.slantedBoardList);
    compileCards();
    compileDice();
    compileScorecards();
}

// Of the way to the camera, what lies beside the rider over what lies ahead of him or behind. A
// bike across the road looks like a barrier, so it rides along the road wherever two fifths of its
// length can be seen; with less it would be a sliver.
constexpr double LEAST_SIDE = 0.45;

// Both figures stand upright, so it is the camera's direction on the ground that decides.
bool figureTurned(float x, float y, double heading)
{
    const int camera = view.cameraIndex - FIRST_PERSPECTIVE_CAMERA;
    if (camera < 0 || camera >= PERSPECTIVE_CAMERA_COUNT)
        return false;
    const double eyeX = cameraEyes[camera].x - static_cast<double>(x);
    const double eyeY = -cameraEyes[camera].y - static_cast<double>(y);
    const double along = eyeX * std::cos(heading) + eyeY * std::sin(heading);
    const double aside = eyeY * std::cos(heading) - eyeX * std::sin(heading);
    return std::abs(aside) > LEAST_SIDE * std::abs(along);
}

void drawStandingPawn(int figure, float x, float y, double heading)
{
    const bool turned = figureTurned(x, y, heading);
    glCallList(lists.pawnBodyList);
    glCallList(turned ? lists.pawnTurnedLists[figure] : lists.pawnTopLists[figure]);
}

static const Colour& pawnColour(int rider)
{
    const bool dim = gameState == STATE_POSITIONS && race.riders[rider].offBoard != 0;
    return dim ? teamColourDim[riderTeam(rider)] : teamColour[riderTeam(rider)];
}

// Scaling leaves the pixels of a text as they are but not the way back from its centre to its left
// end, which the small pawn makes up for.
static void drawPawnNumber(int rider, float scale)
{
    const float offset = scale == 1.0f ? 0.0f : 1.0f / (scale * scale);
    drawText(-offset, offset, ALIGN_CENTRE, std::to_string(riderNumber(rider)));
}

void drawRider(int rider, PawnShape shape, bool showNumber, float scale, bool highlight)
{
    const Rider& shown = race.riders[rider];
    const bool yellow = highlight && rider == race.sprintWinner;

    glPushMatrix();
    if (scale != 1.0f)
        glScalef(scale, scale, 1.0f);
    setColour(yellow ? YELLOW : pawnColour(rider));
    if (shape == PAWN_FLAT) {
        glCallList(lists.pawnDiscList);
        glCallList(lists.pawnTopLists[0]);
    } else {
        const bool winner = rider == race.sprintWinner;
        drawStandingPawn(winner ? WINNER_FIGURE : teamFigure(riderTeam(rider)), shown.x, shown.y,
                         shown.heading);
    }
    if (showNumber) {
        setColour(yellow ? BLACK : WHITE);
        drawPawnNumber(rider, scale);
    }
    glPopMatrix();
}
