#include "ui/screens.h"

#include "app/game_state.h"
#include "race/race_state.h"
#include "ui/controls.h"
#include "ui/layout.h"
#include "ui/pawns.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/widgets.h"

// Teams are the computer's and races have one stage without event cards until persons can play:
// what would change that is drawn as it stands, but grey.
constexpr bool CHOICES_OPEN = false;

static void drawTeamRow(int team)
{
    const int firstRider = team * RIDERS_PER_TEAM;
    const Rect name = teamNameBox(team);
    const Rect box = teamComputerBox(team);
    drawPawnAt(firstRider, layout.teamNameX * 0.95f, name.y + name.h * 0.5f, SMALL_PAWN);
    drawTextBox(static_cast<int>(name.x), static_cast<int>(name.y), static_cast<int>(name.w),
                static_cast<int>(name.h), raceSetup.teamName[team], false, 0, CHOICES_OPEN);
    drawCheckBox(static_cast<int>(box.x), static_cast<int>(box.y),
                 static_cast<int>(layout.teamCheckSize), texts.computerPlayer, NO_ACCESS_KEY,
                 CHOICES_OPEN, !race.riders[firstRider].isHuman);
}

static void drawStageChoice(float y, const std::string& label, bool selected)
{
    drawRadioButton(static_cast<int>(layout.stageRadioX), static_cast<int>(y),
                    static_cast<int>(layout.stageRowH * 0.5f), selected, CHOICES_OPEN);
    setColour(CHOICES_OPEN ? WHITE : disabledGrey);
    drawText(layout.stageRadioX + layout.stageRowH, y, ALIGN_LEFT, label);
}

static void drawStages()
{
    drawStageChoice(layout.multiStageY, texts.multipleStages, raceSetup.multiStage);
    drawStageChoice(layout.singleStageY, texts.singleStage, !raceSetup.multiStage);

    setColour(disabledGrey);
    drawText(layout.stageRadioX + layout.stageRowH * 1.5f, layout.multiStageY + layout.stageRowH,
             ALIGN_LEFT, texts.raceName);
    const Rect name = raceNameBox();
    drawTextBox(static_cast<int>(name.x), static_cast<int>(name.y), static_cast<int>(name.w),
                static_cast<int>(name.h), raceSetup.raceName, false, 0, false);
}

void drawTeamSetup()
{
    setColour(WHITE);
    drawText(static_cast<float>(layout.viewW) * 0.5f, static_cast<float>(layout.viewH) * 0.37f,
             ALIGN_CENTRE, texts.teamSetupTitle, FONT_TITLE);
    for (int team = 0; team < TEAM_COUNT; ++team)
        drawTeamRow(team);
    drawStages();

    const Rect events = eventCardsBox();
    drawCheckBox(static_cast<int>(events.x), static_cast<int>(events.y),
                 static_cast<int>(layout.teamCheckSize), texts.enableEventCards, NO_ACCESS_KEY,
                 CHOICES_OPEN, raceSetup.eventCardsOn);

    const bool open = gameState == STATE_TEAM_SETUP;
    const Rect back = cornerButton();
    const Rect ok = teamOkButton();
    drawButton(back.x, back.y, back.w, back.h, open, texts.teamBack, NO_ACCESS_KEY);
    drawButton(ok.x, ok.y, ok.w, ok.h, open, "OK", NO_ACCESS_KEY);
}
