#include "board/designer.h"
#include "screen/support/player.h"
#include "screen/support/scenes.h"
#include "support/scripted_rand.h"

namespace
{

constexpr Pair NO_CARDS = {-1, -1};

using Mouse = ScreenTest;
using Keyboard = ScreenTest;

} // namespace

// "Exit" comes up where "Back" was.
TEST_F(Mouse, TheSecondHalfOfADoubleClickIsDroppedWhereAnotherControlHasComeUp)
{
    for (const int pace : {90, 120, 190, 210}) {
        player.click(CONTROL_START);
        player.click(CONTROL_TEAM_BACK);
        player.pace = pace;
        player.click(CONTROL_EXIT);
        player.pace = 1000;
        EXPECT_EQ(fakeHost.quits, pace > 200) << pace;
    }
    player.click(CONTROL_MANUAL);
    player.pace = 90;
    player.click({CONTROL_MANUAL_OK, CONTROL_START});
    EXPECT_EQ(gameState, STATE_TEAM_SETUP) << "a quick click elsewhere is another one";

    setScene(Scene::COUNTERCHECK, LANGUAGE_ENGLISH);
    player.pace = 1000;
    player.doubleClick(CONTROL_COUNTERCHECK_OK);
    EXPECT_EQ(race.currentRider, 3) << "the next rider's has to be read";
}

TEST_F(Mouse, AWonCardIsUsedAtOnceOrKept)
{
    for (const Control control : {CONTROL_IMMEDIATELY, CONTROL_LATER}) {
        setScene(Scene::CARD_WHEN, LANGUAGE_ENGLISH);
        const int moves = race.moveBudget;
        player.click(control);
        EXPECT_EQ(race.moveBudget > moves, control == CONTROL_IMMEDIATELY);
    }
}

TEST_F(Mouse, ThrowsForTheOrderAreAsQuickAsTheHand)
{
    for (int team = 0; team < TEAM_COUNT; ++team)
        makeHuman(team);
    startRaceOn(FROM_START_2);
    player.pace = 150;
    for (int clicks = 1; clicks <= 7; ++clicks) {
        player.click(CONTROL_NEXT);
        EXPECT_EQ(gameState, clicks % 2 ? STATE_ORDER_RESULT : STATE_ORDER_THROW) << clicks;
    }
}

// The pointer lies elsewhere by then.
TEST_F(Mouse, ACourseThatWasPointedAtOnceIsForgotten)
{
    player.click({CONTROL_START, CONTROL_SINGLE_STAGE, CONTROL_TEAM_OK});
    player.hover(coursePicture(2));
    player.key('b');
    player.click(CONTROL_TEAM_OK);
    player.release({5.0f, 5.0f});
    EXPECT_EQ(gameState, STATE_COURSE_SELECT);
}

TEST_F(Mouse, ADoubleClickThatFinishesADesignStartsNoRace)
{
    player.click({CONTROL_START, CONTROL_SINGLE_STAGE, CONTROL_TEAM_OK});
    view.viewMode = VIEW_PERSPECTIVE;
    courseText = "67"; // raced last
    player.click(CONTROL_CREATE_COURSE);
    EXPECT_EQ(view.viewMode, VIEW_FLAT);
    player.doubleClick(CONTROL_ADD_SECTION);
    EXPECT_EQ(courseText, "01") << "in the middle of a design both count";
    player.click(CONTROL_FINISH);
    player.doubleClick(CONTROL_ADD_SECTION);
    player.click(sectionRadio(0));
    EXPECT_EQ(courseText, "012F") << "nothing is left to choose";
    player.click(CONTROL_DESIGN_OK);
    EXPECT_EQ(gameState, STATE_ORDER_RESULT);
}

TEST_F(Mouse, ADesignIsSavedOnceByADoubleClickAndAFailureIsForgottenByTheNextClick)
{
    courseText = "012F";
    gameState = STATE_COURSE_DESIGN;
    player.doubleClick(CONTROL_SAVE_COURSE);
    EXPECT_EQ(std::filesystem::file_size("courses"), 48u);
    player.click({CONTROL_DESIGN_BACK, CONTROL_SAVED_COURSE});
    EXPECT_EQ(courseText, "012F") << "the first one";
    gameState = STATE_COURSE_DESIGN;
    std::filesystem::remove("courses");
    std::filesystem::create_directory("courses");
    player.click(CONTROL_SAVE_COURSE);
    EXPECT_TRUE(courseScreens.saveFailed);
    player.click(dialogBox());
    EXPECT_FALSE(courseScreens.saveFailed);
    gameState = STATE_COURSE_SELECT;
    player.click({CONTROL_SAVED_COURSE, CONTROL_NEXT_COURSE, CONTROL_SAVED_OK});
    EXPECT_EQ(gameState, STATE_COURSE_SAVED) << "there is none";
}

