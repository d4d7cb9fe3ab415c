#include "app/game_state.h"
#include "app/settings.h"
#include "race/race_state.h"
#include "screen/support/gl_window.h"
#include "screen/support/player.h"
#include "store/settings_file.h"
#include "support/own_folder.h"
#include "screen/support/old_places.h"
#include "ui/layout.h"
#include "ui/manual_pages.h"
#include "ui/texts.h"

#include <GL/freeglut.h>
#include <gtest/gtest.h>

namespace
{

constexpr char ENTER = 13;
constexpr char ESCAPE = 27;
constexpr Colour orange = {1.0f, 0.5f, 0.0f};

bool isLit(int language)
{
    const Rect row = languageBox(language);
    return screenshot().at(row.x + row.w * 0.8f, row.y + row.h * 0.5f) == pixelOf(orange);
}

void speak(int language)
{
    settings.language = language;
    loadTexts();
}

} // namespace

TEST(Languages, TheRowUnderThePointerIsLitAndAClickKeepsIt)
{
    const OwnFolder here;
    startProgram(640, 512);
    raceSetup.teamName[1] = "Rockets";
    Player player;
    player.click(menuLanguageButton());
    ASSERT_EQ(gameState, STATE_LANGUAGE);
    EXPECT_TRUE(isLit(LANGUAGE_ENGLISH));
    player.hover(languageBox(LANGUAGE_FRENCH));
    EXPECT_TRUE(isLit(LANGUAGE_FRENCH));
    EXPECT_FALSE(isLit(LANGUAGE_ENGLISH));

    const Rect first = languageBox(LANGUAGE_GERMAN);
    player.hover({first.x, first.y + first.h, first.w, layout.languageBoxGap});
    player.click(first); // without the pointer having got there no row is lit
    EXPECT_EQ(gameState, STATE_LANGUAGE);
    EXPECT_FALSE(std::filesystem::exists("settings"));

    player.hover(languageBox(LANGUAGE_FRENCH));
    player.click(languageBox(LANGUAGE_FRENCH));
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
    EXPECT_EQ(texts.exit, "Fin");
    EXPECT_EQ(raceSetup.teamName[0], "Belgique");
    EXPECT_EQ(raceSetup.teamName[1], "Rockets");

    readSettings();
    EXPECT_EQ(settings.language, LANGUAGE_FRENCH);
    EXPECT_EQ(raceSetup.teamName[1], "Rockets");
}

TEST(Languages, LettingGoBesideTheRowsKeepsNothing)
{
    const OwnFolder here;
    startProgram(640, 512);
    Player player;
    player.click(menuLanguageButton());
    const Rect row = languageBox(LANGUAGE_DUTCH);
    player.hover(row);
    player.press(row.x + 9.0f, row.y + 9.0f);
    player.dragTo(row.x - 9.0f, row.y + 9.0f);
    player.release(row.x - 9.0f, row.y + 9.0f);
    EXPECT_EQ(gameState, STATE_LANGUAGE);
    player.rightClick(row);
    EXPECT_EQ(gameState, STATE_LANGUAGE);
    player.key(ENTER);
    EXPECT_EQ(gameState, STATE_LANGUAGE);
    EXPECT_FALSE(std::filesystem::exists("settings"));
}

TEST(Menu, LettersFollowTheLanguage)
{
    struct Case {
        int language;
        char toLanguages, toManual, toSettings, toRaces;
    };
    for (const Case& c :
         {Case{LANGUAGE_GERMAN, 'p', 'a', 'e', 'w'}, Case{LANGUAGE_ENGLISH, 'l', 'm', 't', 'c'},
          Case{LANGUAGE_FRENCH, 'h', 'n', 'p', 't'}, Case{LANGUAGE_DUTCH, 't', 'h', 'i', 'v'}}) {
        startProgram(640, 512);
        speak(c.language);
        Player player;
        player.key(c.toManual);
        EXPECT_EQ(gameState, STATE_MANUAL) << c.language;
        player.key('o');
        player.key(c.toSettings);
        EXPECT_EQ(gameState, STATE_SETTINGS) << c.language;
        player.click(settingsCancelButton());
        player.key(c.toRaces);
        EXPECT_EQ(gameState, STATE_RACE_FILES) << c.language;
        player.click("Back");
        player.key(c.toLanguages);
        EXPECT_EQ(gameState, STATE_LANGUAGE) << c.language;
    }
}

// The key that means "OK" is a letter like any other where there is nothing to confirm.
TEST(Menu, InFrenchOIsYes)
{
    startProgram(640, 512);
    speak(LANGUAGE_FRENCH);
    gameState = STATE_CONFIRM_QUIT;
    Player player;
    player.key(ENTER);
    EXPECT_EQ(gameState, STATE_CONFIRM_QUIT);
    player.key('o');
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
    gameState = STATE_SETUP_MESSAGE;
    player.key('O');
    EXPECT_EQ(gameState, STATE_TEAM_SETUP);
}

TEST(Manual, IsLeafedThroughFromEndToEnd)
{
    startProgram(640, 512);
    Player player;
    player.click(menuManualButton());
    ASSERT_EQ(gameState, STATE_MANUAL);
    const int last = manualPageCount - 1;
    ASSERT_GE(last, 4) << "the window is too high for this test";
    const Image firstPage = screenshot();
    player.click(prevPageButton());
    EXPECT_EQ(manualPage, 0);
    player.click(nextPageButton());
    EXPECT_FALSE(screenshot() == firstPage);
    player.click(prevPageButton());
    EXPECT_TRUE(screenshot() == firstPage);

    for (const int key : {GLUT_KEY_RIGHT, GLUT_KEY_DOWN, GLUT_KEY_PAGE_DOWN})
        player.special(key);
    player.key(ENTER);
    EXPECT_EQ(manualPage, 4);
    for (const int key : {GLUT_KEY_LEFT, GLUT_KEY_UP, GLUT_KEY_PAGE_UP})
        player.special(key);
    EXPECT_EQ(manualPage, 1);
    player.special(GLUT_KEY_END);
    player.key(' ');
    player.click(nextPageButton());
    EXPECT_EQ(manualPage, last);
    player.special(GLUT_KEY_HOME);
    player.special(GLUT_KEY_LEFT);
    EXPECT_EQ(manualPage, 0);

    player.special(GLUT_KEY_END);
    player.key(ESCAPE);
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
    player.key('m');
    EXPECT_EQ(manualPage, 0);
    player.click(manualOkButton());
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
}
