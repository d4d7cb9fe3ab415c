#include "app/host.h"
#include "race/soundness.h"
#include "screen/support/player.h"
#include "store/race_file.h"
#include "ui/frame.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <random>

// Somebody who knows nothing of the game presses anything, anywhere. Nothing may break, whatever
// comes of it. GRAVELON_MONKEY sets how many events there are, GRAVELON_SEED another beginning.

namespace
{

long numberFrom(const char* variable, long otherwise)
{
    const char* text = std::getenv(variable);
    return text ? std::atol(text) : otherwise;
}

class Hands
{
public:
    explicit Hands(unsigned seed) : generator(seed) {}

    void act()
    {
        player.pace = below(1000);
        player.held = below(4) == 0 ? below(8) : 0;
        const int what = below(12);
        if (what < 4)
            doTheSensibleThing();
        else if (what < 7)
            clickOn(oneOf(everyPlace()));
        else if (what == 7)
            clickOn(anywhere());
        else if (what == 8)
            below(2) ? player.dragTo(anywhere()) : player.hover(anywhere());
        else if (what == 9)
            player.key(below(10) == 0 ? static_cast<char>(below(256)) : oneOf(KEYS));
        else if (what == 10)
            player.special(below(3) == 0 ? GLUT_KEY_F1 + below(12) : GLUT_KEY_LEFT + below(9));
        else if (below(40) == 0)
            resizeScreen(200 + below(500), 200 + below(500));
        else
            letTimePass();
    }

private:
    static constexpr std::string_view KEYS = "\r\r\r  \t\b\x7f\x1b"
                                             "yntoqsdbaucpmelrjvwghzi0159-\xE9\xD0";

    int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(generator); }

    template <typename Some> typename Some::value_type oneOf(const Some& some)
    {
        return some[static_cast<std::size_t>(below(static_cast<int>(std::size(some))))];
    }

    Spot anywhere()
    {
        return {static_cast<float>(below(layout.windowW + 40) - 20 - layout.viewX),
                static_cast<float>(below(layout.windowH + 40) - 20 - layout.viewY)};
    }

    // Left to himself he would hardly ever come to a race, and quit it as soon as he had.
    void doTheSensibleThing()
    {
        raceSetup.raceName = "Race " + std::to_string(below(1000));
        raceSetup.teamName = {"A", "B", "C", "D"};
        if (gameState == STATE_COURSE_SELECT)
            return clickOn(coursePicture(below(6)));
        if (gameState == STATE_MOVE || gameState == STATE_PLACE_HUMAN) {
            player.special(GLUT_KEY_LEFT + below(4));
            return player.key('\r');
        }
        if (gameState == STATE_RACE_FILES)
            clickOn(
                Spot(raceListNames().x + 15.0f, raceListNames().y + static_cast<float>(below(40))));
        // Mostly "OK", "Yes", "Throw" or "Next"; where there is nothing of the kind he waits.
        std::vector<Control> live = everyControl();
        std::erase_if(live, [](Control it) {
            return !isLive(it) || (it >= CONTROL_TAB_1 && it <= CONTROL_CAMERA);
        });
        if (live.empty())
            return letTimePass();
        clickOn(below(3) == 0 ? oneOf(live) : live.front());
    }

    void letTimePass()
    {
        for (int ticks = below(60); ticks > 0 && runTick(); --ticks) {
        }
    }

    // Most often with the left button, and without moving it meanwhile.
    void clickOn(Spot at)
    {
        const int button = std::max(GLUT_LEFT_BUTTON, below(24) - 19);
        player.hover(at);
        player.press(at, button);
        if (below(16) == 0)
            player.dragTo(anywhere());
        if (below(16) != 0)
            player.release(at, button);
    }

    std::mt19937 generator;
    Player player;
};

using Monkey = ScreenTest;

} // namespace

TEST_F(Monkey, PressesAnythingAndNothingBreaks)
{
    const long seed = numberFrom("GRAVELON_SEED", 20261122);
    const long events = numberFrom("GRAVELON_MONKEY", 40000);
    SCOPED_TRACE("GRAVELON_SEED=" + std::to_string(seed));
    startProgram(640, 512);
    host.redraw = nullptr;
    // Races to go on with, one of them of no use.
    makeHuman(0);
    writeRace("Old.race");
    std::ofstream("Noise.race") << std::string(3000, '\x5A');
    std::srand(static_cast<unsigned>(seed));
    Hands hands(static_cast<unsigned>(seed));
    Table<bool, STATE_COUNT> seen{};
    for (long event = 0; event < events; ++event) {
        const GameState before = gameState;
        hands.act();
        seen[gameState] = true;
        ASSERT_EQ(boardVisible() ? raceFault() : "", "")
            << "event " << event << ", state " << before << " to " << gameState;
        if (event % 40 == 0) // painting is slow without a graphics card
            drawFrame();
    }
    for (const GameState state :
         {STATE_MAIN_MENU, STATE_TEAM_SETUP, STATE_COURSE_SELECT, STATE_TURN, STATE_MOVE,
          STATE_ANIMATE, STATE_PLACE_HUMAN, STATE_EVENT_CARD, STATE_SCORECARD, STATE_POSITIONS,
          STATE_RACE_FILES, STATE_DOPING_NUMBER})
        EXPECT_TRUE(seen[state]) << "never came to state " << state;
}