TEST_F(Mouse, CamerasAndViewsTakeTurns)
{
    startRaceOn(FROM_START_2);
    const auto cameraAfter = [&](Control control, int button) {
        player.click(control, button);
        return view.cameraIndex;
    };
    EXPECT_EQ(cameraAfter(CONTROL_VIEW, GLUT_LEFT_BUTTON), 3);
    EXPECT_EQ(cameraAfter(CONTROL_CAMERA, GLUT_RIGHT_BUTTON), 10);
    EXPECT_EQ(cameraAfter(CONTROL_CAMERA, GLUT_LEFT_BUTTON), 3);
    EXPECT_EQ(cameraAfter(CONTROL_CAMERA, GLUT_LEFT_BUTTON), 4);
    EXPECT_EQ(cameraAfter(CONTROL_VIEW, GLUT_LEFT_BUTTON), 1);
    EXPECT_EQ(cameraAfter(CONTROL_CAMERA, GLUT_RIGHT_BUTTON), 2);
    EXPECT_EQ(cameraAfter(CONTROL_VIEW, GLUT_LEFT_BUTTON), 4);
}

TEST_F(Mouse, ADialogSlidesAlongTheEdgesAndStaysWhole)
{
    startRaceOn(FROM_START_2);
    player.click(CONTROL_QUIT);
    const Rect bar = dialogTitleBar();
    const auto expectMoved = [&](float x, float y) {
        EXPECT_NEAR(dialogTitleBar().x, bar.x + x, 1.0f);
        EXPECT_NEAR(dialogTitleBar().y, bar.y + y, 1.0f);
    };
    player.press({bar.x + 20.0f, bar.y + 2.0f});
    player.dragTo({bar.x + 30.0f, bar.y - 18.0f});
    expectMoved(10.0f, -20.0f);
    player.dragTo({bar.x + 40.0f, bar.h * -0.5f}); // beyond the top
    expectMoved(20.0f, -20.0f);
    player.dragTo({-50.0f, bar.y}); // beyond the side
    expectMoved(20.0f, -2.0f);
    player.release(bar);
    player.dragTo({bar.x, bar.y + 30.0f}); // let go
    expectMoved(20.0f, -2.0f);
    player.click(CONTROL_QUIT_NO);
    EXPECT_EQ(gameState, STATE_ORDER_RESULT) << "the buttons went along";

    player.click(CONTROL_SCORECARD);
    const Rect sheet = scorecardTitleBar();
    const Rect button = placeOf(CONTROL_EXPORT);
    const Spot middle = sheet;
    player.press(middle);
    player.dragTo({middle.x - 100.0f, middle.y + 20.0f});
    player.release(middle);
    EXPECT_NEAR(scorecardTitleBar().x, sheet.x - 100.0f, 1.0f);
    EXPECT_NEAR(placeOf(CONTROL_EXPORT).y, button.y + 20.0f, 1.0f);
    resizeScreen(800, 640);
    resizeScreen(1280, 1024);
    EXPECT_NEAR(scorecardTitleBar().x, sheet.x, 1.0f) << "until the next layout";
}

// Dialogs have been dragged to where the button is that brings one up.
TEST_F(Mouse, ADialogIsNotAnsweredByTheClickThatOpensIt)
{
    putPersonOnTurn(0, FLAT);
    raceSetup.eventCardsOn = true;
    const Rect box = dialogBox();
    const Rect ok = placeOf(CONTROL_EVENT_OK);
    const Rect button = placeOf(CONTROL_THROW);
    placeDialog(button.x + box.x - ok.x, button.y + box.y - ok.y);
    const ScriptedRand dice{raceThrow(3, 4)};
    player.click(CONTROL_THROW);
    EXPECT_EQ(gameState, STATE_EVENT_CARD);
    player.click(CONTROL_THROW);
    EXPECT_NE(gameState, STATE_EVENT_CARD);
}

TEST_F(Mouse, OnlyTheCardsOfTheTeamOnTurnAreTakenAndNoneInTheFirstRound)
{
    putPersonOnTurn(4, FLAT);
    player.click(CONTROL_TAB_1);
    player.click(cardPlace(0));
    EXPECT_EQ(race.playedCards, NO_CARDS);
    player.click(CONTROL_TAB_2);
    race.roundNumber = 1;
    player.click(cardPlace(0));
    EXPECT_EQ(race.playedCards, NO_CARDS);
    race.roundNumber = 2;
    player.click(cardPlace(0));
    EXPECT_EQ(race.playedCards, (Pair{0, -1}));
    player.click(dicePlace(0));
    EXPECT_EQ(race.playedCards, NO_CARDS);
}

