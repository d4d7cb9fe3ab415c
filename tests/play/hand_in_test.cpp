#include "play/hand_in.h"

#include "app/game_state.h"
#include "app/view.h"
#include "board/course.h"
#include "play/cards.h"
#include "support/races.h"

#include <gtest/gtest.h>

namespace
{

constexpr std::string_view ONE_LAP = "01S23S4S5F12";
constexpr Square FLAT = {13, 2};
constexpr Square COBBLES = {61, 4};
constexpr Square MOUNTAIN = {32, 2};

using Cards = Table<int, 2>;
using Slots = std::vector<int>;

// Rider 0, a person's, has thrown 7 and drawn a card that costs him turns. Rider 15 comes next.
void drawLostTurns(Square square, int skipTurns)
{
    setUpPersonsRace(ONE_LAP, {{0, square.row, square.lane}, {15, 6, 0}});
    beginPersonsMove(0, 7);
    race.eventRider = 0;
    race.riders[0].skipTurns = skipTurns;
    askHandIn();
}

void leaveOnlyCards(int team, std::initializer_list<int> left)
{
    for (int slot = 0; slot < SET_CARD_COUNT; ++slot)
        race.cardUsed[team][slot] = CARD_SPENT;
    for (const int slot : left)
        race.cardUsed[team][slot] = CARD_AVAILABLE;
}

// What a computer rider of the first team pays for turns to miss, which a person drew for him.
Slots paidBy(int rider, Square square, int skipTurns)
{
    setUpRace(ONE_LAP, {{rider, square.row, square.lane, true}, {12, 6, 0}});
    makeHuman(3);
    race.currentRider = rider;
    race.eventRider = 12;
    race.riders[rider].skipTurns = skipTurns;
    computerHandIn();
    Slots paid;
    for (int slot = 0; slot < SET_CARD_COUNT; ++slot)
        if (race.cardUsed[0][slot] == CARD_SPENT)
            paid.push_back(slot);
    return paid;
}

bool missesTurn(int rider)
{
    return race.riders[rider].offBoard && race.riders[rider].hasMoved;
}

} // namespace

TEST(HandIn, OnlyCardsThatHeMayHandInCount)
{
    setUpPersonsRace(ONE_LAP, {{0, MOUNTAIN.row, MOUNTAIN.lane}, {4, FLAT.row, FLAT.lane}});
    race.currentRider = 0;
    leaveOnlyCards(0, {0, 1, 8, 10}); // blue ones, and a white one of the fourth rider
    askHandIn();
    EXPECT_EQ(gameState, STATE_SKIP_NO_CARD);
    race.wonCardRider[0][1] = 0;
    race.wonCardValue[0][1] = WHITE_CARD;
    race.cardUsed[0][15] = CARD_AVAILABLE;
    askHandIn();
    EXPECT_EQ(gameState, STATE_SKIP_HANDIN);

    race.currentRider = 4;
    leaveOnlyCards(1, {10}); // blue, but on the flat
    askHandIn();
    EXPECT_EQ(gameState, STATE_SKIP_HANDIN);
}

TEST(HandIn, WhoPaysForEveryTurnKeepsHisThrow)
{
    drawLostTurns(FLAT, 2);
    pickCard(2);
    pickCard(10);
    confirmHandIn();
    EXPECT_EQ(gameState, STATE_MOVE);
    EXPECT_EQ(race.currentRider, 0);
    EXPECT_EQ(race.moveBudget, 7);
}

TEST(HandIn, WhoPaysForSomeMissesOne)
{
    drawLostTurns(FLAT, 2);
    pickCard(2);
    confirmHandIn();
    EXPECT_TRUE(missesTurn(0));
    EXPECT_EQ(race.riders[0].skipTurns, 0); // and is back from the next round on
    EXPECT_EQ(race.currentRider, 15);
    EXPECT_EQ(gameState, STATE_TURN);

    drawLostTurns(FLAT, 2);
    confirmHandIn();
    EXPECT_EQ(race.riders[0].skipTurns, 1);
}

