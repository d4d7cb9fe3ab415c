#include "play/stage_end.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/view.h"
#include "race/race_state.h"
#include "store/race_file.h"

// The stage stays in memory whatever comes of it, so that the next write holds it.
static void saveRace()
{
    gameState = writeRace(raceSetup.raceFileName) ? STATE_FINAL_SCORECARD : STATE_SAVE_FAILED;
    redrawNow();
}

void closeStage()
{
    returnState = STATE_RACE_CLOSED;
    gameState = STATE_FINAL_SCORECARD;
    view.scorecardGeneral = false;
    view.scorecardStage = static_cast<int>(raceSetup.raceStages.size());
    if (raceSetup.multiStage) {
        appendStage();
        saveRace();
    }
    redrawNow();
}

void retrySave()
{
    if (gameState == STATE_SAVE_FAILED)
        saveRace();
}

void abortSave()
{
    if (gameState != STATE_SAVE_FAILED)
        return;
    enter(STATE_FINAL_SCORECARD);
}
