#include "input/scorecard_input.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/settings.h"
#include "app/view.h"
#include "input/keys.h"
#include "play/overlays.h"
#include "store/standings_export.h"
#include "ui/access_keys.h"
#include "ui/controls.h"
#include "ui/score_pages.h"
#include "ui/texts.h"

#include <GL/freeglut.h>

static void turnTo(int stage)
{
    view.scorecardStage = stage;
    redrawNow();
}

static void turnBack()
{
    if (mayTurnBack())
        turnTo(shownStage() - 1);
}

static void turnOn()
{
    if (mayTurnOn())
        turnTo(shownStage() + 1);
}

static void showGeneral()
{
    if (!mayShowGeneral())
        return;
    view.scorecardGeneral = true;
    redrawNow();
}

static void showLastStage()
{
    if (!mayShowStage())
        return;
    view.scorecardGeneral = false;
    turnTo(lastStage());
}

static void exportSheet()
{
    exportStandings({.generalAfterStage = texts.generalAfterStage,
                     .standings = texts.standings,
                     .result = texts.result,
                     .stage = texts.stage});
}

// "Quit" behind a stage, "OK" where there is something to go back to.
static void leaveScorecard()
{
    view.exportStatus = EXPORT_NONE;
    gameState == STATE_FINAL_SCORECARD ? toMainMenu() : closeOverlay();
}

void releaseInScorecard(int x, int y)
{
    if (scorecardOkButton().contains(x, y))
        leaveScorecard();
    else if (exportButton().contains(x, y))
        exportSheet();
    else if (generalViewButton().contains(x, y))
        showGeneral();
    else if (stageViewButton().contains(x, y))
        showLastStage();
    else if (prevStageButton().contains(x, y))
        turnBack();
    else if (nextStageButton().contains(x, y))
        turnOn();
}

// The Dutch word has no letter left: it takes that of "Quit" where there is no such button.
static bool isGeneralKey(unsigned char key)
{
    const bool dutch = settings.language == LANGUAGE_DUTCH;
    if (dutch && gameState != STATE_FINAL_SCORECARD && (key == 't' || key == 'T'))
        return true;
    return isAccessKey(CONTROL_GENERAL, key);
}

void keyInScorecard(unsigned char key)
{
    const bool final = gameState == STATE_FINAL_SCORECARD;
    if (final ? isAccessKey(CONTROL_QUIT, key) : isConfirming(key))
        leaveScorecard();
    else if (isAccessKey(CONTROL_EXPORT, key))
        exportSheet();
    else if (isGeneralKey(key))
        showGeneral();
    else if (isAccessKey(CONTROL_STAGE, key))
        showLastStage();
}

void specialInScorecard(int key)
{
    if (key == GLUT_KEY_LEFT)
        turnBack();
    else if (key == GLUT_KEY_RIGHT)
        turnOn();
}

void releaseInPositions(int x, int y)
{
    if (positionsOkButton().contains(x, y))
        closeOverlay();
}

void keyInPositions(unsigned char key)
{
    if (isConfirming(key))
        closeOverlay();
}
