#include "app/game_state.h"
#include "app/settings.h"
#include "app/view.h"
#include "board/course.h"
#include "play/movement.h"
#include "race/event_deck.h"
#include "race/race_state.h"
#include "race/rider_place.h"
#include "screen/support/drawn_texts.h"
#include "screen/support/player.h"
#include "screen/support/scenes.h"
#include "support/own_folder.h"
#include "support/races.h"
#include "support/scripted_rand.h"
#include "ui/event_texts.h"
#include "ui/layout.h"
#include "ui/places.h"

#include <gtest/gtest.h>

#include <filesystem>

// What the race says in words, numbers and colours: the panel, the dialogs and the positions.

namespace
{

// Each test in a folder of its own.
class RaceWords : public testing::Test
{
protected:
    void SetUp() override { startProgram(1280, 1024); }
    ~RaceWords() override { settings = {}; }

    static void setEnglishScene(Scene scene) { setScene(scene, LANGUAGE_ENGLISH); }

    OwnFolder here;
};

// From the extra die to the side buttons.
std::string panelWords()
{
    const float left = layout.hudCol3X - 1.0f;
    return wordsAt(
        {left, layout.hudY, layout.sideButtonX - left - 1.0f, layout.cardPanelH + 30.0f});
}

bool screenSays(const std::string& words)
{
    for (const DrawnText& text : drawnTexts())
        if (text.words == words)
            return true;
    return false;
}

// Of the words on a card; a card that can't be laid is dim.
std::string cardLooks(int slot)
{
    const Rect card = cardPlace(slot);
    for (const DrawnText& text : drawnTexts())
        if (card.contains(text.place.x, text.place.y))
            return text.colour == Pixel{0, 0, 255} ? "bright" : "dim";
    return "gone";
}

} // namespace

TEST_F(RaceWords, TellsATurnFromItsBeginningToTheNextRiders)
{
    setEnglishScene(SCENE_TURN);
    Player player;
    EXPECT_EQ(panelWords(), "Belgium|Moves: |Moves left: |Round:2|Lap:0");
    const ScriptedRand dice{raceThrow(4, 1)};
    player.click(CONTROL_THROW);
    EXPECT_EQ(panelWords(), "Belgium|Moves: 5|Moves left: 5|Round:2|Lap:0");
    steer("MM");
    race.extraMoves = 4;
    EXPECT_EQ(panelWords(), "Belgium|Bonus moves: 4|Moves: 5|Moves left: 3|Round:2|Lap:1");
    endHumanMove();
    player.key('n'); // nobody follows
    race.riderLapCount[0] = 7;
    EXPECT_EQ(panelWords(), "Netherlands|Moves: |Moves left: |Round:2|Lap:1");
    race.currentRider = -1;
    gameState = STATE_TRANSIT;
    EXPECT_EQ(panelWords(), "Moves: |Moves left: |Round:2|Lap:");
    gameState = STATE_FINAL_SCORECARD;
    EXPECT_EQ(panelWords(), "Moves: |Moves left: |Round:|Lap:");
}

// A team that lost a tie stands grey and without its throw.
TEST_F(RaceWords, TellsTheThrowsForTheOrder)
{
    setEnglishScene(SCENE_ORDER_THROW);
    race.teamThrow = {7, 0, -1, 12};
    const Rect box = {layout.diceX - 1.0f, layout.movesBoxY - 9.0f, layout.orderBoxW, 60.0f};
    EXPECT_EQ(wordsAt(box), "21 7|31 |41 |51 12");
    for (const DrawnText& text : drawnTexts())
        if (box.contains(text.place.x, text.place.y)) {
            EXPECT_EQ(text.colour == pixelOf(WHITE), text.words != "31 ") << text.words;
        }
}

TEST_F(RaceWords, DialogsNameTheRidersAndNumbersTheyAreAbout)
{
    const std::pair<Scene, const char*> said[] = {
        {SCENE_FOLLOW, "Do you want to follow cyclist 21?|Yes|No"},
        {SCENE_DOPING_NUMBER, "Doping number: 4|OK"},
        {SCENE_DOPING_DRAW, "Doping control|Drawn numbers: 3 and 1|Cyclist(s) caught:|"
                            "21,23,24,32,33,41,42,44,51,53,54|OK"},
        {SCENE_COUNTERCHECK, "Countercheck|Doping number of cyclist 23: 3|Draw: 5|"
                             "Cyclist 23 disqualification confirmed|OK"}};
    for (const auto& [scene, words] : said) {
        setEnglishScene(scene);
        EXPECT_EQ(wordsAt(dialogBox()), words);
    }
    race.counterDie = 3;
    EXPECT_TRUE(screenSays("Cyclist 23 acquitted"));
    setEnglishScene(SCENE_DOPING_DRAW);
    race.anyDoping = 0;
    EXPECT_EQ(wordsAt(dialogBox()), "Doping control|Drawn numbers: 3 and 1|OK");
}

