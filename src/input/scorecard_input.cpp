#include "input/scorecard_input.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/settings.h"
#include "app/view.h"
#include "play/overlays.h"
#include "store/standings_export.h"
#include "ui/score_pages.h"
#include "ui/texts.h"

#include <GL/freeglut.h>

static void turnTo(int stage)
{
    view.scorecardStage = stage;
    redrawNow();
}

void turnStageBack()
{
    if (mayTurnBack())
        turnTo(shownStage() - 1);
}

void turnStageOn()
{
    if (mayTurnOn())
        turnTo(shownStage() + 1);
}

void showGeneral()
{
    if (!mayShowGeneral())
        return;
    view.scorecardGeneral = true;
    redrawNow();
}

void showLastStage()
{
    if (!mayShowStage())
        return;
    view.scorecardGeneral = false;
    turnTo(lastStage());
}

void exportSheet()
{
    exportStandings({.generalAfterStage = texts.generalAfterStage,
                     .standings = texts.standings,
                     .result = texts.result,
                     .stage = texts.stage});
}

void leaveScorecard()
{
    view.exportStatus = EXPORT_NONE;
    gameState == STATE_FINAL_SCORECARD ? toMainMenu() : closeOverlay();
}

void keyInScorecard(unsigned char key)
{
    const bool dutch = settings.language == LANGUAGE_DUTCH;
    if (dutch && gameState != STATE_FINAL_SCORECARD && (key == 't' || key == 'T'))
        showGeneral();
}

void specialInScorecard(int key)
{
    if (key == GLUT_KEY_LEFT)
        turnStageBack();
    else if (key == GLUT_KEY_RIGHT)
        turnStageOn();
}
