#include "play/movement.h"
#include "screen/support/drawn_texts.h"
#include "screen/support/player.h"
#include "screen/support/scenes.h"
#include "support/scripted_rand.h"

// What the race says in words, numbers and colours: the panel, the dialogs and the positions.

namespace
{

using RaceWords = ScreenTest;

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

// Of the words on these cards; a card that can't be laid is dim.
void expectCards(const char* what, const char* looks, const std::initializer_list<int>& slots)
{
    for (const int slot : slots) {
        const std::vector<DrawnText> words = textsAt(cardPlace(slot));
        const char* seen = words.empty()                         ? "gone"
                           : words[0].colour == Pixel{0, 0, 255} ? "bright"
                                                                 : "dim";
        EXPECT_STREQ(seen, looks) << what << ", slot " << slot;
    }
}

} // namespace

TEST_F(RaceWords, TellATurnFromItsBeginningToTheNextRiders)
{
    setEnglishScene(Scene::TURN);
    EXPECT_EQ(panelWords(), "Belgium|Moves: |Lap:0|Moves left: |Round:2");
    const ScriptedRand dice{raceThrow(4, 1)};
    player.click(CONTROL_THROW);
    EXPECT_EQ(panelWords(), "Belgium|Moves: 5|Lap:0|Moves left: 5|Round:2");
    steer("MM");
    race.extraMoves = 4;
    EXPECT_EQ(panelWords(), "Belgium|Bonus moves: 4|Moves: 5|Lap:1|Moves left: 3|Round:2");
    endHumanMove();
    player.key('n'); // nobody follows
    race.riderLapCount[0] = 7;
    EXPECT_EQ(panelWords(), "Netherlands|Moves: |Lap:1|Moves left: |Round:2");
    race.currentRider = -1;
    gameState = STATE_TRANSIT;
    EXPECT_EQ(panelWords(), "Moves: |Lap:|Moves left: |Round:2");
    gameState = STATE_FINAL_SCORECARD;
    EXPECT_EQ(panelWords(), "Moves: |Lap:|Moves left: |Round:");
}

// A team that lost a tie stands grey and without its throw.
TEST_F(RaceWords, TellTheThrowsForTheOrder)
{
    setEnglishScene(Scene::ORDER_THROW);
    race.teamThrow = {7, 0, -1, 12};
    const Rect box = {layout.diceX - 1.0f, layout.movesBoxY - 9.0f, layout.orderBoxW, 60.0f};
    EXPECT_EQ(wordsAt(box), "21 7|31 |41 |51 12");
    for (const DrawnText& text : textsAt(box))
        EXPECT_EQ(text.colour == pixelOf(WHITE), text.words != "31 ") << text.words;
}

TEST_F(RaceWords, TellTheVerdictOfADopingControl)
{
    setEnglishScene(Scene::COUNTERCHECK);
    EXPECT_TRUE(screenSays("Cyclist 23 disqualification confirmed"));
    race.counterDie = 3;
    EXPECT_TRUE(screenSays("Cyclist 23 acquitted"));
    setEnglishScene(Scene::DOPING_DRAW);
    race.anyDoping = 0;
    EXPECT_EQ(wordsAt(dialogBox()), "Doping control|Drawn numbers: 3 and 1|OK");
}

TEST_F(RaceWords, AreBrightOnCardsThatTheRiderMayLay)
{
    setEnglishScene(Scene::TURN);
    race.cardUsed[0][1] = CARD_SPENT;
    giveWonCard(14, 0, WHITE_CARD);
    giveWonCard(15, 1, WHITE_CARD);
    expectCards("spent", "gone", {1});
    expectCards("his own and the team's", "bright", {0, 2, 10, 14});
    expectCards("a team-mate's", "dim", {4, 15});
    race.playedCards = {10, -1};
    expectCards("one place left", "bright", {0, 2});
    race.playedCards = {10, 0};
    expectCards("both places taken", "dim", {2, 11});
    race.playedCards = {-1, -1};
    race.roundNumber = 1;
    expectCards("the first round", "dim", {0, 10, 14});
    race.roundNumber = 2;
    gameState = STATE_MOVE;
    expectCards("won ones in any state of his turn", "bright", {14});
    expectCards("steering", "dim", {0, 10});
    gameState = STATE_TURN;
    view.shownTeam = 1;
    expectCards("another team's", "dim", {0, 10});

    putPersonOnTurn(0, MOUNTAIN);
    expectCards("a six uphill", "dim", {0});
    expectCards("a five uphill", "bright", {2});
    putPersonOnTurn(0, COBBLES);
    expectCards("on cobbles", "bright", {0});
    race.playedCards = {12, -1};
    expectCards("a second one on cobbles", "dim", {2});
}

// Where there is a place left for one more, in both states that ask for cards.
TEST_F(RaceWords, AreBrightOnCardsToHandInWhileThereIsAPlaceForThem)
{
    for (const auto& [scene, laid] : {std::pair{Scene::HANDIN, 1}, {Scene::EVENT_HANDIN, 0}}) {
        setEnglishScene(scene);
        race.handInCards = {laid == 1 ? 12 : -1, -1};
        expectCards(nameOf(scene), "bright", {0});
        expectCards("a team-mate's", "dim", {4});
        EXPECT_EQ(isLive(CONTROL_HAND_IN), laid == 1) << nameOf(scene);
        race.handInCards = {12, laid == 1 ? 13 : -1};
        expectCards(nameOf(scene), "dim", {0});
    }
}

TEST_F(RaceWords, NameTheRaceThatRunsAndWhatIsKnownOfEachRider)
{
    setEnglishScene(Scene::POSITIONS);
    raceSetup.multiStage = true;
    raceSetup.raceName = "Typed";
    raceSetup.raceBaseName = "Tour";
    race.riderLapCount[4] = 2;
    race.dopingNumber[4] = 5;
    EXPECT_TRUE(screenSays("Multiple stages, Tour") && screenSays("L:2") && screenSays("D:5"));
    EXPECT_FALSE(screenSays("D:-1") || screenSays("Computer player"));
    raceSetup.multiStage = false;
    race.riders[4].isHuman = 0;
    EXPECT_TRUE(screenSays("Single stage") && screenSays("Computer player"));
}
