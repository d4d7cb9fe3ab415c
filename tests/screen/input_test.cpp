#include "app/game_state.h"
#include "app/settings.h"
#include "app/view.h"
#include "board/course.h"
#include "board/designer.h"
#include "play/start.h"
#include "race/race_state.h"
#include "screen/support/gl_window.h"
#include "screen/support/player.h"
#include "support/fake_host.h"
#include "support/own_folder.h"
#include "support/races.h"
#include "support/scripted_rand.h"
#include "ui/layout.h"
#include "ui/places.h"

#include <GL/freeglut.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace
{

void startRaceOn(const char* text, bool ofPersons = false)
{
    startProgram(640, 512);
    for (Rider& rider : race.riders)
        rider.isHuman = ofPersons;
    std::srand(11);
    courseText = text;
    startRace();
}

// A person's rider in round 2, alone on the road, on a flat square.
void startPersonsTurn(int rider)
{
    startProgram(640, 512);
    setUpPersonsRace("01S23S4S5F12", {{rider, 8, 3}});
    beginPersonsTurn(rider);
}

constexpr Table<int, 2> NO_CARDS = {-1, -1};

} // namespace

// "Exit" comes up where "Back" was. One who holds the button long clicks no more slowly: it is the
// presses that are compared.
TEST(Mouse, TheSecondHalfOfADoubleClickIsDroppedWhereAnotherControlHasComeUp)
{
    startProgram(640, 512);
    Player player;
    for (const int pace : {90, 120, 190, 210}) {
        player.pace = 1000;
        player.click(CONTROL_START);
        player.pace = pace;
        player.press(placeOf(CONTROL_TEAM_BACK));
        player.hold(150);
        player.release(placeOf(CONTROL_TEAM_BACK));
        player.hold(-150);
        player.click(CONTROL_TEAM_BACK);
        EXPECT_EQ(fakeHost.quits, pace > 200) << pace;
    }
    player.pace = 1000;
    player.click(CONTROL_MANUAL);
    player.pace = 90;
    player.click({CONTROL_MANUAL_OK, CONTROL_START});
    EXPECT_EQ(gameState, STATE_TEAM_SETUP) << "a quick click elsewhere is another one";
}

TEST(Mouse, ThrowsForTheOrderAreAsQuickAsTheHand)
{
    startRaceOn("64S5F12", true);
    Player player;
    player.pace = 150;
    for (int clicks = 1; clicks <= 7; ++clicks) {
        player.click(CONTROL_NEXT);
        EXPECT_EQ(gameState, clicks % 2 ? STATE_ORDER_RESULT : STATE_ORDER_THROW) << clicks;
    }
}

TEST(Mouse, ADoubleClickThatFinishesADesignStartsNoRace)
{
    startProgram(640, 512);
    Player player;
    player.click({CONTROL_START, CONTROL_SINGLE_STAGE, CONTROL_TEAM_OK});
    view.viewMode = VIEW_PERSPECTIVE;
    player.click(CONTROL_CREATE_COURSE);
    EXPECT_EQ(view.viewMode, VIEW_FLAT);
    player.doubleClick(CONTROL_ADD_SECTION);
    EXPECT_EQ(courseText, "01") << "in the middle of a design both count";
    toggleFinish();
    player.doubleClick(CONTROL_ADD_SECTION);
    EXPECT_EQ(courseText, "012F");
    EXPECT_EQ(gameState, STATE_COURSE_DESIGN);
    player.click(sectionRadio(0));
    EXPECT_EQ(courseText, "012F") << "nothing is left to choose";
    player.click(CONTROL_DESIGN_OK);
    EXPECT_EQ(gameState, STATE_ORDER_RESULT);
}

