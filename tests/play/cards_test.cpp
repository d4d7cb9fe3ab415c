#include "play/cards.h"

#include "app/game_state.h"
#include "board/course.h"
#include "race/card_rules.h"
#include "support/races.h"
#include "support/scripted_rand.h"

#include <gtest/gtest.h>

namespace
{

constexpr std::string_view ONE_LAP = "01S23S4S5F12";
constexpr Square FLAT = {13, 2};
constexpr Square COBBLES = {61, 4};  // -1
constexpr Square MOUNTAIN = {31, 2}; // -3
constexpr int FIRST_WON = SET_CARD_COUNT;

using Cards = Table<int, 2>;
using Dice = Table<int, 2>;

// A person's rider before his throw, in round 2.
void turnOf(int rider, Square square)
{
    setUpPersonsRace(ONE_LAP, {{rider, square.row, square.lane}});
    beginPersonsTurn(rider);
}

void ownWonCard(int slot, int rider, int value)
{
    const int team = riderTeam(rider);
    race.cardUsed[team][slot] = CARD_AVAILABLE;
    race.wonCardRider[team][slot - FIRST_WON] = rider;
    race.wonCardValue[team][slot - FIRST_WON] = value;
}

void pickCards(std::initializer_list<int> slots)
{
    for (const int slot : slots)
        pickCard(slot);
}

void throwNumber(int number)
{
    const ScriptedRand script{number};
    humanThrow();
    EXPECT_EQ(script.calls(), 1);
}

// A person's rider has thrown 7 and is asked for the kind of card he wants.
void askForKind(int rider, Square square)
{
    turnOf(rider, square);
    throwNumber(raceThrow(3, 4));
    gameState = STATE_EVENT_CARD_KIND;
}

} // namespace

TEST(Cards, ARiderHasHisOwnHisTeamsAndThoseHeWon)
{
    turnOf(5, FLAT);
    ownWonCard(14, 5, BLUE_CARD);
    ownWonCard(15, 6, BLUE_CARD); // a team-mate's
    race.cardUsed[1][12] = CARD_SPENT;
    race.cardUsed[0][13] = CARD_SPENT; // another team's
    std::vector<int> playable;
    for (int slot = 0; slot < CARD_SLOT_COUNT; ++slot)
        if (cardPlayable(slot))
            playable.push_back(slot);
    EXPECT_EQ(playable, (std::vector{4, 5, 10, 11, 13, 14}));
    race.roundNumber = 1;
    EXPECT_FALSE(cardPlayable(4));
}

TEST(Cards, TwoAtTheMostEachOnce)
{
    turnOf(0, FLAT);
    pickCards({4, 0, 0, 12, 1}); // 4 is the second rider's
    EXPECT_EQ(race.playedCards, (Cards{0, 12}));
    EXPECT_EQ(race.cardUsed[0][1], CARD_AVAILABLE);
    unpickCard(0);
    EXPECT_EQ(race.cardUsed[0][0], CARD_AVAILABLE);
    pickCard(3); // into the place that is free
    EXPECT_EQ(race.playedCards, (Cards{3, 12}));
}

TEST(Cards, OnlyWhiteOnAMountain)
{
    turnOf(0, MOUNTAIN);
    ownWonCard(14, 0, BLUE_CARD);
    ownWonCard(15, 0, WHITE_CARD);
    pickCards({0, 11, 14, 15, 2});
    EXPECT_EQ(race.playedCards, (Cards{15, 2}));
}

TEST(Cards, OneOnCobblesTheDopingCardIncluded)
{
    turnOf(0, COBBLES);
    pickCards({0, 2});
    EXPECT_EQ(race.playedCards, (Cards{0, -1}));
    unpickCard(0);
    race.playedCards = {DOPING_CARD, -1};
    pickCard(2);
    EXPECT_EQ(race.playedCards, (Cards{DOPING_CARD, -1}));
}

TEST(Cards, LieFastAfterTheThrow)
{
    turnOf(0, FLAT);
    pickCard(0);
    throwNumber(raceThrow(1, 3));
    pickCard(2);
    unpickCard(0);
    toggleBreakaway();
    EXPECT_EQ(race.playedCards, (Cards{0, -1}));
    EXPECT_EQ(race.cardUsed[0][0], CARD_SPENT);
    EXPECT_EQ(race.breakaway, 0);
}

