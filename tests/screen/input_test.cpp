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
#include "support/scripted_rand.h"
#include "screen/support/old_places.h"
#include "ui/layout.h"
#include "ui/texts.h"

#include <GL/freeglut.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace
{

constexpr char TAB = 9;
constexpr char ENTER = 13;

void startRaceOn(const char* text, bool ofPersons = false)
{
    startProgram(640, 512);
    for (Rider& rider : race.riders)
        rider.isHuman = ofPersons;
    std::srand(11);
    courseText = text;
    startRace();
}

void goToFirstMove()
{
    Player player;
    while (gameState == STATE_ORDER_RESULT)
        player.click("Next");
    ASSERT_EQ(gameState, STATE_ANIMATE);
}

// A person's rider in round 2, alone on the road, on a flat square.
void startPersonsTurn(int rider)
{
    startRaceOn("01S23S4S5F12");
    for (Rider& other : race.riders) {
        other.row = course.finishRow + 1;
        other.lane = 0;
        other.finished = other.hasMoved = 1;
    }
    race.riders[rider].finished = race.riders[rider].hasMoved = 0;
    gameState = STATE_TURN;
    race.roundNumber = 2;
    race.currentRider = rider;
    race.moveBudget = -1;
    race.riders[rider].isHuman = 1;
    race.riders[rider].row = 8;
    race.riders[rider].lane = 3;
    race.playedCards = race.dice = race.handInCards = {-1, -1};
    view.shownTeam = riderTeam(rider);
}

} // namespace

TEST(Mouse, FromTheMenuToTheCoursesAndBack)
{
    startProgram(640, 512);
    Player player;
    player.click("Start");
    EXPECT_EQ(gameState, STATE_TEAM_SETUP);
    player.click("Back");
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
    player.click("Start");
    player.click("Single stage");
    player.click("OK");
    EXPECT_EQ(gameState, STATE_COURSE_SELECT);
    player.click(dialogBox()); // between the pictures
    EXPECT_EQ(gameState, STATE_COURSE_SELECT);
    player.click("Back");
    EXPECT_EQ(gameState, STATE_TEAM_SETUP);
}

TEST(Mouse, ATeamWithoutANameIsTold)
{
    startProgram(1280, 1024);
    raceSetup.teamName[2].clear();
    Player player;
    player.click("Start");
    player.click("Single stage");
    player.click("OK");
    ASSERT_EQ(gameState, STATE_SETUP_MESSAGE);
    const Rect box = dialogBox();
    EXPECT_GT(countPixels(screenshot(), {box.x, box.y + box.h * 0.4f, box.w, box.h * 0.2f},
                          pixelOf(BLACK)),
              100);
    player.click("OK");
    EXPECT_EQ(gameState, STATE_TEAM_SETUP);
}

// "Exit" comes up where "Back" was, and "Back" where "OK" was.
TEST(Mouse, ADoubleClickDoesNothingTwice)
{
    startProgram(640, 512);
    Player player;
    player.click("Start");
    player.doubleClick(cornerButton());
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
    EXPECT_EQ(fakeHost.quits, 0);
    player.doubleClick(menuManualButton());
    player.doubleClick(manualOkButton());
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
    EXPECT_EQ(fakeHost.quits, 0);
    player.click("Exit");
    EXPECT_EQ(fakeHost.quits, 1);
}

// One who holds the button long clicks no more slowly: it is the presses that are compared.
TEST(Mouse, ASecondPressWithinTheTimeOfADoubleClickIsDroppedHoweverLongTheFirstIsHeld)
{
    startProgram(640, 512);
    Player player;
    for (const int pace : {120, 190, 210}) {
        player.pace = 1000;
        player.click("Start");
        player.pace = pace;
        player.click(cornerButton());
        player.click(cornerButton());
        EXPECT_EQ(fakeHost.quits, pace > 200) << pace;
    }
}

TEST(Mouse, ThrowsForTheOrderAreAsQuickAsTheHand)
{
    startRaceOn("64S5F12", true);
    Player player;
    player.pace = 150;
    const Rect button = throwButton();
    for (int clicks = 1; clicks <= 7; ++clicks) {
        player.click(button);
        EXPECT_EQ(gameState, clicks % 2 ? STATE_ORDER_RESULT : STATE_ORDER_THROW) << clicks;
    }
}

