#include "app/game_state.h"
#include "app/settings.h"
#include "race/event_deck.h"
#include "race/race_state.h"
#include "screen/support/gl_window.h"
#include "screen/support/player.h"
#include "screen/support/scenes.h"
#include "support/own_folder.h"
#include "support/scripted_rand.h"
#include "ui/event_texts.h"
#include "ui/places.h"

#include <gtest/gtest.h>

#include <filesystem>

// The dialogs that come up in a race, from the question to what follows from the answer.

TEST(Dialogs, DopingIsAskedForTakenAndLaidInAPlace)
{
    const OwnFolder here;
    startProgram(640, 512);
    setScene(SCENE_TURN, LANGUAGE_ENGLISH);
    Player player;
    player.type("dn");
    EXPECT_EQ(race.dopingNumber[0], -1);
    player.click({CONTROL_DOPING, CONTROL_DOPING_YES, CONTROL_DOPING_NUMBER_OK});
    EXPECT_EQ(gameState, STATE_TURN);
    EXPECT_EQ(race.playedCards[0], DOPING_CARD);
    player.click(dicePlace(0));
    EXPECT_EQ(race.playedCards[0], DOPING_CARD) << "it can't be taken back";
    player.click({CONTROL_BREAKAWAY, CONTROL_DOPING});
    EXPECT_EQ(race.breakaway, 1);
    EXPECT_EQ(gameState, STATE_TURN) << "once a stage";
}

TEST(Dialogs, EachRiderCaughtIsCheckedAndTheStageEnds)
{
    const OwnFolder here;
    startProgram(640, 512);
    setScene(SCENE_DOPING_DRAW, LANGUAGE_ENGLISH);
    race.dopingNumber = filled<int, RIDER_COUNT>(-1);
    race.dopingNumber[3] = 1;
    race.dopingNumber[9] = 3;
    race.dopingNumber[12] = 5; // neither of the two drawn
    const ScriptedRand dice{0, 4};
    Player player;
    player.click(CONTROL_DOPING_DRAW_OK);
    EXPECT_EQ(race.currentRider, 3);
    player.doubleClick(CONTROL_COUNTERCHECK_OK);
    EXPECT_EQ(gameState, STATE_DOPING_COUNTERCHECK) << "the next one has to be read";
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
    startProgram(640, 512);
    setScene(SCENE_SAVE_FAILED, LANGUAGE_ENGLISH);
    Player player;
    player.click(CONTROL_RETRY);
    EXPECT_EQ(gameState, STATE_SAVE_FAILED);
    std::filesystem::create_directory("no such folder here");
    player.click(CONTROL_RETRY);
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_TRUE(std::filesystem::exists(raceSetup.raceFileName));

    setScene(SCENE_SAVE_FAILED, LANGUAGE_ENGLISH);
    player.click(CONTROL_ABORT);
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_EQ(raceSetup.raceStages.size(), 2u);
}

// A card has words in each language; those for which there is no title show what they do.
TEST(Dialogs, EveryEventCardHasWordsAndTheyAreThoseOfTheLanguage)
{
    struct Case {
        std::vector<int> untitled;
        const char* crashEffect;
    };
    const Case cases[] = {{{19}, "der Verursacher:"},
                          {{18, 19}, "the perpetrator:"},
                          {{18, 19}, "l'auteur:"},
                          {{}, "de veroorzaker:"}};
    for (settings.language = 0; settings.language < LANGUAGE_COUNT; ++settings.language) {
        std::vector<int> untitled;
        for (int card = 0; card < EVENT_CARD_COUNT; ++card) {
            EXPECT_FALSE(eventEffect(card).empty()) << card;
            if (eventTitle(card).empty())
                untitled.push_back(card);
        }
        EXPECT_EQ(untitled, cases[settings.language].untitled) << settings.language;
        EXPECT_EQ(eventEffect(14)[0], cases[settings.language].crashEffect);
        EXPECT_EQ(eventEffect(14).size(), 5u);
    }
    settings.language = -1;
    EXPECT_TRUE(eventTitle(3).empty() && eventEffect(3).empty());
    settings = {};
}
