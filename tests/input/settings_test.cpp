#include "app/game_state.h"
#include "app/settings.h"
#include "board/course.h"
#include "play/start.h"
#include "race/race_state.h"
#include "screen/support/gl_window.h"
#include "screen/support/player.h"
#include "store/settings_file.h"
#include "support/fake_host.h"
#include "support/own_folder.h"
#include "screen/support/old_places.h"
#include "ui/layout.h"
#include "ui/settings_screen.h"

#include <GL/freeglut.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <utility>

namespace
{

constexpr char BACKSPACE = 8;
constexpr char TAB = 9;
constexpr char ENTER = 13;
constexpr char DELETE = 127;

using Fields = Table<std::string, SETTINGS_FIELD_COUNT>;

// The settings over the main menu, in a folder of their own.
class SettingsScreenTest : public testing::Test
{
protected:
    void SetUp() override { open({}); }

    void open(const Settings& stored)
    {
        startProgram(1280, 1024);
        settings = stored;
        fillSettingsFields(settings);
        player.click(menuSettingsButton());
        ASSERT_EQ(gameState, STATE_SETTINGS);
    }

    void type(const char* keys)
    {
        for (; *keys; ++keys)
            player.key(*keys);
    }

    // As the next run will find it.
    static double storedRatio()
    {
        const Settings present = settings;
        const bool chosen = ratioChosenByProgram;
        readSettings();
        ratioChosenByProgram = chosen;
        return std::exchange(settings, present).ratioW;
    }

    const Fields& fields() const { return settingsScreen.settingsFieldText; }

    OwnFolder here;
    Player player;
};

} // namespace

TEST_F(SettingsScreenTest, DigitsGoIntoTheOpenFieldsAndOkKeepsThem)
{
    player.key(DELETE);
    type("7o 5t");
    player.key(TAB);
    player.special(GLUT_KEY_END);
    player.key(BACKSPACE);
    player.key(BACKSPACE);
    type("1234");
    EXPECT_EQ(fields(), (Fields{"75", "124", "200"})) << "on the last place digits overwrite";
    player.click(settingsField(FIELD_STEP_DELAY));
    type("9");
    EXPECT_EQ(fields(), (Fields{"75", "129", "200"})) << "a closed field takes no cursor";
    EXPECT_EQ(settings.stepTime, 0) << "not before OK";
    EXPECT_EQ(gameState, STATE_SETTINGS);

    player.click(settingsOkButton());
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
    settings = {};
    readSettings();
    EXPECT_EQ(settings.stepTime, 75);
    EXPECT_EQ(settings.stepDistance, 129.0f);
    EXPECT_EQ(settings.stepDelay, 200);
}

TEST_F(SettingsScreenTest, KeysGoRoundTheOpenFieldsOnly)
{
    player.special(GLUT_KEY_UP);
    EXPECT_EQ(settingsScreen.settingsActiveField, FIELD_STEP_TIME);
    player.special(GLUT_KEY_DOWN);
    player.special(GLUT_KEY_DOWN);
    EXPECT_EQ(settingsScreen.settingsActiveField, FIELD_STEP_DISTANCE);
    player.key(ENTER);
    EXPECT_EQ(settingsScreen.settingsActiveField, FIELD_STEP_TIME);
    player.held = GLUT_ACTIVE_SHIFT;
    player.key(TAB);
    EXPECT_EQ(settingsScreen.settingsActiveField, FIELD_STEP_DISTANCE);
    player.held = 0;
    player.key(TAB);

    player.click(stepwiseRadio());
    for (const char key : {TAB, ENTER})
        player.key(key);
    player.special(GLUT_KEY_UP);
    player.special(GLUT_KEY_DOWN);
    EXPECT_EQ(settingsScreen.settingsActiveField, FIELD_STEP_DELAY);
    player.click(ratioRadio(1));
    EXPECT_TRUE(settingsFieldOpen(settingsScreen.settingsActiveField));
    player.click(defaultButton());
    EXPECT_TRUE(settingsFieldOpen(settingsScreen.settingsActiveField));
    player.click(stepwiseRadio());
    player.click(settingsCancelButton());
    player.key('t');
    EXPECT_TRUE(settingsFieldOpen(settingsScreen.settingsActiveField));
}

