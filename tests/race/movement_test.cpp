#include "race/movement.h"

#include "app/game_state.h"
#include "board/course.h"
#include "race/step_rule.h"
#include "race/turn_cycle.h"
#include "support/fake_host.h"
#include "support/races.h"

#include <gtest/gtest.h>

namespace
{

constexpr std::string_view ONE_LAP = "01S23S4S5F12";
constexpr std::string_view TWO_LAPS = "01234512345F12";
constexpr bool MOVED = true;

Square step(Square from, char letter)
{
    return stepTarget(from.row, from.lane, letter, false);
}

} // namespace

TEST(StepRule, PassThroughRowsCostNothing)
{
    setUpRace(ONE_LAP, {});
    EXPECT_EQ(step({7, 2}, 'M'), (Square{8, 2}));
    EXPECT_EQ(step({8, 0}, 'M'), (Square{10, 0}));  // one row without a square
    EXPECT_EQ(step({10, 0}, 'M'), (Square{13, 0})); // two
    EXPECT_EQ(step({8, 1}, 'L'), (Square{10, 0}));  // after a change of lane
    EXPECT_EQ(step({76, 4}, 'M'), (Square{98, 4})); // across the seam of two sections
    EXPECT_EQ(step({76, 5}, 'M'), (Square{99, 5})); // and on into the next one's
}

TEST(StepRule, TheRoadHasEdges)
{
    setUpRace(ONE_LAP, {});
    EXPECT_EQ(step({7, 0}, 'L'), NO_STEP);
    EXPECT_EQ(step({7, 4}, 'R'), NO_STEP);
    EXPECT_EQ(step({44, 1}, 'M'), NO_STEP); // the lane ends
    EXPECT_EQ(step({44, 1}, 'R'), (Square{47, 2}));
    EXPECT_EQ(step({152, 4}, 'M'), NO_STEP); // so does the course
}

TEST(StepRule, WallsStopChangesOfLaneFromTheirFirstRowToTheLastButOne)
{
    setUpRace(ONE_LAP, {});
    EXPECT_EQ(step({19, 2}, 'L'), (Square{22, 1})); // the row before the wall, rows 20 to 28
    EXPECT_EQ(step({20, 4}, 'L'), NO_STEP);
    EXPECT_EQ(step({28, 3}, 'R'), NO_STEP);
    EXPECT_EQ(step({28, 2}, 'L'), NO_STEP);
    EXPECT_EQ(step({28, 2}, 'R'), (Square{29, 3})); // no wall between these lanes
    EXPECT_EQ(step({28, 2}, 'M'), (Square{29, 2}));
    EXPECT_EQ(step({29, 2}, 'L'), (Square{30, 1})); // the row on which it ends
    EXPECT_EQ(step({29, 3}, 'R'), (Square{30, 4}));
}

TEST(StepRule, WallsStandThreeLanesOutOnTheNextLap)
{
    setUpRace(TWO_LAPS, {});
    EXPECT_EQ(step({19 + 109, 2 + 3}, 'L'), (Square{22 + 109, 1 + 3}));
    EXPECT_EQ(step({28 + 109, 2 + 3}, 'L'), NO_STEP);
    EXPECT_EQ(step({28 + 109, 3 + 3}, 'R'), NO_STEP);
}

TEST(StepRule, ARiderStopsWhoWouldLandOnHim)
{
    setUpRace(ONE_LAP, {{3, 8, 2}, {4, 13, 0}, {5, 8, 3}});
    EXPECT_EQ(step({7, 2}, 'M'), NO_STEP);
    EXPECT_EQ(step({7, 2}, 'L'), (Square{8, 1}));
    EXPECT_EQ(step({10, 0}, 'M'), NO_STEP); // behind two rows without squares
    EXPECT_EQ(stepTarget(7, 2, 'M', true), (Square{7, 2})); // reach leaves riders out
    EXPECT_EQ(stepTarget(28, 3, 'R', true), NO_STEP);       // but not walls
    EXPECT_EQ(stepTarget(44, 1, 'M', true), NO_STEP);
    liftOffBoard(3);
    EXPECT_EQ(step({7, 2}, 'M'), (Square{8, 2}));
}

TEST(StepRule, SoDoesARiderOnAnotherLap)
{
    setUpRace(TWO_LAPS, {{3, 8, 2}, {4, 119, 4}});
    EXPECT_EQ(step({116, 5}, 'M'), NO_STEP);
    EXPECT_EQ(step({8, 1}, 'M'), (Square{9, 1}));
    EXPECT_EQ(step({9, 1}, 'R'), (Square{11, 2}));
    EXPECT_EQ(step({9, 2}, 'M'), (Square{11, 2}));
    EXPECT_EQ(step({8, 2}, 'L'), (Square{9, 1}));
    EXPECT_EQ(step({8, 1}, 'L'), (Square{10, 0})); // 119, 3 has no rider, 119, 4 is 10, 1
}

TEST(Steering, NotBeyondTheThrow)
{
    setUpPersonsRace(ONE_LAP, {{0, 7, 1}});
    beginPersonsMove(0, 2);
    steer("L");
    EXPECT_EQ(squareOfRider(0), (Square{8, 0}));
    steer("LLMM");
    EXPECT_EQ(squareOfRider(0), (Square{10, 0})); // refused steps cost nothing
    EXPECT_EQ(race.stepsTaken, 2);
    EXPECT_EQ(race.pathSquares[1].lane, 0.0f);
    EXPECT_EQ(race.pathSquares[2].row, 10.0f);
}

