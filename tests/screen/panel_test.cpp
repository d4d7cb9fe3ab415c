#include "app/game_state.h"
#include "app/settings.h"
#include "app/view.h"
#include "board/course.h"
#include "play/movement.h"
#include "race/race_state.h"
#include "race/rider_place.h"
#include "screen/support/drawn_texts.h"
#include "screen/support/player.h"
#include "screen/support/scenes.h"
#include "support/own_folder.h"
#include "support/races.h"
#include "support/scripted_rand.h"
#include "ui/layout.h"
#include "ui/places.h"

#include <gtest/gtest.h>

// What the race says in words, numbers and colours: the panel, the dialogs and the positions.

namespace
{

void setEnglishScene(Scene scene)
{
    setScene(scene, LANGUAGE_ENGLISH);
}

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

TEST(Panel, TellsATurnFromItsBeginningToTheNextRiders)
{
    const OwnFolder folder;
    startProgram(1280, 1024);
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
    EXPECT_EQ(panelWords(), "Netherlands|Moves: |Moves left: |Round:2|Lap:1");
    race.currentRider = -1;
    EXPECT_EQ(panelWords(), "Moves: |Moves left: |Round:2|Lap:");
    gameState = STATE_FINAL_SCORECARD;
    EXPECT_EQ(panelWords(), "Moves: |Moves left: |Round:|Lap:");
}

// A team that lost a tie stands grey and without its throw.
TEST(Panel, TellsTheThrowsForTheOrder)
{
    const OwnFolder folder;
    startProgram(1280, 1024);
    setEnglishScene(SCENE_ORDER_THROW);
    race.teamThrow = {7, 0, -1, 12};
    const Rect box = {layout.diceX - 1.0f, layout.movesBoxY - 9.0f, layout.orderBoxW, 60.0f};
    EXPECT_EQ(wordsAt(box), "21 7|31 |41 |51 12");
    for (const DrawnText& text : drawnTexts())
        if (box.contains(text.place.x, text.place.y)) {
            EXPECT_EQ(text.colour == pixelOf(WHITE), text.words != "31 ") << text.words;
        }
}

TEST(Panel, DialogsNameTheRidersAndNumbersTheyAreAbout)
{
    const OwnFolder folder;
    startProgram(1280, 1024);
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

TEST(Panel, CardsAreBrightOnlyForTheRiderWhoMayLayThem)
{
    const OwnFolder folder;
    startProgram(1280, 1024);
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
TEST(Panel, CardsToHandInAreBrightWhileThereIsAPlaceForThem)
{
    const OwnFolder folder;
    startProgram(1280, 1024);
    for (const auto& [scene, laid] : {std::pair{SCENE_HANDIN, 1}, {SCENE_EVENT_HANDIN, 0}}) {
        setEnglishScene(scene);
        race.handInCards = {laid == 1 ? 12 : -1, -1};
        EXPECT_EQ(cardLooks(0), "bright") << nameOf(scene);
        EXPECT_EQ(cardLooks(4), "dim") << nameOf(scene) << ", a team-mate's";
        race.handInCards = {12, laid == 1 ? 13 : -1};
        EXPECT_EQ(cardLooks(0), "dim") << nameOf(scene);
    }
}

TEST(Panel, OnCobblesOneCardAndUphillNoneOfSixIsBright)
{
    startProgram(1280, 1024);
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

TEST(Positions, NameTheRaceThatRunsAndWhatIsKnownOfEachRider)
{
    const OwnFolder folder;
    startProgram(1280, 1024);
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

TEST(Positions, RidersOffTheBoardAreDimAndFinishersGone)
{
    startProgram(1280, 1024);
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
