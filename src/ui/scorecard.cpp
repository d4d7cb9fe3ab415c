#include "ui/scorecard.h"

#include "app/game_state.h"
#include "app/view.h"
#include "race/race_state.h"
#include "race/scoring.h"
#include "store/race_file.h"
#include "ui/controls.h"
#include "ui/layout.h"
#include "ui/models.h"
#include "ui/pawns.h"
#include "ui/places.h"
#include "ui/score_pages.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/widgets.h"

#include <GL/gl.h>

#include <algorithm>
#include <string>

// Places on a page are told in units of the paper sheet that the picture shows.
constexpr float PAPER_W = 1072.0f;
constexpr float PAPER_H = 1419.0f;

constexpr float TEAM_STEP = 141.0f; // from column to column of the team table
constexpr float TEAM_ROW = 74.25f;

static float sheetX(float u)
{
    return layout.scorecardX + u * layout.scorecardW / PAPER_W;
}

static float sheetY(float v)
{
    return layout.scorecardY + v * layout.scorecardPicH / PAPER_H;
}

static void write(float u, float v, Align align, std::string_view text, Font font = FONT_BODY)
{
    drawText(sheetX(u), sheetY(v), align, text, font);
}

static float widthOf(std::string_view text)
{
    return static_cast<float>(textWidth(text, FONT_BODY));
}

static float times(float step, int i)
{
    return step * static_cast<float>(i);
}

static void drawList(unsigned list, float x, float y)
{
    glPushMatrix();
    glTranslatef(x, y, 0.0f);
    glCallList(list);
    glPopMatrix();
}

static void drawSprintPlaces(const Table<int, RESULT_SLOT_COUNT>& slots, const StagePoints& points)
{
    for (int slot = 0; slot < FINISH_SLOT; ++slot) {
        const int rider = slots[slot];
        if (rider == -1 || (points.place[rider] == -1 && !shownStageRuns()))
            continue;
        const float u = 690.0f + times(128.0f, slot / SPRINT_PLACES);
        const float v = 614.0f + times(66.0f, slot % SPRINT_PLACES);
        drawPawnAt(rider, sheetX(u), sheetY(v), SMALL_PAWN);
    }
}

static void drawFinisher(const StagePoints& points, int rider)
{
    const float v = 395.0f + times(59.6f, points.place[rider]);
    drawPawnAt(rider, sheetX(159.0f), sheetY(v), SMALL_PAWN);
    setColour(BLACK);
    write(299.0f, v, ALIGN_CENTRE, std::to_string(points.sprint[rider]));
    write(381.0f, v, ALIGN_CENTRE, riderTotalText(points, rider));
}

static void drawStagePage(const Table<int, RESULT_SLOT_COUNT>& slots)
{
    const StagePoints points = stagePoints(slots, shownStageRuns());
    drawList(lists.scorecardList, layout.scorecardX, layout.scorecardY);
    drawSprintPlaces(slots, points);
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        if (points.place[rider] != -1)
            drawFinisher(points, rider);
    setColour(BLACK);
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        write(513.0f + times(TEAM_STEP, riderTeam(rider)),
              987.0f + times(TEAM_ROW, riderPlace(rider)), ALIGN_CENTRE,
              riderTotalText(points, rider));
    for (int team = 0; team < TEAM_COUNT; ++team)
        write(513.0f + times(TEAM_STEP, team), 1281.5f, ALIGN_CENTRE, teamTotalText(points, team));
}

static void drawTeamOrder(const GeneralPoints& sums)
{
    const Table<int, TEAM_COUNT> order = teamOrder(sums.team);
    for (int i = 0; i < TEAM_COUNT; ++i) {
        const float v = 200.0f + times(60.0f, i);
        const int team = order[i];
        write(270.0f, v, ALIGN_LEFT, std::to_string(i + 1));
        const std::string numbers = teamNumbersText(team);
        const std::string sum = std::to_string(sums.team[team]);
        write(300.0f, v, ALIGN_LEFT,
              cutToWidth(scorecardTeamName(team), sheetX(610.0f) - sheetX(300.0f) - 4.0f));
        write(610.0f, v, ALIGN_LEFT, numbers);
        // On a small sheet a sum of four digits would run into the numbers.
        const float numbersEnd = sheetX(610.0f) + widthOf(numbers);
        const float right = std::max(sheetX(810.0f), numbersEnd + 6.0f + widthOf(sum));
        drawText(right, sheetY(v), ALIGN_RIGHT, sum);
    }
}

// The team table of the sheet, moved to the middle of the page.
static void drawGeneralPage()
{
    const GeneralPoints sums = generalPoints();
    drawList(lists.scorecardInnerList, layout.scorecardX + layout.scorecardInnerX,
             layout.scorecardY + layout.scorecardInnerY);
    setColour(BLACK);
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        write(330.0f + times(TEAM_STEP, riderTeam(rider)),
              676.0f + times(TEAM_ROW, riderPlace(rider)), ALIGN_CENTRE,
              std::to_string(sums.rider[rider]));
    for (int team = 0; team < TEAM_COUNT; ++team)
        write(330.0f + times(TEAM_STEP, team), 973.0f, ALIGN_CENTRE,
              std::to_string(sums.team[team]));
    drawTeamOrder(sums);
}

static void drawTitle()
{
    setColour(BLACK);
    drawText(layout.stageTitleX, layout.stageTitleY, ALIGN_CENTRE, scorePageTitle(), FONT_TITLE);
}

static void drawPageControls()
{
    if (!generalPageShown()) {
        drawControl(CONTROL_PREVIOUS_STAGE);
        drawControl(CONTROL_NEXT_STAGE);
    }
    drawControl(CONTROL_GENERAL);
    drawControl(CONTROL_STAGE);
}

// Between the tables and the buttons, where every page is free.
static void drawExportMessage()
{
    const std::vector<std::string> lines = exportMessage();
    setColour(view.exportStatus == EXPORT_FAILED ? FAILURE_RED : BLACK);
    float v = lines.size() == 1 ? 1371.0f : 1354.0f;
    for (const std::string& line : lines) {
        write(PAPER_W * 0.5f, v, ALIGN_CENTRE, line);
        v += 36.0f;
    }
}

void drawScorecard()
{
    const Rect sheet = scorecardBox();
    drawDialogBox(sheet.x, sheet.y, sheet.w, sheet.h);
    if (generalPageShown())
        drawGeneralPage();
    else
        drawStagePage(shownSlots());
    if (raceSetup.multiStage) {
        drawTitle();
        drawPageControls();
    }
    drawControl(CONTROL_EXPORT);
    drawControl(gameState == STATE_FINAL_SCORECARD ? CONTROL_SHEET_QUIT : CONTROL_SHEET_OK);
    drawExportMessage();
}
