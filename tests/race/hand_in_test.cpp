#include "race/hand_in.h"

#include "app/game_state.h"
#include "app/view.h"
#include "board/course.h"
#include "race/card_rules.h"
#include "race/cards.h"
#include "support/races.h"

#include <gtest/gtest.h>

namespace
{

constexpr std::string_view ONE_LAP = "01S23S4S5F12";
constexpr Placed FLAT = {.rider = 0, .row = 13, .lane = 2};
constexpr Placed COBBLES = {.rider = 0, .row = 61, .lane = 4};
constexpr Placed MOUNTAIN = {.rider = 0, .row = 32, .lane = 2};

Placed at(Placed place, int rider)
{
    place.rider = rider;
    return place;
}

// A person's rider has thrown 3 and 4 and drawn a card that costs him turns.
void drawLostTurns(const Placed& place, int skipTurns)
{
    setUpPersonsRace(ONE_LAP, {place, {15, 6, 0}});
    beginPersonsMove(place.rider, 7);
    race.dice = {3, 4};
    race.eventRider = place.rider;
    race.riders[place.rider].skipTurns = skipTurns;
    gameState = STATE_TRANSIT;
    askHandIn();
}

void spendAllCardsBut(int team, std::initializer_list<int> left)
{
    for (int slot = 0; slot < SET_CARD_COUNT; ++slot)
        race.cardUsed[team][slot] = CARD_SPENT;
    for (const int slot : left)
        race.cardUsed[team][slot] = CARD_AVAILABLE;
}

std::vector<int> cardsSpent(int team)
{
    std::vector<int> spent;
    for (int slot = 0; slot < SET_CARD_COUNT; ++slot)
        if (race.cardUsed[team][slot] == CARD_SPENT)
            spent.push_back(slot);
    return spent;
}

// A computer rider answers for turns to miss, another rider having drawn the card.
void computerAnswers(const Placed& place, int skipTurns)
{
    setUpRace(ONE_LAP, {place, {12, 6, 0}});
    makeHuman(3);
    race.currentRider = place.rider;
    race.riders[place.rider].skipTurns = skipTurns;
    race.riders[place.rider].pendingHandIn = race.riders[place.rider].hasMoved = 1;
    race.eventRider = 12;
}

} // namespace

TEST(AskHandIn, OnlyCardsThatHeMayHandInCount)
{
    setUpPersonsRace(ONE_LAP, {MOUNTAIN, at(FLAT, 4)});
    race.currentRider = 0;
    spendAllCardsBut(0, {0, 1, 8, 10}); // blue ones, and a white one of the fourth rider
    askHandIn();
    EXPECT_EQ(gameState, STATE_SKIP_NO_CARD);

    race.wonCardRider[0][1] = 0; // a won white card
    race.wonCardValue[0][1] = WHITE_CARD;
    race.cardUsed[0][15] = CARD_AVAILABLE;
    askHandIn();
    EXPECT_EQ(gameState, STATE_SKIP_HANDIN);

    race.currentRider = 4; // the same cards on the flat
    spendAllCardsBut(1, {10});
    askHandIn();
    EXPECT_EQ(gameState, STATE_SKIP_HANDIN);
}

TEST(HandIn, EachCardBuysOffATurn)
{
    drawLostTurns(FLAT, 2);
    pickCard(2);
    pickCard(10);
    confirmHandIn();
    EXPECT_EQ(race.riders[0].skipTurns, 0);
    EXPECT_EQ(gameState, STATE_MOVE); // he paid for all and keeps his throw
    EXPECT_EQ(race.currentRider, 0);
    EXPECT_EQ(race.moveBudget, 7);
    EXPECT_EQ(race.riders[0].hasMoved, 0);
}

TEST(HandIn, WhoDoesNotPayForAllLosesHisTurn)
{
    drawLostTurns(FLAT, 2);
    pickCard(2);
    confirmHandIn();
    EXPECT_EQ(race.riders[0].offBoard, 1);
    EXPECT_EQ(race.riders[0].hasMoved, 1);
    EXPECT_EQ(race.riders[0].skipTurns, 0);
    EXPECT_EQ(gameState, STATE_TURN);
    EXPECT_EQ(race.currentRider, 15);
    EXPECT_EQ(race.cardUsed[0][2], CARD_SPENT);
}

TEST(HandIn, WithoutACardHeMissesAllHisTurns)
{
    drawLostTurns(FLAT, 2);
    confirmHandIn();
    EXPECT_EQ(race.riders[0].offBoard, 1);
    EXPECT_EQ(race.riders[0].skipTurns, 1);
}

TEST(HandIn, AsManyCardsAsTurnsButOneOnCobbles)
{
    drawLostTurns(FLAT, 1);
    pickCard(2);
    pickCard(3);
    EXPECT_EQ(race.handInCards, (Table<int, 2>{2, -1}));
    EXPECT_EQ(race.cardUsed[0][3], CARD_AVAILABLE);

    drawLostTurns(FLAT, 2);
    pickCard(2);
    pickCard(3);
    unpickCard(0);
    pickCard(13);
    EXPECT_EQ(race.handInCards, (Table<int, 2>{13, 3}));
    EXPECT_EQ(cardsSpent(0), (std::vector{3, 13}));

    drawLostTurns(COBBLES, 2);
    pickCard(2);
    pickCard(3);
    EXPECT_EQ(race.handInCards, (Table<int, 2>{2, -1}));

    drawLostTurns(MOUNTAIN, 2);
    pickCard(0);
    pickCard(12);
    EXPECT_EQ(race.handInCards, (Table<int, 2>{12, -1}));
}

