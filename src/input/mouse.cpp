#include "input/mouse.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/view.h"
#include "board/designer.h"
#include "board/pictures.h"
#include "input/actions.h"
#include "input/acts.h"
#include "input/course_input.h"
#include "input/menu_input.h"
#include "input/race_list_input.h"
#include "input/settings_input.h"
#include "input/setup_input.h"
#include "play/cards.h"
#include "race/race_state.h"
#include "ui/controls.h"
#include "ui/dialogs.h"
#include "ui/layout.h"
#include "ui/places.h"
#include "ui/scale.h"

#include <GL/freeglut.h>

#include <algorithm>
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
    return {toLogical(x) - layout.viewX, toLogical(y) - layout.viewY};
}

// Does what the control there is for, if one acts at this moment, and tells which it was.
static Control actAt(Point at, Moment moment)
{
    const Control control = controlAt(at.x, at.y, moment);
    if (control != NO_CONTROL)
        actOn(control);
    return control;
}

static void pressDice(Point at)
{
    for (const int die : {0, 1})
        if (gameState == STATE_TURN && at.in(dicePlace(die)))
            return unpickCard(die);
}

static bool cardsAct()
{
    return cardsActive() && race.roundNumber != 1;
}

static void pressHandIn(Point at)
{
    if (gameState != STATE_SKIP_HANDIN && gameState != STATE_EVENT_HANDIN)
        return;
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

// One press can open a dialog and what follows sees the new state, so the order counts.
static Control pressLeft(Point at)
{
    if (actAt(at, ON_PRESS) == NO_CONTROL)
        pressDice(at);
    const Control handedIn = actAt(at, ON_PRESS_HAND_IN);
    if (handedIn == NO_CONTROL)
        pressHandIn(at);
    pressCard(at);
    pressTitleBar(at);
    actAt(at, ON_PRESS_PANEL);
    actAt(at, ON_PRESS_CAMERA);
    return handedIn;
}

// What a release does beside the buttons of a screen. Fields and names lie above buttons that they
// touch, everything else below.
static bool releaseAbove(Point at)
{
    switch (gameState) {
    case STATE_LANGUAGE:
        chooseLanguage();
        return true;
    case STATE_TEAM_SETUP:
        return releaseInNameFields(at.x, at.y);
    case STATE_RACE_FILES:
        return releaseOnRaceName(at.x, at.y);
    case STATE_COURSE_DESIGN:
        forgetSaveFailure();
        return false;
    default:
        return false;
    }
}

static void releaseBelow(Point at)
{
    if (gameState == STATE_COURSE_SELECT)
        chooseHoveredCourse();
    else if (gameState == STATE_COURSE_DESIGN)
        releaseInSectionList(at.x, at.y);
    else if (gameState == STATE_SETTINGS)
        releaseInSettingsFields(at.x, at.y);
}

static Control releaseScreen(Point at)
{
    if (releaseAbove(at))
        return NO_CONTROL;
    const Control control = actAt(at, ON_RELEASE);
    if (control == NO_CONTROL)
        releaseBelow(at);
    return control;
}

// A dialog is answered only by a click that began on it: one that opened it, where it has been
// dragged in front of a button, hasn't read it.
static Control releaseLeft(Point at, GameState pressedIn)
{
    view.dragActive = false;
    Control control = releaseScreen(at);
    actAt(at, ON_RELEASE_TAB);
    if (!cardsAct() && gameState == pressedIn)
        control = std::max(control, actAt(at, ON_RELEASE_BOX));
    return control;
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
    Control acted = NO_CONTROL; // on the press
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

// Whether a click that leaves the state as it was may have answered something all the same, or has
// brought up another control in the place of its own.
static bool mayAnswerMore(Point at, Control acted)
{
    if (acted == NO_CONTROL)
        return false;
    const Control now = controlAt(at.x, at.y, momentOf(acted));
    return asksOnce(acted) || (now != NO_CONTROL && now != acted);
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
    guard.acted = pressLeft(at);
}

static void release(Point at)
{
    if (!std::exchange(guard.pressed, false)) {
        guard.pressedIn = gameState;
        guard.pressedTime = mouseClock();
        guard.acted = NO_CONTROL;
    }
    if (guard.dropped)
        return;
    const Control acted = std::max(guard.acted, releaseLeft(at, guard.pressedIn));
    if ((gameState != guard.pressedIn || mayAnswerMore(at, acted)) &&
        !throwsForOrder(guard.pressedIn)) {
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
    else if (button == GLUT_RIGHT_BUTTON && pressed &&
             controlAt(at.x, at.y, ON_PRESS_CAMERA) == CONTROL_CAMERA)
        changeCamera(CAMERA_PREVIOUS);
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
