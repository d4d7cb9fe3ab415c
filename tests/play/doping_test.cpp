#include "play/doping.h"

#include "app/game_state.h"
#include "play/cards.h"
#include "play/overlays.h"
#include "play/start.h"
#include "race/scoring.h"
#include "support/races.h"
#include "support/scripted_rand.h"

#include <gtest/gtest.h>

namespace
{

constexpr std::string_view ONE_LAP = "01S23S4S5F12";
constexpr Square FLAT = {13, 2};
constexpr Square COBBLES = {61, 4};
constexpr Square MOUNTAIN = {32, 2};

using Places = Table<int, 2>;

void beginTurnOn(Square square)
{
    setUpPersonsRace(ONE_LAP, {{5, square.row, square.lane}});
    beginPersonsTurn(5);
}

// Dopes with the number given.
void dope(int number)
{
    askDoping();
    const ScriptedRand chance{number - 1};
    confirmDoping();
    takeDopingCard();
}

// A stage that is over, with these riders doped and everybody in by index.
void endStage(std::initializer_list<std::pair<int, int>> dopedWith)
{
    setUpPersonsRace(ONE_LAP, {});
    for (const auto& [rider, number] : dopedWith)
        race.dopingNumber[rider] = number;
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        race.resultSlots[FINISH_SLOT + rider] = rider;
}

// The random number behind a draw of two numbers.
int drawOf(int first, int second)
{
    return (first - 1) * 5 + (second > first ? second - 2 : second - 1);
}

} // namespace

TEST(Doping, GivesACardForThisThrowAndANumber)
{
    beginTurnOn(FLAT);
    race.roundNumber = 1; // unlike strength cards from the first round on
    askDoping();
    EXPECT_EQ(gameState, STATE_CONFIRM_DOPING);
    closeOverlay();
    EXPECT_EQ(gameState, STATE_TURN);
    EXPECT_EQ(race.dopingNumber[5], -1);

    dope(4);
    EXPECT_EQ(gameState, STATE_TURN);
    EXPECT_EQ(race.dopingNumber[5], 4);
    EXPECT_EQ(race.playedCards, (Places{DOPING_CARD, -1}));
    EXPECT_FALSE(mayDope());
    unpickCard(0);
    EXPECT_EQ(race.playedCards[0], DOPING_CARD);
    toggleBreakaway();
    EXPECT_EQ(race.breakaway, 1);

    const ScriptedRand chance{raceThrow(1, 3)};
    humanThrow();
    EXPECT_EQ(race.dice, (Places{BLUE_CARD, 3}));
}

TEST(Doping, FillsTheFirstPlaceThatTheTerrainLeavesFree)
{
    beginTurnOn(FLAT);
    pickCard(4);
    dope(1);
    EXPECT_EQ(race.playedCards, (Places{4, DOPING_CARD}));

    beginTurnOn(FLAT);
    pickCard(4);
    pickCard(10);
    askDoping();
    EXPECT_EQ(gameState, STATE_TURN);
    unpickCard(0);
    dope(1);
    EXPECT_EQ(race.playedCards, (Places{DOPING_CARD, 10}));

    beginTurnOn(COBBLES);
    pickCard(4);
    askDoping();
    EXPECT_EQ(gameState, STATE_TURN);
    unpickCard(0);
    dope(1);
    EXPECT_EQ(race.playedCards, (Places{DOPING_CARD, -1}));
    pickCard(4);
    EXPECT_EQ(race.playedCards[1], -1);

    beginTurnOn(MOUNTAIN);
    dope(1);
    EXPECT_EQ(race.dopingCardValue, WHITE_CARD);
}

TEST(DopingControl, DrawsTwoDifferentNumbersEachPairOnce)
{
    Table2<int, 7, 7> drawn{};
    for (int chance = 0; chance < 30; ++chance) {
        endStage({});
        const ScriptedRand script{chance};
        startDopingControl();
        EXPECT_EQ(gameState, STATE_DOPING_DRAW);
        ++drawn[race.dopingDraw[0]][race.dopingDraw[1]];
    }
    for (int first = 1; first <= 6; ++first)
        for (int second = 1; second <= 6; ++second)
            EXPECT_EQ(drawn[first][second], first == second ? 0 : 1);
}

TEST(DopingControl, WithNobodyCaughtTheStageCloses)
{
    endStage({{2, 6}, {9, 1}});
    const ScriptedRand script{drawOf(3, 4)};
    startDopingControl();
    EXPECT_FALSE(race.anyDoping);
    afterDopingDraw();
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_EQ(race.resultSlots[FINISH_SLOT + 2], 2);
}

TEST(DopingControl, OneRiderCaughtIsEnough)
{
    endStage({{9, 6}});
    const ScriptedRand script{drawOf(6, 1)};
    startDopingControl();
    EXPECT_TRUE(race.anyDoping);
}

TEST(DopingControl, EveryRiderCaughtHasACountercheckOfHisOwn)
{
    endStage({{2, 6}, {7, 5}, {9, 6}, {15, 6}});
    race.resultSlots[3] = 9;
    const ScriptedRand script{drawOf(1, 6), 6 - 1, 2 - 1, 5 - 1};
    startDopingControl();
    EXPECT_TRUE(race.anyDoping);
    EXPECT_TRUE(isCaught(15));
    EXPECT_FALSE(isCaught(7));

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
    EXPECT_EQ(race.currentRider, 15);
    EXPECT_EQ(gameState, STATE_DOPING_COUNTERCHECK);
    nextCountercheck();
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    EXPECT_EQ(script.calls(), 4);
    EXPECT_EQ(stagePoints(race.resultSlots, false).team[2], 22 + 18 + 16); // without the ninth's 20
}

TEST(Doping, IsForgottenWithTheStage)
{
    beginTurnOn(FLAT);
    dope(3);
    race.riders[5].disqualified = 1;
    startRace();
    EXPECT_EQ(race.dopingNumber[5], -1);
    EXPECT_EQ(race.riders[5].disqualified, 0);
    EXPECT_EQ(race.dopingDraw, (Places{0, 0}));
}
