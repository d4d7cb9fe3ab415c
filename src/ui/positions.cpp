#include "ui/positions.h"

#include "board/course.h"
#include "board/section_shapes.h"
#include "race/race_state.h"
#include "ui/controls.h"
#include "ui/course_table.h"
#include "ui/layout.h"
#include "ui/models.h"
#include "ui/pawns.h"
#include "ui/places.h"
#include "ui/scale.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/widgets.h"

#include <GL/gl.h>

#include <algorithm>
#include <string>

struct Spot {
    float x, y;
};

// Where a team stands round the board, in fractions of the drawing area, and in pixels what stands
// beside its pawns, away from the board.
struct TeamPlace {
    Spot label;
    Spot firstPawn;
    Spot step; // to the next pawn
    Spot lap;
    Spot doping;
};

// clang-format off
constexpr TeamPlace teamPlaces[TEAM_COUNT] = {
//    label           first pawn      step            lap               doping number
    {{0.50f, 0.89f}, {0.35f, 0.82f}, {0.1f, 0.0f}, {  0.0f,  25.0f}, {  0.0f,  40.0f}},
    {{0.05f, 0.31f}, {0.05f, 0.35f}, {0.0f, 0.1f}, {-25.0f,   0.0f}, {-25.0f,  15.0f}},
    {{0.50f, 0.05f}, {0.35f, 0.10f}, {0.1f, 0.0f}, {  0.0f, -25.0f}, {  0.0f, -40.0f}},
    {{0.95f, 0.31f}, {0.95f, 0.35f}, {0.0f, 0.1f}, { 25.0f,   0.0f}, { 25.0f,  15.0f}},
};
// clang-format on

constexpr int NARROW = 900; // below it names at the sides take the small letters

static Spot inDrawingArea(Spot fraction)
{
    return {fraction.x * static_cast<float>(layout.viewW),
            fraction.y * static_cast<float>(layout.viewH)};
}

static Spot pawnSpot(int rider)
{
    const TeamPlace& place = teamPlaces[riderTeam(rider)];
    const float steps = static_cast<float>(riderPlace(rider));
    return inDrawingArea(
        {place.firstPawn.x + place.step.x * steps, place.firstPawn.y + place.step.y * steps});
}

static Spot boardSpot(const Rider& rider)
{
    const Rect board = overviewPicture();
    return {board.x + board.w * rider.x / BOARD_WIDTH, board.y + board.h * rider.y / BOARD_HEIGHT};
}

static void drawBoard()
{
    const Rect board = overviewPicture();
    glPushMatrix();
    glTranslatef(board.x, board.y, 0.0f);
    glScalef(board.w / BOARD_WIDTH, board.h / BOARD_HEIGHT, 1.0f);
    glCallList(lists.boardList);
    glPopMatrix();
}

// A text that would begin outside the window isn't drawn at all, so a long name at the side moves
// inward.
static void drawLabel(Spot at, std::string_view text, Font font)
{
    constexpr float MARGIN = 2.0f;
    const float half = static_cast<float>(textWidth(text, font)) * 0.5f + MARGIN;
    const float right = static_cast<float>(layout.viewW) - half;
    drawText(std::max(half, std::min(at.x, right)), at.y, ALIGN_CENTRE, text, font);
}

// On a low window there is no room above and below the pawns of a row: its team stands behind them.
static Spot labelSpot(int team)
{
    constexpr int low = 700;
    constexpr float behind = 0.43f; // from the first pawn
    constexpr float drop = 10.0f;
    const TeamPlace& place = teamPlaces[team];
    if (layout.viewH >= low || place.step.x == 0.0f)
        return inDrawingArea(place.label);
    const Spot at = inDrawingArea({place.firstPawn.x + behind, place.firstPawn.y});
    return {at.x, at.y + drop};
}

static void drawTeamLabel(int team)
{
    constexpr float NAME_RISE = 14.0f;
    const Spot at = labelSpot(team);
    setColour(WHITE);
    drawLabel({at.x, at.y - NAME_RISE}, raceSetup.teamName[team],
              layout.viewW < NARROW ? FONT_BODY : FONT_TITLE);
    if (!race.riders[team * RIDERS_PER_TEAM].isHuman)
        drawLabel(at, texts.computerPlayer, FONT_BODY);
}

static void drawLineToBoard(int index)
{
    const Rider& rider = race.riders[index];
    if (rider.finished || rider.row == -1 || rider.lane == -1)
        return;
    const int team = riderTeam(index);
    const Spot from = pawnSpot(index);
    const Spot to = boardSpot(rider);
    constexpr float WIDTH = 2.0f;
    setColour(rider.offBoard ? teamColourDim[team] : teamColour[team]);
    setLineWidth(WIDTH);
    glBegin(GL_LINES);
    glVertex2f(from.x, from.y);
    glVertex2f(to.x, to.y);
    glEnd();
    setLineWidth(1.0f);
}

// On a narrow window there is no room between the pawns at the sides and the edge: what belongs
// beside them stands below.
static void drawBeside(Spot pawn, Spot offset, const std::string& text)
{
    constexpr int narrow = 680;
    if (offset.x != 0.0f && layout.viewW < narrow)
        offset = {0.0f, offset.y + 21.0f};
    drawText(pawn.x + offset.x, pawn.y + offset.y, ALIGN_CENTRE, text);
}

static void drawPawn(int rider)
{
    if (race.riders[rider].finished)
        return;
    const TeamPlace& place = teamPlaces[riderTeam(rider)];
    const Spot at = pawnSpot(rider);
    drawPawnAt(rider, at.x, at.y);
    setColour(WHITE);
    drawBeside(at, place.lap, texts.lapShort + std::to_string(race.riderLapCount[rider]));
    if (race.dopingNumber[rider] != -1)
        drawBeside(at, place.doping, "D:" + std::to_string(race.dopingNumber[rider]));
}

static std::string stagesText()
{
    return raceSetup.multiStage
               ? texts.multipleStages + ", " + shownFileName(raceSetup.raceBaseName)
               : texts.singleStage;
}

static void drawCourse()
{
    constexpr float FRAME_INSET = 6.0f;
    constexpr float BESIDE_TABLE = 176.0f;
    drawCourseTable(layout.overviewTitleX, layout.overviewTitleY, layout.overviewTitleStep,
                    countCourseLaps(courseText, LAPS_TITLED), FRAME_INSET);
    const float x = layout.overviewTitleX + BESIDE_TABLE;
    const float viewH = static_cast<float>(layout.viewH);
    setColour(WHITE);
    drawText(x, viewH * 0.93f, ALIGN_LEFT,
             cutToWidth(stagesText(), placeOf(CONTROL_POSITIONS_OK).x - x));
    drawCheckBox(static_cast<int>(x), static_cast<int>(viewH * 0.947f),
                 static_cast<int>(layout.teamCheckSize), texts.enableEventCards, NO_ACCESS_KEY,
                 false, raceSetup.eventCardsOn);
}

void drawPositions()
{
    drawBoard();
    for (int team = 0; team < TEAM_COUNT; ++team)
        drawTeamLabel(team);
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        drawLineToBoard(rider);
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        drawPawn(rider);
    drawCourse();
    drawControl(CONTROL_POSITIONS_OK);
}
