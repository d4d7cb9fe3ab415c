#include "ui/screens.h"

#include "race/race_state.h"
#include "store/race_file.h"
#include "ui/controls.h"
#include "ui/layout.h"
#include "ui/pawns.h"
#include "ui/places.h"
#include "ui/race_list.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/widgets.h"

#include <algorithm>

// What stands in the columns shown, by its place from the upper left downward.
static void drawName(int place, const std::string& fileName)
{
    const Rect frame = raceListFrame();
    const float column = static_cast<float>(place / raceListRows);
    const float row = static_cast<float>(place % raceListRows);
    const std::string name = raceBaseNameOf(fileName);
    setColour(name == raceSetup.raceBaseName ? YELLOW : WHITE);
    drawText(frame.x + layout.raceListInset + column * layout.raceListColW,
             frame.y + (row + 1.0f) * layout.raceListRowH, ALIGN_LEFT,
             cutToWidth(shownFileName(name), layout.raceListColW - 2.0f * layout.raceListInset));
}

static void drawNames()
{
    const auto& names = raceList.raceFileList;
    const int first = raceList.raceListPage * raceListRows;
    const int end = std::min(first + raceListCols * raceListRows, static_cast<int>(names.size()));
    for (int entry = first; entry < end; ++entry)
        drawName(entry - first, names[static_cast<std::size_t>(entry)]);
}

static void drawGreyBox(float x, float y, std::string_view label, bool checked)
{
    drawCheckBox(static_cast<int>(x), static_cast<int>(y), static_cast<int>(layout.teamCheckSize),
                 label, NO_ACCESS_KEY, false, checked);
}

static void drawTeamOfRace(int team, float y)
{
    const float viewW = static_cast<float>(layout.viewW);
    const float nameX = layout.raceListX + layout.raceTeamRowH;
    const float boxX = layout.raceListX + viewW * 0.14f;
    drawPawnAt(team * RIDERS_PER_TEAM, layout.raceListX + viewW * 0.01f, y, SMALL_PAWN);
    setColour(WHITE);
    drawText(nameX, y, ALIGN_LEFT, cutToWidth(racePreview.teamName[team], boxX - nameX));
    drawGreyBox(boxX, y - layout.teamCheckSize * 0.5f, texts.computerPlayer,
                !racePreview.isHuman[team]);
}

static void drawChosenRace()
{
    const float rows = static_cast<float>(raceListRows + 2);
    const float y = layout.raceListY + rows * layout.raceListRowH;
    setColour(WHITE);
    drawText(layout.raceListX, y, ALIGN_LEFT,
             cutToWidth(shownFileName(raceSetup.raceBaseName), raceListFrame().w));
    for (int team = 0; team < TEAM_COUNT; ++team)
        drawTeamOfRace(team, y + static_cast<float>(team + 1) * layout.raceTeamRowH);
    drawGreyBox(layout.raceListX, y + 5.0f * layout.raceTeamRowH, texts.enableEventCards,
                racePreview.eventCardsOn);
}

void drawRaceFiles()
{
    refreshRaceList();
    const Rect frame = raceListFrame();
    setColour(WHITE);
    outlineRect(frame.x, frame.y, frame.w, frame.h);
    drawNames();
    if (raceChosen())
        drawChosenRace();

    for (const Control control : {CONTROL_LIST_PREVIOUS, CONTROL_LIST_NEXT, CONTROL_LIST_OK,
                                  CONTROL_LIST_SCORECARD, CONTROL_LIST_BACK})
        drawControl(control);
}
