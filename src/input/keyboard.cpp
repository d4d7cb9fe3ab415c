#include "input/keyboard.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/table.h"
#include "app/view.h"
#include "board/course.h"
#include "input/actions.h"
#include "input/course_input.h"
#include "input/keys.h"
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
#include "play/movement.h"
#include "play/overlays.h"
#include "play/placing.h"
#include "play/stage_end.h"
#include "play/turn_cycle.h"
#include "race/race_state.h"
#include "ui/access_keys.h"

#include <GL/freeglut.h>

#include <utility>

static int modifiersOfGlut()
{
    return glutGetModifiers();
}

int (*heldModifiers)() = modifiersOfGlut;

// Key and what it does. The first row whose control has the key as its letter is taken.
struct LetterAction {
    Control control;
    void (*act)();
};

template <int N> static void actOnLetter(unsigned char key, const LetterAction (&actions)[N])
{
    for (const LetterAction& action : actions)
        if (isAccessKey(action.control, key))
            return action.act();
}

static void receiveBlueCard()
{
    receiveWonCard(BLUE_CARD);
}

static void receiveWhiteCard()
{
    receiveWonCard(WHITE_CARD);
}

static void useCardNow()
{
    useWonCard(true);
}

static void keepCard()
{
    useWonCard(false);
}

// clang-format off
constexpr LetterAction turnLetters[] =     {{CONTROL_THROW, humanThrow}, {CONTROL_BREAKAWAY, toggleBreakaway}, {CONTROL_DOPING, askDoping}};
constexpr LetterAction extraDieLetters[] = {{CONTROL_THROW, throwExtraDie}};
constexpr LetterAction orderLetters[] =    {{CONTROL_THROW, throwForOrder}};
constexpr LetterAction resultLetters[] =   {{CONTROL_NEXT, afterOrderThrow}};
constexpr LetterAction followLetters[] =   {{CONTROL_YES, followYes}, {CONTROL_NO, followNo}};
constexpr LetterAction quitLetters[] =     {{CONTROL_YES, toMainMenu}, {CONTROL_NO, closeOverlay}};
constexpr LetterAction kindLetters[] =     {{CONTROL_BLUE, receiveBlueCard}, {CONTROL_WHITE, receiveWhiteCard}};
constexpr LetterAction whenLetters[] =     {{CONTROL_IMMEDIATELY, useCardNow}, {CONTROL_LATER, keepCard}};
constexpr LetterAction dopingLetters[] =   {{CONTROL_YES, confirmDoping}, {CONTROL_NO, closeOverlay}};
constexpr LetterAction saveLetters[] =     {{CONTROL_RETRY, retrySave}, {CONTROL_ABORT, abortSave}};
constexpr LetterAction menuLetters[] =     {{CONTROL_START, openTeamSetup}, {CONTROL_MANUAL, openManual}, {CONTROL_MENU_SETTINGS, openSettings},
                                            {CONTROL_LANGUAGE, openLanguages}, {CONTROL_CONTINUE, openRaceFiles}, {CONTROL_EXIT, quitProgram}};
constexpr LetterAction courseLetters[] =   {{CONTROL_CREATE_COURSE, openCourseDesigner}, {CONTROL_SAVED_COURSE, openSavedCourses}, {CONTROL_COURSE_BACK, leaveCourseSelection}};
constexpr LetterAction panelLetters[] =    {{CONTROL_QUIT, openQuitConfirm}, {CONTROL_SCORECARD, openScorecard}, {CONTROL_POSITIONS, openPositions},
                                            {CONTROL_RACE_SETTINGS, openSettings}};
// clang-format on