TEST(Steering, UndoGoesBackToTheStartAndNoFurther)
{
    setUpPersonsRace(ONE_LAP, {{0, 5, 1}});
    beginPersonsMove(0, 4);
    steer("MRMM");
    EXPECT_EQ(squareOfRider(0), (Square{9, 2}));
    EXPECT_EQ(course.riderLapCount[0], 1); // the start section lies behind him
    undoStep();
    EXPECT_EQ(squareOfRider(0), (Square{8, 2}));
    steer("L");
    EXPECT_EQ(squareOfRider(0), (Square{9, 1}));
    for (int i = 0; i < 6; ++i)
        undoStep();
    EXPECT_EQ(squareOfRider(0), (Square{5, 1}));
    EXPECT_EQ(race.stepsTaken, 0);
    EXPECT_EQ(course.riderLapCount[0], 0);
}

TEST(EndOfMove, MovesLeftAreLostAndTheSquareIsTaken)
{
    setUpPersonsRace(ONE_LAP, {{0, 102, 5}, {7, 60, 4}});
    beginPersonsMove(0, 9);
    steer("MR");
    endHumanMove();
    EXPECT_EQ(occupant(104, 6), 0);
    EXPECT_EQ(occupant(102, 5), -1);
    EXPECT_EQ(race.riders[0].hasMoved, 1);
    EXPECT_EQ(race.currentRider, 7);
    steer("M"); // his turn has only begun
    EXPECT_EQ(squareOfRider(7), (Square{60, 4}));
}

TEST(EndOfMove, WithoutAStepHeIsOffTheBoardAndNobodyFollows)
{
    setUpPersonsRace(ONE_LAP, {{0, 102, 5}, {4, 101, 4}, {8, 60, 4}});
    beginPersonsMove(0, 9);
    endHumanMove();
    EXPECT_EQ(race.riders[0].offBoard, 1);
    EXPECT_EQ(race.currentRider, 4);
    EXPECT_EQ(gameState, STATE_TURN);
    beginPersonsMove(4, 1);
    steer("M");
    endHumanMove();
    beginPersonsMove(8, 1);
    EXPECT_EQ(step({101, 4}, 'M'), NO_STEP);
    EXPECT_EQ(step({101, 6}, 'L'), (Square{102, 5})); // his square is free to others
}

TEST(EndOfMove, BeyondTheFinishAllMovesMustBeUsed)
{
    setUpPersonsRace(ONE_LAP, {{0, 113, 5}, {4, 60, 4}});
    beginPersonsMove(0, 3);
    steer("MM");
    endHumanMove();
    EXPECT_EQ(gameState, STATE_MOVE);
    EXPECT_EQ(race.riders[0].hasMoved, 0);
    steer("M");
    endHumanMove();
    EXPECT_EQ(race.resultSlots[FINISH_SLOT], 0);
    EXPECT_EQ(race.riders[0].finished, 1);
    EXPECT_EQ(race.currentRider, 4);
}

TEST(EndOfMove, OnTheFinishRowHeMayStopAndHasNotCrossed)
{
    setUpPersonsRace(ONE_LAP, {{0, 113, 5}, {4, 60, 4}});
    beginPersonsMove(0, 3);
    steer("M");
    endHumanMove();
    EXPECT_EQ(race.currentRider, 4);
    EXPECT_EQ(race.resultSlots[FINISH_SLOT], -1);
    EXPECT_EQ(race.riders[0].finished, 0);
}

TEST(EndOfMove, NobodyFollowsABreakaway)
{
    setUpPersonsRace(ONE_LAP, {{0, 103, 5}, {4, 102, 5}});
    beginPersonsMove(0, 3);
    race.breakaway = 1;
    steer("MMM");
    endHumanMove();
    EXPECT_EQ(gameState, STATE_TURN);
    EXPECT_EQ(race.currentRider, 4);
    EXPECT_EQ(occupant(106, 5), 0);
}

TEST(EndOfMove, AComputerRiderEndsOnTheLastSquareOfHisRoute)
{
    setUpRace(ONE_LAP, {{0, 94 - 20, 5}, {4, 6, 0}});
    makeHuman(1);
    nextTurn();
    ASSERT_EQ(gameState, STATE_ANIMATE);
    const PathSquare last = race.pathSquares[race.moveBudget];
    EXPECT_EQ(occupant(74, 5), -1);
    runTimer();
    EXPECT_EQ(occupant(static_cast<int>(last.row), static_cast<int>(last.lane)), 0);
    EXPECT_EQ(race.riders[0].hasMoved, 1);
    EXPECT_EQ(gameState, STATE_TURN);
}

TEST(EndOfMove, ABoxedInComputerRiderLeavesTheBoard)
{
    setUpRace(ONE_LAP, {{0, 7, 0}, {1, 8, 0, MOVED}, {2, 8, 1, MOVED}, {4, 6, 0}});
    makeHuman(1);
    nextTurn();
    EXPECT_EQ(race.moveBudget, 0);
    runTimer();
    EXPECT_EQ(race.riders[0].offBoard, 1);
    EXPECT_EQ(occupant(7, 0), -1);
    EXPECT_EQ(race.currentRider, 4); // nor does he follow, who stood right behind
    EXPECT_EQ(gameState, STATE_TURN);
}
