#include "race/scoring.h"

#include "play/stage_end.h"
#include "store/race_file.h"
#include "support/own_folder.h"
#include "support/races.h"

#include <gtest/gtest.h>

namespace
{

namespace fs = std::filesystem;

using Slots = Table<int, RESULT_SLOT_COUNT>;
using Sums = Table<int, TEAM_COUNT>;

using Place = std::pair<int, int>; // the slot and who has it

Slots places(std::initializer_list<Place> given)
{
    Slots slots = filled<int, RESULT_SLOT_COUNT>(-1);
    for (const auto& [slot, rider] : given)
        slots[slot] = rider;
    return slots;
}

// The end of a stage of a race of several, with these places.
void endStage(const Slots& slots, bool multiStage = true)
{
    raceSetup.multiStage = multiStage;
    raceSetup.raceFileName = "Tour.race";
    race.resultSlots = slots;
    closeStage();
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
    recordCrossing(30, 31, 5); // he was set back, and his second place is his too
    EXPECT_EQ(race.resultSlots[1], 5);
}

TEST(Crossing, ASprintHasThreePlacesTheFinishSixteen)
{
    setUpRace(ONE_LAP, {});
    for (int rider = RIDER_COUNT - 1; rider >= 0; --rider) {
        recordCrossing(97, 99, rider);
        recordCrossing(110, 120, rider);
    }
    EXPECT_EQ(race.resultSlots[8], 13);
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        EXPECT_EQ(race.resultSlots[RESULT_SLOT_COUNT - 1 - rider], rider);
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
    for (const bool running : {false, true}) {
        const StagePoints points = stagePoints(slots, running);
        EXPECT_EQ(points.total[1], 55);
        EXPECT_EQ(points.total[9], 11);
        EXPECT_EQ(points.place[9], 15);
        EXPECT_EQ(points.sprint[2], running ? 10 : 0); // shown while he may still finish
        EXPECT_EQ(points.total[2], -1);
        EXPECT_EQ(points.team, (Sums{85, 0, 11, 0}));
        EXPECT_EQ(teamOrder(points.team), (Sums{0, 2, 1, 3})); // of equal ones the lower first
    }
}

TEST(CloseStage, AStageOfSeveralIsAddedAndWritten)
{
    const OwnFolder folder;
    setUpRace(FROM_START_2, {});
    endStage(places({}), false);
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_TRUE(raceSetup.raceStages.empty() && fs::is_empty(".")); // nothing of a single stage

    raceSetup.raceStages.resize(2);
    view.scorecardGeneral = true;
    const Slots slots = places({{0, 6}, {1, 6}, {FINISH_SLOT + 1, 6}});
    endStage(slots);
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_EQ(returnState, STATE_RACE_CLOSED);
    EXPECT_EQ(view.scorecardStage, 2);
    EXPECT_FALSE(view.scorecardGeneral);
    ASSERT_TRUE(readRace("Tour.race"));
    EXPECT_EQ(raceSetup.raceStages.at(2).slots, slots);

    fs::remove("Tour.race");
    fs::create_directory("Tour.race"); // in the way
    endStage(slots);
    EXPECT_EQ(gameState, STATE_SAVE_FAILED);
    EXPECT_EQ(raceSetup.raceStages.size(), 4u); // in memory it is there
    fs::remove("Tour.race");
    retrySave();
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_EQ(fs::file_size("Tour.race"), 57u + 4 * 116);
}
