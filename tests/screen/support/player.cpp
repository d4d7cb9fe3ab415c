#include "screen/support/player.h"

#include "input/keyboard.h"
#include "input/mouse.h"
#include "play/start.h"

#include <cstdlib>

static int now = 0; // ms
static int heldNow = 0;

// How long a click holds the button, which tells nothing of how quickly it is pressed again.
constexpr int HOLD_MS = 60;

// Calls back with a place in pixels of the window.
template <typename Callback, typename... What>
static void callAt(Spot at, Callback callback, What... what)
{
    callback(what..., layout.viewX + static_cast<int>(at.x), layout.viewY + static_cast<int>(at.y));
}

void Player::press(Spot at, int button)
{
    now += pace - HOLD_MS;
    mouseClock = [] { return now; };
    callAt(at, onMouse, button, GLUT_DOWN);
}

void Player::release(Spot at, int button)
{
    now += HOLD_MS;
    callAt(at, onMouse, button, GLUT_UP);
}

void Player::dragTo(Spot at)
{
    callAt(at, onDrag);
}

void Player::hover(Spot at)
{
    callAt(at, onHover);
}

void Player::click(Spot at, int button)
{
    press(at, button);
    release(at, button);
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

static void holdModifiers(int held)
{
    heldNow = held;
    heldModifiers = [] { return heldNow; };
}

void Player::keyDown(char key)
{
    holdModifiers(held);
    onKeyDown(static_cast<unsigned char>(key), 0, 0);
}

void Player::keyUp(char key)
{
    holdModifiers(held);
    onKeyUp(static_cast<unsigned char>(key), 0, 0);
}

void Player::key(char key)
{
    keyDown(key);
    keyUp(key);
}

void Player::type(std::string_view keys)
{
    for (const char pressed : keys)
        key(pressed);
}

void Player::special(std::initializer_list<int> glutKeys)
{
    holdModifiers(held);
    for (const int key : glutKeys)
        onSpecialUp(key, 0, 0);
}

void ScreenTest::startRaceOn(std::string_view text)
{
    std::srand(7);
    courseText = text;
    startRace();
}

void ScreenTest::goToFirstMove(int ticks)
{
    while (gameState == STATE_ORDER_RESULT)
        player.click(CONTROL_NEXT);
    for (; ticks > 0; --ticks)
        runTick();
    ASSERT_EQ(gameState, STATE_ANIMATE);
}

std::vector<Control> everyControl()
{
    std::vector<Control> all;
    for (int control = 0; control < CONTROL_COUNT; ++control)
        all.push_back(static_cast<Control>(control));
    return all;
}

std::vector<Rect> everyPlace()
{
    std::vector<Rect> all;
    for (const Control control : everyControl())
        all.push_back(placeOf(control));
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
