#include "app/host.h"
#include "board/designer.h"
#include "board/geometry.h"
#include "board/pictures.h"
#include "board/section_shapes.h"
#include "play/start.h"
#include "screen/support/player.h"
#include "ui/cameras.h"
#include "ui/frame.h"
#include "ui/models.h"
#include "ui/reshape.h"

#include <cmath>

namespace
{

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
    // Of the middle, since the perspective view cuts corners of the board off.
    for (float y = 0.3f * BOARD_HEIGHT; y < 0.7f * BOARD_HEIGHT; y += 7.0f)
        for (float x = 0.2f * BOARD_WIDTH; x < 0.8f * BOARD_WIDTH; x += 13.0f) {
            const ScreenPoint at = seenAt(x, y);
            const Pixel seen = image.at(at.x, at.y);
            const Pixel painted = boardPixel(mirrored ? BOARD_WIDTH - 1.0f - x : x,
                                             upsideDown ? BOARD_HEIGHT - 1.0f - y : y);
            sum += std::abs(seen.red - painted.red) + std::abs(seen.green - painted.green) +
                   std::abs(seen.blue - painted.blue);
        }
    return sum;
}

// Two squares side by side on a straight road, of which one hides the other from a camera.
struct Neighbours {
    int camera;
    Square nearer, farther;
};

constexpr Neighbours NEIGHBOURS[] = {
    {3, {1, 3}, {1, 4}},   {4, {29, 3}, {29, 2}}, {5, {30, 2}, {30, 1}}, {6, {100, 6}, {100, 5}},
    {7, {58, 6}, {58, 7}}, {8, {26, 2}, {26, 3}}, {9, {74, 6}, {74, 7}}, {10, {40, 3}, {40, 2}},
};

// As a camera sees these riders.
Image seenWith(int camera, const std::vector<Placed>& placed)
{
    setUpRace(ONE_LAP, placed);
    view.viewMode = VIEW_PERSPECTIVE;
    view.cameraIndex = camera;
    drawFrame();
    return screenshot();
}

using Frame = ScreenTest;
using Reshape = ScreenTest;

} // namespace

TEST_F(Frame, TheBoardLiesRightWayRoundUnderEveryCamera)
{
    startRaceOn(ONE_LAP);
    Image last;
    for (const int cameras : {2, PERSPECTIVE_CAMERA_COUNT}) {
        for (int camera = 0; camera < cameras; ++camera, player.click(CONTROL_CAMERA)) {
            const Image image = screenshot();
            EXPECT_FALSE(image == last) << view.cameraIndex;
            last = image;
            const double asPainted = distanceFromPicture(image, false, false);
            EXPECT_LT(asPainted, 0.6 * distanceFromPicture(image, true, false)) << view.cameraIndex;
            EXPECT_LT(asPainted, 0.6 * distanceFromPicture(image, false, true)) << view.cameraIndex;
        }
        player.click(CONTROL_VIEW);
    }
}

// Whatever a frame leaves behind, the next one isn't touched by it. A new race begins in flat view,
// also when the last one was left in the other.
TEST_F(Frame, LooksTheSameWheneverItIsPainted)
{
    startRaceOn(FROM_START_2);
    const Image first = screenshot();
    goToFirstMove();
    redrawNow();
    const Image flat = screenshot();
    player.click(CONTROL_VIEW);
    const Image perspective = screenshot();
    player.click({CONTROL_QUIT, CONTROL_QUIT_NO});
    EXPECT_TRUE(screenshot() == perspective);
    player.click(CONTROL_VIEW);
    EXPECT_TRUE(screenshot() == flat);
    player.click(CONTROL_VIEW);
    startRaceOn(FROM_START_2);
    EXPECT_TRUE(screenshot() == first);
}