TEST(HandIn, AsManyCardsAsTurnsButOneOnCobbles)
{
    drawLostTurns(FLAT, 1);
    pickCard(2);
    pickCard(3);
    EXPECT_EQ(race.handInCards, (Cards{2, -1}));
    EXPECT_EQ(race.cardUsed[0][3], CARD_AVAILABLE);

    drawLostTurns(FLAT, 2);
    pickCard(2);
    pickCard(3);
    unpickCard(0);
    pickCard(13);
    EXPECT_EQ(race.handInCards, (Cards{13, 3}));
    EXPECT_EQ(race.cardUsed[0][2], CARD_AVAILABLE);

    drawLostTurns(COBBLES, 2);
    pickCard(2);
    pickCard(3);
    EXPECT_EQ(race.handInCards, (Cards{2, -1}));

    drawLostTurns(MOUNTAIN, 2);
    pickCard(0); // blue
    pickCard(12);
    EXPECT_EQ(race.handInCards, (Cards{12, -1}));
}

TEST(HandIn, CrashedRidersAnswerFrontToBack)
{
    setUpPersonsRace(ONE_LAP, {{4, 13, 2, true}, {9, 15, 1}, {0, 13, 3}});
    for (const int rider : {4, 0, 9})
        race.riders[rider].skipTurns = race.riders[rider].pendingHandIn = 1;
    leaveOnlyCards(1, {});
    beginPersonsMove(9, 7);
    race.eventRider = 9;
    askHandIn();
    confirmHandIn();
    EXPECT_EQ(race.currentRider, 0);
    EXPECT_EQ(gameState, STATE_SKIP_HANDIN);
    EXPECT_EQ(view.shownTeam, 0);
    pickCard(2);
    confirmHandIn();
    EXPECT_EQ(race.currentRider, 4);
    EXPECT_EQ(gameState, STATE_SKIP_NO_CARD);
    confirmHandIn(); // the card of rider 0 isn't his
    EXPECT_TRUE(missesTurn(4));
    EXPECT_EQ(gameState, STATE_TURN); // rider 9, who drew the card, has lost his turn
    EXPECT_EQ(race.currentRider, 0);
}

TEST(HandIn, OthersAnswersDontTouchTheTurnInHand)
{
    setUpPersonsRace(ONE_LAP, {{4, 13, 2, true}, {9, 15, 1}});
    race.riders[4].skipTurns = race.riders[4].pendingHandIn = race.riders[9].skipTurns = 1;
    beginPersonsMove(9, 7);
    race.eventRider = 9;
    askHandIn();
    pickCard(12);
    confirmHandIn();
    EXPECT_EQ(race.currentRider, 4);
    confirmHandIn(); // he pays nothing, though he has moved already
    EXPECT_TRUE(missesTurn(4));
    EXPECT_EQ(occupant(13, 2), -1);
    EXPECT_EQ(race.currentRider, 9);
    EXPECT_EQ(gameState, STATE_MOVE);
}

TEST(ComputerHandIn, PaysAllHeCanHisOwnCardsFirst)
{
    EXPECT_EQ(paidBy(1, FLAT, 2), (Slots{4, 5}));
    EXPECT_FALSE(missesTurn(1));
    EXPECT_EQ(paidBy(2, MOUNTAIN, 2), (Slots{12, 13})); // his own are blue
    EXPECT_EQ(paidBy(3, COBBLES, 2), (Slots{8}));
    EXPECT_TRUE(missesTurn(3));
    EXPECT_EQ(race.riders[3].skipTurns, 0);
}

TEST(ComputerHandIn, WhoDrewTheCardAndPaidMovesByHisThrow)
{
    setUpRace(ONE_LAP, {{1, 102, 5}, {12, 6, 0}});
    makeHuman(3);
    beginPersonsTurn(1);
    race.dice = {2, 3};
    race.riders[1].skipTurns = 1;
    race.eventRider = 1;
    computerHandIn();
    EXPECT_EQ(gameState, STATE_ANIMATE);
    EXPECT_EQ(race.pathSquares[race.moveBudget].row, 107.0f);
}