TEST_F(RaceWords, CardsAreBrightOnlyForTheRiderWhoMayLayThem)
{
    setEnglishScene(SCENE_TURN);
    race.cardUsed[0][1] = CARD_SPENT;
    race.cardUsed[0][14] = race.cardUsed[0][15] = CARD_AVAILABLE;
    race.wonCardValue[0][0] = race.wonCardValue[0][1] = WHITE_CARD;
    race.wonCardRider[0][0] = 0;
    race.wonCardRider[0][1] = 1;
    const auto expectSlots = [](const char* what, const std::initializer_list<int>& bright,
                                const std::initializer_list<int>& dim) {
        for (const int slot : bright)
            EXPECT_EQ(cardLooks(slot), "bright") << what << ", slot " << slot;
        for (const int slot : dim)
            EXPECT_EQ(cardLooks(slot), "dim") << what << ", slot " << slot;
    };
    EXPECT_EQ(cardLooks(1), "gone");
    expectSlots("his own, the team's, a team-mate's", {0, 2, 10, 14}, {4, 15});
    race.playedCards = {10, -1};
    expectSlots("one place left", {0, 2}, {});
    race.playedCards = {10, 0};
    expectSlots("both places taken", {}, {2, 11});
    race.playedCards = {-1, -1};
    race.roundNumber = 1;
    expectSlots("the first round", {}, {0, 10, 14});
    race.roundNumber = 2;
    gameState = STATE_MOVE;
    expectSlots("won ones in any state of his turn", {14}, {0, 10});
    gameState = STATE_TURN;
    view.shownTeam = 1;
    expectSlots("another team's", {}, {0, 10});
}

// Where there is a place left for one more, in both states that ask for cards.
TEST_F(RaceWords, CardsToHandInAreBrightWhileThereIsAPlaceForThem)
{
    for (const auto& [scene, laid] : {std::pair{SCENE_HANDIN, 1}, {SCENE_EVENT_HANDIN, 0}}) {
        setEnglishScene(scene);
        race.handInCards = {laid == 1 ? 12 : -1, -1};
        EXPECT_EQ(cardLooks(0), "bright") << nameOf(scene);
        EXPECT_EQ(isLive(CONTROL_HAND_IN), laid == 1) << nameOf(scene);
        EXPECT_EQ(cardLooks(4), "dim") << nameOf(scene) << ", a team-mate's";
        race.handInCards = {12, laid == 1 ? 13 : -1};
        EXPECT_EQ(cardLooks(0), "dim") << nameOf(scene);
    }
}

TEST_F(RaceWords, OnCobblesOneCardAndUphillNoneOfSixIsBright)
{
    setUpPersonsRace("01S23S4S5F12", {{0, 10, 0}});
    beginPersonsTurn(0);
    const auto rideOn = [](int terrain) {
        for (int at = 0; at < COURSE_MAX_ROWS * COURSE_LANES; ++at)
            if (terrainAt(at / COURSE_LANES, at % COURSE_LANES) == terrain) {
                race.riders[0].row = at / COURSE_LANES;
                race.riders[0].lane = at % COURSE_LANES;
            }
        race.playedCards = {-1, -1};
        ASSERT_EQ(terrainOf(0), terrain);
    };
    rideOn(TERRAIN_MOUNTAIN);
    EXPECT_EQ(cardLooks(0), "dim");
    EXPECT_EQ(cardLooks(2), "bright");
    rideOn(TERRAIN_COBBLES);
    EXPECT_EQ(cardLooks(0), "bright");
    race.playedCards = {12, -1};
    EXPECT_EQ(cardLooks(2), "dim");
}

TEST_F(RaceWords, NameTheRaceThatRunsAndWhatIsKnownOfEachRider)
{
    setEnglishScene(SCENE_POSITIONS);
    raceSetup.multiStage = true;
    raceSetup.raceName = "Typed";
    raceSetup.raceBaseName = "Tour";
    race.riderLapCount[4] = 2;
    race.dopingNumber[4] = 5;
    EXPECT_TRUE(screenSays("Multiple stages, Tour"));
    EXPECT_TRUE(screenSays("L:2") && screenSays("D:5"));
    EXPECT_FALSE(screenSays("D:-1") || screenSays("Computer player"));
    raceSetup.multiStage = false;
    race.riders[4].isHuman = 0;
    EXPECT_TRUE(screenSays("Single stage") && screenSays("Computer player"));
}

TEST_F(RaceWords, RidersOffTheBoardAreDimAndFinishersGone)
{
    startSeededRace("01S23S4S5F12", 3);
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        race.riders[rider].finished = rider > 2;
    race.riders[1].offBoard = 1;
    race.sprintWinner = 2;
    gameState = STATE_POSITIONS;
    drawnTexts();
    const Image image = screenshot();
    const Colour colours[] = {teamColour[0], teamColourDim[0], YELLOW, panelBlue};
    for (int place = 0; place < 4; ++place)
        EXPECT_TRUE(closeTo(
            image.at(1280.0f * (0.35f + 0.1f * static_cast<float>(place)), 1024.0f * 0.82f + 9.0f),
            pixelOf(colours[place]), 1))
            << place;
}

// The dialogs that come up in a race, from the question to what follows from the answer.

TEST_F(RaceWords, DopingIsAskedForTakenAndLaidInAPlace)
{
    setEnglishScene(SCENE_TURN);
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

TEST_F(RaceWords, EachRiderCaughtIsCheckedAndTheStageEnds)
{
    setEnglishScene(SCENE_DOPING_DRAW);
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
TEST_F(RaceWords, ARaceThatCantBeSavedIsTriedAgainOrGivenUp)
{
    setEnglishScene(SCENE_SAVE_FAILED);
    Player player;
    player.click(CONTROL_RETRY);
    EXPECT_EQ(gameState, STATE_SAVE_FAILED);
    std::filesystem::create_directory("no such folder here");
    player.click(CONTROL_RETRY);
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_TRUE(std::filesystem::exists(raceSetup.raceFileName));

    setEnglishScene(SCENE_SAVE_FAILED);
    player.click(CONTROL_ABORT);
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_EQ(raceSetup.raceStages.size(), 2u);
}

// A card has words in each language; those for which there is no title show what they do.
TEST_F(RaceWords, EveryEventCardHasWordsAndTheyAreThoseOfTheLanguage)
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
}
