#include "race/scoring.h"

#include "play/stage_end.h"
#include "support/own_folder.h"
#include "support/races.h"

#include <gtest/gtest.h>

namespace
{

namespace fs = std::filesystem;

using Slots = Table<int, RESULT_SLOT_COUNT>;
using Sums = Table<int, TEAM_COUNT>;

// Nobody has a place but these: slot and rider.
Slots places(std::initializer_list<std::pair<int, int>> given)
{
    Slots slots = filled<int, RESULT_SLOT_COUNT>(-1);
    for (const auto& [slot, rider] : given)
        slots[slot] = rider;
    return slots;
}

// The end of a stage of a race of several, with these places.
void endStage(const Slots& slots)
{
    setUpRace(FROM_START_2, {});
    raceSetup.multiStage = true;
    raceSetup.raceFileName = "Tour.race";
    race.resultSlots = slots;
}

} // namespace

TEST(Crossing, ALineIsCrossedByLeavingItsRow)
{
    setUpRace(ONE_LAP, {});
    recordCrossing(29, 30, 5);
    EXPECT_EQ(race.resultSlots, places({}));
    recordCrossing(30, 31, 5);
    recordCrossing(31, 35, 5);
    EXPECT_EQ(race.resultSlots, places({{0, 5}}));
    recordCrossing(97, 99, 3);
    recordCrossing(60, 115, 7); // several with one move
    EXPECT_EQ(race.resultSlots, places({{0, 5}, {3, 7}, {6, 3}, {7, 7}, {FINISH_SLOT, 7}}));

    setUpRace(FROM_START_2, {}); // has but one sprint
    recordCrossing(0, 61, 6);
    EXPECT_EQ(race.resultSlots, places({{0, 6}, {FINISH_SLOT, 6}}));
}

TEST(Crossing, ASprintHasThreePlacesTheFinishSixteen)
{
    setUpRace(ONE_LAP, {});
    for (const int rider : {4, 9, 4, 8}) // set back behind the line, a rider crosses it again
        recordCrossing(97, 98, rider);
    EXPECT_EQ(race.resultSlots, places({{6, 4}, {7, 9}, {8, 4}})); // nothing for the fourth
    EXPECT_EQ(race.sprintWinner, 4);
    for (int rider = RIDER_COUNT - 1; rider >= 0; --rider)
        recordCrossing(110, 120, rider);
    EXPECT_EQ(race.resultSlots[RESULT_SLOT_COUNT - 1], 0);
    EXPECT_EQ(race.sprintWinner, 15);
}

TEST(Points, SprintsCountForThoseWhoFinish)
{
    const Slots slots = places({{0, 1},
                                {4, 1},
                                {6, 2},
                                {8, 9},                  // 10, 5, 10 and 3
                                {FINISH_SLOT + 1, 1},    // 40
                                {FINISH_SLOT + 4, 3},    // 30
                                {FINISH_SLOT + 15, 9}}); // 8
    const StagePoints ended = stagePoints(slots, false);
    EXPECT_EQ(ended.total[1], 55);
    EXPECT_EQ(ended.total[9], 11);
    EXPECT_EQ(ended.place[9], 15);
    EXPECT_EQ(ended.sprint[2], 0);
    EXPECT_EQ(ended.total[2], -1);
    EXPECT_EQ(ended.team, (Sums{85, 0, 11, 0}));

    const StagePoints running = stagePoints(slots, true);
    EXPECT_EQ(running.sprint[2], 10); // shown while he may still finish
    EXPECT_EQ(running.total[2], -1);
    EXPECT_EQ(running.team, (Sums{85, 0, 11, 0}));
}

TEST(Points, OfTheRaceAreThoseOfTheStagesEnded)
{
    setUpRace(FROM_START_2, {});
    raceSetup.raceStages = {
        {{}, places({{0, 5}, {FINISH_SLOT, 0}})}, // rider 5 didn't finish: no sprint either
        {{}, places({{0, 5}, {FINISH_SLOT, 5}, {FINISH_SLOT + 1, 0}})}};
    race.resultSlots = places({{FINISH_SLOT, 12}});
    const GeneralPoints sums = generalPoints();
    EXPECT_EQ(sums.rider[0], 50 + 40);
    EXPECT_EQ(sums.rider[5], 60);
    EXPECT_EQ(sums.team, (Sums{90, 60, 0, 0}));
}

TEST(Points, OnEqualSumsTheLowerTeamStandsHigher)
{
    EXPECT_EQ(teamOrder({30, 50, 30, 50}), (Sums{1, 3, 0, 2}));
    EXPECT_EQ(teamOrder({0, 0, 0, 0}), (Sums{0, 1, 2, 3}));
}

TEST(CloseStage, AStageOfSeveralIsAddedWithoutTheDisqualifiedAndWritten)
{
    const OwnFolder folder;
    endStage(places({{FINISH_SLOT, 5}, {FINISH_SLOT + 1, 6}}));
    raceSetup.raceStages.resize(2);
    view.scorecardGeneral = true;
    race.riders[5].disqualified = 1;
    closeStage();
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_EQ(returnState, STATE_RACE_CLOSED);
    ASSERT_EQ(raceSetup.raceStages.size(), 3u);
    EXPECT_EQ(raceSetup.raceStages[2].slots, places({{FINISH_SLOT + 1, 6}})); // nobody moves up
    EXPECT_EQ(view.scorecardStage, 2);
    EXPECT_FALSE(view.scorecardGeneral);
    EXPECT_EQ(fs::file_size("Tour.race"), 57u + 3 * 116);
}

TEST(CloseStage, ARaceThatCantBeWrittenIsAskedAboutAndStaysInMemory)
{
    const OwnFolder folder;
    endStage(places({}));
    fs::create_directory("Tour.race"); // in the way
    closeStage();
    EXPECT_EQ(gameState, STATE_SAVE_FAILED);
    retrySave();
    EXPECT_EQ(gameState, STATE_SAVE_FAILED);
    fs::remove("Tour.race");
    retrySave();
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_EQ(returnState, STATE_RACE_CLOSED);
    EXPECT_EQ(fs::file_size("Tour.race"), 57u + 116);

    gameState = STATE_SAVE_FAILED;
    abortSave();
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_EQ(raceSetup.raceStages.size(), 1u);

    endStage(places({}));
    raceSetup.multiStage = false;
    closeStage();
    EXPECT_TRUE(raceSetup.raceStages.empty()); // of a single stage nothing is kept
}
