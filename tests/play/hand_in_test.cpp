#include "play/hand_in.h"

#include "play/cards.h"
#include "support/races.h"

#include <gtest/gtest.h>

TEST(HandIn, OnlyCardsThatHeMayHandInCount)
{
    const auto asked = [](Square square, std::initializer_list<int> left) {
        putPersonOnTurn(0, square);
        leaveCards(0, left);
        askHandIn();
        return gameState;
    };
    // Blue ones, and a white one of the fourth rider.
    EXPECT_EQ(asked(MOUNTAIN, {0, 1, 8, 10}), STATE_SKIP_NO_CARD);
    EXPECT_EQ(asked(MOUNTAIN, {12}), STATE_SKIP_HANDIN);
    EXPECT_EQ(asked(FLAT, {10}), STATE_SKIP_HANDIN);
}

TEST(HandIn, AsManyCardsAsTurnsButOneOnCobbles)
{
    const auto laid = [](int turns, Square square, std::initializer_list<int> slots) {
        putPersonOnTurn(0, square);
        race.riders[0].skipTurns = turns;
        askHandIn();
        pickCards(slots);
        return race.handInCards;
    };
    EXPECT_EQ(laid(1, FLAT, {2, 3}), (Pair{2, -1}));
    EXPECT_EQ(laid(2, COBBLES, {2, 3}), (Pair{2, -1}));
    EXPECT_EQ(laid(2, MOUNTAIN, {0, 12}), (Pair{12, -1})); // 0 is blue
    EXPECT_EQ(laid(2, FLAT, {2, 3}), (Pair{2, 3}));
    unpickCard(0);
    pickCard(13);
    EXPECT_EQ(race.handInCards, (Pair{13, 3}));
    EXPECT_EQ(race.cardUsed[0][2], CARD_AVAILABLE);
}
