#include "app/game_state.h"
#include "app/host.h"
#include "app/view.h"
#include "board/course.h"
#include "board/designer.h"
#include "board/pictures.h"
#include "board/section_shapes.h"
#include "play/placing.h"
#include "play/start.h"
#include "race/race_state.h"
#include "screen/support/gl_window.h"
#include "screen/support/player.h"
#include "support/fake_host.h"
#include "ui/cameras.h"
#include "ui/frame.h"
#include "ui/layout.h"
#include "ui/models.h"
#include "ui/places.h"
#include "ui/reshape.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

namespace
{

// A race of four computer teams that waits for the first "Next".
void startRaceOn(const char* text)
{
    startProgram(1280, 1024);
    std::srand(7);
    courseText = text;
    startRace();
}

// Up to the first computer rider in motion.
void goToFirstMove()
{
    while (gameState == STATE_ORDER_RESULT)
        Player().click(CONTROL_NEXT);
    ASSERT_EQ(gameState, STATE_ANIMATE);
}

void openCourses(int width, int height)
{
    startProgram(width, height);
    Player().click({CONTROL_START, CONTROL_SINGLE_STAGE, CONTROL_TEAM_OK});
}

Pixel boardPixel(float x, float y)
{
    const int column = BOARD_PICTURE_WIDTH - 1 -
                       static_cast<int>(x / BOARD_WIDTH * static_cast<float>(BOARD_PICTURE_WIDTH));
    const int row = static_cast<int>(y / BOARD_HEIGHT * static_cast<float>(BOARD_PICTURE_HEIGHT));
    const std::size_t i = 3 * static_cast<std::size_t>(row * BOARD_PICTURE_WIDTH + column);
    return {boardPicture.bytes[i], boardPicture.bytes[i + 1], boardPicture.bytes[i + 2]};
}

// How far the screen is from the picture, on average, if the picture lay there, turned over or not.
double distanceFromPicture(const Image& image, bool mirrored, bool upsideDown)
{
    double sum = 0.0;
    int count = 0;
    for (float y = 20.0f; y < BOARD_HEIGHT; y += 17.0f) {
        for (float x = 20.0f; x < BOARD_WIDTH; x += 23.0f) {
            const ScreenPoint at = seenAt(x, y);
            // The perspective view cuts corners of the board off.
            if (at.x < layout.viewX + static_cast<int>(layout.boardViewX) + 2 || at.y < 20 ||
                at.x > layout.viewX + static_cast<int>(layout.boardViewX + layout.boardViewW) - 2 ||
                at.y > static_cast<int>(layout.hudY) - 10)
                continue;
            const Pixel seen = image.at(at.x, at.y);
            const Pixel painted = boardPixel(mirrored ? BOARD_WIDTH - 1.0f - x : x,
                                             upsideDown ? BOARD_HEIGHT - 1.0f - y : y);
            sum += std::abs(seen.red - painted.red) + std::abs(seen.green - painted.green) +
                   std::abs(seen.blue - painted.blue);
            ++count;
        }
    }
    return sum / count;
}

void expectPictureInPlace()
{
    const Image image = screenshot();
    const double here = distanceFromPicture(image, false, false);
    EXPECT_LT(here, 0.6 * distanceFromPicture(image, true, false)) << view.cameraIndex;
    EXPECT_LT(here, 0.6 * distanceFromPicture(image, false, true)) << view.cameraIndex;
}

} // namespace

TEST(Frame, TheBoardLiesRightWayRoundUnderEveryCamera)
{
    startRaceOn("01S23S4S5F12");
    Player player;
    for (int camera = 0; camera < 2; ++camera, player.click(CONTROL_CAMERA))
        expectPictureInPlace();
    player.click(CONTROL_VIEW);
    for (int camera = 0; camera < 8; ++camera, player.click(CONTROL_CAMERA))
        expectPictureInPlace();
}

// Whatever a frame leaves behind, the next one isn't touched by it. A new race begins in flat view,
// also when the last one was left in the other.
TEST(Frame, LooksTheSameWheneverItIsPainted)
{
    startRaceOn("64S5F12");
    const Image first = screenshot();
    goToFirstMove();
    redrawNow();
    const Image flat = screenshot();
    Player player;
    player.click(CONTROL_VIEW);
    const Image perspective = screenshot();
    redrawNow();
    EXPECT_TRUE(screenshot() == perspective);
    player.click({CONTROL_QUIT, CONTROL_QUIT_NO});
    EXPECT_TRUE(screenshot() == perspective);
    player.click(CONTROL_VIEW);
    EXPECT_TRUE(screenshot() == flat);
    player.click(CONTROL_VIEW);
    std::srand(7);
    startRace();
    EXPECT_EQ(view.viewMode, VIEW_FLAT);
    EXPECT_TRUE(screenshot() == first);

    windowOpen = false; // and without a window nothing is painted
    gameState = STATE_TEAM_SETUP;
    redrawNow();
    EXPECT_TRUE(screenshot() == first);
    windowOpen = true;
}