TEST_F(SettingsScreenTest, CancelGivesEverythingBack)
{
    open({.stepTime = 12, .stepDistance = 7.5f, .ratioW = 5.0, .ratioH = 4.0});
    type("9");
    player.click(stepwiseRadio());
    player.click(ratioRadio(2));
    player.click(settingsCancelButton());
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
    EXPECT_EQ(settings.smoothMovement, 1);
    EXPECT_EQ(settings.stepDistance, 7.5f);
    EXPECT_EQ(settings.ratioW, 5.0);
    EXPECT_EQ(fields(), (Fields{"12", "7", "200"}));
    EXPECT_EQ(layout.viewW, 1280);
    EXPECT_FALSE(std::filesystem::exists("settings"));
}

TEST_F(SettingsScreenTest, CancelTakesBackARatioThatHasBeenLaidOut)
{
    player.click(ratioRadio(2));
    resizeScreen(1000, 800);
    EXPECT_LT(layout.viewW, 1000);
    player.click(settingsCancelButton());
    EXPECT_EQ(layout.viewW, 1000);
}

// What the program had guessed from the window's size is a guess again, made anew at the next size.
TEST_F(SettingsScreenTest, CancelBringsBackTheGuess)
{
    startProgram(1280, 1024);
    player.click(menuSettingsButton());
    ASSERT_TRUE(ratioChosenByProgram);
    player.click(ratioRadio(2));
    player.click(ratioRadio(1));
    player.click(settingsCancelButton());
    EXPECT_EQ(settings.ratioW, 5.0);
    resizeScreen(1600, 1000);
    EXPECT_EQ(settings.ratioW, 16.0);

    player.click(menuSettingsButton());
    player.click(settingsOkButton());
    EXPECT_EQ(storedRatio(), -1.0) << "not chosen by anybody";
    player.click(menuSettingsButton());
    player.click(ratioRadio(2));
    player.click(settingsOkButton());
    EXPECT_EQ(storedRatio(), 16.0) << "chosen, though it is what had been guessed";
    resizeScreen(1280, 1024);
    EXPECT_EQ(settings.ratioW, 16.0);
}

TEST_F(SettingsScreenTest, DefaultsCountWithOkOnly)
{
    open({.smoothMovement = 0,
          .stepTime = 12,
          .stepDistance = 3.0f,
          .stepDelay = 5,
          .ratioW = 4.0,
          .ratioH = 3.0});
    player.click(defaultButton());
    EXPECT_EQ(fields(), (Fields{"0", "10", "200"}));
    EXPECT_EQ(settings.stepDelay, 5);
    EXPECT_EQ(settings.ratioW, 4.0);
    player.click(settingsOkButton());
    EXPECT_EQ(settings.stepDelay, 200);
    EXPECT_EQ(settings.smoothMovement, 1);
}

TEST_F(SettingsScreenTest, AnEmptyFieldIsNoughtAndAFileThatCantBeWrittenNoObstacle)
{
    std::filesystem::create_directory("settings");
    player.key(DELETE);
    EXPECT_EQ(fields()[FIELD_STEP_TIME], "");
    player.click(stepwiseRadio());
    player.click(settingsOkButton());
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
    EXPECT_EQ(settings.stepTime, 0);
    EXPECT_EQ(settings.smoothMovement, 0);
    EXPECT_EQ(fields()[FIELD_STEP_TIME], "0");
}

TEST_F(SettingsScreenTest, AMoveIsFrozenAndGoesOnUnderTheNewRatio)
{
    player.click(settingsCancelButton());
    std::srand(11);
    courseText = "01S23S4S5F12";
    startRace();
    while (gameState == STATE_ORDER_RESULT)
        player.click("Next");
    for (int tick = 0; tick < 5; ++tick)
        runTick();
    ASSERT_EQ(gameState, STATE_ANIMATE);
    const int rider = race.currentRider;
    const float x = race.riders[rider].x;

    const Rect button = settingsButton();
    player.press(button.x + 3.0f, button.y + 3.0f);
    ASSERT_EQ(gameState, STATE_SETTINGS);
    runTimer();
    player.click(ratioRadio(1));
    player.click(settingsOkButton());
    EXPECT_EQ(layout.viewW, 1200);
    EXPECT_EQ(gameState, STATE_ANIMATE);
    EXPECT_EQ(race.currentRider, rider);
    EXPECT_EQ(race.riders[rider].x, x);
    EXPECT_EQ(fakeHost.pendingMs, 0);
    runTick();
    runTick();
    EXPECT_NE(race.riders[rider].x, x);

    player.key('e');
    EXPECT_EQ(gameState, STATE_SETTINGS);
    player.key('e');
    EXPECT_EQ(gameState, STATE_SETTINGS);
    player.click(settingsCancelButton());
    EXPECT_EQ(gameState, STATE_ANIMATE);
}