TEST(HandIn, OneCardForFourMoves)
{
    setUpPersonsRace(ONE_LAP, {FLAT});
    beginPersonsMove(0, 7);
    gameState = STATE_EVENT_HANDIN;
    confirmHandIn();
    EXPECT_EQ(gameState, STATE_EVENT_HANDIN); // not without a card
    pickCard(1);
    pickCard(2);
    EXPECT_EQ(race.handInCards, (Table<int, 2>{1, -1}));
    confirmHandIn();
    EXPECT_EQ(gameState, STATE_MOVE);
    EXPECT_EQ(race.moveBudget, 11);
    EXPECT_EQ(race.extraMoves, 4);
    EXPECT_EQ(race.currentRider, 0);
}

TEST(HandIn, CrashedRidersAnswerFrontToBack)
{
    setUpPersonsRace(ONE_LAP, {{4, 13, 2, true}, {9, 15, 1}, {0, 13, 3}, {15, 6, 0}});
    for (const int rider : {4, 0, 9}) {
        race.riders[rider].skipTurns = 1;
        race.riders[rider].pendingHandIn = 1;
    }
    beginPersonsMove(9, 7);
    race.eventRider = 9;
    askHandIn();
    spendAllCardsBut(1, {}); // rider 4 has none
    confirmHandIn();
    EXPECT_EQ(race.currentRider, 0);
    EXPECT_EQ(gameState, STATE_SKIP_HANDIN);
    EXPECT_EQ(view.shownTeam, 0);
    pickCard(2);
    confirmHandIn();
    EXPECT_EQ(race.currentRider, 4);
    EXPECT_EQ(gameState, STATE_SKIP_NO_CARD);
    EXPECT_EQ(race.handInCards, (Table<int, 2>{-1, -1})); // rider 0's card is not his
    confirmHandIn();
    EXPECT_EQ(race.riders[4].offBoard, 1);
    EXPECT_EQ(race.currentRider, 0); // the rider who drew the card lost his turn, rider 0 has his
    EXPECT_EQ(gameState, STATE_TURN);
    EXPECT_EQ(nextPendingRider(), -1);
}

TEST(HandIn, OthersAnswersDontTouchTheTurnInHand)
{
    setUpPersonsRace(ONE_LAP, {{4, 13, 2, true}, {9, 15, 1}, {15, 6, 0}});
    race.riders[4].skipTurns = race.riders[4].pendingHandIn = 1;
    beginPersonsMove(9, 7);
    race.eventRider = 9;
    race.riders[9].skipTurns = 1;
    askHandIn();
    pickCard(12);
    confirmHandIn();
    EXPECT_EQ(race.currentRider, 4);
    confirmHandIn(); // he pays nothing, though he has moved already
    EXPECT_EQ(race.riders[4].offBoard, 1);
    EXPECT_EQ(occupant(13, 2), -1);
    EXPECT_EQ(race.currentRider, 9);
    EXPECT_EQ(gameState, STATE_MOVE);
}

TEST(ComputerHandIn, OwnCardsBeforeTheTeams)
{
    computerAnswers(at(FLAT, 1), 2);
    race.cardUsed[0][5] = CARD_SPENT;
    computerHandIn();
    EXPECT_EQ(cardsSpent(0), (std::vector{4, 5, 10}));
    EXPECT_EQ(race.riders[1].skipTurns, 0);
    EXPECT_EQ(race.riders[1].offBoard, 0);
    EXPECT_EQ(race.riders[1].pendingHandIn, 0);
}

TEST(ComputerHandIn, OneCardOnCobbles)
{
    computerAnswers(at(COBBLES, 0), 2);
    computerHandIn();
    EXPECT_EQ(cardsSpent(0), (std::vector{0}));
    EXPECT_EQ(race.riders[0].skipTurns, 0); // one paid, one missed
    EXPECT_EQ(race.riders[0].offBoard, 1);
}

TEST(ComputerHandIn, NoBlueCardOnAMountain)
{
    computerAnswers(at(MOUNTAIN, 2), 1);
    computerHandIn();
    EXPECT_EQ(cardsSpent(0), (std::vector{12}));
    EXPECT_EQ(race.riders[2].offBoard, 0);
}

TEST(ComputerHandIn, WhoDrewTheCardAndPaidMovesByHisThrow)
{
    setUpRace(ONE_LAP, {{1, 102, 5}, {12, 6, 0}});
    makeHuman(3);
    beginPersonsTurn(1);
    race.dice = {2, 3};
    race.movesTotal = 5;
    race.riders[1].skipTurns = 1;
    race.eventRider = 1;
    gameState = STATE_TRANSIT;
    computerHandIn();
    EXPECT_EQ(gameState, STATE_ANIMATE);
    EXPECT_EQ(race.currentRider, 1);
    EXPECT_EQ(race.pathSquares[race.moveBudget].row, 107.0f);
}
