#include "play/overlays.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/settings.h"
#include "app/view.h"
#include "race/race_state.h"

void openOverlay(GameState state)
{
    returnState = gameState;
    enter(state);
}

void openQuitConfirm()
{
    openOverlay(STATE_CONFIRM_QUIT);
}

void openScorecard()
{
    view.scorecardGeneral = false;
    view.scorecardStage = static_cast<int>(raceSetup.raceStages.size());
    openOverlay(STATE_SCORECARD);
}

void openPositions()
{
    openOverlay(STATE_POSITIONS);
}

void openSettings()
{
    settingsBackup = settings;
    openOverlay(STATE_SETTINGS);
}

void closeOverlay()
{
    gameState = returnState;
    redrawNow();
    if (gameState == STATE_ANIMATE)
        armMoveTimer(0);
}

void toMainMenu()
{
    race.sprintWinner = -1;
    enter(STATE_MAIN_MENU);
}
