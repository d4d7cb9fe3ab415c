#include "play/cards.h"

#include "support/races.h"
#include "support/scripted_rand.h"

#include <gtest/gtest.h>

using WonCards = Table<int, WON_CARD_COUNT>;

// Which cards lie after these have been picked.
static Pair laidBy(int rider, Square square, std::initializer_list<int> slots)
{
    putPersonOnTurn(rider, square);
    giveWonCard(14, rider, BLUE_CARD);
    giveWonCard(15, rider, WHITE_CARD);
    pickCards(slots);
    return race.playedCards;
}

TEST(Cards, ARiderHasHisOwnHisTeamsAndThoseHeWon)
{
    putPersonOnTurn(5, FLAT);
    giveWonCard(14, 5, BLUE_CARD);
    giveWonCard(15, 6, BLUE_CARD); // a team-mate's
    race.cardUsed[1][12] = CARD_SPENT;
    race.cardUsed[0][13] = CARD_SPENT; // another team's
    std::vector<int> laid;
    for (int slot = 0; slot < CARD_SLOT_COUNT; ++slot) {
        pickCard(slot);
        if (race.playedCards[0] != -1)
            laid.push_back(race.playedCards[0]);
        unpickCard(0);
    }
    EXPECT_EQ(laid, (std::vector{4, 5, 10, 11, 13, 14}));
    race.roundNumber = 1;
    pickCard(4);
    EXPECT_EQ(race.playedCards[0], -1);
}

TEST(Cards, TheTerrainSaysWhichAndHowMany)
{
    EXPECT_EQ(laidBy(0, FLAT, {4, 0, 0, 12, 1}), (Pair{0, 12})) << "4 is the second rider's";
    EXPECT_EQ(race.cardUsed[0][1], CARD_AVAILABLE);
    unpickCard(0);
    EXPECT_EQ(race.cardUsed[0][0], CARD_AVAILABLE);
    pickCard(3); // into the place that is free
    EXPECT_EQ(race.playedCards, (Pair{3, 12}));

    EXPECT_EQ(laidBy(0, MOUNTAIN, {0, 11, 14, 15, 2}), (Pair{15, 2})) << "only white ones";
    EXPECT_EQ(laidBy(0, COBBLES, {0, 2}), (Pair{0, -1}));
}

TEST(Breakaway, NeedsACardAndGoesWithTheLast)
{
    putPersonOnTurn(0, FLAT);
    toggleBreakaway();
    EXPECT_EQ(race.breakaway, 0);
    pickCard(0);
    toggleBreakaway();
    pickCard(2);
    unpickCard(0);
    EXPECT_EQ(race.breakaway, 1);
    unpickCard(1);
    EXPECT_EQ(race.breakaway, 0);

    race.playedCards[1] = DOPING_CARD; // will do, and can't be taken back
    toggleBreakaway();
    unpickCard(1);
    EXPECT_EQ(race.playedCards, (Pair{-1, DOPING_CARD}));
    EXPECT_EQ(race.breakaway, 1);
}

TEST(Throw, ACardStandsInForItsDie)
{
    const auto diceWith = [](std::initializer_list<int> slots, int number) {
        putPersonOnTurn(5, FLAT);
        giveWonCard(16, 5, BLUE_CARD);
        race.wonCardValue[0][2] = WHITE_CARD; // another team's in the same place
        pickCards(slots);
        throwNumber(number);
        return race.dice;
    };
    EXPECT_EQ(diceWith({}, 36 + 8), (Pair{3, 2}));
    EXPECT_EQ(diceWith({4}, raceThrow(3, 2)), (Pair{6, 2}));
    EXPECT_EQ(diceWith({13, 16}, raceThrow(3, 2)), (Pair{5, 6}));

    putPersonOnTurn(5, FLAT);
    pickCards({4, 5});
    unpickCard(0);
    throwNumber(raceThrow(3, 2));
    EXPECT_EQ(race.dice, (Pair{3, 5}));
    EXPECT_EQ(race.movesTotal, 8);
}

TEST(Throw, TheSquareAddsToItAndMayStopTheRider)
{
    for (const int second : {2, 3}) {
        putPersonOnTurn(0, MOUNTAIN);
        race.stepsTaken = 4; // of the one before
        throwNumber(raceThrow(1, second));
        EXPECT_EQ(race.moveBudget, second - 2);
        EXPECT_EQ(gameState, second == 2 ? STATE_NO_MOVE : STATE_MOVE);
        EXPECT_EQ(race.stepsTaken, 0);
    }
}

// Rider 5, on turn, throws 7 and is given a card of this kind. Whether he is asked when he uses it.
static bool winCard(int value)
{
    throwNumber(raceThrow(3, 4));
    gameState = STATE_EVENT_CARD_KIND;
    receiveWonCard(value);
    return gameState == STATE_EVENT_CARD_WHEN;
}

TEST(WonCard, IsUsedAtOnceOrGoesToTheFirstFreeSlot)
{
    for (const bool now : {true, false}) {
        putPersonOnTurn(5, FLAT);
        giveWonCard(14, 6, WHITE_CARD);
        giveWonCard(15, 6, WHITE_CARD);
        race.cardUsed[1][15] = CARD_SPENT;
        EXPECT_TRUE(winCard(BLUE_CARD));
        useWonCard(now);
        EXPECT_EQ(gameState, STATE_MOVE);
        EXPECT_EQ(race.cardUsed[1][15], now ? CARD_SPENT : CARD_AVAILABLE);
        EXPECT_EQ(race.wonCardRider[1], (WonCards{6, 5, -1, -1}));
        EXPECT_EQ(race.wonCardValue[1][1], BLUE_CARD);
        EXPECT_EQ(race.moveBudget, now ? 7 + BLUE_CARD : 7);
        EXPECT_EQ(race.bonusMoves, now ? BLUE_CARD : 0);
        EXPECT_EQ(race.movesTotal, 7);
    }
    putPersonOnTurn(5, MOUNTAIN);
    EXPECT_TRUE(winCard(WHITE_CARD));
    putPersonOnTurn(5, MOUNTAIN);
    EXPECT_FALSE(winCard(BLUE_CARD)); // is no use there, and kept unasked
    EXPECT_EQ(gameState, STATE_MOVE);
    EXPECT_EQ(race.cardUsed[1][14], CARD_AVAILABLE);
}

TEST(WonCard, TheFifthIsLost)
{
    putPersonOnTurn(5, FLAT);
    for (int slot = SET_CARD_COUNT; slot < CARD_SLOT_COUNT; ++slot)
        giveWonCard(slot, 6, WHITE_CARD);
    winCard(BLUE_CARD);
    useWonCard(true);
    EXPECT_EQ(race.moveBudget, 7);
    EXPECT_EQ(race.wonCardRider[1], (WonCards{6, 6, 6, 6}));
    EXPECT_EQ(gameState, STATE_MOVE);
}