TEST_F(Keyboard, AKeyCountsAsItWasPressedWhateverIsLetGoFirst)
{
    constexpr int someLock = 1 << 6;
    player.held = GLUT_ACTIVE_CTRL | someLock;
    player.keyDown('s' - 'a' + 1); // as a letter comes with Control
    player.held = 0;
    player.keyUp('s');
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
    player.held = GLUT_ACTIVE_SHIFT | someLock;
    player.key('S');
    EXPECT_EQ(gameState, STATE_TEAM_SETUP);
    player.keyDown('\xC4');
    player.held = 0;
    player.keyUp('\xE4');
    EXPECT_EQ(raceSetup.teamName[0].substr(0, 1), "\xC4");
}

TEST_F(Keyboard, AltAndEnterChangeBetweenScreenAndWindowWhereverOneIs)
{
    putPersonOnTurn(0, FLAT);
    player.held = GLUT_ACTIVE_ALT;
    player.keyDown('\r');
    player.held = 0; // Alt is often let go first
    player.keyUp('\r');
    EXPECT_EQ(fakeHost.screenChanges, 1);
    gameState = STATE_MOVE;
    player.key('\r');
    EXPECT_EQ(fakeHost.screenChanges, 1) << "Enter alone ends the move";
    EXPECT_NE(gameState, STATE_MOVE);
}

TEST_F(Keyboard, TabGoesRoundTheTeamsAndAClickGoesToOne)
{
    startRaceOn(FROM_START_2);
    player.key('\t');
    EXPECT_EQ(view.shownTeam, 1);
    player.held = GLUT_ACTIVE_SHIFT;
    player.type("\t\t\t");
    EXPECT_EQ(view.shownTeam, 2);
    for (int team = 0; team < TEAM_COUNT; ++team) {
        player.click(static_cast<Control>(CONTROL_TAB_1 + team));
        EXPECT_EQ(view.shownTeam, team);
    }
}

// The rider's team comes into view, in place of the fourth.
TEST_F(Keyboard, FunctionKeysLayTheCardsOfTheRiderOnTurn)
{
    const auto laidBy = [&](int rider, std::initializer_list<int> keys, int round = 2) {
        putPersonOnTurn(rider, FLAT);
        race.roundNumber = round;
        view.shownTeam = 3;
        player.special(keys);
        return std::pair(race.playedCards, view.shownTeam);
    };
    using Laid = std::pair<Pair, int>;
    EXPECT_EQ(laidBy(5, {GLUT_KEY_F2, GLUT_KEY_F5}), (Laid{{5, 10}, 1})) << "his and the team's";
    EXPECT_EQ(laidBy(5, {GLUT_KEY_F5, GLUT_KEY_F5}), (Laid{NO_CARDS, 1})) << "taken back";
    EXPECT_EQ(laidBy(5, {GLUT_KEY_F3, GLUT_KEY_F9}), (Laid{NO_CARDS, 3})) << "not his";
    EXPECT_EQ(laidBy(0, {GLUT_KEY_F3, GLUT_KEY_F4}), (Laid{{2, 3}, 0})) << "the first has four";
    EXPECT_EQ(laidBy(7, {GLUT_KEY_F3}), (Laid{NO_CARDS, 3})) << "the last has two";
    EXPECT_EQ(laidBy(0, {GLUT_KEY_F1}, 1), (Laid{NO_CARDS, 3})) << "in the first round";
}

TEST_F(Keyboard, ArrowsSteerAndEnterEndsTheMove)
{
    setUpPersonsRace(ONE_LAP, {{0, 8, 3}});
    beginPersonsMove(0, 3);
    player.special({GLUT_KEY_UP, GLUT_KEY_RIGHT});
    EXPECT_EQ(squareOfRider(0), (Square{12, 4}));
    player.special(GLUT_KEY_LEFT);
    EXPECT_EQ(squareOfRider(0).lane, 3);
    player.special({GLUT_KEY_DOWN, GLUT_KEY_DOWN});
    player.key('u');
    EXPECT_EQ(squareOfRider(0), (Square{8, 3}));
    player.special(GLUT_KEY_UP);
    player.key('\r');
    EXPECT_GT(squareOfRider(0).row, 8);
    EXPECT_EQ(race.roundNumber, 3) << "alone on the road, so the round is over";
}

// The cursor goes where the arrow points, whichever way the start section lies.
TEST_F(Keyboard, ArrowsMoveTheCursorOnThePicture)
{
    for (const auto& [text, forward] : {std::pair{ONE_LAP, 1}, {FROM_START_2, -1}}) {
        startRaceOn(text);
        makeHuman(0);
        gameState = STATE_PLACE_HUMAN;
        race.currentRider = 0;
        race.placingRow = 1;
        const int lane = race.placingLane = firstStartLane() + 1;
        player.special(GLUT_KEY_LEFT);
        EXPECT_EQ(race.placingRow, 1 + forward) << text;
        player.special({GLUT_KEY_RIGHT, GLUT_KEY_UP});
        EXPECT_EQ(race.placingLane, lane + forward) << text;
        player.special(GLUT_KEY_DOWN);
        EXPECT_EQ(race.placingRow, 1);
        EXPECT_EQ(race.placingLane, lane);
    }
}
