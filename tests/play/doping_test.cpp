#include "play/doping.h"

#include "play/cards.h"
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

TEST(Doping, GivesACardForThisThrowAndANumber)
{
    for (const Square square : {FLAT, MOUNTAIN}) {
        putPersonOnTurn(5, square);
        race.roundNumber = 1; // unlike strength cards from the first round on
        dope(4);
        EXPECT_EQ(gameState, STATE_TURN);
        EXPECT_EQ(race.dopingNumber[5], 4);
        EXPECT_FALSE(mayDope());
        unpickCard(0); // it can't be taken back
        toggleBreakaway();
        EXPECT_EQ(race.breakaway, 1);
        throwNumber(raceThrow(1, 3));
        EXPECT_EQ(race.dice, (Pair{square == FLAT ? BLUE_CARD : WHITE_CARD, 3}));
    }
}

TEST(Doping, FillsTheFirstPlaceThatTheTerrainLeavesFree)
{
    putPersonOnTurn(5, COBBLES);
    pickCard(4);
    dope(1);
    EXPECT_EQ(race.dopingNumber[5], -1);
    unpickCard(0);
    dope(1);
    pickCard(4);
    EXPECT_EQ(race.playedCards, (Pair{DOPING_CARD, -1}));

    putPersonOnTurn(5, FLAT);
    pickCards({4, 10});
    dope(1);
    EXPECT_EQ(race.dopingNumber[5], -1);
    unpickCard(1);
    dope(1);
    EXPECT_EQ(race.playedCards, (Pair{4, DOPING_CARD}));
}

TEST(DopingControl, DrawsTwoDifferentNumbersEachPairOnce)
{
    setUpPersonsRace(ONE_LAP, {});
    race.dopingNumber[2] = 5;
    Table2<int, 7, 7> drawn{};
    for (int chance = 0; chance < 30; ++chance) {
        const ScriptedRand script{chance};
        startDopingControl();
        const auto [first, second] = std::pair(race.dopingDraw[0], race.dopingDraw[1]);
        ++drawn[first][second];
        EXPECT_EQ(race.anyDoping, first == 5 || second == 5);
    }
    for (int first = 1; first <= 6; ++first)
        for (int second = 1; second <= 6; ++second)
            EXPECT_EQ(drawn[first][second], first == second ? 0 : 1);
}

TEST(DopingControl, EveryRiderCaughtHasACountercheckOfHisOwn)
{
    setUpPersonsRace(ONE_LAP, {});
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        race.resultSlots[FINISH_SLOT + rider] = rider;
    race.resultSlots[3] = 9;
    race.dopingNumber[7] = 5;
    race.dopingNumber[2] = race.dopingNumber[9] = race.dopingNumber[15] = 6;
    const ScriptedRand script{4 /* numbers 1 and 6 */, 6 - 1, 2 - 1, 5 - 1};
    startDopingControl();
    EXPECT_EQ(gameState, STATE_DOPING_DRAW);
    afterDopingDraw();
    EXPECT_EQ(onTurn(), (OnTurn{2, STATE_DOPING_COUNTERCHECK}));
    EXPECT_EQ(race.counterDie, 6); // acquits him

    nextCountercheck();
    EXPECT_EQ(race.currentRider, 9);
    EXPECT_TRUE(race.riders[9].disqualified); // at once, not when it is confirmed
    EXPECT_EQ(race.resultSlots[3], -1);
    EXPECT_EQ(race.resultSlots[FINISH_SLOT + 9], -1);
    EXPECT_EQ(race.resultSlots[FINISH_SLOT + 10], 10); // nobody moves up

    nextCountercheck();
    EXPECT_EQ(race.currentRider, 15);
    nextCountercheck();
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
}