TEST(Mouse, ADesignIsSavedOnceByADoubleClickAndAFailureIsForgottenByTheNextClick)
{
    const OwnFolder here;
    startProgram(640, 512);
    courseText = "012F";
    gameState = STATE_COURSE_DESIGN;
    Player player;
    player.doubleClick(CONTROL_SAVE_COURSE);
    EXPECT_EQ(std::filesystem::file_size("courses"), 48u);
    gameState = STATE_COURSE_SELECT;
    player.click({CONTROL_SAVED_COURSE, CONTROL_NEXT_COURSE});
    EXPECT_EQ(courseScreens.savedCourseIndex, 0) << "the only one";
    player.click(CONTROL_PREVIOUS_COURSE);
    EXPECT_EQ(courseText, "012F");
    std::filesystem::remove("courses");
    gameState = STATE_COURSE_SELECT;
    player.click({CONTROL_SAVED_COURSE, CONTROL_SAVED_OK});
    EXPECT_EQ(gameState, STATE_COURSE_SAVED) << "there is none";
    courseText = "012F";
    gameState = STATE_COURSE_DESIGN;
    std::filesystem::create_directory("courses");
    player.click(CONTROL_SAVE_COURSE);
    EXPECT_TRUE(courseScreens.saveFailed);
    player.click(dialogBox());
    EXPECT_FALSE(courseScreens.saveFailed);
}

TEST(Mouse, CamerasAndViewsTakeTurns)
{
    startRaceOn("64S5F12");
    Player player;
    for (const auto& [right, control, camera] : {std::tuple{false, CONTROL_VIEW, 3},
                                                 {true, CONTROL_CAMERA, 10},
                                                 {false, CONTROL_CAMERA, 3},
                                                 {false, CONTROL_CAMERA, 4},
                                                 {false, CONTROL_VIEW, 1},
                                                 {true, CONTROL_CAMERA, 2},
                                                 {false, CONTROL_CAMERA, 1},
                                                 {false, CONTROL_VIEW, 4}}) {
        right ? player.rightClick(control) : player.click(control);
        EXPECT_EQ(view.cameraIndex, camera);
    }
}

TEST(Mouse, ADialogSlidesAlongTheEdgesAndStaysWhole)
{
    startRaceOn("64S5F12");
    Player player;
    player.click(CONTROL_QUIT);
    const Rect bar = dialogTitleBar();
    player.press(bar.x + 20.0f, bar.y + 2.0f);
    player.dragTo(bar.x + 30.0f, bar.y - 18.0f);
    EXPECT_NEAR(dialogBox().x, bar.x + 10.0f, 1.0f);
    EXPECT_NEAR(dialogTitleBar().y, bar.y - 20.0f, 1.0f);
    const float kept = dialogTitleBar().y;
    for (const float y : {-50.0f, bar.h * -0.5f}) {
        player.dragTo(bar.x + 40.0f, y);
        EXPECT_NEAR(dialogBox().x, bar.x + 20.0f, 1.0f);
        EXPECT_EQ(dialogTitleBar().y, kept) << "not beyond the top";
    }
    player.dragTo(-50.0f, bar.y);
    EXPECT_NEAR(dialogBox().x, bar.x + 20.0f, 1.0f) << "nor beyond the side";
    player.release(0.0f, 0.0f);
    player.dragTo(bar.x, bar.y + 30.0f);
    EXPECT_NEAR(dialogTitleBar().y, bar.y - 2.0f, 1.0f) << "let go";
    player.click(CONTROL_QUIT_NO);
    EXPECT_EQ(gameState, STATE_ORDER_RESULT) << "the buttons went along";

    player.click(CONTROL_SCORECARD);
    const Rect sheet = scorecardTitleBar();
    player.press(sheet);
    player.dragTo(sheet.x + sheet.w * 0.5f - 100.0f, sheet.y + sheet.h * 0.5f + 20.0f);
    player.release(0.0f, 0.0f);
    EXPECT_NEAR(scorecardBox().x, sheet.x - 100.0f, 1.0f);
    EXPECT_NEAR(scorecardTitleBar().y, sheet.y + 20.0f, 1.0f);
    const Rect box = scorecardBox();
    for (int i = CONTROL_SHEET_OK; i <= CONTROL_NEXT_STAGE; ++i) {
        const Rect button = placeOf(static_cast<Control>(i));
        EXPECT_TRUE(button.x >= box.x && button.x + button.w <= box.x + box.w &&
                    button.y >= box.y && button.y + button.h <= box.y + box.h)
            << i;
    }
    resizeScreen(800, 640);
    resizeScreen(640, 512);
    EXPECT_NEAR(scorecardBox().x, sheet.x, 1.0f) << "until the next layout";
}

