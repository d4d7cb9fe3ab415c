#include "input/keyboard.h"

#include "app/game_state.h"
#include "app/host.h"
#include "app/table.h"
#include "app/view.h"
#include "board/course.h"
#include "input/actions.h"
#include "input/acts.h"
#include "input/menu_input.h"
#include "input/scorecard_input.h"
#include "input/settings_input.h"
#include "input/setup_input.h"
#include "play/cards.h"
#include "play/movement.h"
#include "play/placing.h"
#include "race/race_state.h"
#include "ui/keys.h"

#include <GL/freeglut.h>

#include <utility>

static int modifiersOfGlut()
{
    return glutGetModifiers();
}

int (*heldModifiers)() = modifiersOfGlut;

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

// Keys that are no button's. True where all of them are, as in fields of text.
static bool specialKey(unsigned char key, bool backward)
{
    switch (gameState) {
    case STATE_MOVE:
    case STATE_PLACE_HUMAN:
        steeringKey(key);
        return true;
    case STATE_TEAM_SETUP:
        keyInTeamSetup(key, backward);
        return true;
    case STATE_SETTINGS:
        keyInSettings(key, backward);
        return true;
    case STATE_MANUAL:
        keyInManual(key);
        return false;
    case STATE_SCORECARD:
    case STATE_FINAL_SCORECARD:
    case STATE_RACE_STANDINGS:
        keyInScorecard(key);
        return false;
    default:
        return false;
    }
}

static void pressControl(unsigned char key, bool panel)
{
    const Control control = controlOfKey(key, panel);
    if (control != NO_CONTROL)
        actOn(control);
}

static void teamTabKey(bool backward)
{
    if (!TEAM_TAB_STATES.contains(gameState))
        return;
    showTeam((view.shownTeam + (backward ? TEAM_COUNT - 1 : 1)) % TEAM_COUNT);
}

// Each key as it was last pressed, by its small letter; 0 before, COMMAND with Ctrl or Alt.
constexpr unsigned char COMMAND = 1;
constexpr unsigned char WHOLE_SCREEN = 2; // Alt and Enter
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
    if (key == KEY_ENTER && (heldModifiers() & GLUT_ACTIVE_ALT) != 0)
        pressedAs[KEY_ENTER] = WHOLE_SCREEN;
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
    if (key == WHOLE_SCREEN)
        return toggleFullScreen();
    if (key == COMMAND || commandHeld())
        return;
    const bool backward = key == KEY_TAB && (std::exchange(tabPressedBackward, false) ||
                                             (heldModifiers() & GLUT_ACTIVE_SHIFT) != 0);
    if (!specialKey(key, backward))
        pressControl(key, false);
    pressControl(key, true);
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
