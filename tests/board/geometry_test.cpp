#include "board/geometry.h"

#include "app/settings.h"
#include "board/designer.h"
#include "play/animation.h"
#include "play/overlays.h"
#include "support/fake_host.h"
#include "support/races.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace
{

constexpr float TICK = 10.0f;

// The squares of a lane from a row on, as far as the lane runs without a break.
std::vector<Square> laneFrom(int row, int lane)
{
    std::vector<Square> squares;
    for (; squareAt(row, lane) != NO_SQUARE; ++row)
        if (isRealSquare(squareAt(row, lane)))
            squares.push_back({row, lane});
    return squares;
}

// Lets the timer carry rider 0 over these squares and calls visit after each tick, with true for
// one that only sets out.
template <typename Visit> void carry(const std::vector<Square>& squares, Visit visit)
{
    for (std::size_t first = 0; first + 1 < squares.size(); first += PATH_SQUARES_MAX - 2) {
        race.moveBudget = static_cast<int>(
            std::min<std::size_t>(squares.size() - 1 - first, PATH_SQUARES_MAX - 2));
        for (int i = 0; i <= race.moveBudget; ++i) {
            const Square& square = squares[first + static_cast<std::size_t>(i)];
            race.pathSquares[i] = {static_cast<float>(square.row), static_cast<float>(square.lane)};
        }
        race.currentRider = 0;
        race.stepsTaken = 0;
        restMotion();
        gameState = STATE_ANIMATE;
        onMoveTimer(0);
        visit(true);
        for (onMoveTimer(0); race.stepsTaken < race.moveBudget ||
                             motion.way.back().distance > motion.wayDone + 1.5f * TICK;
             onMoveTimer(0))
            visit(false);
    }
}

} // namespace

TEST(Geometry, SquaresLieOnTheirPlaceAndFaceTheirWay)
{
    setUpRace(ONE_LAP, {});
    double heading = 0.0;
    boardPointOfSquare(0, 0, heading);
    EXPECT_NEAR(heading, -std::numbers::pi, 1e-6);
    // On the border of two pieces the earlier one serves: row 10.5 of section A runs downward.
    boardPointOnPath(16.5f, 2.0f, heading);
    EXPECT_NEAR(heading, std::numbers::pi / 2, 1e-6);
    boardPointOfSquare(60, 5, heading); // cobbles of D, to the right
    EXPECT_NEAR(heading, 0.0, 0.1);

    // Those of a bend are spread evenly along their lane. From row 8.5 to 13.5 lane 0 has two
    // squares, lane 4 four.
    const CurvePiece& bend = course.courseCurves.front();
    EXPECT_FLOAT_EQ(curveRowOfSquare(bend, 13, 0), 8.5f + 5.0f * 3 / 4);
    EXPECT_FLOAT_EQ(curveRowOfSquare(bend, 13, 4), 8.5f + 5.0f * 7 / 8);
}

// Where the pieces of the road don't join, a rider in motion must neither freeze nor jump nor turn.
TEST(Animation, CarriesRidersEvenlyAlongEveryLane)
{
    for (const std::string_view text : fixedCourses) {
        setUpRace(text, {});
        race.riders[0].finished = 0;
        for (int lane = 0; lane < COURSE_LANES; ++lane)
            for (int row = 0; row < course.courseRowCount; ++row) {
                if (squareAt(row, lane) == NO_SQUARE || squareAt(row - 1, lane) != NO_SQUARE)
                    continue;
                Rider last;
                carry(laneFrom(row, lane), [&](bool setsOut) {
                    const Rider& rider = race.riders[0];
                    SCOPED_TRACE(testing::Message()
                                 << text << " lane " << lane << " row " << rider.row);
                    if (!setsOut) {
                        const float way = std::hypot(rider.x - last.x, rider.y - last.y);
                        EXPECT_GT(way, TICK * 2 / 3);
                        EXPECT_LT(way, TICK * 4 / 3);
                        EXPECT_LT(std::abs(std::remainder(rider.heading - last.heading,
                                                          2 * std::numbers::pi)),
                                  0.7);
                    }
                    last = rider;
                });
            }
    }
}

TEST(Animation, WhoChangesLanesLooksWhereHeRides)
{
    setUpRace(ONE_LAP, {});
    for (const auto& [from, to] : {std::pair{Square{7, 2}, Square{8, 1}},
                                   {{7, 2}, {8, 3}},
                                   {{60, 4}, {61, 3}},
                                   {{60, 4}, {61, 5}}}) {
        const std::vector<WayPoint> way = wayBetween(from, to);
        const BoardPoint begin = way.front().at;
        const BoardPoint end = way.back().at;
        const double direction = std::atan2(end.y - begin.y, end.x - begin.x);
        EXPECT_NEAR(way.front().heading, direction, 0.001) << from.row << " to lane " << to.lane;
    }
}

TEST(Animation, StepwiseTakesATickASquareAndOneToSetOut)
{
    setUpRace(ONE_LAP, {{0, 6, 4}});
    settings.smoothMovement = 0;
    race.currentRider = 0;
    const Square path[] = {{6, 4}, {7, 4}, {8, 3}, {10, 3}};
    for (int i = 0; i < 4; ++i)
        race.pathSquares[i] = {static_cast<float>(path[i].row), static_cast<float>(path[i].lane)};
    race.moveBudget = 3;
    race.breakaway = 1;
    gameState = STATE_ANIMATE;
    for (const Square& square : path) {
        fakeHost.pendingMs = -1;
        onMoveTimer(0);
        EXPECT_EQ(squareOfRider(0), square);
        if (square != path[3]) {
            EXPECT_EQ(race.riderLapCount[0], square.row > 5);
            EXPECT_EQ(fakeHost.pendingMs, DEFAULT_STEP_DELAY + 1);
        }
    }
    EXPECT_EQ(race.roundNumber, 3); // the turn is over
}

TEST(Animation, StandsStillBehindADialogAndGoesOnWithOneTickAtATime)
{
    startSeededRace("64S5F12", 3);
    while (gameState != STATE_ANIMATE)
        advanceComputerRace();
    ASSERT_TRUE(runTick());
    const int steps = race.stepsTaken;
    openScorecard();
    ASSERT_TRUE(runTick());
    EXPECT_FALSE(runTick());
    EXPECT_EQ(race.stepsTaken, steps);
    closeOverlay();
    EXPECT_EQ(fakeHost.pendingMs, 0);
    openScorecard();
    fakeHost.pendingMs = 7; // the tick armed before is still to come
    closeOverlay();
    EXPECT_EQ(fakeHost.pendingMs, 7);
    runComputerRace();
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
}