TEST(Mouse, ADoubleClickThatFinishesADesignStartsNoRace)
{
    startProgram(640, 512);
    Player player;
    for (const char* label : {"Start", "Single stage", "OK"})
        player.click(label);
    view.viewMode = VIEW_PERSPECTIVE;
    player.click(newCourseButton());
    EXPECT_EQ(view.viewMode, VIEW_FLAT);
    player.doubleClick(addSectionButton());
    EXPECT_EQ(courseText, "01") << "in the middle of a design both count";
    toggleFinish();
    player.doubleClick(addSectionButton());
    EXPECT_EQ(courseText, "012F");
    EXPECT_EQ(gameState, STATE_COURSE_DESIGN);
    player.click(addSectionButton());
    EXPECT_EQ(gameState, STATE_ORDER_RESULT);
}

// Before the race throws act on the release, in it on the press.
TEST(Mouse, NextActsOnTheReleaseAndThrowOnThePress)
{
    startRaceOn("64S5F12");
    Player player;
    const Rect at = throwButton();
    player.press(at.x + 5.0f, at.y + 5.0f);
    EXPECT_EQ(race.currentRider, 0);
    player.release(at.x + 5.0f, at.y + 5.0f);
    EXPECT_EQ(race.currentRider, 4);

    startPersonsTurn(0);
    player.press(at.x + 5.0f, at.y + 5.0f);
    EXPECT_NE(race.moveBudget, -1);
}

TEST(Mouse, ARightClickDoesNothingButChangeTheCamera)
{
    startRaceOn("64S5F12");
    Player player;
    player.rightClick(quitButton());
    player.rightClick(throwButton());
    player.rightClick(viewToggle());
    EXPECT_EQ(gameState, STATE_ORDER_RESULT);
    EXPECT_EQ(view.viewMode, VIEW_FLAT);
    player.click("2D/3D");
    EXPECT_EQ(view.cameraIndex, 3);
    player.rightClick(cameraButton());
    EXPECT_EQ(view.cameraIndex, 10);
    player.click("Camera");
    player.click("Camera");
    EXPECT_EQ(view.cameraIndex, 4);
    player.click("2D/3D");
    EXPECT_EQ(view.cameraIndex, 1);
    player.rightClick(cameraButton());
    EXPECT_EQ(view.cameraIndex, 2);
    player.click("2D/3D");
    EXPECT_EQ(view.cameraIndex, 4);
}

TEST(Mouse, TheQuestionFreezesTheMoveAndNoGoesOnWithIt)
{
    startRaceOn("01S23S4S5F12");
    goToFirstMove();
    runTick();
    runTick();
    const int steps = race.stepsTaken;
    Player player;
    player.click("Quit");
    ASSERT_EQ(gameState, STATE_CONFIRM_QUIT);
    const float x = race.riders[race.currentRider].x;
    while (runTick()) {
    }
    EXPECT_EQ(race.riders[race.currentRider].x, x);
    player.click("Camera");
    EXPECT_EQ(view.cameraIndex, 1) << "no camera under the question";
    player.click("No");
    EXPECT_EQ(gameState, STATE_ANIMATE);
    EXPECT_EQ(race.stepsTaken, steps);
    EXPECT_TRUE(runTick());
    player.click("Quit");
    player.click("Yes");
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
}

TEST(Mouse, OkTakesARiderWhoIsStuckOffTheBoard)
{
    startRaceOn("01S23S4S5F12");
    goToFirstMove();
    const int rider = race.currentRider;
    gameState = STATE_NO_MOVE;
    Player player;
    player.click("OK");
    EXPECT_EQ(race.riders[rider].offBoard, 1);
    EXPECT_NE(race.currentRider, rider);
    EXPECT_EQ(gameState, STATE_ANIMATE);
}

