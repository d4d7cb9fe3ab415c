#include "screen/support/player.h"

#include "app/game_state.h"
#include "input/keyboard.h"
#include "input/mouse.h"
#include "screen/support/old_places.h"
#include "ui/layout.h"

#include <GL/freeglut.h>
#include <gtest/gtest.h>

struct NamedControl {
    std::string_view label;
    GameState state; // STATE_COUNT: any other
    Rect (*at)();
};

constexpr GameState ANY = static_cast<GameState>(STATE_COUNT);

// The first row whose label and state fit is the control meant.
// clang-format off
constexpr NamedControl NAMED_CONTROLS[] = {
    {"Start",       ANY,                    menuStartButton},
    {"Continue",    ANY,                    menuContinueButton},
    {"Single stage", ANY,                   singleStageRadio},
    {"OK",          STATE_TEAM_SETUP,       teamOkButton},
    {"OK",          STATE_SKIP_HANDIN,      handInOkButton},
    {"OK",          STATE_EVENT_HANDIN,     handInOkButton},
    {"OK",          STATE_RACE_FILES,       listOkButton},
    {"OK",          STATE_POSITIONS,        positionsOkButton},
    {"OK",          STATE_SCORECARD,        scorecardOkButton},
    {"OK",          STATE_RACE_STANDINGS,   scorecardOkButton},
    {"OK",          ANY,                    dialogOkButton},
    {"Back",        ANY,                    cornerButton},
    {"Exit",        STATE_MAIN_MENU,        exitButton},
    {"Throw",       STATE_EVENT_DIE,        extraThrowButton},
    {"Throw",       ANY,                    throwButton},
    {"Next",        ANY,                    throwButton},
    {"Breakaway",   ANY,                    breakawayBox},
    {"Quit",        STATE_FINAL_SCORECARD,  scorecardOkButton},
    {"Quit",        ANY,                    quitButton},
    {"Scorecard",   STATE_RACE_FILES,       listScorecardButton},
    {"Scorecard",   ANY,                    scorecardButton},
    {"Positions",   ANY,                    positionsButton},
    {"Doping",      ANY,                    dopingButton},
    {"Export",      ANY,                    exportButton},
    {"Yes",         ANY,                    dialogLeftButton},
    {"No",          ANY,                    dialogRightButton},
    {"Blue",        ANY,                    dialogLeftButton},
    {"White",       ANY,                    dialogRightButton},
    {"Immediately", ANY,                    dialogLeftButton},
    {"Later",       ANY,                    dialogRightButton},
    {"Retry",       ANY,                    dialogLeftButton},
    {"Abort",       ANY,                    dialogRightButton},
    {"2D/3D",       ANY,                    viewToggle},
    {"Camera",      ANY,                    cameraButton},
};
// clang-format on

static int windowX(float x)
{
    return layout.viewX + static_cast<int>(x);
}

static int windowY(float y)
{
    return layout.viewY + static_cast<int>(y);
}

static int now = 0; // ms

void Player::press(float x, float y)
{
    now += pace;
    mouseClock = [] { return now; };
    onMouse(GLUT_LEFT_BUTTON, GLUT_DOWN, windowX(x), windowY(y));
}

void Player::release(float x, float y)
{
    onMouse(GLUT_LEFT_BUTTON, GLUT_UP, windowX(x), windowY(y));
}

void Player::dragTo(float x, float y)
{
    onDrag(windowX(x), windowY(y));
}

void Player::click(const Rect& at)
{
    const float x = at.x + at.w * 0.5f;
    const float y = at.y + at.h * 0.5f;
    press(x, y);
    release(x, y);
}

void Player::doubleClick(const Rect& at)
{
    click(at);
    now -= pace - 90;
    click(at);
}

void Player::rightClick(const Rect& at)
{
    const int x = windowX(at.x + at.w * 0.5f);
    const int y = windowY(at.y + at.h * 0.5f);
    onMouse(GLUT_RIGHT_BUTTON, GLUT_DOWN, x, y);
    onMouse(GLUT_RIGHT_BUTTON, GLUT_UP, x, y);
}

void Player::click(std::string_view label)
{
    for (const NamedControl& control : NAMED_CONTROLS) {
        if (control.label == label && (control.state == gameState || control.state == ANY)) {
            click(control.at());
            return;
        }
    }
    ADD_FAILURE() << "no control " << label << " in state " << gameState;
}

void Player::hover(const Rect& at)
{
    onHover(windowX(at.x + at.w * 0.5f), windowY(at.y + at.h * 0.5f));
}

static int heldNow = 0;

void Player::key(char character)
{
    heldNow = held;
    heldModifiers = [] { return heldNow; };
    onKeyUp(static_cast<unsigned char>(character), 0, 0);
}

void Player::special(int glutKey)
{
    heldNow = held;
    heldModifiers = [] { return heldNow; };
    onSpecialUp(glutKey, 0, 0);
}