// Dialogs have been dragged to where the button is that brings one up.
TEST(Mouse, ADialogIsNotAnsweredByTheClickThatOpensIt)
{
    startPersonsTurn(0);
    raceSetup.eventCardsOn = true;
    const Rect box = dialogBox();
    const Rect ok = placeOf(CONTROL_EVENT_OK);
    const Rect button = placeOf(CONTROL_THROW);
    placeDialog(button.x + box.x - ok.x, button.y + box.y - ok.y);
    const ScriptedRand dice{raceThrow(3, 4)};
    Player player;
    player.click(CONTROL_THROW);
    EXPECT_EQ(gameState, STATE_EVENT_CARD);
    player.click(CONTROL_THROW);
    EXPECT_NE(gameState, STATE_EVENT_CARD);
}

TEST(Mouse, AnotherTeamsCardsAreOnlyLookedAtAndNoneCountsInTheFirstRound)
{
    startPersonsTurn(4);
    Player player;
    player.click(CONTROL_TAB_1);
    player.click(cardPlace(0));
    EXPECT_EQ(race.playedCards, NO_CARDS);
    player.click(CONTROL_TAB_2);
    race.roundNumber = 1;
    player.click(cardPlace(0));
    EXPECT_EQ(race.playedCards, NO_CARDS);
    race.roundNumber = 2;
    player.click(cardPlace(0));
    EXPECT_EQ(race.playedCards[0], 0);
    player.click(dicePlace(0));
    EXPECT_EQ(race.playedCards, NO_CARDS);
}

TEST(Mouse, ACardReachesToItsEdges)
{
    startPersonsTurn(0);
    Player player;
    const Rect last = cardPlace(13);
    player.press(last.x + last.w, last.y + last.h);
    EXPECT_EQ(race.playedCards[0], 13);
    const Rect first = cardPlace(0);
    player.press(first.x + first.w + 3.0f, first.y + 3.0f);
    EXPECT_EQ(race.playedCards[1], -1) << "a gap between cards";
}

TEST(Keyboard, AKeyCountsAsItWasPressedWhateverIsLetGoFirst)
{
    constexpr int someLock = 1 << 6;
    startProgram(640, 512);
    Player player;
    player.held = GLUT_ACTIVE_CTRL | someLock;
    player.press('s' - 'a' + 1); // as a letter comes with Control
    player.held = 0;
    player.release('s');
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
    player.held = GLUT_ACTIVE_SHIFT | someLock;
    player.key('S');
    EXPECT_EQ(gameState, STATE_TEAM_SETUP);
    player.press('\xC4');
    player.held = 0;
    player.release('\xE4');
    EXPECT_EQ(raceSetup.teamName[0].substr(0, 1), "\xC4");
}

TEST(Keyboard, AltAndEnterChangeBetweenScreenAndWindowWhereverOneIs)
{
    startPersonsTurn(0);
    Player player;
    player.held = GLUT_ACTIVE_ALT;
    player.press('\r');
    player.held = 0; // Alt is often let go first
    player.release('\r');
    EXPECT_EQ(fakeHost.screenChanges, 1);
    gameState = STATE_MOVE;
    player.key('\r');
    EXPECT_EQ(fakeHost.screenChanges, 1) << "Enter alone ends the move";
    EXPECT_NE(gameState, STATE_MOVE);
}

