#include "screen/support/drawn_texts.h"
#include "screen/support/player.h"
#include "store/settings_file.h"
#include "ui/manual_pages.h"
#include "ui/settings_screen.h"

namespace
{

using Fields = Table<std::string, SETTINGS_FIELD_COUNT>;

// The settings over the main menu.
class SettingsScreenTest : public ScreenTest
{
protected:
    void SetUp() override { open({}); }

    void open(const Settings& stored)
    {
        startProgram(1280, 1024);
        settings = stored;
        fillSettingsFields(settings);
        player.click(CONTROL_MENU_SETTINGS);
    }

    static const Fields& fields() { return settingsScreen.settingsFieldText; }
    static int field() { return settingsScreen.settingsActiveField; }
};

using Languages = ScreenTest;
using Manual = ScreenTest;

} // namespace

TEST_F(SettingsScreenTest, DigitsGoIntoTheOpenFieldsAndOkKeepsThem)
{
    player.type("\1777o 5t\t");
    player.special(GLUT_KEY_END);
    player.type("\b\b1234");
    EXPECT_EQ(fields(), (Fields{"75", "124", "200"})) << "on the last place digits overwrite";
    player.click(settingsField(FIELD_STEP_DELAY));
    player.key('9');
    EXPECT_EQ(fields(), (Fields{"75", "129", "200"})) << "a closed field takes no cursor";
    EXPECT_EQ(settings.stepTime, 0) << "not before OK";

    player.click(CONTROL_SETTINGS_OK);
    settings = {};
    readSettings();
    EXPECT_EQ(settings.stepTime, 75);
    EXPECT_EQ(settings.stepDistance, 129.0f);
    EXPECT_EQ(settings.stepDelay, 200);
}

TEST_F(SettingsScreenTest, KeysGoRoundTheOpenFieldsOnly)
{
    const auto fieldAfter = [&](std::string_view keys, std::initializer_list<int> special = {}) {
        player.type(keys);
        player.special(special);
        return field();
    };
    EXPECT_EQ(fieldAfter("", {GLUT_KEY_UP}), FIELD_STEP_TIME);
    EXPECT_EQ(fieldAfter("", {GLUT_KEY_DOWN, GLUT_KEY_DOWN}), FIELD_STEP_DISTANCE);
    EXPECT_EQ(fieldAfter("\r"), FIELD_STEP_TIME);
    player.held = GLUT_ACTIVE_SHIFT;
    EXPECT_EQ(fieldAfter("\t"), FIELD_STEP_DISTANCE);
    player.held = 0;

    player.click(CONTROL_STEPWISE);
    EXPECT_EQ(fieldAfter("\t\r", {GLUT_KEY_UP, GLUT_KEY_DOWN}), FIELD_STEP_DELAY);
    player.click(CONTROL_DEFAULT);
    EXPECT_EQ(field(), FIELD_STEP_TIME);
    player.click({CONTROL_STEPWISE, CONTROL_RATIO_43, CONTROL_SETTINGS_CANCEL});
    EXPECT_EQ(fieldAfter("t"), FIELD_STEP_TIME) << "the open one, though another was chosen";
}

TEST_F(SettingsScreenTest, CancelGivesEverythingBack)
{
    open({.stepTime = 12, .stepDistance = 7.5f, .ratioW = 5.0, .ratioH = 4.0});
    player.key('9');
    player.click({CONTROL_STEPWISE, CONTROL_RATIO_1610});
    resizeScreen(1000, 800); // laid out for the ratio that is given up
    EXPECT_LT(layout.viewW, 1000);
    player.click(CONTROL_SETTINGS_CANCEL);
    EXPECT_EQ(layout.viewW, 1000);
    EXPECT_GT(placeOf(CONTROL_EXIT).x, 880.0f) << "laid out anew";
    EXPECT_EQ(settings, (Settings{.stepTime = 12, .stepDistance = 7.5f, .ratioW = 5, .ratioH = 4}));
    EXPECT_EQ(fields(), (Fields{"12", "7", "200"}));
    EXPECT_FALSE(std::filesystem::exists("settings"));
}

// What the program had guessed from the window's size is a guess again, made anew at the next size.
TEST_F(SettingsScreenTest, CancelBringsBackTheGuess)
{
    startProgram(1280, 1024);
    player.click(
        {CONTROL_MENU_SETTINGS, CONTROL_RATIO_1610, CONTROL_RATIO_43, CONTROL_SETTINGS_CANCEL});
    EXPECT_EQ(settings.ratioW, 5.0);
    resizeScreen(1600, 1000);
    EXPECT_EQ(settings.ratioW, 16.0);

    player.click({CONTROL_MENU_SETTINGS, CONTROL_SETTINGS_OK});
    readSettings();
    EXPECT_EQ(settings.ratioW, -1.0) << "not chosen by anybody";
    resizeScreen(1600, 1000);
    player.click({CONTROL_MENU_SETTINGS, CONTROL_RATIO_1610, CONTROL_SETTINGS_OK});
    readSettings();
    player.click({CONTROL_MENU_SETTINGS, CONTROL_SETTINGS_CANCEL});
    resizeScreen(1280, 1024);
    EXPECT_EQ(settings.ratioW, 16.0) << "chosen, though it is what had been guessed";
}

