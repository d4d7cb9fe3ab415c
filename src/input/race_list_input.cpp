#include "input/race_list_input.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/view.h"
#include "input/actions.h"
#include "play/overlays.h"
#include "race/race_state.h"
#include "store/race_file.h"
#include "ui/race_list.h"

#include <algorithm>

void openRaceFiles()
{
    raceSetup.multiStage = true;
    forgetRaceFiles();
    openRaceList();
    enter(STATE_RACE_FILES);
}

// The page of the scorecard that was looked at last stays in view, as far as this race has it.
static void keepStageWithinRace()
{
    const int last = static_cast<int>(raceSetup.raceStages.size()) - 1;
    view.scorecardStage = std::clamp(view.scorecardStage, 0, std::max(0, last));
}

static void previewRace()
{
    readRacePreview(raceSetup.raceFileName);
    keepStageWithinRace();
}

static void chooseRace(int entry)
{
    nameRaceFiles(raceBaseNameOf(raceList.raceFileList[static_cast<std::size_t>(entry)]));
    previewRace();
    redrawNow();
}

// A race whose file can't be read stays on the list: to go on without its stages would lose them
// when the next one is written.
void continueRace()
{
    if (!raceChosen())
        return;
    if (!readRace(raceSetup.raceFileName))
        return redrawNow();
    keepStageWithinRace();
    goToCourses();
}

void openStandings()
{
    if (!raceChosen())
        return;
    previewRace();
    openOverlay(STATE_RACE_STANDINGS);
}

void turnRaceList(int columns)
{
    raceList.raceListPage += columns;
    redrawNow();
}

bool releaseOnRaceName(int x, int y)
{
    const int entry = raceEntryAt(x, y);
    if (entry != -1)
        chooseRace(entry);
    return entry != -1;
}
