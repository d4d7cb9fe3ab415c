#include "app/game_state.h"
#include "app/host.h"
#include "app/settings.h"
#include "app/view.h"
#include "board/course.h"
#include "input/keyboard.h"
#include "input/mouse.h"
#include "race/race_state.h"
#include "race/soundness.h"
#include "screen/support/gl_window.h"
#include "screen/support/player.h"
#include "store/race_file.h"
#include "support/fake_host.h"
#include "support/own_folder.h"
#include "ui/frame.h"
#include "ui/layout.h"
#include "ui/places.h"

#include <GL/freeglut.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <random>
#include <string>

// Somebody who knows nothing of the game presses anything, anywhere. Nothing may break, whatever
// comes of it. GRAVELON_MONKEY sets how many events there are, GRAVELON_SEED another beginning.

namespace
{

constexpr int EVENTS = 40000;
constexpr int EVENTS_A_FRAME = 40; // painting is slow without a graphics card

long numberFrom(const char* variable, long otherwise)
{
    const char* text = std::getenv(variable);
    return text ? std::atol(text) : otherwise;
}

class Monkey
{
public:
    explicit Monkey(unsigned seed) : generator(seed) {}

    void act()
    {
        if (below(3) == 0)
            return doTheSensibleThing();
        const std::vector<Rect> places = everyPlace();
        switch (below(12)) {
        case 0:
            return resizeOrWait();
        case 1:
        case 2:
            return pressKey();
        case 3:
            return pressSpecialKey();
        case 4:
            return (below(2) ? onDrag : onHover)(anyX(), anyY());
        case 5:
            return clickAt(anyX(), anyY());
        case 6:
        case 7:
            return letTimePass();
        default:
            return clickOn(
                places[static_cast<std::size_t>(below(static_cast<int>(places.size())))]);
        }
    }

private:
    int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(generator); }
    int anyX() { return below(layout.windowW + 40) - 20; }
    int anyY() { return below(layout.windowH + 40) - 20; }

    // Left to himself he would hardly ever come to a race, and quit it as soon as he had.
    void doTheSensibleThing()
    {
        switch (gameState) {
        case STATE_MAIN_MENU:
            return clickOn(placeOf(below(2) == 0 ? CONTROL_CONTINUE : CONTROL_START));
        case STATE_TEAM_SETUP:
            raceSetup.multiStage = below(2) == 0;
            raceSetup.raceName = "Race " + std::to_string(below(1000));
            raceSetup.teamName = {"A", "B", "C", "D"};
            clickOn(placeOf(static_cast<Control>(CONTROL_COMPUTER_1 + below(TEAM_COUNT))));
            return clickOn(placeOf(CONTROL_TEAM_OK));
        case STATE_COURSE_SELECT:
            return clickOn(below(3) == 0 ? placeOf(CONTROL_CREATE_COURSE)
                                         : coursePicture(below(4)));
        case STATE_CONFIRM_QUIT:
            return clickOn(placeOf(below(20) == 0 ? CONTROL_QUIT_YES : CONTROL_QUIT_NO));
        case STATE_RACE_FILES:
            clickOn({raceListNames().x, raceListNames().y + static_cast<float>(below(40)), 30.0f});
            return clickOn(placeOf(static_cast<Control>(CONTROL_LIST_OK + below(3))));
        case STATE_EVENT_HANDIN:
            onSpecialUp(GLUT_KEY_F1 + below(12), 0, 0);
            return clickOn(placeOf(CONTROL_HAND_IN));
        case STATE_TURN:
            return clickOn(placeOf(below(4) == 0 ? CONTROL_DOPING : CONTROL_THROW));
        case STATE_MOVE:
            return onSpecialUp(GLUT_KEY_LEFT + below(3), 0, 0);
        case STATE_PLACE_HUMAN:
            onSpecialUp(GLUT_KEY_LEFT + below(4), 0, 0);
            return onKeyUp('\r', 0, 0);
        default:
            return clickFirstLive();
        }
    }

    // "OK", "Yes", "Throw" or "Next", wherever there is one; else he waits.
    void clickFirstLive()
    {
        for (int i = 0; i < CONTROL_COUNT; ++i)
            if (isLive(static_cast<Control>(i)) && (i < CONTROL_TAB_1 || i > CONTROL_CAMERA))
                return clickOn(placeOf(static_cast<Control>(i)));
        letTimePass();
    }

    void letTimePass()
    {
        for (int ticks = below(60); ticks > 0 && runTick(); --ticks) {
        }
    }

