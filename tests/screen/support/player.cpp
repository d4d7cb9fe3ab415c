#include "screen/support/player.h"

#include "input/keyboard.h"
#include "input/mouse.h"
#include "race/race_state.h"
#include "ui/layout.h"
#include "ui/places.h"

#include <GL/freeglut.h>

static int windowX(float x)
{
    return layout.viewX + static_cast<int>(x);
}

static int windowY(float y)
{
    return layout.viewY + static_cast<int>(y);
}

static int now = 0; // ms
static int heldNow = 0;

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

void Player::press(const Rect& at)
{
    press(at.x + at.w * 0.5f, at.y + at.h * 0.5f);
}

void Player::release(const Rect& at)
{
    release(at.x + at.w * 0.5f, at.y + at.h * 0.5f);
}

void Player::hold(int ms)
{
    now += ms;
}

void Player::dragTo(float x, float y)
{
    onDrag(windowX(x), windowY(y));
}

void Player::click(const Rect& at, int button)
{
    if (button == GLUT_LEFT_BUTTON) {
        press(at);
        release(at);
        return;
    }
    for (const int pressed : {GLUT_DOWN, GLUT_UP})
        onMouse(button, pressed, windowX(at.x + at.w * 0.5f), windowY(at.y + at.h * 0.5f));
}

void Player::click(std::initializer_list<Control> controls)
{
    for (const Control control : controls)
        click(control);
}

void Player::doubleClick(Control control)
{
    click(control);
    now -= pace - 90;
    click(control);
}

void Player::hover(const Rect& at)
{
    onHover(windowX(at.x + at.w * 0.5f), windowY(at.y + at.h * 0.5f));
}

static void holdModifiers(int held)
{
    heldNow = held;
    heldModifiers = [] { return heldNow; };
}

void Player::press(char key)
{
    holdModifiers(held);
    onKeyDown(static_cast<unsigned char>(key), 0, 0);
}

void Player::release(char key)
{
    holdModifiers(held);
    onKeyUp(static_cast<unsigned char>(key), 0, 0);
}

void Player::type(std::string_view keys)
{
    for (const char key : keys) {
        press(key);
        release(key);
    }
}

void Player::special(std::initializer_list<int> glutKeys)
{
    holdModifiers(held);
    for (const int key : glutKeys)
        onSpecialUp(key, 0, 0);
}

bool overlap(const Rect& a, const Rect& b)
{
    constexpr float TOUCH = 0.01f;
    return a.x + a.w > b.x + TOUCH && b.x + b.w > a.x + TOUCH && a.y + a.h > b.y + TOUCH &&
           b.y + b.h > a.y + TOUCH;
}

std::vector<Rect> everyPlace()
{
    std::vector<Rect> all;
    for (int control = 0; control < CONTROL_COUNT; ++control)
        all.push_back(placeOf(static_cast<Control>(control)));
    const auto add = [&all](Rect (*place)(int), int count) {
        for (int i = 0; i < count; ++i)
            all.push_back(place(i));
    };
    add(cardPlace, CARD_SLOT_COUNT);
    for (Rect (*pair)(int) : {dicePlace, handInSlot, sectionRadio, sectionRadios})
        add(pair, 2);
    for (Rect (*four)(int) : {languageBox, teamNameBox, coursePicture, courseCell})
        add(four, 4);
    add(settingsField, 3);
    for (Rect (*one)() : {dialogBox, dialogTitleBar, scorecardBox, scorecardTitleBar, cardPanel,
                          extraCardSlot, extraDicePlace, manualFrame, raceNameBox, overviewPicture,
                          movementFrame, ratioFrame, raceListFrame, raceListNames})
        all.push_back(one());
    return all;
}
