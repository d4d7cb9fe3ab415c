#include "ui/scorecard.h"

#include "race/race_state.h"
#include "race/scoring.h"
#include "ui/access_keys.h"
#include "ui/controls.h"
#include "ui/layout.h"
#include "ui/pawns.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/widgets.h"

#include <string>

constexpr Colour RULE_GREY = {0.75f, 0.75f, 0.75f};
constexpr Colour BAND_GREY = {0.93f, 0.93f, 0.95f};
constexpr int SHEET_ROWS = 2 + RIDER_COUNT + 1 + TEAM_COUNT + 2; // heads, space, buttons

// Columns as fractions of the sheet's width.
constexpr float MARGIN = 0.05f;
constexpr float PLACE_COLUMN = 0.10f;
constexpr float PAWN_COLUMN = 0.20f;
constexpr float NAME_COLUMN = 0.27f;
constexpr float SPRINT_COLUMN = 0.58f;
constexpr float FINISH_COLUMN = 0.78f;
constexpr float TOTAL_COLUMN = 0.92f;

static float columnX(float fraction)
{
    const Rect sheet = scorecardBox();
    return sheet.x + sheet.w * fraction;
}

static float rowHeight()
{
    return scorecardBox().h / static_cast<float>(SHEET_ROWS);
}

// The middle of a row; row 0 holds the column heads.
static float rowY(int row)
{
    return scorecardBox().y + (static_cast<float>(row) + 1.2f) * rowHeight();
}

static void drawNumber(float column, int row, int value)
{
    drawText(columnX(column), rowY(row), ALIGN_RIGHT, std::to_string(value));
}

static void drawBand(int row)
{
    const Rect sheet = scorecardBox();
    if (row % 2 == 0)
        return;
    setColour(BAND_GREY);
    fillRect(sheet.x, rowY(row) - rowHeight() * 0.5f, sheet.w, rowHeight());
}

static void drawRule(int row)
{
    setColour(RULE_GREY);
    fillRect(columnX(MARGIN), rowY(row) - rowHeight() * 0.5f - 1.0f,
             scorecardBox().w * (1.0f - 2.0f * MARGIN), 1.0f);
}

static void drawHeads()
{
    setColour(BLACK);
    drawText(columnX(MARGIN), rowY(0), ALIGN_LEFT, texts.scorecard, FONT_TITLE);
    drawText(columnX(SPRINT_COLUMN), rowY(0), ALIGN_RIGHT, texts.sprint);
    drawText(columnX(FINISH_COLUMN), rowY(0), ALIGN_RIGHT, texts.finish);
    drawRule(1);
}

static void drawFinisher(const StagePoints& points, int rider)
{
    const int row = 1 + points.place[rider];
    drawBand(row);
    setColour(BLACK);
    drawNumber(PLACE_COLUMN, row, points.place[rider] + 1);
    drawText(columnX(NAME_COLUMN), rowY(row), ALIGN_LEFT, raceSetup.teamName[riderTeam(rider)]);
    if (points.sprint[rider] != 0)
        drawNumber(SPRINT_COLUMN, row, points.sprint[rider]);
    drawNumber(FINISH_COLUMN, row, points.total[rider] - points.sprint[rider]);
    drawNumber(TOTAL_COLUMN, row, points.total[rider]);
    drawPawnAt(rider, columnX(PAWN_COLUMN), rowY(row), SMALL_PAWN);
}

static void drawTeams(const StagePoints& points)
{
    const Table<int, TEAM_COUNT> order = teamOrder(points.team);
    const int firstRow = RIDER_COUNT + 2;
    drawRule(firstRow);
    for (int i = 0; i < TEAM_COUNT; ++i) {
        const int row = firstRow + i;
        const int team = order[i];
        const int first = riderNumber(team * RIDERS_PER_TEAM);
        setColour(BLACK);
        drawNumber(PLACE_COLUMN, row, i + 1);
        drawText(columnX(NAME_COLUMN), rowY(row), ALIGN_LEFT,
                 raceSetup.teamName[team] + " (" + std::to_string(first) + "-" +
                     std::to_string(first + RIDERS_PER_TEAM - 1) + ")");
        drawNumber(TOTAL_COLUMN, row, points.team[team]);
        const float side = rowHeight() * 0.5f;
        setColour(teamColour[team]);
        fillRect(columnX(PAWN_COLUMN) - side * 0.5f, rowY(row) - side * 0.5f, side, side);
    }
}

void drawScorecard()
{
    const Rect sheet = scorecardBox();
    drawDialogBox(sheet.x, sheet.y, sheet.w, sheet.h);
    const StagePoints points = stagePoints(race.resultSlots, false);
    drawHeads();
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        if (points.place[rider] != -1)
            drawFinisher(points, rider);
    drawTeams(points);
    drawControl(CONTROL_QUIT, scorecardOkButton(), true);
}
