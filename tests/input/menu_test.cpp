#include "app/game_state.h"
#include "app/settings.h"
#include "race/race_state.h"
#include "screen/support/gl_window.h"
#include "screen/support/player.h"
#include "store/settings_file.h"
#include "support/own_folder.h"
#include "ui/layout.h"
#include "ui/manual_pages.h"
#include "ui/places.h"
#include "ui/texts.h"

#include <GL/freeglut.h>
#include <gtest/gtest.h>

// The choice of a language and the manual.

TEST(Languages, TheRowUnderThePointerIsLitAndAClickKeepsIt)
{
    const OwnFolder here;
    startProgram(640, 512);
    raceSetup.teamName[1] = "Rockets";
    const auto isLit = [](int language) {
        const Rect row = languageBox(language);
        return screenshot().at(row.x + row.w * 0.8f, row.y + row.h * 0.5f) ==
               pixelOf({1.0f, 0.5f, 0.0f});
    };
    Player player;
    player.click(CONTROL_LANGUAGE);
    EXPECT_TRUE(isLit(LANGUAGE_ENGLISH));
    const Rect row = languageBox(LANGUAGE_DUTCH);
    player.press(row.x + 9.0f, row.y + 9.0f);
    player.dragTo(row.x + 9.0f, row.y + 9.0f);
    EXPECT_TRUE(isLit(LANGUAGE_DUTCH) && !isLit(LANGUAGE_ENGLISH)) << "with a button held as well";
    player.dragTo(row.x - 9.0f, row.y + 9.0f);
    player.release(row.x - 9.0f, row.y + 9.0f);
    player.click(row); // without the pointer having got there no row is lit
    player.key('\r');
    EXPECT_EQ(gameState, STATE_LANGUAGE);
    EXPECT_FALSE(std::filesystem::exists("settings"));

    player.hover(languageBox(LANGUAGE_FRENCH));
    player.click(languageBox(LANGUAGE_FRENCH));
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
    EXPECT_EQ(texts.exit, "Fin");
    EXPECT_EQ(raceSetup.teamName[0], "Belgique");
    EXPECT_EQ(raceSetup.teamName[1], "Rockets");
    settings = {};
    readSettings();
    EXPECT_EQ(settings.language, LANGUAGE_FRENCH);
}

// The key that means "OK" is a letter like any other where there is nothing to confirm.
TEST(Languages, InFrenchOIsYes)
{
    startProgram(640, 512);
    settings.language = LANGUAGE_FRENCH;
    loadTexts();
    gameState = STATE_CONFIRM_QUIT;
    Player player;
    player.key('\r');
    EXPECT_EQ(gameState, STATE_CONFIRM_QUIT);
    player.key('o');
    EXPECT_EQ(gameState, STATE_MAIN_MENU);
}

TEST(Manual, IsLeafedThroughFromEndToEnd)
{
    startProgram(640, 512);
    Player player;
    player.click(CONTROL_MANUAL);
    const int last = manualPageCount - 1;
    ASSERT_GE(last, 4) << "the window is too high for this test";
    const Image firstPage = screenshot();
    player.click({CONTROL_PREVIOUS_PAGE, CONTROL_NEXT_PAGE});
    EXPECT_FALSE(screenshot() == firstPage);
    player.click(CONTROL_PREVIOUS_PAGE);
    EXPECT_TRUE(screenshot() == firstPage);

    player.special({GLUT_KEY_RIGHT, GLUT_KEY_DOWN, GLUT_KEY_PAGE_DOWN});
    player.key('\r');
    EXPECT_EQ(manualPage, 4);
    player.special({GLUT_KEY_LEFT, GLUT_KEY_UP, GLUT_KEY_PAGE_UP});
    EXPECT_EQ(manualPage, 1);
    player.special(GLUT_KEY_END);
    player.key(' ');
    EXPECT_EQ(manualPage, last);
    player.special({GLUT_KEY_HOME, GLUT_KEY_LEFT});
    EXPECT_EQ(manualPage, 0);

    player.special(GLUT_KEY_END);
    resizeScreen(1250, 1000); // with more lines to a page
    EXPECT_LT(manualPageCount, last);
    EXPECT_EQ(manualPage, manualPageCount - 1) << "the page shown is no more";
    player.type("\x1bm");
    EXPECT_EQ(manualPage, 0);
}