TEST(Breakaway, NeedsACardAndGoesWithTheLast)
{
    turnOf(0, FLAT);
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
    EXPECT_EQ(race.playedCards, (Cards{-1, DOPING_CARD}));
    EXPECT_EQ(race.breakaway, 1);
}

TEST(Throw, ACardStandsInForItsDie)
{
    turnOf(5, FLAT);
    throwNumber(36 + 8);
    EXPECT_EQ(race.dice, (Dice{3, 2}));

    turnOf(5, FLAT);
    pickCard(4); // 6
    throwNumber(raceThrow(3, 2));
    EXPECT_EQ(race.dice, (Dice{6, 2}));

    turnOf(5, FLAT);
    pickCards({4, 5});
    unpickCard(0);
    throwNumber(raceThrow(3, 2));
    EXPECT_EQ(race.dice, (Dice{3, 5}));
    EXPECT_EQ(race.movesTotal, 8);

    turnOf(5, FLAT);
    ownWonCard(16, 5, BLUE_CARD);
    race.wonCardValue[0][2] = WHITE_CARD; // another team's in the same place
    pickCards({13, 16});
    throwNumber(raceThrow(3, 2));
    EXPECT_EQ(race.dice, (Dice{5, 6}));

    turnOf(5, FLAT);
    race.playedCards = {-1, DOPING_CARD};
    race.dopingCardValue = 4;
    throwNumber(raceThrow(3, 2));
    EXPECT_EQ(race.dice, (Dice{3, 4}));
}

TEST(Throw, TheSquareAddsToItAndMayStopTheRider)
{
    turnOf(0, MOUNTAIN);
    throwNumber(raceThrow(1, 2));
    EXPECT_EQ(race.moveBudget, 0);
    EXPECT_EQ(gameState, STATE_NO_MOVE);

    turnOf(0, MOUNTAIN);
    throwNumber(raceThrow(2, 2));
    EXPECT_EQ(race.moveBudget, 1);
    EXPECT_EQ(gameState, STATE_MOVE);
}

TEST(WonCard, ForLaterGoesToTheFirstFreeSlot)
{
    askForKind(5, FLAT);
    ownWonCard(14, 6, WHITE_CARD);
    ownWonCard(15, 6, WHITE_CARD);
    race.cardUsed[1][15] = CARD_SPENT;
    receiveWonCard(BLUE_CARD);
    useWonCard(false);
    EXPECT_EQ(race.cardUsed[1][15], CARD_AVAILABLE);
    EXPECT_EQ(race.wonCardRider[1], (Table<int, WON_CARD_COUNT>{6, 5, -1, -1}));
    EXPECT_EQ(race.wonCardValue[1][1], BLUE_CARD);
    EXPECT_EQ(race.moveBudget, 7);
}

TEST(WonCard, UsedAtOnceLeavesItsSlotFree)
{
    askForKind(5, FLAT);
    receiveWonCard(WHITE_CARD);
    useWonCard(true);
    EXPECT_EQ(race.moveBudget, 12);
    EXPECT_EQ(race.bonusMoves, WHITE_CARD);
    EXPECT_EQ(race.movesTotal, 7);
    EXPECT_EQ(race.cardUsed[1][14], CARD_NONE);
    EXPECT_EQ(gameState, STATE_MOVE);
}

TEST(WonCard, BlueOnAMountainIsKeptUnasked)
{
    askForKind(5, MOUNTAIN);
    receiveWonCard(BLUE_CARD);
    EXPECT_EQ(gameState, STATE_MOVE);
    EXPECT_EQ(race.cardUsed[1][14], CARD_AVAILABLE);

    askForKind(5, MOUNTAIN);
    receiveWonCard(WHITE_CARD);
    EXPECT_EQ(gameState, STATE_EVENT_CARD_WHEN);
}

TEST(WonCard, TheFifthIsLost)
{
    askForKind(5, FLAT);
    for (int slot = FIRST_WON; slot < CARD_SLOT_COUNT; ++slot)
        ownWonCard(slot, 6, WHITE_CARD);
    receiveWonCard(BLUE_CARD);
    useWonCard(true);
    EXPECT_EQ(race.moveBudget, 7);
    EXPECT_EQ(race.wonCardRider[1], (Table<int, WON_CARD_COUNT>{6, 6, 6, 6}));
    EXPECT_EQ(gameState, STATE_MOVE);
}
