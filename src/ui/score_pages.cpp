#include "ui/score_pages.h"

#include "app/game_state.h"
#include "app/view.h"
#include "race/scoring.h"
#include "ui/layout.h"
#include "ui/text.h"
#include "ui/texts.h"

#include <algorithm>

static int recordCount()
{
    return static_cast<int>(raceSetup.raceStages.size());
}

bool generalPageShown()
{
    return raceSetup.multiStage && view.scorecardGeneral;
}

int lastStage()
{
    return gameState == STATE_SCORECARD ? recordCount() : std::max(recordCount() - 1, 0);
}

int shownStage()
{
    return raceSetup.multiStage ? std::clamp(view.scorecardStage, 0, lastStage())
                                : view.scorecardStage;
}

bool shownStageRuns()
{
    return shownStage() == recordCount();
}

const Table<int, RESULT_SLOT_COUNT>& shownSlots()
{
    static constexpr Table<int, RESULT_SLOT_COUNT> nobody = filled<int, RESULT_SLOT_COUNT>(-1);
    if (raceSetup.multiStage && !shownStageRuns())
        return raceSetup.raceStages[static_cast<std::size_t>(shownStage())].slots;
    // The race in memory is another one than the race on the list.
    return gameState == STATE_RACE_STANDINGS ? nobody : race.resultSlots;
}

static bool stagePageOfSeveral()
{
    return raceSetup.multiStage && !view.scorecardGeneral;
}

bool mayTurnBack()
{
    return stagePageOfSeveral() && shownStage() > 0;
}

bool mayTurnOn()
{
    return stagePageOfSeveral() && shownStage() < lastStage();
}

bool mayShowGeneral()
{
    return stagePageOfSeveral() && recordCount() > 0;
}

bool mayShowStage()
{
    return generalPageShown();
}

std::string scorePageTitle()
{
    if (!raceSetup.multiStage)
        return "";
    if (view.scorecardGeneral)
        return texts.generalAfterStage + std::to_string(recordCount());
    const bool inProgress = gameState == STATE_SCORECARD && shownStageRuns();
    return (inProgress ? texts.standings : texts.result) + texts.stage +
           std::to_string(shownStage() + 1);
}

std::string riderTotalText(const StagePoints& points, int rider)
{
    if (points.place[rider] != -1)
        return std::to_string(points.total[rider]);
    // The riders in memory are not those of a race on the list.
    if (gameState == STATE_RACE_STANDINGS && shownStageRuns())
        return "";
    const bool stageOver = raceSetup.multiStage && !shownStageRuns();
    return stageOver || race.riders[rider].disqualified ? "0" : "";
}

std::string teamTotalText(const StagePoints& points, int team)
{
    const bool mayGrow = gameState == STATE_SCORECARD && shownStageRuns();
    return mayGrow && !wholeTeamIn(points, team) ? "" : std::to_string(points.team[team]);
}

std::string teamNumbersText(int team)
{
    const int first = riderNumber(team * RIDERS_PER_TEAM);
    return std::string{"("} + std::to_string(first) + "-" +
           std::to_string(first + RIDERS_PER_TEAM - 1) + ")";
}

std::vector<std::string> exportMessage()
{
    const float room = layout.scorecardW * 0.4f;
    const std::string file =
        std::string{"\""} + cutToWidth(shownFileName(raceSetup.standingsFileName), room) + "\"";
    if (view.exportStatus == EXPORT_WRITTEN)
        return {texts.standingsWritten + file + "."};
    if (view.exportStatus == EXPORT_FAILED)
        return {file + texts.couldNotOpen, texts.fileAlreadyOpen};
    return {};
}
