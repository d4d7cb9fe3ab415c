#include "input/mouse.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/view.h"
#include "board/designer.h"
#include "board/pictures.h"
#include "input/actions.h"
#include "input/course_input.h"
#include "input/menu_input.h"
#include "input/race_list_input.h"
#include "input/scorecard_input.h"
#include "input/settings_input.h"
#include "input/setup_input.h"
#include "play/cards.h"
#include "play/doping.h"
#include "play/events.h"
#include "play/following.h"
#include "play/hand_in.h"
#include "play/overlays.h"
#include "play/placing.h"
#include "play/stage_end.h"
#include "play/turn_cycle.h"
#include "race/race_state.h"
#include "ui/controls.h"
#include "ui/layout.h"

#include <GL/freeglut.h>

#include <cstdlib>
#include <utility>

// A place in the drawing area.
struct Point {
    int x;
    int y;

    bool in(const Rect& rect) const { return rect.contains(x, y); }
};

static Point inDrawingArea(int x, int y)
{
    return {x - layout.viewX, y - layout.viewY};
}

static void pressInTurn(Point at)
{
    if (at.in(throwButton()))
        humanThrow();
    else if (at.in(dicePlace(0)))
        unpickCard(0);
    else if (at.in(dicePlace(1)))
        unpickCard(1);
    else if (at.in(breakawayBox()))
        toggleBreakaway();
    else if (at.in(dopingButton()))
        askDoping();
}

static void pressScreen(Point at)
{
    if (gameState == STATE_TURN)
        pressInTurn(at);
    else if (gameState == STATE_EVENT_DIE && at.in(extraThrowButton()))
        throwExtraDie();
}

static void releaseInMainMenu(Point at)
{
    if (at.in(menuStartButton()))
        openTeamSetup();
    else if (at.in(menuManualButton()))
        openManual();
    else if (at.in(menuSettingsButton()))
        openSettings();
    else if (at.in(menuLanguageButton()))
        openLanguages();
    else if (at.in(menuContinueButton()))
        openRaceFiles();
    else if (at.in(exitButton()))
        quitProgram();
}

static void releaseInCourseSelection(Point at)
{
    if (at.in(cornerButton()))
        leaveCourseSelection();
    else if (at.in(newCourseButton()))
        openCourseDesigner();
    else if (at.in(savedCourseButton()))
        openSavedCourses();
    else
        chooseHoveredCourse();
}

static void confirm(Point at, const Rect& button, void (*act)())
{
    if (at.in(button))
        act();
}

static void releaseScreen(Point at)
{
    switch (gameState) {
    case STATE_ORDER_THROW:
        return confirm(at, throwButton(), throwForOrder);
    case STATE_ORDER_RESULT:
        return confirm(at, throwButton(), afterOrderThrow);
    case STATE_MAIN_MENU:
        return releaseInMainMenu(at);
    case STATE_LANGUAGE:
        return chooseLanguage();
    case STATE_MANUAL:
        return releaseInManual(at.x, at.y);
    case STATE_SETTINGS:
        return releaseInSettings(at.x, at.y);
    case STATE_TEAM_SETUP:
        return releaseInTeamSetup(at.x, at.y);
    case STATE_COURSE_SELECT:
        return releaseInCourseSelection(at);
    case STATE_COURSE_DESIGN:
        return releaseInCourseDesigner(at.x, at.y);
    case STATE_COURSE_SAVED:
        return releaseInSavedCourses(at.x, at.y);
    case STATE_RACE_FILES:
        return releaseInRaceFiles(at.x, at.y);
    default:
        return;
    }
}

static void releaseTeamTab(Point at)
{
    if (!teamTabsActive())
        return;
    for (int team = 0; team < TEAM_COUNT; ++team) {
        if (at.in(teamTab(team)))
            return showTeam(team);
    }
}

static bool cardsAct()
{
    return cardsActive() && race.roundNumber != 1;
}

static void pressHandIn(Point at)
{
    if (gameState != STATE_SKIP_HANDIN && gameState != STATE_EVENT_HANDIN)
        return;
    if (at.in(handInOkButton()))
        return confirmHandIn();
    for (int slot = 0; slot < race.handInCards.size(); ++slot) {
        if (race.handInCards[slot] != -1 && at.in(handInSlot(slot)))
            return unpickCard(slot);
    }
}

// Another team's cards can be looked at but not touched.
static void pressCard(Point at)
{
    if (!cardsAct() || view.shownTeam != riderTeam(race.currentRider))
        return;
    for (int slot = 0; slot < CARD_SLOT_COUNT; ++slot) {
        if (at.in(cardPlace(slot)))
            return pickCard(slot);
    }
}

