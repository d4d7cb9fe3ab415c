#include "app/game_state.h"
#include "app/host.h"
#include "app/view.h"
#include "board/course.h"
#include "board/pictures.h"
#include "board/section_shapes.h"
#include "play/placing.h"
#include "play/start.h"
#include "race/race_state.h"
#include "screen/support/gl_window.h"
#include "screen/support/player.h"
#include "support/fake_host.h"
#include "screen/support/old_places.h"
#include "ui/frame.h"
#include "ui/layout.h"
#include "ui/models.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <functional>

namespace
{

// A race of four computer teams that waits for the first "Next".
void startRaceOn(const char* text, unsigned seed = 7)
{
    startProgram(1280, 1024);
    std::srand(seed);
    courseText = text;
    startRace();
}

// Up to the first computer rider in motion.
void goToFirstMove()
{
    Player player;
    while (gameState == STATE_ORDER_RESULT)
        player.click("Next");
    ASSERT_EQ(gameState, STATE_ANIMATE);
}

Pixel boardPixel(float x, float y)
{
    const int column = BOARD_PICTURE_WIDTH - 1 -
                       static_cast<int>(x / BOARD_WIDTH * static_cast<float>(BOARD_PICTURE_WIDTH));
    const int row = static_cast<int>(y / BOARD_HEIGHT * static_cast<float>(BOARD_PICTURE_HEIGHT));
    const std::size_t i = 3 * static_cast<std::size_t>(row * BOARD_PICTURE_WIDTH + column);
    return {boardPicture.bytes[i], boardPicture.bytes[i + 1], boardPicture.bytes[i + 2]};
}

using PointMap = std::function<BoardPoint(BoardPoint)>;

// How far the screen is from the picture, on average, if the picture lay there as the map tells.
double distanceFromPicture(const Image& image, const PointMap& map)
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
            const BoardPoint point = map({x, y});
            const Pixel seen = image.at(at.x, at.y);
            const Pixel painted = boardPixel(point.x, point.y);
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
    const double here = distanceFromPicture(image, [](BoardPoint p) { return p; });
    const double mirrored = distanceFromPicture(image, [](BoardPoint p) {
        return BoardPoint{BOARD_WIDTH - 1.0f - p.x, p.y};
    });
    const double upsideDown = distanceFromPicture(image, [](BoardPoint p) {
        return BoardPoint{p.x, BOARD_HEIGHT - 1.0f - p.y};
    });
    EXPECT_LT(here, 0.6 * mirrored) << "camera " << view.cameraIndex;
    EXPECT_LT(here, 0.6 * upsideDown) << "camera " << view.cameraIndex;
}

} // namespace

TEST(Frame, TheBoardLiesRightWayRoundUnderEveryCamera)
{
    startRaceOn("01S23S4S5F12");
    Player player;
    for (int camera = 0; camera < 2; ++camera, player.click("Camera"))
        expectPictureInPlace();
    player.click("2D/3D");
    for (int camera = 0; camera < 8; ++camera, player.click("Camera"))
        expectPictureInPlace();
}

// Whatever a frame leaves behind, the next one isn't touched by it.
TEST(Frame, LooksTheSameWheneverItIsPainted)
{
    startRaceOn("64S5F12");
    goToFirstMove();
    redrawNow();
    const Image flat = screenshot();
    Player player;
    player.click("2D/3D");
    const Image perspective = screenshot();
    redrawNow();
    EXPECT_TRUE(screenshot() == perspective);
    player.click("Quit");
    player.click("No");
    EXPECT_TRUE(screenshot() == perspective);
    player.click("2D/3D");
    EXPECT_TRUE(screenshot() == flat);
}

// A new race begins in flat view, also when the last one was left in the other.
TEST(Frame, ANewRaceIsFlatAgain)
{
    startRaceOn("64S5F12");
    const Image first = screenshot();
    Player player;
    player.click("2D/3D");
    std::srand(7);
    startRace();
    EXPECT_EQ(view.viewMode, VIEW_FLAT);
    EXPECT_TRUE(screenshot() == first);
}

TEST(Frame, WithoutAWindowNothingIsPainted)
{
    startProgram(640, 512);
    const Image menu = screenshot();
    windowOpen = false;
    gameState = STATE_TEAM_SETUP;
    redrawNow();
    EXPECT_TRUE(screenshot() == menu);
    windowOpen = true;
}

TEST(Frame, ButtonsAreBlackOnGreyAndGreyWhenTheyDoNothing)
{
    startRaceOn("64S5F12");
    const Image order = screenshot();
    EXPECT_GT(countPixels(order, throwButton(), pixelOf(BLACK)), 20);
    EXPECT_EQ(countPixels(order, dopingButton(), pixelOf(BLACK)), 0);
    EXPECT_GT(countPixels(order, dopingButton(), pixelOf(disabledGrey)), 20);
    EXPECT_GT(countPixels(order, dopingButton(), pixelOf(buttonGrey)), 200);

    goToFirstMove();
    EXPECT_EQ(countPixels(screenshot(), throwButton(), pixelOf(BLACK)), 0);
}

// Team 0's own pawn is looked for where its rider stands; the number stands below the middle.
TEST(Frame, TheRiderOnTurnIsSeenAtEveryTick)
{
    startRaceOn("01S23S4S5F12");
    goToFirstMove();
    const int rider = race.currentRider;
    const Pixel colour = pixelOf(teamColour[riderTeam(rider)]);
    BoardPoint last = {race.riders[rider].x, race.riders[rider].y};
    int moved = 0;
    while (race.currentRider == rider && gameState == STATE_ANIMATE && runTick()) {
        if (race.currentRider != rider)
            break;
        const Rider& now = race.riders[rider];
        const ScreenPoint at = seenAt(now.x, now.y - 9.0f);
        EXPECT_EQ(screenshot().at(at.x, at.y), colour) << "tick " << moved;
        const float length = std::hypot(now.x - last.x, now.y - last.y);
        EXPECT_LT(length, 15.0f) << "tick " << moved;
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

TEST(Frame, CardsAreBrightOnlyForTheRiderWhoMayPlayThem)
{
    startRaceOn("01S23S4S5F12");
    goToFirstMove();
    Rider& rider = race.riders[4];
    rider.isHuman = 1;
    race.currentRider = 4;
    race.roundNumber = 2;
    view.shownTeam = 1;
    gameState = STATE_TURN;
    redrawNow();

    // The blue of a card of value 6, at the middle of its lower edge.
    const auto blueOf = [](int slot) {
        const Rect place = cardPlace(slot);
        return screenshot().at(place.x + place.w * 0.5f, place.y + place.h - 4.0f).blue;
    };
    EXPECT_EQ(blueOf(0), 255);
    EXPECT_EQ(blueOf(4), 128) << "a team-mate's card";
    EXPECT_EQ(blueOf(10), 255) << "the team's card";
    race.playedCards = {10, 1};
    redrawNow();
    EXPECT_EQ(blueOf(0), 128) << "both places are taken";
    race.playedCards = {-1, -1};
    race.roundNumber = 1;
    redrawNow();
    EXPECT_EQ(blueOf(0), 128) << "no cards in the first round";
}
