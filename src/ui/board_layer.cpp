#include "ui/board_layer.h"

#include "app/game_state.h"
#include "app/view.h"
#include "board/course.h"
#include "board/rider_motion.h"
#include "race/race_state.h"
#include "race/rider_place.h"
#include "race/start_grid.h"
#include "ui/layout.h"
#include "ui/letters.h"
#include "ui/matrices.h"
#include "ui/models.h"
#include "ui/textures.h"
#include "ui/widgets.h"

#include <GL/gl.h>

#include <algorithm>
#include <numeric>
#include <string>
#include <utility>

// Where the sprint winner stands a second time in perspective view.
constexpr BoardPoint PODIUM = {652.0f, 422.0f};

constexpr Colour FORBIDDEN_RED = {0.8f, 0.0f, 0.0f};

static BoardPoint startGridCorner(int row, int lane)
{
    const float r = static_cast<float>(row);
    const float l = static_cast<float>(lane);
    if (courseText.starts_with('0'))
        return {1117.0f - r * 98.25f, 210.0f - l * 36.6f};
    return {r * 99.0f + 528.0f, (l - 4.0f) * 37.0f + 975.0f};
}

static void drawPlacingCursor()
{
    const int row = race.placingRow;
    const int lane = race.placingLane;
    const bool onStartSection = courseText.starts_with('0') || courseText.starts_with('6');
    if (row == -1 || lane == -1 || !onStartSection)
        return;
    setColour(mayPlaceOn(row, lane, race.currentRider) ? WHITE : FORBIDDEN_RED);
    glBegin(GL_TRIANGLE_STRIP);
    for (const Square& corner : {Square{row, lane}, Square{row, lane + 1}, Square{row + 1, lane},
                                 Square{row + 1, lane + 1}}) {
        const BoardPoint point = startGridCorner(corner.row, corner.lane);
        glVertex2f(point.x, point.y);
    }
    glEnd();
}

// A rider on his way is placed by the timer, every other stands on his square.
static void placeRiders()
{
    for (int i = 0; i < RIDER_COUNT; ++i) {
        const Rider& rider = race.riders[i];
        const bool carried = i == race.currentRider && !motion.way.empty();
        if (!rider.finished && rider.row != -1 && !carried)
            placeOnBoard(i);
    }
}

static bool onBoard(const Rider& rider)
{
    return !rider.offBoard && !rider.finished && rider.row != -1;
}

// Where a number begins, seen from the middle of its pawn, in board units. On a small window a pawn
// is smaller than its number, which stands in its middle then.
static BoardPoint numberOffset()
{
    constexpr int roomy = 768; // lines
    if (layout.viewH >= roomy)
        return {-12.0f, 8.0f};
    const float unitsPerPixel = BOARD_WIDTH / layout.boardViewW;
    return {-7.0f * unitsPerPixel, 4.0f * unitsPerPixel};
}

// On the pawn, whichever way up the board lies.
static void drawNumberLabel(int index)
{
    const Rider& rider = race.riders[index];
    const BoardPoint offset = numberOffset();
    setColour(index == race.sprintWinner ? BLACK : WHITE);
    if (view.cameraIndex == 2)
        glRasterPos2f(rider.x - offset.x, rider.y - offset.y);
    else
        glRasterPos2f(rider.x + offset.x, rider.y + offset.y);
    drawLetters(std::to_string(riderNumber(index)), FONT_BODY);
}

static void drawPawns(PawnShape shape)
{
    for (int i = 0; i < RIDER_COUNT; ++i) {
        const Rider& rider = race.riders[i];
        if (!onBoard(rider))
            continue;
        glPushMatrix();
        glTranslatef(rider.x, rider.y, 0.0f);
        glRotated(rider.heading / 6.2831853 * 360.0, 0.0, 0.0, 1.0);
        drawRider(i, shape, false, 1.0f, true);
        glPopMatrix();
    }
}

// All numbers behind all pawns: OpenGL is much slower where shapes and bitmaps take turns. And from
// left to right, line by line: Mesa draws bitmaps that follow each other along a line as one.
static void drawNumberLabels()
{
    constexpr float lineH = 12.0f; // board units
    Table<int, RIDER_COUNT> order{};
    std::iota(order.begin(), order.end(), 0);
    std::ranges::sort(order, {}, [](int i) {
        return std::pair(static_cast<int>(race.riders[i].y / lineH), race.riders[i].x);
    });
    for (const int i : order)
        if (onBoard(race.riders[i]))
            drawNumberLabel(i);
}

static void drawWinnerOnPodium()
{
    if (race.sprintWinner == -1)
        return;
    constexpr double quarterTurn = 90.0;
    const int team = riderTeam(race.sprintWinner);
    glPushMatrix();
    glTranslatef(PODIUM.x, PODIUM.y, 0.0f);
    glRotated(quarterTurn, 0.0, 0.0, 1.0);
    setColour(teamColour[team]);
    drawStandingPawn(teamFigure(team), PODIUM.x, PODIUM.y, quarterTurn * 6.2831853 / 360.0);
    glPopMatrix();
}

// The board and the cursor lie in one plane, which nothing can stand behind: without the depth test
// they can't fight with each other or with the feet of the pawns.
static void drawPlane()
{
    glDisable(GL_DEPTH_TEST);
    if (view.viewMode == VIEW_FLAT) {
        glCallList(lists.boardList);
    } else {
        buildBoardMipmaps();
        glCallList(lists.slantedBoardList);
    }
    if (gameState == STATE_PLACE_HUMAN)
        drawPlacingCursor();
}

void drawBoardLayer()
{
    useBoardLayer();
    if (view.viewMode == VIEW_PERSPECTIVE)
        glClear(GL_DEPTH_BUFFER_BIT); // nothing else asks how deep it lies
    drawPlane();
    placeRiders();
    if (view.viewMode == VIEW_FLAT) {
        drawPawns(PAWN_FLAT);
        drawNumberLabels();
        return;
    }
    glEnable(GL_DEPTH_TEST);
    glEnable(GL_ALPHA_TEST);
    drawPawns(PAWN_STANDING);
    drawWinnerOnPodium();
    glDisable(GL_ALPHA_TEST);
}
