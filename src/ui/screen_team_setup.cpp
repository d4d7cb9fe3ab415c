#include "ui/screens.h"

#include "app/game_state.h"
#include "race/race_state.h"
#include "ui/controls.h"
#include "ui/layout.h"
#include "ui/pawns.h"
#include "ui/places.h"
#include "ui/team_setup.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/widgets.h"

// Behind the dialog of STATE_SETUP_MESSAGE everything is grey.
static bool choicesOpen()
{
    return gameState == STATE_TEAM_SETUP;
}

static void drawNameField(int field, const Rect& at, const std::string& name, bool enabled)
{
    const bool hasCursor = enabled && teamSetup.teamActiveField == field;
    drawTextBox(static_cast<int>(at.x), static_cast<int>(at.y), static_cast<int>(at.w),
                static_cast<int>(at.h), name, hasCursor, teamSetup.teamCursor, enabled);
}

static void drawTeamRow(int team)
{
    const int firstRider = team * RIDERS_PER_TEAM;
    const Rect name = teamNameBox(team);
    drawPawnAt(firstRider, layout.teamNameX * 0.95f, name.y + name.h * 0.5f, SMALL_PAWN);
    drawNameField(team, name, raceSetup.teamName[team], choicesOpen());
    drawCheckControl(static_cast<Control>(CONTROL_COMPUTER_1 + team),
                     !race.riders[firstRider].isHuman);
}

static void drawStageChoice(float y, Control control, bool selected)
{
    drawRadioButton(static_cast<int>(layout.stageRadioX), static_cast<int>(y),
                    static_cast<int>(layout.stageRowH * 0.5f), selected, choicesOpen());
    setColour(choicesOpen() ? WHITE : disabledGrey);
    drawText(layout.stageRadioX + layout.stageRowH, y, ALIGN_LEFT, controlLabel(control));
}

static void drawStages()
{
    drawStageChoice(layout.multiStageY, CONTROL_MULTI_STAGE, raceSetup.multiStage);
    drawStageChoice(layout.singleStageY, CONTROL_SINGLE_STAGE, !raceSetup.multiStage);

    const bool named = choicesOpen() && raceSetup.multiStage;
    setColour(named ? WHITE : disabledGrey);
    drawText(layout.stageRadioX + layout.stageRowH * 1.5f, layout.multiStageY + layout.stageRowH,
             ALIGN_LEFT, texts.raceName);
    drawNameField(TEAM_COUNT, raceNameBox(), raceSetup.raceName, named);
}

void drawTeamSetup()
{
    setColour(WHITE);
    drawText(static_cast<float>(layout.viewW) * 0.5f, static_cast<float>(layout.viewH) * 0.37f,
             ALIGN_CENTRE, texts.teamSetupTitle, FONT_TITLE);
    for (int team = 0; team < TEAM_COUNT; ++team)
        drawTeamRow(team);
    drawStages();

    drawCheckControl(CONTROL_EVENT_CARDS, raceSetup.eventCardsOn);
    drawControl(CONTROL_TEAM_BACK);
    drawControl(CONTROL_TEAM_OK);
}
