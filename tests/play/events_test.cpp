#include "play/events.h"

#include "play/cards.h"
#include "play/hand_in.h"
#include "race/event_deck.h"
#include "support/races.h"
#include "support/scripted_rand.h"

#include <gtest/gtest.h>

static constexpr int FREE_CARD = 16;
static constexpr int EXTRA_DIE = 19;
static constexpr int PAID_SPACES = 29;

// Rider 0 has thrown 4 and 3 and holds this card.
static void draw(int card)
{
    beginPersonsMove(0, 7 + squareAt(race.riders[0].row, race.riders[0].lane));
    race.dice = {4, 3};
    race.movesTotal = 7;
    gameState = STATE_EVENT_CARD;
    deck.eventDeck[deck.eventCardPos] = card;
}

// Rider 0 holds this card; rider 15, a person's, comes next.
static void hold(int card, bool person, Square square = FLAT)
{
    setUpRace(ONE_LAP, {{0, square.row, square.lane}, {15, 6, 0}});
    if (person)
        makeHuman(0);
    makeHuman(3);
    draw(card);
}

static void apply(int card, bool person, Square square = FLAT)
{
    hold(card, person, square);
    applyEventCard();
}

using Moves = Table<int, 4>; // left to the rider, in all, and what the panel names beside them

static Moves moves()
{
    return {race.moveBudget, race.movesTotal, race.extraMoves, race.bonusMoves};
}

// The person who is asked hands in these cards.
static void pay(std::initializer_list<int> slots)
{
    pickCards(slots);
    confirmHandIn();
}

static bool lostHisTurn(int rider)
{
    return race.riders[rider].offBoard && race.riders[rider].hasMoved;
}

// On a square that adds five: two ones are seven moves, but no throw of seven.
TEST(EventCard, IsDrawnForASevenFromTheSecondRoundOn)
{
    const auto draws = [](int round, Pair dice, bool cardsOn = true, bool sixLaid = false) {
        putPersonOnTurn(0, {44, 2});
        raceSetup.eventCardsOn = cardsOn;
        if (sixLaid)
            pickCard(0);
        race.roundNumber = round;
        deck.eventCardPos = EVENT_CARD_COUNT - 1;
        throwNumber(raceThrow(dice[0], dice[1]));
        EXPECT_EQ(deck.eventCardPos, gameState == STATE_MOVE ? EVENT_CARD_COUNT - 1 : 0);
        return gameState == STATE_EVENT_CARD;
    };
    EXPECT_TRUE(draws(2, {3, 4}));
    EXPECT_TRUE(draws(2, {5, 1}, true, true));
    EXPECT_FALSE(draws(1, {3, 4}));
    EXPECT_FALSE(draws(2, {1, 1}));
    EXPECT_FALSE(draws(2, {3, 4}, false));
}

TEST(EventCard, LostTurnsAreBoughtOffByPersonsIfTheyLike)
{
    for (const int card : {0, 4, 5, 11, 12, 13, 14}) {
        SCOPED_TRACE(card);
        const int turns = card < 5 || card == 12 || card == 13 ? 1 : 2;
        apply(card, true);
        EXPECT_EQ(gameState, STATE_SKIP_HANDIN);
        EXPECT_EQ(race.riders[0].skipTurns, turns);
        pay({0, 10}); // for one turn only the first is taken
        EXPECT_EQ(race.cardUsed[0][10], turns == 2 ? CARD_SPENT : CARD_AVAILABLE);
        EXPECT_EQ(onTurn(), (OnTurn{0, STATE_MOVE}));
        EXPECT_EQ(race.moveBudget, 7);
    }
    for (const bool paysForOne : {false, true}) {
        apply(7, true);
        if (paysForOne)
            pickCard(3);
        confirmHandIn();
        EXPECT_TRUE(lostHisTurn(0)); // the running one, and one more if he paid for none
        EXPECT_EQ(race.riders[0].skipTurns, paysForOne ? 0 : 1);
        EXPECT_EQ(onTurn(), (OnTurn{15, STATE_TURN}));
    }
}

TEST(EventCard, LostTurnsAreBoughtOffByComputerRidersAtOnce)
{
    apply(9, false);
    EXPECT_EQ(gameState, STATE_ANIMATE);
    EXPECT_EQ(race.moveBudget, 7);
    EXPECT_EQ(spentCards(0), (std::vector{0, 1})); // his own before those of the team
    EXPECT_EQ(race.riders[0].skipTurns, 0);

    hold(14, false, {7, 0}); // a crash, with rider 15 behind him
    leaveCards(0, {});
    applyEventCard();
    EXPECT_TRUE(lostHisTurn(0));
    EXPECT_EQ(race.riders[0].skipTurns, 1);
    EXPECT_EQ(onTurn(), (OnTurn{15, STATE_SKIP_HANDIN}));
    pay({0});
    EXPECT_EQ(onTurn(), (OnTurn{15, STATE_TURN})); // the turn in hand was lost; now it is his own
}

