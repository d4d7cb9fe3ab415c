#include "app/game_state.h"
#include "app/settings.h"
#include "race/event_deck.h"
#include "race/race_state.h"
#include "screen/support/gl_window.h"
#include "screen/support/player.h"
#include "screen/support/scenes.h"
#include "store/race_file.h"
#include "support/own_folder.h"
#include "support/scripted_rand.h"
#include "screen/support/old_places.h"
#include "ui/event_texts.h"
#include "ui/texts.h"

#include <gtest/gtest.h>

#include <filesystem>

// The dialogs that come up in a race, from the question to what follows from the answer.

namespace
{

constexpr char ENTER = 13;

void setEnglishScene(Scene scene)
{
    startProgram(640, 512);
    setScene(scene, LANGUAGE_ENGLISH);
}

} // namespace

TEST(Dialogs, DopingIsAskedForTakenAndLaidInAPlace)
{
    const OwnFolder here;
    setEnglishScene(SCENE_TURN);
    Player player;
    player.click("Doping");
    ASSERT_EQ(gameState, STATE_CONFIRM_DOPING);
    player.key('n');
    EXPECT_EQ(gameState, STATE_TURN);
    EXPECT_EQ(race.dopingNumber[0], -1);
    player.key('d');
    player.click("Yes");
    ASSERT_EQ(gameState, STATE_DOPING_NUMBER);
    player.click("OK");
    EXPECT_EQ(gameState, STATE_TURN);
    EXPECT_EQ(race.playedCards[0], DOPING_CARD);
    player.click(dicePlace(0));
    EXPECT_EQ(race.playedCards[0], DOPING_CARD) << "it can't be taken back";
    player.click("Breakaway");
    EXPECT_EQ(race.breakaway, 1);
    player.click("Doping");
    player.key('d');
    EXPECT_EQ(gameState, STATE_TURN) << "once a stage";
}

TEST(Dialogs, EachRiderCaughtIsCheckedAndTheStageEnds)
{
    const OwnFolder here;
    setEnglishScene(SCENE_DOPING_DRAW);
    race.dopingNumber = filled<int, RIDER_COUNT>(-1);
    race.dopingNumber[3] = 1;
    race.dopingNumber[9] = 3;
    race.dopingNumber[12] = 5; // neither of the two drawn
    const ScriptedRand dice{0, 4};
    Player player;
    player.key(ENTER);
    ASSERT_EQ(gameState, STATE_DOPING_COUNTERCHECK);
    EXPECT_EQ(race.currentRider, 3);
    player.click("OK");
    EXPECT_EQ(gameState, STATE_DOPING_COUNTERCHECK);
    EXPECT_EQ(race.currentRider, 9);
    player.key('o');
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_EQ(race.riders[3].disqualified, 0) << "his own number acquits him";
    EXPECT_EQ(race.riders[9].disqualified, 1);
}

// As long as the folder can't be written the question stays; the stage isn't lost either way.
TEST(Dialogs, ARaceThatCantBeSavedIsTriedAgainOrGivenUp)
{
    const OwnFolder here;
    setEnglishScene(SCENE_SAVE_FAILED);
    Player player;
    player.click("Retry");
    EXPECT_EQ(gameState, STATE_SAVE_FAILED);
    std::filesystem::create_directory("no such folder here");
    player.key('r');
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_TRUE(std::filesystem::exists(raceSetup.raceFileName));

    setEnglishScene(SCENE_SAVE_FAILED);
    player.click("Abort");
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_EQ(raceSetup.raceStages.size(), 2u);
}

// A card has words in each language; those for which there is no title show what they do.
TEST(Dialogs, EveryEventCardHasWordsAndTheyAreThoseOfTheLanguage)
{
    struct Case {
        int language;
        std::vector<int> untitled;
        const char* crashEffect;
    };
    for (const Case& c : {Case{LANGUAGE_GERMAN, {19}, "der Verursacher:"},
                          Case{LANGUAGE_ENGLISH, {18, 19}, "the perpetrator:"},
                          Case{LANGUAGE_FRENCH, {18, 19}, "l'auteur:"},
                          Case{LANGUAGE_DUTCH, {}, "de veroorzaker:"}}) {
        settings.language = c.language;
        std::vector<int> untitled;
        for (int card = 0; card < EVENT_CARD_COUNT; ++card) {
            EXPECT_FALSE(eventEffect(card).empty()) << card;
            if (eventTitle(card).empty())
                untitled.push_back(card);
        }
        EXPECT_EQ(untitled, c.untitled) << c.language;
        EXPECT_EQ(eventEffect(14)[0], c.crashEffect);
        EXPECT_EQ(eventEffect(14).size(), 5u);
    }
    EXPECT_EQ(eventTitle(29), (std::vector<std::string>{"je smijt aardig", "met je krachten;"}));
    settings.language = -1;
    EXPECT_TRUE(eventTitle(3).empty() && eventEffect(3).empty());
    settings = {};
}
