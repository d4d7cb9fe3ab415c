#include "store/standings_export.h"

#include "app/files.h"
#include "app/game_state.h"
#include "app/host.h"
#include "app/view.h"
#include "race/race_state.h"
#include "race/scoring.h"
#include "store/race_file.h"

#include <string>
#include <vector>

static constexpr std::string_view STAGE_HEAD =
    "Finish;Nr.;Score;Sprints;Tot.;;Score;Sprint 1;Sprint 2;Sprint 3\n";
static constexpr Table<std::string_view, SPRINT_PLACES> SPRINT_LEGEND = {
    ";1 = 10 ptn.;", ";2 = 5 ptn.;", ";3 = 3 ptn.;"};

static constexpr int TEAM_NAMES_LINE = 4; // beside which finish place, from 0
static constexpr int RIDERS_LINE = 5;
static constexpr int TEAM_SUMS_LINE = RIDERS_LINE + RIDERS_PER_TEAM;

struct StageBlock {
    const Table<int, RESULT_SLOT_COUNT>& slots;
    StagePoints points;
    bool running;
};

static std::string numberOf(int rider)
{
    return rider == -1 ? std::string{} : std::to_string(riderNumber(rider));
}

static std::string teamPlaces(const Table<int, TEAM_COUNT>& sums)
{
    std::string text;
    int place = 0;
    for (const int team : teamOrder(sums))
        text += std::to_string(++place) + ";" + scorecardTeamName(team) + ";" +
                std::to_string(sums[team]) + "\n";
    return text;
}

static std::string generalBlock(const ExportWords& words)
{
    const GeneralPoints points = generalPoints();
    std::string text{words.generalAfterStage};
    text += std::to_string(raceSetup.raceStages.size()) + "\n" + teamPlaces(points.team) + "\n";
    for (int team = 0; team < TEAM_COUNT; ++team)
        text += scorecardTeamName(team) + ";;";
    text += "\n";
    for (int place = 0; place < RIDERS_PER_TEAM; ++place) {
        for (int team = 0; team < TEAM_COUNT; ++team) {
            const int rider = team * RIDERS_PER_TEAM + place;
            text += numberOf(rider) + ";" + std::to_string(points.rider[rider]) + ";";
        }
        text += "\n";
    }
    for (const int sum : points.team)
        text += "Tot.;" + std::to_string(sum) + ";";
    return text + "\n\n";
}

// Who came in at a place and with how many points.
static std::string finishColumns(const StageBlock& stage, int place)
{
    const int slot = FINISH_SLOT + place;
    const int rider = stage.slots[slot];
    std::string text = std::to_string(place + 1) + ";" + numberOf(rider) + ";" +
                       std::to_string(placePoints[slot]) + ";";
    if (rider == -1)
        return text + ";;";
    return text + std::to_string(stage.points.sprint[rider]) + ";" +
           std::to_string(stage.points.total[rider]) + ";";
}

static std::string sprintColumns(const StageBlock& stage, int place)
{
    std::string text{SPRINT_LEGEND[place]};
    for (int sprint = 0; sprint < SPRINT_COUNT; ++sprint)
        text += numberOf(stage.slots[sprint * SPRINT_PLACES + place]) + ";";
    return text;
}

static std::string teamNameColumns()
{
    std::string text;
    for (int team = 0; team < TEAM_COUNT; ++team)
        text += (team == 0 ? ";" : ";;") + scorecardTeamName(team);
    return text;
}

static std::string riderColumns(const StageBlock& stage, int place)
{
    std::string text = ";";
    for (int team = 0; team < TEAM_COUNT; ++team) {
        const int rider = team * RIDERS_PER_TEAM + place;
        text += numberOf(rider) + ";";
        if (stage.points.total[rider] != -1)
            text += std::to_string(stage.points.total[rider]);
        else if (!stage.running)
            text += "0";
        text += ';';
    }
    return text;
}

// A team's sum is final, and shown, once its last rider is in.
static std::string teamSumColumns(const StageBlock& stage)
{
    std::string text;
    for (int team = 0; team < TEAM_COUNT; ++team) {
        text += ";Tot.;";
        if (!stage.running || wholeTeamIn(stage.points, team))
            text += std::to_string(stage.points.team[team]);
    }
    return text;
}

// What stands to the right of a finish place: sprints first, below them the teams side by side.
static std::string columnsBeside(const StageBlock& stage, int place)
{
    if (place < SPRINT_PLACES)
        return sprintColumns(stage, place);
    if (place == TEAM_NAMES_LINE)
        return teamNameColumns();
    if (place >= RIDERS_LINE && place < TEAM_SUMS_LINE)
        return riderColumns(stage, place - RIDERS_LINE);
    if (place == TEAM_SUMS_LINE)
        return teamSumColumns(stage);
    return {};
}

static std::string stageBlock(const ExportWords& words, std::size_t number,
                              const Table<int, RESULT_SLOT_COUNT>& slots, bool running)
{
    const StageBlock stage{slots, stagePoints(slots, running), running};
    std::string text{running ? words.standings : words.result};
    text += std::string(words.stage) + std::to_string(number) + "\n";
    text += STAGE_HEAD;
    for (int place = 0; place < RIDER_COUNT; ++place)
        text += finishColumns(stage, place) + columnsBeside(stage, place) + "\n";
    return text + "\n";
}

static std::string standingsText(const ExportWords& words)
{
    const auto& stages = raceSetup.raceStages;
    std::string text;
    if (raceSetup.multiStage && !stages.empty())
        text += generalBlock(words);
    for (std::size_t i = 0; i < stages.size(); ++i)
        text += stageBlock(words, i + 1, stages[i].slots, false);
    if (gameState == STATE_SCORECARD)
        text += stageBlock(words, stages.size() + 1, race.resultSlots, true);
    else if (!raceSetup.multiStage && gameState == STATE_FINAL_SCORECARD)
        text += stageBlock(words, stages.size() + 1, race.resultSlots, false);
    return text;
}

void exportStandings(const ExportWords& words)
{
    const std::string text = standingsText(words);
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    const bool written = writeWholeFile(raceSetup.standingsFileName.c_str(), bytes);
    view.exportStatus = written ? EXPORT_WRITTEN : EXPORT_FAILED;
    redrawNow();
}