    void resizeOrWait()
    {
        constexpr int sizes[][2] = {{640, 512}, {640, 480}, {800, 500}, {500, 500}, {320, 200}};
        if (below(40) != 0)
            return letTimePass();
        const auto& size = sizes[below(5)];
        resizeScreen(size[0], size[1]);
    }

    void clickOn(const Rect& at)
    {
        clickAt(layout.viewX + static_cast<int>(at.x + at.w * 0.5f),
                static_cast<int>(at.y + at.h * 0.5f));
    }

    // Most often with the left button, and without moving it meanwhile.
    void clickAt(int x, int y)
    {
        const int button = std::max(GLUT_LEFT_BUTTON, below(24) - 19);
        onHover(x, y);
        onMouse(button, GLUT_DOWN, x, y);
        if (below(16) == 0)
            onDrag(anyX(), anyY());
        if (below(16) != 0)
            onMouse(button, GLUT_UP, x, y);
    }

    void hold()
    {
        static int held;
        held = below(4) == 0 ? below(8) : 0;
        heldModifiers = [] { return held; };
    }

    void pressKey()
    {
        constexpr std::string_view keys = "\r\r\r  \t\b\x7f\x1b"
                                          "yntoqsdbaucpmelrjvwghzi0159-\xE9\xD0";
        hold();
        const int key = below(10) == 0 ? below(256) : keys[static_cast<std::size_t>(below(37))];
        onKeyDown(static_cast<unsigned char>(key), 0, 0);
        onKeyUp(static_cast<unsigned char>(key), 0, 0);
    }

    void pressSpecialKey()
    {
        hold();
        const int key = below(3) == 0 ? GLUT_KEY_F1 + below(12) : GLUT_KEY_LEFT + below(9);
        for (int times = below(4); times >= 0; --times)
            onSpecialUp(key, 0, 0);
    }

    std::mt19937 generator;
};

std::string fault()
{
    if (settings.stepTime < 0 || settings.stepTime > SETTINGS_NUMBER_MAX ||
        settings.stepDelay < 0 || settings.stepDelay > SETTINGS_NUMBER_MAX)
        return "a setting is out of its range";
    if (std::ranges::any_of(raceSetup.teamName,
                            [](const std::string& name) { return name.size() > NAME_LENGTH_MAX; }))
        return "a team's name is too long";
    for (const StageRecord& stage : raceSetup.raceStages)
        for (const int rider : stage.slots)
            if (rider < -1 || rider >= RIDER_COUNT)
                return "a stage was won by nobody known";
    if (courseText.size() > 27)
        return "the course is too long";
    if (view.shownTeam < 0 || view.shownTeam >= TEAM_COUNT || view.cameraIndex < 1 ||
        view.cameraIndex > 10)
        return "the view shows what is not there";
    return boardVisible() ? raceFault() : std::string{};
}

} // namespace

TEST(Monkey, PressesAnythingAndNothingBreaks)
{
    const long seed = numberFrom("GRAVELON_SEED", 20261122);
    const long events = numberFrom("GRAVELON_MONKEY", EVENTS);
    SCOPED_TRACE("GRAVELON_SEED=" + std::to_string(seed));
    const OwnFolder folder;
    startProgram(640, 512);
    host.redraw = [] { ++fakeHost.redraws; };
    // Races to go on with, one of them of no use.
    for (int rider = 0; rider < RIDERS_PER_TEAM; ++rider)
        race.riders[rider].isHuman = 1;
    writeRace("Old.race");
    std::ofstream("Noise.race") << std::string(3000, '\x5A');
    std::srand(static_cast<unsigned>(seed));
    Monkey monkey(static_cast<unsigned>(seed));
    Table<bool, STATE_COUNT> seen{};
    for (long event = 0; event < events; ++event) {
        const GameState before = gameState;
        monkey.act();
        seen[gameState] = true;
        ASSERT_EQ(fault(), "") << "event " << event << ", state " << before << " to " << gameState;
        if (event % EVENTS_A_FRAME == 0)
            drawFrame();
    }
    for (const GameState state :
         {STATE_MAIN_MENU, STATE_TEAM_SETUP, STATE_COURSE_SELECT, STATE_TURN, STATE_MOVE,
          STATE_ANIMATE, STATE_PLACE_HUMAN, STATE_EVENT_CARD, STATE_SCORECARD, STATE_POSITIONS,
          STATE_RACE_FILES, STATE_DOPING_NUMBER})
        EXPECT_TRUE(seen[state]) << "never came to state " << state;
}