// Behind rider 0 stand rider 4, who has moved, rider 8 without cards and rider 13, a computer's.
TEST(EventCard, VictimsOfACrashAnswerAfterItsCauserFrontToBack)
{
    setUpPersonsRace(ONE_LAP, {{0, 7, 2}, {4, 6, 2, MOVED}, {8, 5, 2}, {13, 4, 2}, {12, 2, 0}});
    race.riders[13].isHuman = 0;
    draw(14);
    leaveCards(2, {});
    race.riderLapCount[4] = 0;
    applyEventCard();
    EXPECT_EQ(race.riders[0].skipTurns, 2);
    EXPECT_EQ(race.riders[4].skipTurns, 1);
    EXPECT_EQ(race.riders[12].skipTurns, 0);
    EXPECT_EQ(occupant(7, 2), -1); // it is still his turn

    EXPECT_EQ(race.currentRider, 0);
    pay({0, 1});
    EXPECT_EQ(onTurn(), (OnTurn{4, STATE_SKIP_HANDIN}));
    EXPECT_EQ(view.shownTeam, 1);
    EXPECT_EQ(race.riderLapCount[4], 1); // as the panel says
    pay({0});
    EXPECT_EQ(onTurn(), (OnTurn{8, STATE_SKIP_NO_CARD}));
    pay({}); // and those of the others aren't his
    EXPECT_TRUE(lostHisTurn(8));
    EXPECT_EQ(occupant(5, 2), -1);
    EXPECT_EQ(occupant(6, 2), 4);
    EXPECT_EQ(spentCards(3), std::vector{4}); // paid at once
    EXPECT_EQ(onTurn(), (OnTurn{0, STATE_MOVE}));
}

TEST(EventCard, AFreeCardAndAnExtraDieAreABonusForComputerRiders)
{
    apply(FREE_CARD, false);
    EXPECT_EQ(gameState, STATE_ANIMATE);
    EXPECT_EQ(moves(), (Moves{13, 13, 0, BLUE_CARD}));
    apply(FREE_CARD, false, MOUNTAIN);
    EXPECT_EQ(moves(), (Moves{12 - 3, 12, 0, WHITE_CARD}));
    EXPECT_EQ(race.cardUsed[0][SET_CARD_COUNT], CARD_NONE); // never a card
    apply(FREE_CARD, true);
    EXPECT_EQ(gameState, STATE_EVENT_CARD_KIND);
    for (const bool person : {true, false}) {
        hold(EXTRA_DIE, person);
        const ScriptedRand script{3};
        applyEventCard();
        throwExtraDie(); // which only a person is asked to do
        EXPECT_EQ(gameState, person ? STATE_MOVE : STATE_ANIMATE);
        EXPECT_EQ(race.extraDie, 4);
        EXPECT_EQ(moves(), (Moves{11, 11, 0, 0}));
    }
}

TEST(EventCard, ExtraSpacesRaiseTheTotalOfComputerRidersOnly)
{
    constexpr Table<int, 8> spaces = {2, 2, 3, 3, 4, 4, 4, 4}; // cards 21 to 28
    constexpr Table<int, 8> alone = {0, 1, 0, 0, 0, 0, 1, 1};
    for (int card = 21; card <= 28; ++card)
        for (const bool person : {true, false}) {
            SCOPED_TRACE(card);
            apply(card, person);
            EXPECT_EQ(gameState, person ? STATE_MOVE : STATE_ANIMATE);
            const int more = spaces[card - 21];
            EXPECT_EQ(moves(), (Moves{7 + more, person ? 7 : 7 + more, more, 0}));
            EXPECT_EQ(race.breakaway, alone[card - 21]);
        }
    hold(21, true);
    race.breakaway = 1; // declared before the throw
    applyEventCard();
    EXPECT_EQ(race.breakaway, 1);
}

TEST(EventCard, SpacesCostACardAndWithoutOneTheThrowStands)
{
    apply(PAID_SPACES, true);
    pay({}); // nothing chosen
    EXPECT_EQ(gameState, STATE_EVENT_HANDIN);
    pay({2, 3});
    EXPECT_EQ(spentCards(0), std::vector{2}); // one is the price
    EXPECT_EQ(gameState, STATE_MOVE);
    EXPECT_EQ(moves(), (Moves{11, 7, 4, 0}));

    apply(PAID_SPACES, false);
    EXPECT_EQ(gameState, STATE_ANIMATE);
    EXPECT_EQ(moves(), (Moves{11, 11, 4, 0}));
    EXPECT_EQ(spentCards(0), std::vector{0}); // the first, whatever its value

    for (const bool person : {true, false}) {
        hold(PAID_SPACES, person);
        leaveCards(0, {});
        applyEventCard();
        EXPECT_EQ(gameState, STATE_EVENT_NO_CARD);
        goOnWithoutEventCard();
        EXPECT_EQ(gameState, person ? STATE_MOVE : STATE_ANIMATE);
        EXPECT_EQ(moves(), (Moves{7, 7, 0, 0}));
    }
}