TEST(Mouse, ADialogSlidesAlongTheEdgesAndStaysWhole)
{
    startRaceOn("64S5F12");
    Player player;
    player.click("Quit");
    const Rect bar = dialogTitleBar();
    player.press(bar.x + 20.0f, bar.y + 2.0f);
    player.dragTo(bar.x + 30.0f, bar.y - 18.0f);
    EXPECT_NEAR(dialogBox().x, bar.x + 10.0f, 1.0f);
    EXPECT_NEAR(dialogTitleBar().y, bar.y - 20.0f, 1.0f);
    const float kept = dialogTitleBar().y;
    player.dragTo(bar.x + 40.0f, -50.0f);
    EXPECT_NEAR(dialogBox().x, bar.x + 20.0f, 1.0f);
    EXPECT_EQ(dialogTitleBar().y, kept) << "not beyond the top";
    player.release(0.0f, 0.0f);
    player.dragTo(bar.x, bar.y);
    EXPECT_EQ(dialogTitleBar().y, kept) << "let go";
    player.click("No");
    EXPECT_EQ(gameState, STATE_ORDER_RESULT) << "the buttons went along";
}

// Dialogs have been dragged to where the button is that brings one up.
TEST(Mouse, ADialogIsNotAnsweredByTheClickThatOpensIt)
{
    startPersonsTurn(0);
    raceSetup.eventCardsOn = true;
    const Rect box = dialogBox();
    const Rect ok = dialogOkButton();
    placeDialog(throwButton().x + box.x - ok.x, throwButton().y + box.y - ok.y);
    const ScriptedRand dice{raceThrow(3, 4)};
    Player player;
    player.click("Throw");
    EXPECT_EQ(gameState, STATE_EVENT_CARD);
    player.click(throwButton());
    EXPECT_NE(gameState, STATE_EVENT_CARD);
}

