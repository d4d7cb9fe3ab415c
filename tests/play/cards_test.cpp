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

// The person on turn throws 7 and is given a card of this kind.
static void winCard(int value)
{
    throwNumber(raceThrow(3, 4));
    gameState = STATE_EVENT_CARD_KIND;
    receiveWonCard(value);
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

TEST(Cards, ABreakawayNeedsOneAndAllLieFastAfterTheThrow)
{
    putPersonOnTurn(0, FLAT);
    toggleBreakaway();
    EXPECT_EQ(race.breakaway, 0);
    pickCard(0);
    toggleBreakaway();
    pickCard(2);
    unpickCard(0);
    EXPECT_EQ(race.breakaway, 1);
    unpickCard(1); // the last
    EXPECT_EQ(race.breakaway, 0);

    pickCard(0);
    throwNumber(raceThrow(1, 3));
    pickCard(2);
    unpickCard(0);
    toggleBreakaway();
    EXPECT_EQ(race.playedCards, (Pair{0, -1}));
    EXPECT_EQ(race.breakaway, 0);
}

TEST(Throw, ACardStandsInForItsDie)
{
    const auto diceWith = [](std::initializer_list<int> slots, int number) {
        putPersonOnTurn(5, FLAT);
        giveWonCard(16, 5, BLUE_CARD);
        race.wonCardValue[0][2] = WHITE_CARD; // another team's in the same place
        pickCards(slots);
        throwNumber(number);
        EXPECT_EQ(race.movesTotal, race.dice[0] + race.dice[1]);
        return race.dice;
    };
    EXPECT_EQ(diceWith({}, 36 + 8), (Pair{3, 2}));
    EXPECT_EQ(diceWith({4}, raceThrow(3, 2)), (Pair{6, 2}));
    EXPECT_EQ(diceWith({13, 16}, raceThrow(3, 2)), (Pair{5, 6}));
}

TEST(Throw, TheSquareAddsToItAndMayStopTheRider)
{
    for (const int second : {2, 3}) {
        putPersonOnTurn(0, MOUNTAIN);
        throwNumber(raceThrow(1, second));
        EXPECT_EQ(race.moveBudget, second - 2);
        EXPECT_EQ(gameState, second == 2 ? STATE_NO_MOVE : STATE_MOVE);
    }
}

TEST(WonCard, IsUsedAtOnceOrGoesToTheFirstFreeSlot)
{
    for (const bool now : {true, false}) {
        putPersonOnTurn(5, FLAT);
        giveWonCard(14, 6, WHITE_CARD);
        giveWonCard(15, 6, WHITE_CARD);
        race.cardUsed[1][15] = CARD_SPENT;
        winCard(BLUE_CARD);
        EXPECT_EQ(gameState, STATE_EVENT_CARD_WHEN);
        useWonCard(now);
        EXPECT_EQ(gameState, STATE_MOVE);
        EXPECT_EQ(race.cardUsed[1][15], now ? CARD_SPENT : CARD_AVAILABLE);
        EXPECT_EQ(race.wonCardRider[1], (WonCards{6, 5, -1, -1}));
        EXPECT_EQ(race.wonCardValue[1][1], BLUE_CARD);
        EXPECT_EQ(race.moveBudget, now ? 7 + BLUE_CARD : 7);
        EXPECT_EQ(race.bonusMoves, now ? BLUE_CARD : 0);
        EXPECT_EQ(race.movesTotal, 7);
    }
}

TEST(WonCard, BlueOnAMountainIsKeptUnaskedAndTheFifthIsLost)
{
    for (const int value : {BLUE_CARD, WHITE_CARD}) {
        putPersonOnTurn(5, MOUNTAIN);
        winCard(value);
        EXPECT_EQ(gameState, value == BLUE_CARD ? STATE_MOVE : STATE_EVENT_CARD_WHEN);
        EXPECT_EQ(race.cardUsed[1][14], value == BLUE_CARD ? CARD_AVAILABLE : CARD_NONE);
    }
    putPersonOnTurn(5, FLAT);
    for (int slot = SET_CARD_COUNT; slot < CARD_SLOT_COUNT; ++slot)
        giveWonCard(slot, 6, WHITE_CARD);
    winCard(BLUE_CARD);
    useWonCard(true);
    EXPECT_EQ(race.moveBudget, 7);
    EXPECT_EQ(race.wonCardRider[1], (WonCards{6, 6, 6, 6}));
    EXPECT_EQ(gameState, STATE_MOVE);
}