static void letterOfState(unsigned char key)
{
    switch (gameState) {
    case STATE_TURN:
        return actOnLetter(key, turnLetters);
    case STATE_EVENT_DIE:
        return actOnLetter(key, extraDieLetters);
    case STATE_ORDER_THROW:
        return actOnLetter(key, orderLetters);
    case STATE_ORDER_RESULT:
        return actOnLetter(key, resultLetters);
    case STATE_FOLLOW_PROMPT:
        return actOnLetter(key, followLetters);
    case STATE_CONFIRM_QUIT:
        return actOnLetter(key, quitLetters);
    case STATE_EVENT_CARD_KIND:
        return actOnLetter(key, kindLetters);
    case STATE_EVENT_CARD_WHEN:
        return actOnLetter(key, whenLetters);
    case STATE_CONFIRM_DOPING:
        return actOnLetter(key, dopingLetters);
    case STATE_SAVE_FAILED:
        return actOnLetter(key, saveLetters);
    case STATE_MAIN_MENU:
        return actOnLetter(key, menuLetters);
    case STATE_COURSE_SELECT:
        return actOnLetter(key, courseLetters);
    default:
        return;
    }
}

// What "OK" does in the present state, or null where the confirming keys are keys like any other.
static void (*confirmation())()
{
    switch (gameState) {
    case STATE_EVENT_CARD:
        return applyEventCard;
    case STATE_SKIP_HANDIN:
    case STATE_EVENT_HANDIN:
    case STATE_SKIP_NO_CARD:
        return confirmHandIn;
    case STATE_EVENT_NO_CARD:
        return goOnWithoutEventCard;
    case STATE_NO_MOVE:
        return leaveRound;
    case STATE_DOPING_NUMBER:
        return takeDopingCard;
    case STATE_DOPING_DRAW:
        return afterDopingDraw;
    case STATE_DOPING_COUNTERCHECK:
        return nextCountercheck;
    case STATE_SETUP_MESSAGE:
        return closeSetupMessage;
    default:
        return nullptr;
    }
}

static void steeringKey(unsigned char key)
{
    const bool done = key == KEY_ENTER || key == KEY_SPACE;
    if (gameState == STATE_PLACE_HUMAN && done)
        placeHumanRider();
    else if (gameState == STATE_MOVE && done)
        endHumanMove();
    else if (gameState == STATE_MOVE && (key == 'u' || key == 'U'))
        undoStep();
}

static void keyOfState(unsigned char key, bool backward)
{
    switch (gameState) {
    case STATE_MOVE:
    case STATE_PLACE_HUMAN:
        return steeringKey(key);
    case STATE_TEAM_SETUP:
        return keyInTeamSetup(key, backward);
    case STATE_COURSE_DESIGN:
        return keyInCourseDesigner(key);
    case STATE_MANUAL:
        return keyInManual(key);
    case STATE_RACE_FILES:
        return keyInRaceFiles(key);
    case STATE_SCORECARD:
    case STATE_FINAL_SCORECARD:
    case STATE_RACE_STANDINGS:
        return keyInScorecard(key);
    case STATE_POSITIONS:
        return keyInPositions(key);
    case STATE_SETTINGS:
        return keyInSettings(key, backward);
    default:
        break;
    }
    void (*const confirm)() = isConfirming(key) ? confirmation() : nullptr;
    confirm ? confirm() : letterOfState(key);
}

static void teamTabKey(bool backward)
{
    if (!teamTabsActive())
        return;
    showTeam((view.shownTeam + (backward ? TEAM_COUNT - 1 : 1)) % TEAM_COUNT);
}

// Each key as it was last pressed, by its small letter; 0 before, COMMAND with Ctrl or Alt.
constexpr unsigned char COMMAND = 1;
static Table<unsigned char, 256> pressedAs{};
static bool tabPressedBackward = false;

static unsigned char smallLetter(unsigned char key)
{
    const bool capital = (key >= 'A' && key <= 'Z') || (key >= 0xC0 && key <= 0xDE && key != 0xD7);
    return static_cast<unsigned char>(capital ? key + ('a' - 'A') : key);
}

static bool commandHeld()
{
    return (heldModifiers() & (GLUT_ACTIVE_CTRL | GLUT_ACTIVE_ALT)) != 0;
}

// With Ctrl a letter comes as a control character, and as itself once Ctrl is let go.
static void rememberCommand(unsigned char key)
{
    constexpr unsigned char lettersBehind = 'a' - 1;
    pressedAs[smallLetter(key)] = COMMAND;
    if (key <= 'z' - lettersBehind)
        pressedAs[key + lettersBehind] = COMMAND;
}