TEST(Mouse, AnotherTeamsCardsAreOnlyLookedAt)
{
    startPersonsTurn(4);
    Player player;
    player.click(teamTab(0));
    EXPECT_EQ(view.shownTeam, 0);
    player.click(cardPlace(0));
    EXPECT_EQ(race.playedCards[0], -1);
    player.click(teamTab(1));
    player.click(cardPlace(0));
    EXPECT_EQ(race.playedCards[0], 0);
    player.click("Breakaway");
    EXPECT_EQ(race.breakaway, 1);
    player.click(dicePlace(0));
    EXPECT_EQ(race.playedCards[0], -1);
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

TEST(Keyboard, LettersFollowTheLanguage)
{
    struct Case {
        int language;
        char start, next, quit, no;
    };
    for (const Case& c :
         {Case{LANGUAGE_GERMAN, 's', 'n', 'u', 'n'}, Case{LANGUAGE_ENGLISH, 's', 'n', 'q', 'n'},
          Case{LANGUAGE_FRENCH, 'c', 'u', 'q', 'n'}, Case{LANGUAGE_DUTCH, 's', 'v', 't', 'n'}}) {
        startProgram(640, 512);
        settings.language = c.language;
        loadTexts();
        Player player;
        player.key('x');
        EXPECT_EQ(gameState, STATE_MAIN_MENU);
        player.key(c.start);
        EXPECT_EQ(gameState, STATE_TEAM_SETUP) << c.language;

        std::srand(11);
        courseText = "64S5F12";
        startRace();
        player.key(c.next);
        EXPECT_EQ(race.currentRider, 4) << c.language;
        player.key(c.quit);
        EXPECT_EQ(gameState, STATE_CONFIRM_QUIT) << c.language;
        player.key(c.no);
        EXPECT_EQ(gameState, STATE_ORDER_RESULT) << c.language;
    }
    startProgram(640, 512);
}

TEST(Keyboard, ControlAndAltKeysDoNothingAndLocksDoNotMatter)
{
    constexpr int someLock = 1 << 6;
    startProgram(640, 512);
    Player player;
    for (const int modifier : {GLUT_ACTIVE_CTRL, GLUT_ACTIVE_ALT, GLUT_ACTIVE_CTRL | someLock}) {
        player.held = modifier;
        player.key('s');
        EXPECT_EQ(gameState, STATE_MAIN_MENU);
    }
    player.held = GLUT_ACTIVE_SHIFT | someLock;
    player.key('S');
    EXPECT_EQ(gameState, STATE_TEAM_SETUP);
}

TEST(Keyboard, TabGoesRoundTheTeams)
{
    startRaceOn("64S5F12");
    Player player;
    player.key(TAB);
    EXPECT_EQ(view.shownTeam, 1);
    player.held = GLUT_ACTIVE_SHIFT;
    player.key(TAB);
    player.key(TAB);
    EXPECT_EQ(view.shownTeam, 3);
    player.held = 0;
    player.key(TAB);
    EXPECT_EQ(view.shownTeam, 0);

    gameState = STATE_FINAL_SCORECARD;
    player.key(TAB);
    EXPECT_EQ(view.shownTeam, 0);
    gameState = STATE_MAIN_MENU;
    player.key(TAB);
    EXPECT_EQ(view.shownTeam, 0);
}

TEST(Keyboard, FunctionKeysLayTheCardsOfTheRiderOnTurn)
{
    startPersonsTurn(5); // owns slots 4 and 5
    view.shownTeam = 3;
    Player player;
    player.special(GLUT_KEY_F3);
    EXPECT_EQ(race.playedCards, (Table<int, 2>{-1, -1})) << "the slot is a team-mate's";
    player.special(GLUT_KEY_F9);
    EXPECT_EQ(race.playedCards, (Table<int, 2>{-1, -1})) << "nothing won yet";
    EXPECT_EQ(view.shownTeam, 3);
    player.special(GLUT_KEY_F2);
    EXPECT_EQ(race.playedCards[0], 5);
    EXPECT_EQ(view.shownTeam, 1) << "his team comes into view";
    player.special(GLUT_KEY_F5);
    EXPECT_EQ(race.playedCards[1], 10);
    player.special(GLUT_KEY_F5);
    EXPECT_EQ(race.playedCards[1], -1);

    startPersonsTurn(7); // the fourth rider's two cards are the last before the team's
    player.special(GLUT_KEY_F3);
    EXPECT_EQ(race.playedCards[0], -1);

    startPersonsTurn(0);
    player.special(GLUT_KEY_F3);
    EXPECT_EQ(race.playedCards[0], 2);

    startPersonsTurn(0);
    race.roundNumber = 1;
    player.special(GLUT_KEY_F1);
    EXPECT_EQ(race.playedCards[0], -1);
}

TEST(Keyboard, ArrowsSteerAndEnterEndsTheMove)
{
    startPersonsTurn(0);
    gameState = STATE_MOVE;
    race.moveBudget = 3;
    race.pathSquares[0] = {8.0f, 3.0f};
    Player player;
    player.special(GLUT_KEY_UP);
    player.special(GLUT_KEY_RIGHT);
    EXPECT_EQ(race.stepsTaken, 2);
    EXPECT_EQ(race.riders[0].lane, 4);
    player.special(GLUT_KEY_DOWN);
    player.key('u');
    EXPECT_EQ(race.riders[0].row, 8);
    player.special(GLUT_KEY_UP);
    player.key(ENTER);
    EXPECT_GT(race.riders[0].row, 8);
    EXPECT_EQ(race.roundNumber, 3) << "alone on the road, so the round is over";
}

// The cursor goes where the arrow points, whichever way the start section lies.
TEST(Keyboard, ArrowsMoveTheCursorOnThePicture)
{
    struct Case {
        const char* text;
        int leftRows, upLanes;
    };
    for (const Case& c : {Case{"01S23S4S5F12", 1, 1}, Case{"64S5F12", -1, -1}}) {
        startRaceOn(c.text);
        gameState = STATE_PLACE_HUMAN;
        race.riders[0].isHuman = 1;
        race.currentRider = 0;
        race.placingRow = 1;
        race.placingLane = firstStartLane() + 1;
        Player player;
        player.special(GLUT_KEY_LEFT);
        EXPECT_EQ(race.placingRow, 1 + c.leftRows) << c.text;
        player.special(GLUT_KEY_RIGHT);
        player.special(GLUT_KEY_UP);
        EXPECT_EQ(race.placingLane, firstStartLane() + 1 + c.upLanes) << c.text;
        player.special(GLUT_KEY_DOWN);
        EXPECT_EQ(race.placingRow, 1);
        EXPECT_EQ(race.placingLane, firstStartLane() + 1);
    }
}
