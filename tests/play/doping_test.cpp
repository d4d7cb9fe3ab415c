#include "play/doping.h"

#include "play/cards.h"
#include "play/overlays.h"
#include "race/scoring.h"
#include "support/races.h"
#include "support/scripted_rand.h"

#include <gtest/gtest.h>

// Dopes with the number given.
static void dope(int number)
{
    askDoping();
    const ScriptedRand chance{number - 1};
    confirmDoping();
    takeDopingCard();
}

// A stage is over, with these riders doped and everybody in by index.
static void endStage(std::initializer_list<std::pair<int, int>> dopedWith)
{
    setUpPersonsRace(ONE_LAP, {});
    for (const auto& [rider, number] : dopedWith)
        race.dopingNumber[rider] = number;
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        race.resultSlots[FINISH_SLOT + rider] = rider;
}

// The random number behind a draw of two numbers.
static int drawOf(int first, int second)
{
    return (first - 1) * 5 + (second > first ? second - 2 : second - 1);
}

TEST(Doping, GivesACardForThisThrowAndANumber)
{
    putPersonOnTurn(5, FLAT);
    race.roundNumber = 1; // unlike strength cards from the first round on
    askDoping();
    EXPECT_EQ(gameState, STATE_CONFIRM_DOPING);
    closeOverlay();
    EXPECT_EQ(gameState, STATE_TURN);
    EXPECT_EQ(race.dopingNumber[5], -1);

    dope(4);
    EXPECT_EQ(gameState, STATE_TURN);
    EXPECT_EQ(race.dopingNumber[5], 4);
    EXPECT_EQ(race.playedCards, (Pair{DOPING_CARD, -1}));
    EXPECT_FALSE(mayDope());
    throwNumber(raceThrow(1, 3));
    EXPECT_EQ(race.dice, (Pair{BLUE_CARD, 3}));
}

TEST(Doping, FillsTheFirstPlaceThatTheTerrainLeavesFree)
{
    const auto playedWith = [](Square square, std::initializer_list<int> cards) {
        putPersonOnTurn(5, square);
        pickCards(cards);
        dope(1);
        return race.playedCards;
    };
    EXPECT_EQ(playedWith(FLAT, {4}), (Pair{4, DOPING_CARD}));
    EXPECT_EQ(playedWith(COBBLES, {4}), (Pair{4, -1}));
    EXPECT_EQ(race.dopingNumber[5], -1);
    EXPECT_EQ(playedWith(FLAT, {4, 10}), (Pair{4, 10}));
    EXPECT_EQ(race.dopingNumber[5], -1);
    unpickCard(0);
    dope(1);
    EXPECT_EQ(race.playedCards, (Pair{DOPING_CARD, 10}));

    EXPECT_EQ(playedWith(COBBLES, {}), (Pair{DOPING_CARD, -1}));
    pickCard(4);
    EXPECT_EQ(race.playedCards, (Pair{DOPING_CARD, -1}));
    playedWith(MOUNTAIN, {});
    throwNumber(raceThrow(1, 3));
    EXPECT_EQ(race.dice, (Pair{WHITE_CARD, 3}));
}

TEST(DopingControl, DrawsTwoDifferentNumbersEachPairOnce)
{
    Table2<int, 7, 7> drawn{};
    for (int chance = 0; chance < 30; ++chance) {
        const ScriptedRand script{chance};
        startDopingControl();
        ++drawn[race.dopingDraw[0]][race.dopingDraw[1]];
    }
    for (int first = 1; first <= 6; ++first)
        for (int second = 1; second <= 6; ++second)
            EXPECT_EQ(drawn[first][second], first == second ? 0 : 1);
}

TEST(DopingControl, WithNobodyCaughtTheStageCloses)
{
    endStage({{2, 5}, {9, 6}});
    const ScriptedRand script{drawOf(3, 4)};
    startDopingControl();
    EXPECT_FALSE(race.anyDoping);
    afterDopingDraw();
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
}

TEST(DopingControl, EveryRiderCaughtHasACountercheckOfHisOwn)
{
    endStage({{2, 6}, {9, 6}, {14, 5}, {15, 6}});
    race.resultSlots[3] = 9;
    const ScriptedRand script{drawOf(1, 6), 6 - 1, 2 - 1, 5 - 1};
    startDopingControl();
    EXPECT_EQ(gameState, STATE_DOPING_DRAW);
    EXPECT_TRUE(race.anyDoping && isCaught(15));
    EXPECT_FALSE(isCaught(14));

    afterDopingDraw();
    EXPECT_EQ(race.currentRider, 2);
    EXPECT_EQ(race.counterDie, 6);
    EXPECT_TRUE(counterDieAcquits());
    EXPECT_EQ(race.resultSlots[FINISH_SLOT + 2], 2);

    nextCountercheck();
    EXPECT_EQ(race.currentRider, 9);
    EXPECT_TRUE(race.riders[9].disqualified); // at once, not when it is confirmed
    EXPECT_EQ(race.resultSlots[3], -1);
    EXPECT_EQ(race.resultSlots[FINISH_SLOT + 9], -1);
    EXPECT_EQ(race.resultSlots[FINISH_SLOT + 10], 10); // nobody moves up

    nextCountercheck();
    EXPECT_EQ(onTurn(), (OnTurn{15, STATE_DOPING_COUNTERCHECK}));
    nextCountercheck();
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_EQ(stagePoints(race.resultSlots, false).team[2], 22 + 18 + 16); // without the ninth's 20
}