static void answer(Point at, void (*left)(), void (*right)())
{
    if (at.in(dialogLeftButton()))
        left();
    else if (at.in(dialogRightButton()))
        right();
}

static void releaseDialog(Point at)
{
    switch (gameState) {
    case STATE_FOLLOW_PROMPT:
        return answer(at, followYes, followNo);
    case STATE_EVENT_CARD:
        return confirm(at, dialogOkButton(), applyEventCard);
    case STATE_EVENT_CARD_KIND:
        return answer(
            at, [] { receiveWonCard(BLUE_CARD); }, [] { receiveWonCard(WHITE_CARD); });
    case STATE_EVENT_CARD_WHEN:
        return answer(
            at, [] { useWonCard(true); }, [] { useWonCard(false); });
    case STATE_EVENT_NO_CARD:
        return confirm(at, dialogOkButton(), goOnWithoutEventCard);
    case STATE_NO_MOVE:
        return confirm(at, dialogOkButton(), leaveRound);
    case STATE_CONFIRM_DOPING:
        return answer(at, confirmDoping, closeOverlay);
    case STATE_DOPING_NUMBER:
        return confirm(at, dialogOkButton(), takeDopingCard);
    case STATE_DOPING_DRAW:
        return confirm(at, dialogOkButton(), afterDopingDraw);
    case STATE_DOPING_COUNTERCHECK:
        return confirm(at, dialogOkButton(), nextCountercheck);
    case STATE_SAVE_FAILED:
        return answer(at, retrySave, abortSave);
    case STATE_CONFIRM_QUIT:
        return answer(at, toMainMenu, closeOverlay);
    case STATE_SKIP_NO_CARD:
        return confirm(at, dialogOkButton(), confirmHandIn);
    case STATE_SETUP_MESSAGE:
        return confirm(at, dialogOkButton(), closeSetupMessage);
    case STATE_SCORECARD:
    case STATE_FINAL_SCORECARD:
    case STATE_RACE_STANDINGS:
        return releaseInScorecard(at.x, at.y);
    case STATE_POSITIONS:
        return releaseInPositions(at.x, at.y);
    default:
        return;
    }
}

static void startDrag(Point at, const Rect& titleBar, const Rect& box)
{
    if (!at.in(titleBar))
        return;
    view.dragActive = true;
    view.dragOffsetX = static_cast<int>(static_cast<float>(at.x) - box.x);
    view.dragOffsetY = static_cast<int>(static_cast<float>(at.y) - box.y);
}

static void pressTitleBar(Point at)
{
    if (dialogShown())
        startDrag(at, dialogTitleBar(), dialogBox());
    else if (scorecardShown())
        startDrag(at, scorecardTitleBar(), scorecardBox());
}

static void pressSidePanel(Point at)
{
    if (!racePanelActive())
        return;
    if (at.in(quitButton()))
        openQuitConfirm();
    else if (at.in(scorecardButton()))
        openScorecard();
    else if (at.in(positionsButton()))
        openPositions();
    else if (at.in(settingsButton()))
        openSettings();
}

// The camera button alone takes the right button too.
static void pressCamera(int button, Point at)
{
    if (!cameraActive())
        return;
    if (button == GLUT_LEFT_BUTTON && at.in(viewToggle()))
        toggleView();
    else if (at.in(cameraButton()))
        changeCamera(button == GLUT_RIGHT_BUTTON ? CAMERA_PREVIOUS : CAMERA_NEXT);
}

// One press can open a dialog and what follows sees the new state, so the order counts.
static void pressLeft(Point at)
{
    pressScreen(at);
    pressHandIn(at);
    pressCard(at);
    pressTitleBar(at);
    pressSidePanel(at);
    pressCamera(GLUT_LEFT_BUTTON, at);
}

// A dialog is answered only by a click that began on it: one that opened it, where it has been
// dragged in front of a button, hasn't read it.
static void releaseLeft(Point at, GameState pressedIn)
{
    view.dragActive = false;
    releaseScreen(at);
    releaseTeamTab(at);
    if (!cardsAct() && gameState == pressedIn)
        releaseDialog(at);
}

static int millisecondsOfGlut()
{
    return glutGet(GLUT_ELAPSED_TIME);
}

int (*mouseClock)() = millisecondsOfGlut;