TEST_F(Frame, TheCursorIsWhiteOnAFreeSquareAndRedOnATakenOne)
{
    // Near the cursor's edge on each start section.
    const std::pair<std::string_view, BoardPoint> cursors[] = {{ONE_LAP, {970.0f, 166.0f}},
                                                               {FROM_START_2, {676.0f, 1019.0f}}};
    for (const auto& [text, point] : cursors) {
        startRaceOn(text);
        race.currentRider = 5;
        gameState = STATE_PLACE_HUMAN;
        race.placingRow = 1;
        race.placingLane = firstStartLane() + 1;
        const ScreenPoint at = seenAt(point.x, point.y);
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

TEST_F(Frame, AFigureShowsItsSideToEveryCameraAndIsLeftAloneInTheFlatView)
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
}

// Nothing of the nearer rider is hidden by the farther one, whichever of the two is drawn first.
TEST_F(Frame, ARiderStandsInFrontOfTheOneBehindHimUnderEveryCamera)
{
    constexpr int GREEN = 0;
    constexpr int RED = 4;
    startProgram(640, 512);
    for (const auto& [camera, nearer, farther] : NEIGHBOURS)
        for (const int rider : {GREEN, RED}) {
            const Placed front = {rider, nearer.row, nearer.lane};
            const Placed back = {GREEN + RED - rider, farther.row, farther.lane};
            const Image nobody = seenWith(camera, {});
            const Image frontAlone = seenWith(camera, {front});
            const Image backAlone = seenWith(camera, {back});
            const Image both = seenWith(camera, {front, back});
            int shared = 0;
            int hidden = 0;
            for (std::size_t i = 0; i < nobody.bytes.size(); ++i)
                if (frontAlone.bytes[i] != nobody.bytes[i]) {
                    shared += backAlone.bytes[i] != nobody.bytes[i];
                    hidden += both.bytes[i] != frontAlone.bytes[i];
                }
            EXPECT_GT(shared, 60) << camera;
            EXPECT_EQ(hidden, 0) << camera;
        }
}

TEST_F(Frame, ARiderOffTheBoardIsNotSeenOnIt)
{
    const Image nobody = seenWith(FIRST_PERSPECTIVE_CAMERA, {});
    seenWith(FIRST_PERSPECTIVE_CAMERA, {{0, FLAT.row, FLAT.lane}});
    EXPECT_FALSE(screenshot() == nobody);
    race.riders[0].offBoard = 1;
    drawFrame();
    EXPECT_TRUE(screenshot() == nobody);
}

// The window system reports the size asked for first and the one that the window gets after it.
TEST_F(Reshape, TheSecondSizeLooksAsIfItHadBeenTheFirstAndIsClickedWhereItIsSeen)
{
    const auto openCourses = [&](int width, int height) {
        startProgram(width, height);
        player.click({CONTROL_START, CONTROL_SINGLE_STAGE, CONTROL_TEAM_OK});
    };
    for (const auto& [width, height] :
         {std::pair{1920, 1080}, {1366, 768}, {1280, 1024}, {1024, 768}, {1500, 1000}}) {
        openCourses(width, height);
        const Image direct = screenshot();
        openCourses(1280, 960);
        onReshape(1280, 0); // dragged to nothing, then minimised
        onReshape(0, 0);
        resizeScreen(width, height);
        EXPECT_TRUE(screenshot() == direct) << width << " by " << height;
        for (int i = 0; i < fixedCourses.size(); ++i) {
            player.hover(coursePicture(i));
            EXPECT_EQ(courseScreens.courseHover, i);
        }
        player.click(coursePicture(3));
        EXPECT_EQ(courseText, fixedCourses[3]);
        EXPECT_EQ(gameState, STATE_ORDER_RESULT);
    }
}

TEST_F(Reshape, ARiderInMotionGoesOnWhereHeWas)
{
    startRaceOn(ONE_LAP);
    goToFirstMove(5);
    const int pending = fakeHost.pendingMs;
    const Image image = screenshot();
    resizeScreen(1024, 768);
    EXPECT_EQ(gameState, STATE_ANIMATE);
    EXPECT_EQ(fakeHost.pendingMs, pending);
    resizeScreen(1280, 1024);
    EXPECT_TRUE(screenshot() == image);
}
