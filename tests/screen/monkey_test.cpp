#include "app/game_state.h"
#include "app/host.h"
#include "app/settings.h"
#include "app/view.h"
#include "board/course.h"
#include "board/pictures.h"
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

#include <cstdlib>
#include <filesystem>
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

    int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(generator); }

    void act()
    {
        if (below(3) == 0)
            return doTheSensibleThing();
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
            return clickAnywhere();
        case 6:
        case 7:
            return letTimePass();
        default:
            return clickControl();
        }
    }

private:
    // Left to himself he would hardly ever come to a race, and quit it as soon as he had.
    void doTheSensibleThing()
    {
        switch (gameState) {
        case STATE_MAIN_MENU:
            return clickOn(below(2) == 0 ? CONTROL_CONTINUE : CONTROL_START);
        case STATE_TEAM_SETUP:
            return nameTeams();
        case STATE_COURSE_SELECT:
            return below(3) == 0 ? clickOn(CONTROL_CREATE_COURSE)
                                 : clickOn(coursePicture(below(FIXED_COURSE_COUNT)));
        case STATE_COURSE_DESIGN:
            return clickOn(CONTROL_ADD_SECTION);
        case STATE_CONFIRM_QUIT:
            return clickOn(below(20) == 0 ? CONTROL_QUIT_YES : CONTROL_QUIT_NO);
        case STATE_SAVE_FAILED:
            return clickOn(CONTROL_ABORT);
        case STATE_RACE_FILES:
            return chooseRace();
        case STATE_EVENT_HANDIN:
            onSpecialUp(GLUT_KEY_F1 + below(12), 0, 0);
            return clickOn(CONTROL_HAND_IN);
        case STATE_TURN:
            return clickOn(below(4) == 0 ? CONTROL_DOPING : CONTROL_THROW);
        case STATE_MOVE:
            return onSpecialUp(GLUT_KEY_LEFT + below(3), 0, 0);
        case STATE_PLACE_HUMAN:
            onSpecialUp(GLUT_KEY_LEFT + below(4), 0, 0);
            return onKeyUp('\r', 0, 0);
        case STATE_SETTINGS:
            return clickOn(CONTROL_SETTINGS_CANCEL);
        case STATE_ANIMATE:
        case STATE_LANGUAGE:
            return letTimePass();
        default:
            return clickOn(firstLive());
        }
    }

    // "OK", "Yes", "Throw" or "Next", wherever there is one.
    static Control firstLive()
    {
        for (int control = 0; control < CONTROL_COUNT; ++control)
            if (isLive(static_cast<Control>(control)) &&
                (control < CONTROL_TAB_1 || control > CONTROL_CAMERA))
                return static_cast<Control>(control);
        return CONTROL_EXIT;
    }

    void nameTeams()
    {
        raceSetup.multiStage = below(2) == 0;
        raceSetup.raceName = "Race " + std::to_string(below(1000));
        for (std::string& name : raceSetup.teamName)
            if (name.empty())
                name = "Somebody";
        clickOn(static_cast<Control>(CONTROL_COMPUTER_1 + below(TEAM_COUNT)));
        clickOn(CONTROL_TEAM_OK);
    }

    void chooseRace()
    {
        const Rect names = raceListNames();
        const Control buttons[] = {CONTROL_LIST_OK, CONTROL_LIST_SCORECARD, CONTROL_LIST_BACK};
        clickOn({names.x, names.y + static_cast<float>(below(40)), 30.0f, 1.0f});
        clickOn(buttons[below(3)]);
    }

    void clickOn(Control control) { clickOn(placeOf(control)); }

    void clickOn(const Rect& at)
    {
        const int x = layout.viewX + static_cast<int>(at.x + at.w * 0.5f);
        const int y = static_cast<int>(at.y + at.h * 0.5f);
        onHover(x, y);
        onMouse(GLUT_LEFT_BUTTON, GLUT_DOWN, x, y);
        onMouse(GLUT_LEFT_BUTTON, GLUT_UP, x, y);
    }

    int anyX() { return below(layout.windowW + 40) - 20; }
    int anyY() { return below(layout.windowH + 40) - 20; }

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

    void clickAt(int x, int y)
    {
        const int button = std::max(GLUT_LEFT_BUTTON, below(8) - 3); // left in half of all cases
        onHover(x, y);
        onMouse(button, GLUT_DOWN, x, y);
        if (below(8) == 0)
            onDrag(anyX(), anyY());
        if (below(16) != 0)
            onMouse(button, GLUT_UP, x, y);
    }

    void clickAnywhere() { clickAt(anyX(), anyY()); }

    void clickControl()
    {
        const std::vector<Rect> places = everyPlace();
        const Rect& at = places[static_cast<std::size_t>(below(static_cast<int>(places.size())))];
        clickAt(layout.viewX + static_cast<int>(at.x + at.w * 0.5f),
                static_cast<int>(at.y + at.h * 0.5f));
    }

    void hold()
    {
        static int held;
        held = below(4) == 0 ? below(8) : 0;
        heldModifiers = [] { return held; };
    }

    void pressKey()
    {
        constexpr unsigned char keys[] = "\r\r\r  \t\b\x7f\x1b"
                                         "yntoqsdbaucpmelrjvwghzi0159-\xE9\xD0";
        hold();
        const unsigned char key = below(10) == 0
                                      ? static_cast<unsigned char>(below(256))
                                      : keys[below(static_cast<int>(std::size(keys)) - 1)];
        onKeyDown(key, 0, 0);
        onKeyUp(key, 0, 0);
    }

    void pressSpecialKey()
    {
        constexpr int keys[] = {GLUT_KEY_LEFT, GLUT_KEY_UP,      GLUT_KEY_UP,        GLUT_KEY_RIGHT,
                                GLUT_KEY_DOWN, GLUT_KEY_PAGE_UP, GLUT_KEY_PAGE_DOWN, GLUT_KEY_HOME,
                                GLUT_KEY_END,  GLUT_KEY_INSERT};
        hold();
        const int key = below(3) == 0 ? GLUT_KEY_F1 + below(12) : keys[below(10)];
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
    for (const std::string& name : raceSetup.teamName)
        if (name.size() > NAME_LENGTH_MAX)
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
