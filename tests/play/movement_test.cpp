#include "play/movement.h"

#include "race/step_rule.h"
#include "support/races.h"

#include <gtest/gtest.h>

static Square step(Square from, char letter)
{
    return stepTarget(from.row, from.lane, letter, false);
}

TEST(StepRule, RowsWithoutASquareCostNothingAndRidersAndEdgesStop)
{
    setUpRace(TWO_LAPS, {{3, 8, 2}, {4, 13, 0}});
    EXPECT_EQ(step({8, 1}, 'L'), (Square{10, 0}));
    EXPECT_EQ(step({76, 4}, 'M'), (Square{98, 4})); // across the seam of two sections
    EXPECT_EQ(step({44, 1}, 'M'), NO_STEP);         // the lane ends
    EXPECT_EQ(step({7, 0}, 'L'), NO_STEP);
    EXPECT_EQ(step({7, 2}, 'M'), NO_STEP);   // rider 3
    EXPECT_EQ(step({116, 5}, 'M'), NO_STEP); // a lap ahead of him
    EXPECT_EQ(step({10, 0}, 'M'), NO_STEP);  // rider 4, behind two rows without squares
    EXPECT_EQ(step({course.courseRowCount - 1, 8}, 'M'), NO_STEP);
}

TEST(StepRule, WallsStopChangesOfLaneFromTheirFirstRowToTheLastButOne)
{
    setUpRace(TWO_LAPS, {});
    for (const int lap : {0, 1}) {
        const auto refused = [lap](int row, int lane, char letter) {
            return step({row + lap * ROWS_PER_LAP, lane + lap * LANES_PER_LAP}, letter) == NO_STEP;
        };
        EXPECT_FALSE(refused(19, 2, 'L')); // the row before
        EXPECT_TRUE(refused(20, 4, 'L'));
        EXPECT_TRUE(refused(28, 3, 'R'));
        EXPECT_FALSE(refused(28, 2, 'R')); // no wall here
        EXPECT_FALSE(refused(29, 3, 'R')); // where it ends
    }
}

TEST(Steering, RefusedStepsCostNothingAndUndoGoesBackToTheStart)
{
    setUpPersonsRace(ONE_LAP, {{0, 5, 0}});
    beginPersonsMove(0, 4);
    const auto figure = [] { return std::pair(race.riders[0].x, race.riders[0].y); };
    steer("LMRM"); // beside the road nobody can go
    const auto before = figure();
    steer("L");
    EXPECT_NE(figure(), before);
    EXPECT_EQ(race.riderLapCount[0], 1); // the start section lies behind him
    undoStep();
    EXPECT_EQ(figure(), before);
    EXPECT_EQ(squareOfRider(0), (Square{8, 1}));
    steer("LM"); // four moves are all
    EXPECT_EQ(squareOfRider(0), (Square{10, 0}));
    EXPECT_EQ(race.stepsTaken, 4);
    for (int i = 0; i < 6; ++i)
        undoStep();
    EXPECT_EQ(squareOfRider(0), (Square{5, 0}));
    EXPECT_EQ(race.stepsTaken, 0);
    EXPECT_EQ(race.riderLapCount[0], 0);
}

TEST(EndOfMove, WithoutAStepHeIsOffTheBoard)
{
    setUpPersonsRace(ONE_LAP, {{0, 102, 5}, {4, 100, 5}});
    beginPersonsMove(0, 9);
    endHumanMove();
    EXPECT_EQ(race.riders[0].offBoard, 1);
    EXPECT_EQ(onTurn(), (OnTurn{4, STATE_TURN})); // nobody is asked to follow
    beginPersonsMove(4, 1);
    steer("M");
    EXPECT_EQ(squareOfRider(4), (Square{102, 5})); // the square is free to others
}

TEST(EndOfMove, BeyondTheFinishAllMovesMustBeUsed)
{
    setUpPersonsRace(ONE_LAP, {{0, 113, 5}, {4, 60, 4}});
    beginPersonsMove(0, 3);
    steer("M");
    endHumanMove(); // on the line he may stop
    EXPECT_EQ(race.currentRider, 4);
    EXPECT_EQ(race.resultSlots[FINISH_SLOT], -1);

    race.riders[0].hasMoved = 0;
    beginPersonsMove(0, 2);
    steer("M");
    endHumanMove();
    EXPECT_EQ(onTurn(), (OnTurn{0, STATE_MOVE}));
    steer("M");
    endHumanMove();
    EXPECT_EQ(race.resultSlots[FINISH_SLOT], 0);
    EXPECT_EQ(race.riders[0].finished, 1);
    EXPECT_EQ(race.currentRider, 4);
}