// The second half of a double click often meets another control, which stands where the first half
// was: "Exit" where "Back" had been, "Start" where the last section was added, or the next question
// where the answer to the last was. So it is dropped when the first half led to another state, or
// to one like it. Presses are compared with presses, since how long a click is held and how long
// its work takes says nothing about the hand.
struct DoubleClickGuard {
    bool pressed = false; // the button is down
    GameState pressedIn = STATE_LOADING;
    int pressedTime = 0;
    Point changedAt = {-1, -1}; // where a click led to another state, and when it was pressed
    int changedTime = 0;
    bool dropped = false; // the click in hand does nothing
};

static DoubleClickGuard guard;

static bool isSecondHalf(Point at, int time)
{
    constexpr int intervalMs = 200;
    constexpr int reach = 5; // pixels
    return guard.changedAt.x != -1 && time - guard.changedTime < intervalMs &&
           std::abs(at.x - guard.changedAt.x) <= reach &&
           std::abs(at.y - guard.changedAt.y) <= reach;
}

// Whether a click that leaves the state as it was may have answered something all the same.
static bool mayAskAgain(Point at)
{
    if (dialogShown())
        return at.in(dialogOkButton()) || at.in(dialogLeftButton()) || at.in(dialogRightButton());
    switch (gameState) {
    case STATE_SKIP_HANDIN:
        return at.in(handInOkButton());
    case STATE_COURSE_DESIGN:
        return at.in(saveCourseButton()) || (at.in(addSectionButton()) && designFinished());
    default:
        return false;
    }
}

// "Throw" and "Next" stand in one place and are pressed in turn, as quickly as one likes.
static bool throwsForOrder(GameState state)
{
    return state == STATE_ORDER_THROW || state == STATE_ORDER_RESULT;
}

static void press(Point at)
{
    const int time = mouseClock();
    guard.pressed = true;
    guard.pressedIn = gameState;
    guard.pressedTime = time;
    guard.dropped = isSecondHalf(at, time);
    if (guard.dropped)
        return;
    guard.changedAt = {-1, -1};
    pressLeft(at);
}

static void release(Point at)
{
    if (!std::exchange(guard.pressed, false)) {
        guard.pressedIn = gameState;
        guard.pressedTime = mouseClock();
    }
    if (guard.dropped)
        return;
    releaseLeft(at, guard.pressedIn);
    if ((gameState != guard.pressedIn || mayAskAgain(at)) && !throwsForOrder(guard.pressedIn)) {
        guard.changedAt = at;
        guard.changedTime = guard.pressedTime;
    }
}

void onMouse(int button, int buttonState, int x, int y)
{
    const Point at = inDrawingArea(x, y);
    const bool pressed = buttonState == GLUT_DOWN;
    if (button == GLUT_LEFT_BUTTON)
        pressed ? press(at) : release(at);
    else if (button == GLUT_RIGHT_BUTTON && pressed)
        pressCamera(GLUT_RIGHT_BUTTON, at);
}

// Slides along the edges of the drawing area; the two axes are taken one by one.
static void drag(const Rect& box, Point at, void (*place)(float x, float y))
{
    const float x = static_cast<float>(at.x - view.dragOffsetX);
    const float y = static_cast<float>(at.y - view.dragOffsetY);
    const bool xFits = x > 0.0f && x + box.w < static_cast<float>(layout.viewW);
    const bool yFits = y - layout.titleBarH > 0.0f && y + box.h < static_cast<float>(layout.viewH);
    place(xFits ? x : box.x, yFits ? y : box.y);
    redrawNow();
}

static int courseUnder(Point at)
{
    for (int index = 0; index < FIXED_COURSE_COUNT; ++index)
        if (at.in(courseCell(index)))
            return index;
    return -1;
}

static void hoverCourse(Point at)
{
    const int hovered = courseUnder(at);
    if (hovered == courseScreens.courseHover)
        return;
    courseScreens.courseHover = hovered;
    redrawNow();
}

static void hover(Point at)
{
    if (gameState == STATE_LANGUAGE)
        hoverLanguage(at.x, at.y);
    else if (gameState == STATE_COURSE_SELECT)
        hoverCourse(at);
}

// What is under the pointer is lit with a button held as well, so that what is lit is what counts.
void onDrag(int x, int y)
{
    const Point at = inDrawingArea(x, y);
    hover(at);
    if (!view.dragActive)
        return;
    if (dialogShown())
        drag(dialogBox(), at, placeDialog);
    else if (scorecardShown())
        drag(scorecardBox(), at, placeScorecard);
}

void onHover(int x, int y)
{
    hover(inDrawingArea(x, y));
}