TEST(Keyboard, TabGoesRoundTheTeamsWhereTheirTabsAct)
{
    startRaceOn("64S5F12");
    Player player;
    for (const auto& [held, team] :
         {std::pair{0, 1}, {GLUT_ACTIVE_SHIFT, 0}, {GLUT_ACTIVE_SHIFT, 3}, {0, 0}}) {
        player.held = held;
        player.key('\t');
        EXPECT_EQ(view.shownTeam, team);
    }
}

TEST(Keyboard, FunctionKeysLayTheCardsOfTheRiderOnTurn)
{
    startPersonsTurn(5); // owns slots 4 and 5
    view.shownTeam = 3;
    Player player;
    player.special({GLUT_KEY_F3, GLUT_KEY_F9});
    EXPECT_EQ(race.playedCards, NO_CARDS) << "the slot is a team-mate's, and nothing won yet";
    EXPECT_EQ(view.shownTeam, 3);
    player.special(GLUT_KEY_F2);
    EXPECT_EQ(race.playedCards[0], 5);
    EXPECT_EQ(view.shownTeam, 1) << "his team comes into view";
    player.special(GLUT_KEY_F5);
    EXPECT_EQ(race.playedCards[1], 10);
    view.shownTeam = 3;
    player.special(GLUT_KEY_F5);
    EXPECT_EQ(race.playedCards[1], -1);
    EXPECT_EQ(view.shownTeam, 1);

    startPersonsTurn(7); // the fourth rider's two cards are the last before the team's
    player.special(GLUT_KEY_F3);
    EXPECT_EQ(race.playedCards, NO_CARDS);

    startPersonsTurn(0);
    player.special(GLUT_KEY_F3);
    EXPECT_EQ(race.playedCards[0], 2);

    startPersonsTurn(0);
    race.roundNumber = 1;
    player.special(GLUT_KEY_F1);
    EXPECT_EQ(race.playedCards, NO_CARDS);
}

TEST(Keyboard, ArrowsSteerAndEnterEndsTheMove)
{
    startPersonsTurn(0);
    beginPersonsMove(0, 3);
    Player player;
    player.special({GLUT_KEY_UP, GLUT_KEY_RIGHT});
    EXPECT_EQ(race.stepsTaken, 2);
    EXPECT_EQ(race.riders[0].lane, 4);
    player.special(GLUT_KEY_LEFT);
    EXPECT_EQ(race.riders[0].lane, 3);
    player.special({GLUT_KEY_DOWN, GLUT_KEY_DOWN});
    player.key('u');
    EXPECT_EQ(race.riders[0].row, 8);
    player.special(GLUT_KEY_UP);
    player.key('\r');
    EXPECT_GT(race.riders[0].row, 8);
    EXPECT_EQ(race.roundNumber, 3) << "alone on the road, so the round is over";
}

// The cursor goes where the arrow points, whichever way the start section lies.
TEST(Keyboard, ArrowsMoveTheCursorOnThePicture)
{
    for (const auto& [text, forward] : {std::pair{"01S23S4S5F12", 1}, {"64S5F12", -1}}) {
        startRaceOn(text);
        gameState = STATE_PLACE_HUMAN;
        race.riders[0].isHuman = 1;
        race.currentRider = 0;
        race.placingRow = 1;
        const int lane = race.placingLane = firstStartLane() + 1;
        Player player;
        player.special(GLUT_KEY_LEFT);
        EXPECT_EQ(race.placingRow, 1 + forward) << text;
        player.special({GLUT_KEY_RIGHT, GLUT_KEY_UP});
        EXPECT_EQ(race.placingLane, lane + forward) << text;
        player.special(GLUT_KEY_DOWN);
        EXPECT_EQ(race.placingRow, 1);
        EXPECT_EQ(race.placingLane, lane);
    }
}
