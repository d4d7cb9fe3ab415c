#include "race/scoring.h"

#include "app/game_state.h"
#include "app/view.h"
#include "board/course.h"
#include "support/races.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace
{

constexpr std::string_view THREE_SPRINTS = "01S23S4S5F12"; // rows 30, 60, 97; finish row 114
constexpr std::string_view ONE_SPRINT = "64S5F12";         // row 43; finish row 60

using Slots = Table<int, RESULT_SLOT_COUNT>;
using Sums = Table<int, TEAM_COUNT>;

Slots noPlaces()
{
    return filled<int, RESULT_SLOT_COUNT>(-1);
}

// How many places are given away.
std::ptrdiff_t placesTaken()
{
    return RESULT_SLOT_COUNT - std::ranges::count(race.resultSlots, -1);
}

} // namespace

TEST(Crossing, ALineIsCrossedByLeavingItsRow)
{
    setUpRace(THREE_SPRINTS, {});
    recordCrossing(29, 30, 5);
    EXPECT_EQ(placesTaken(), 0);
    recordCrossing(30, 31, 5);
    EXPECT_EQ(race.resultSlots[0], 5);
    recordCrossing(31, 35, 5);
    EXPECT_EQ(placesTaken(), 1);
}

TEST(Crossing, OneMoveMayCrossSeveralLines)
{
    setUpRace(THREE_SPRINTS, {});
    recordCrossing(97, 99, 3);
    recordCrossing(60, 115, 7);
    EXPECT_EQ(race.resultSlots[3], 7);
    EXPECT_EQ(race.resultSlots[6], 3);
    EXPECT_EQ(race.resultSlots[7], 7);
    EXPECT_EQ(race.resultSlots[FINISH_SLOT], 7);
    EXPECT_EQ(placesTaken(), 4);
}

TEST(Crossing, ASprintHasThreePlacesTheFinishSixteen)
{
    setUpRace(THREE_SPRINTS, {});
    for (const int rider : {4, 9, 2, 8})
        recordCrossing(97, 98, rider);
    EXPECT_EQ(race.resultSlots[6], 4);
    EXPECT_EQ(race.resultSlots[8], 2);
    EXPECT_EQ(placesTaken(), 3); // nothing for the fourth, nor a place of the next line
    EXPECT_EQ(race.sprintWinner, 4);
    for (int rider = RIDER_COUNT - 1; rider >= 0; --rider)
        recordCrossing(110, 120, rider);
    EXPECT_EQ(race.resultSlots[FINISH_SLOT], 15);
    EXPECT_EQ(race.resultSlots[RESULT_SLOT_COUNT - 1], 0);
    EXPECT_EQ(race.sprintWinner, 15);
}

TEST(Crossing, SprintsThatTheCourseLacksAreNotCrossed)
{
    setUpRace(ONE_SPRINT, {});
    recordCrossing(0, 61, 6);
    EXPECT_EQ(race.resultSlots[0], 6);
    EXPECT_EQ(race.resultSlots[FINISH_SLOT], 6);
    EXPECT_EQ(placesTaken(), 2);
}

TEST(StagePoints, SprintsCountForThoseWhoFinish)
{
    Slots slots = noPlaces();
    slots[0] = 1;      // 10
    slots[4] = 1;      // 5
    slots[8] = 9;      // 3
    slots[6] = 2;      // 10, but he doesn't finish
    slots[FINISH_SLOT + 1] = 1;  // 40
    slots[FINISH_SLOT + 15] = 9; // 8
    slots[FINISH_SLOT + 4] = 3;  // 30
    const StagePoints ended = stagePoints(slots, false);
    EXPECT_EQ(ended.sprint[1], 15);
    EXPECT_EQ(ended.sprint[2], 0);
    EXPECT_EQ(ended.total[1], 55);
    EXPECT_EQ(ended.total[9], 11);
    EXPECT_EQ(ended.place[9], 15);
    EXPECT_EQ(ended.total[2], -1);
    EXPECT_EQ(ended.place[2], -1);
    EXPECT_EQ(ended.team, (Sums{85, 0, 11, 0}));

    const StagePoints running = stagePoints(slots, true);
    EXPECT_EQ(running.sprint[2], 10); // shown while he may still finish
    EXPECT_EQ(running.total[2], -1);
    EXPECT_EQ(running.team, (Sums{85, 0, 11, 0}));
}

TEST(StagePoints, NobodyMovesUpForARiderWhoIsTakenOut)
{
    Slots slots = noPlaces();
    slots[FINISH_SLOT] = slots[1] = -1; // the winner's places are lost
    slots[0] = slots[FINISH_SLOT + 1] = 4;
    slots[2] = slots[FINISH_SLOT + 2] = 8;
    const StagePoints points = stagePoints(slots, false);
    EXPECT_EQ(points.total[4], 10 + 40);
    EXPECT_EQ(points.total[8], 3 + 35);
}

TEST(GeneralPoints, AreTheSumsOfTheStagesEnded)
{
    setUpRace(ONE_SPRINT, {});
    Slots first = noPlaces();
    first[FINISH_SLOT] = 0;
    first[0] = 5;
    Slots second = noPlaces();
    second[FINISH_SLOT] = 5;
    second[0] = 5;
    second[FINISH_SLOT + 1] = 0;
    raceSetup.raceStages = {{"64S5F12", first}, {"64S5F12", second}};
    race.resultSlots[FINISH_SLOT] = 12; // the stage in progress
    const GeneralPoints sums = generalPoints();
    EXPECT_EQ(sums.rider[0], 50 + 40);
    EXPECT_EQ(sums.rider[5], 60); // the sprint of the stage that he didn't finish is lost
    EXPECT_EQ(sums.rider[12], 0);
    EXPECT_EQ(sums.team, (Sums{90, 60, 0, 0}));
}

TEST(TeamOrder, OnEqualSumsTheLowerIndexStandsHigher)
{
    EXPECT_EQ(teamOrder({30, 50, 30, 50}), (Sums{1, 3, 0, 2}));
    EXPECT_EQ(teamOrder({0, 0, 0, 0}), (Sums{0, 1, 2, 3}));
    EXPECT_EQ(teamOrder({1, 2, 3, 4}), (Sums{3, 2, 1, 0}));
}

TEST(CloseStage, ASingleStageLeavesNoRecord)
{
    setUpRace(ONE_SPRINT, {});
    raceSetup.multiStage = false;
    closeStage();
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_EQ(returnState, STATE_RACE_CLOSED);
    EXPECT_TRUE(raceSetup.raceStages.empty());
}

TEST(CloseStage, AStageOfSeveralIsAddedWithoutTheDisqualified)
{
    setUpRace(ONE_SPRINT, {});
    raceSetup.multiStage = true;
    raceSetup.raceStages.resize(2);
    view.scorecardGeneral = true;
    race.resultSlots[FINISH_SLOT] = 5;
    race.resultSlots[FINISH_SLOT + 1] = 6;
    race.riders[5].disqualified = 1;
    closeStage();
    ASSERT_EQ(raceSetup.raceStages.size(), 3u);
    EXPECT_EQ(raceSetup.raceStages[2].courseText, ONE_SPRINT);
    EXPECT_EQ(raceSetup.raceStages[2].slots[FINISH_SLOT], -1);
    EXPECT_EQ(raceSetup.raceStages[2].slots[FINISH_SLOT + 1], 6);
    EXPECT_EQ(view.scorecardStage, 2); // the one just ended
    EXPECT_FALSE(view.scorecardGeneral);
}