void onKeyDown(unsigned char key, int, int)
{
    if (commandHeld())
        return rememberCommand(key);
    pressedAs[smallLetter(key)] = key;
    if (key == KEY_TAB)
        tabPressedBackward = (heldModifiers() & GLUT_ACTIVE_SHIFT) != 0;
}

static unsigned char asPressed(unsigned char key)
{
    const unsigned char pressed = std::exchange(pressedAs[smallLetter(key)], 0);
    return pressed != 0 ? pressed : key;
}

// A key does its work in the present state and is then looked at again by the race panel, in the
// state that is left: where one letter has both meanings it does both.
void onKeyUp(unsigned char key, int, int)
{
    key = asPressed(key);
    if (key == COMMAND || commandHeld())
        return;
    const bool backward = key == KEY_TAB && (std::exchange(tabPressedBackward, false) ||
                                             (heldModifiers() & GLUT_ACTIVE_SHIFT) != 0);
    keyOfState(key, backward);
    if (racePanelActive())
        actOnLetter(key, panelLetters);
    if (key == KEY_TAB)
        teamTabKey(backward);
}

static void steer(int key)
{
    switch (key) {
    case GLUT_KEY_LEFT:
        return stepRider('L');
    case GLUT_KEY_UP:
        return stepRider('M');
    case GLUT_KEY_RIGHT:
        return stepRider('R');
    case GLUT_KEY_DOWN:
        return undoStep();
    default:
        return;
    }
}

// The start section lies across the picture, the two of them in opposite directions. The cursor
// goes where the arrow points.
static void moveCursor(int key)
{
    const int forward = courseText.starts_with('0') ? 1 : -1;
    switch (key) {
    case GLUT_KEY_LEFT:
        return movePlacingCursor(forward, 0);
    case GLUT_KEY_RIGHT:
        return movePlacingCursor(-forward, 0);
    case GLUT_KEY_UP:
        return movePlacingCursor(0, forward);
    case GLUT_KEY_DOWN:
        return movePlacingCursor(0, -forward);
    default:
        return;
    }
}

// The card slot of a function key for the rider on turn: his own cards, the team's, those won. -1
// for a key without a card of his.
static int slotOfKey(int key)
{
    const int place = riderPlace(race.currentRider);
    if (key <= GLUT_KEY_F4) {
        const int slot = riderFirstCard[place] + key - GLUT_KEY_F1;
        return cardOwner[slot] == place ? slot : -1;
    }
    return SET_CARD_COUNT - 4 + key - GLUT_KEY_F5;
}

static void bringTeamIntoView()
{
    if (view.shownTeam != riderTeam(race.currentRider))
        showTeam(riderTeam(race.currentRider));
}

static int placeOfCard(const Table<int, 2>& places, int slot)
{
    return places[0] == slot ? 0 : places[1] == slot ? 1 : -1;
}

static void cardKey(int key)
{
    const bool turn = gameState == STATE_TURN;
    const Table<int, 2>& places = turn ? race.playedCards : race.handInCards;
    const int slot = slotOfKey(key);
    if (slot == -1)
        return;
    const int laid = placeOfCard(places, slot);
    if (laid != -1) {
        unpickCard(laid);
        bringTeamIntoView();
    } else if (race.roundNumber != 1) {
        pickCard(slot);
        if (turn && placeOfCard(places, slot) != -1)
            bringTeamIntoView();
    }
}

void onSpecialUp(int key, int, int)
{
    if (commandHeld())
        return;
    if (gameState == STATE_MOVE)
        steer(key);
    else if (gameState == STATE_PLACE_HUMAN)
        moveCursor(key);
    else if (gameState == STATE_TEAM_SETUP)
        specialInTeamSetup(key);
    else if (gameState == STATE_MANUAL)
        specialInManual(key);
    else if (gameState == STATE_SETTINGS)
        specialInSettings(key);
    else if (gameState == STATE_SCORECARD || gameState == STATE_FINAL_SCORECARD ||
             gameState == STATE_RACE_STANDINGS)
        specialInScorecard(key);
    else if (cardsActive() && key >= GLUT_KEY_F1 && key <= GLUT_KEY_F12)
        cardKey(key);
}
