#include "play/hand_in.h"

#include "play/cards.h"
#include "support/races.h"

#include <gtest/gtest.h>

using Slots = std::vector<int>;

// What a computer rider of the first team pays for turns to miss, which a person drew for him.
static Slots paidBy(int rider, Square square, int skipTurns)
{
    setUpRace(ONE_LAP, {{rider, square.row, square.lane, MOVED}, {12, 6, 0}});
    makeHuman(3);
    race.currentRider = rider;
    race.eventRider = 12;
    race.riders[rider].skipTurns = skipTurns;
    computerHandIn();
    return spentCards(0);
}

TEST(HandIn, OnlyCardsThatHeMayHandInCount)
{
    setUpPersonsRace(ONE_LAP, {{0, MOUNTAIN.row, MOUNTAIN.lane}, {4, FLAT.row, FLAT.lane}});
    race.currentRider = 0;
    leaveCards(0, {0, 1, 8, 10}); // blue ones, and a white one of the fourth rider
    askHandIn();
    EXPECT_EQ(gameState, STATE_SKIP_NO_CARD);
    giveWonCard(15, 0, WHITE_CARD);
    askHandIn();
    EXPECT_EQ(gameState, STATE_SKIP_HANDIN);

    race.currentRider = 4;
    leaveCards(1, {10}); // blue, but on the flat
    askHandIn();
    EXPECT_EQ(gameState, STATE_SKIP_HANDIN);
}

TEST(HandIn, AsManyCardsAsTurnsButOneOnCobbles)
{
    const auto laid = [](int turns, Square square, std::initializer_list<int> slots) {
        setUpPersonsRace(ONE_LAP, {{0, square.row, square.lane}});
        beginPersonsMove(0, 7);
        race.riders[0].skipTurns = turns;
        askHandIn();
        pickCards(slots);
        return race.handInCards;
    };
    EXPECT_EQ(laid(1, FLAT, {2, 3}), (Pair{2, -1}));
    EXPECT_EQ(race.cardUsed[0][3], CARD_AVAILABLE);
    EXPECT_EQ(laid(2, COBBLES, {2, 3}), (Pair{2, -1}));
    EXPECT_EQ(laid(2, MOUNTAIN, {0, 12}), (Pair{12, -1})); // 0 is blue
    EXPECT_EQ(laid(2, FLAT, {2, 3}), (Pair{2, 3}));
    unpickCard(0);
    pickCard(13);
    EXPECT_EQ(race.handInCards, (Pair{13, 3}));
    EXPECT_EQ(race.cardUsed[0][2], CARD_AVAILABLE);
}

TEST(ComputerHandIn, PaysAllHeCanHisOwnCardsFirst)
{
    EXPECT_EQ(paidBy(1, FLAT, 2), (Slots{4, 5}));
    EXPECT_FALSE(race.riders[1].offBoard);
    EXPECT_EQ(paidBy(2, MOUNTAIN, 2), (Slots{12, 13})); // his own are blue
    EXPECT_EQ(paidBy(3, COBBLES, 2), (Slots{8}));
    EXPECT_TRUE(race.riders[3].offBoard);
    EXPECT_EQ(race.riders[3].skipTurns, 0);
}