TEST_F(SettingsScreenTest, DefaultsCountWithOkOnlyAndLeaveTheRatio)
{
    open({.smoothMovement = 0, .stepTime = 12, .stepDelay = 5, .ratioW = 4.0, .ratioH = 3.0});
    player.click(CONTROL_DEFAULT);
    EXPECT_EQ(fields(), (Fields{"0", "10", "200"}));
    EXPECT_EQ(settings.stepDelay, 5);
    player.click(CONTROL_SETTINGS_OK);
    EXPECT_EQ(settings, (Settings{.ratioW = 4.0, .ratioH = 3.0}));
}

TEST_F(SettingsScreenTest, AnEmptyFieldIsNoughtAndAFileThatCantBeWrittenNoObstacle)
{
    std::filesystem::create_directory("settings");
    player.key('\177');
    player.click({CONTROL_STEPWISE, CONTROL_SETTINGS_OK});
    EXPECT_EQ(settings.smoothMovement, 0);
    EXPECT_EQ(fields()[FIELD_STEP_TIME], "0");
}

TEST_F(SettingsScreenTest, ANewRatioIsSeenAtOnce)
{
    player.click(CONTROL_SETTINGS_CANCEL);
    startRaceOn(ONE_LAP);
    player.click({CONTROL_RACE_SETTINGS, CONTROL_RATIO_43, CONTROL_SETTINGS_OK});
    EXPECT_EQ(gameState, STATE_ORDER_RESULT);
    EXPECT_EQ(layout.viewW, 1200);
    const Image anew = screenshot();
    resizeScreen(1000, 800);
    resizeScreen(1280, 1024);
    EXPECT_TRUE(screenshot() == anew) << "shapes keep the size that they were compiled with";
}

TEST_F(Languages, TheRowUnderThePointerIsLitAndAClickKeepsIt)
{
    const auto isLit = [](int language) {
        const Rect row = languageBox(language);
        return screenshot().at(row.x + row.w * 0.8f, row.y + row.h * 0.5f) ==
               pixelOf({1.0f, 0.5f, 0.0f});
    };
    player.click(CONTROL_LANGUAGE);
    EXPECT_TRUE(isLit(LANGUAGE_ENGLISH));
    const Rect dutch = languageBox(LANGUAGE_DUTCH);
    player.press(dutch);
    player.dragTo(dutch);
    EXPECT_TRUE(isLit(LANGUAGE_DUTCH) && !isLit(LANGUAGE_ENGLISH)) << "with a button held as well";
    player.dragTo({dutch.x - 9.0f, dutch.y});
    player.release({dutch.x - 9.0f, dutch.y});
    EXPECT_EQ(gameState, STATE_LANGUAGE) << "no row is lit";

    player.hover(languageBox(LANGUAGE_FRENCH));
    player.click(languageBox(LANGUAGE_FRENCH));
    EXPECT_EQ(texts.exit, "Fin");
    EXPECT_EQ(raceSetup.teamName[0], "Belgique");
    settings = {};
    readSettings();
    EXPECT_EQ(settings.language, LANGUAGE_FRENCH);
}

TEST_F(Manual, IsLeafedThroughFromEndToEnd)
{
    resizeScreen(640, 512);
    player.click(CONTROL_MANUAL);
    const int last = manualPageCount - 1;
    ASSERT_GE(last, 4) << "the window is too high for this test";
    EXPECT_TRUE(screenSays("1/" + std::to_string(manualPageCount)));
    EXPECT_EQ(drawnTexts()[2].colour, pixelOf(YELLOW)) << "a heading, behind the title";
    const Image firstPage = screenshot();
    player.click({CONTROL_PREVIOUS_PAGE, CONTROL_NEXT_PAGE});
    EXPECT_FALSE(screenshot() == firstPage);
    player.click(CONTROL_PREVIOUS_PAGE);
    EXPECT_TRUE(screenshot() == firstPage);

    const auto pageAfter = [&](std::string_view keys, std::initializer_list<int> special) {
        player.special(special);
        player.type(keys);
        return manualPage;
    };
    EXPECT_EQ(pageAfter("\r", {GLUT_KEY_RIGHT, GLUT_KEY_DOWN, GLUT_KEY_PAGE_DOWN}), 4);
    EXPECT_EQ(pageAfter("", {GLUT_KEY_LEFT, GLUT_KEY_UP, GLUT_KEY_PAGE_UP}), 1);
    EXPECT_EQ(pageAfter("", {GLUT_KEY_HOME, GLUT_KEY_LEFT}), 0);
    EXPECT_EQ(pageAfter(" ", {GLUT_KEY_END}), last);
    resizeScreen(1250, 1000); // with more lines to a page
    EXPECT_LT(manualPageCount, last);
    EXPECT_EQ(manualPage, manualPageCount - 1) << "the page shown is no more";
    EXPECT_EQ(pageAfter("\x1bm", {}), 0);
}