// Team 0's own pawn is looked for where its rider stands; the number stands below the middle.
TEST(Frame, TheRiderOnTurnIsSeenAtEveryTick)
{
    startRaceOn("01S23S4S5F12");
    goToFirstMove();
    const int rider = race.currentRider;
    const Pixel colour = pixelOf(teamColour[riderTeam(rider)]);
    const Rider& now = race.riders[rider];
    BoardPoint last = {now.x, now.y};
    int moved = 0;
    while (gameState == STATE_ANIMATE && runTick() && race.currentRider == rider) {
        const ScreenPoint at = seenAt(now.x, now.y - 9.0f);
        EXPECT_EQ(screenshot().at(at.x, at.y), colour) << "tick " << moved;
        EXPECT_LT(std::hypot(now.x - last.x, now.y - last.y), 15.0f) << "tick " << moved;
        last = {now.x, now.y};
        ++moved;
    }
    EXPECT_GT(moved, 10);
}

TEST(Frame, TheCursorIsWhiteOnAFreeSquareAndRedOnATakenOne)
{
    for (const char* text : {"01S23S4S5F12", "64S5F12"}) {
        startRaceOn(text);
        race.currentRider = 5;
        race.firstPlacer = 4;
        race.riders[5].isHuman = 1;
        gameState = STATE_PLACE_HUMAN;
        race.placingRow = 1;
        race.placingLane = firstStartLane() + 1;
        const bool first = courseText.starts_with('0');
        const ScreenPoint at = first ? seenAt(1117.0f - 1.5f * 98.25f, 210.0f - 1.2f * 36.6f)
                                     : seenAt(1.5f * 99.0f + 528.0f, 1.2f * 37.0f + 975.0f);
        redrawNow();
        EXPECT_EQ(screenshot().at(at.x, at.y), pixelOf(WHITE)) << text;

        // A team-mate two rows on in the same lane.
        race.riders[6].row = 3;
        race.riders[6].lane = race.placingLane;
        course.courseOccupant[3][race.placingLane] = 6;
        redrawNow();
        EXPECT_EQ(screenshot().at(at.x, at.y), pixelOf({0.8f, 0.0f, 0.0f})) << text;
    }
}

TEST(Frame, AFigureShowsItsSideToEveryCameraAndIsLeftAloneInTheFlatView)
{
    const double halfPi = std::acos(0.0);
    for (int i = 0; i < PERSPECTIVE_CAMERA_COUNT; ++i) {
        view.cameraIndex = FIRST_PERSPECTIVE_CAMERA + i;
        const double boardY = -cameraEyes[i].y; // the view turns the board's y round
        const double towards = std::atan2(boardY - 300.0, cameraEyes[i].x - 700.0);
        for (const double along : {0.0, 2.0 * halfPi, 0.4})
            EXPECT_FALSE(figureTurned(700.0f, 300.0f, towards + along)) << i;
        for (const double across : {0.45, halfPi, -halfPi})
            EXPECT_TRUE(figureTurned(700.0f, 300.0f, towards + across)) << i;
    }
    view.cameraIndex = 1;
    EXPECT_FALSE(figureTurned(977.0f, 576.0f, 0.0) || figureTurned(977.0f, 576.0f, halfPi));
    view = {};
}

// The window system reports the size asked for first and the one that the window gets after it.
TEST(Reshape, TheSecondSizeLooksAsIfItHadBeenTheFirstAndIsClickedWhereItIsSeen)
{
    for (const auto& [width, height] :
         {std::pair{1920, 1080}, {1366, 768}, {1280, 1024}, {1024, 768}, {1500, 1000}}) {
        openCourses(width, height);
        const Image direct = screenshot();
        openCourses(1280, 960);
        resizeScreen(width, height);
        EXPECT_TRUE(screenshot() == direct) << width << " by " << height;

        Player player;
        for (int i = 0; i < fixedCourses.size(); ++i) {
            player.hover(coursePicture(i));
            EXPECT_EQ(courseScreens.courseHover, i);
        }
        player.click(coursePicture(3));
        EXPECT_EQ(courseText, fixedCourses[3]);
        EXPECT_EQ(gameState, STATE_ORDER_RESULT);
    }
}

TEST(Reshape, ARiderInMotionGoesOnWhereHeWas)
{
    startRaceOn("01S23S4S5F12");
    goToFirstMove();
    for (int tick = 0; tick < 5; ++tick)
        runTick();
    ASSERT_EQ(gameState, STATE_ANIMATE);
    const RaceState before = race;
    const int pending = fakeHost.pendingMs;
    const Image here = screenshot();

    resizeScreen(1024, 768);
    EXPECT_EQ(gameState, STATE_ANIMATE);
    EXPECT_EQ(race.riders[race.currentRider].x, before.riders[before.currentRider].x);
    EXPECT_EQ(race.stepsTaken, before.stepsTaken);
    EXPECT_EQ(fakeHost.pendingMs, pending);
    resizeScreen(1280, 1024);
    EXPECT_TRUE(screenshot() == here);
}

// Minimised, or dragged to nothing.
TEST(Reshape, NoSizeAtAllIsSurvived)
{
    startProgram(640, 512);
    const Image menu = screenshot();
    onReshape(640, 0);
    onReshape(0, 0);
    resizeScreen(640, 512);
    EXPECT_TRUE(screenshot() == menu);
}
