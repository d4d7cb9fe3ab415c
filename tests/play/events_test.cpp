#include "play/events.h"

#include "play/cards.h"
#include "play/hand_in.h"
#include "race/event_deck.h"
#include "support/races.h"
#include "support/scripted_rand.h"

#include <gtest/gtest.h>

static constexpr Square DESCENT = {44, 2}; // +5
static constexpr int FREE_CARD = 16;
static constexpr int EXTRA_DIE = 19;
static constexpr int PAID_SPACES = 29;

// This rider has thrown 4 and 3 and holds this card.
static void draw(int card, int rider)
{
    beginPersonsMove(rider, 7 + squareAt(race.riders[rider].row, race.riders[rider].lane));
    race.dice = {4, 3};
    race.movesTotal = 7;
    gameState = STATE_EVENT_CARD;
    deck.eventDeck[deck.eventCardPos] = card;
}

// Rider 0 holds this card; rider 15, a person's, comes next.
static void hold(int card, bool person, Square square)
{
    setUpRace(ONE_LAP, {{0, square.row, square.lane}, {15, 6, 0}});
    if (person)
        makeHuman(0);
    makeHuman(3);
    draw(card, 0);
}

static void apply(int card, bool person, Square square = FLAT)
{
    hold(card, person, square);
    applyEventCard();
}

using Moves = Table<int, 4>; // budget, total, extra and bonus

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

TEST(EventCard, IsDrawnForASevenFromTheSecondRoundOn)
{
    const struct {
        Pair dice = {3, 4};
        bool drawn = false;
        int round = 2;
        bool cardsOn = true;
        std::initializer_list<int> cards = {};
        Square square = FLAT;
    } cases[] = {
        {.drawn = true},
        {.round = 1},
        {.cardsOn = false},
        {.dice = {3, 5}},
        {.dice = {5, 1}, .drawn = true, .cards = {0}},
        {.dice = {1, 1}, .square = DESCENT}, // seven moves, but no throw of seven
    };
    for (const auto& known : cases) {
        putPersonOnTurn(0, known.square);
        raceSetup.eventCardsOn = known.cardsOn;
        pickCards(known.cards);
        race.roundNumber = known.round;
        deck.eventCardPos = EVENT_CARD_COUNT - 1; // behind the last comes the first again
        throwNumber(raceThrow(known.dice[0], known.dice[1]));
        EXPECT_EQ(gameState, known.drawn ? STATE_EVENT_CARD : STATE_MOVE);
        EXPECT_EQ(deck.eventCardPos, known.drawn ? 0 : EVENT_CARD_COUNT - 1);
    }
}

TEST(EventCard, LostTurnsAreBoughtOffByPersonsIfTheyLike)
{
    for (int card = 0; card < 12; ++card) {
        SCOPED_TRACE(card);
        const int turns = card < 5 ? 1 : 2;
        apply(card, true);
        EXPECT_EQ(gameState, STATE_SKIP_HANDIN);
        EXPECT_EQ(race.riders[0].skipTurns, turns);
        pay({0, 10}); // for one turn only the first is taken
        EXPECT_EQ(race.cardUsed[0][10], turns == 2 ? CARD_SPENT : CARD_AVAILABLE);
        EXPECT_EQ(onTurn(), (OnTurn{0, STATE_MOVE})); // with his throw
        EXPECT_EQ(race.moveBudget, 7);

        apply(card, true);
        pay({}); // the running one is lost, and the next if it was two
        EXPECT_TRUE(lostHisTurn(0));
        EXPECT_EQ(race.riders[0].skipTurns, turns - 1);
        EXPECT_EQ(onTurn(), (OnTurn{15, STATE_TURN}));
    }
    apply(7, true);
    pay({3}); // one card for two turns
    EXPECT_TRUE(lostHisTurn(0));
    EXPECT_EQ(race.riders[0].skipTurns, 0);
}

// Behind rider 0 stand rider 4, who has moved, rider 8, a computer's, and rider 12, without cards.
TEST(EventCard, VictimsOfACrashAnswerAfterItsCauserFrontToBack)
{
    for (const int card : {12, 13, 14}) {
        setUpPersonsRace(ONE_LAP, {{0, 7, 2}, {4, 6, 2, MOVED}, {8, 5, 2}, {12, 4, 2}, {13, 2, 0}});
        race.riders[8].isHuman = 0;
        draw(card, 0);
        leaveCards(3, {});
        race.riderLapCount[4] = 0;
        applyEventCard();
        EXPECT_EQ(race.riders[0].skipTurns, card == 14 ? 2 : 1);
        EXPECT_EQ(race.riders[4].skipTurns, 1);
        EXPECT_EQ(race.riders[13].skipTurns, 0);
        EXPECT_EQ(occupant(7, 2), -1); // it is still his turn

        EXPECT_EQ(race.currentRider, 0);
        pay({0, 1});
        EXPECT_EQ(onTurn(), (OnTurn{4, STATE_SKIP_HANDIN}));
        EXPECT_EQ(view.shownTeam, 1);
        EXPECT_EQ(race.riderLapCount[4], 1); // as the panel says
        pay({0});
        EXPECT_EQ(spentCards(2).size(), 1u); // the computer's rider has paid at once
        EXPECT_EQ(onTurn(), (OnTurn{12, STATE_SKIP_NO_CARD}));
        pay({}); // and those of the others aren't his
        EXPECT_TRUE(lostHisTurn(12));
        EXPECT_EQ(occupant(4, 2), -1);
        EXPECT_EQ(occupant(6, 2), 4);
        EXPECT_EQ(onTurn(), (OnTurn{0, STATE_MOVE})); // has paid and moves with his throw
    }
}

TEST(EventCard, WhoHasLostHisTurnInACrashHandsItOn)
{
    setUpRace(ONE_LAP, {{0, 7, 2}, {4, 6, 2}, {12, 2, 0}});
    makeHuman(1);
    draw(14, 0);
    leaveCards(0, {});
    applyEventCard();
    EXPECT_TRUE(lostHisTurn(0));
    EXPECT_EQ(race.riders[0].skipTurns, 1);
    EXPECT_EQ(race.currentRider, 4);
    pay({0});
    EXPECT_EQ(onTurn(), (OnTurn{4, STATE_TURN})); // the turn in hand was lost; now it is his own
}

// A computer rider uses at once what he is given, and its number counts as thrown.
TEST(EventCard, MovesThatItBrings)
{
    const struct {
        int card;
        bool person;
        Square square;
        GameState state;
        Moves moves;
    } cases[] = {
        {FREE_CARD, true, FLAT, STATE_EVENT_CARD_KIND, {7, 7, 0, 0}},
        {FREE_CARD, false, FLAT, STATE_ANIMATE, {13, 13, 0, BLUE_CARD}},
        {FREE_CARD, false, MOUNTAIN, STATE_ANIMATE, {9, 12, 0, WHITE_CARD}},
        {EXTRA_DIE, true, FLAT, STATE_MOVE, {11, 11, 0, 0}},
        {EXTRA_DIE, false, FLAT, STATE_ANIMATE, {11, 11, 0, 0}},
        {PAID_SPACES, true, FLAT, STATE_EVENT_HANDIN, {7, 7, 0, 0}},
        {PAID_SPACES, false, FLAT, STATE_ANIMATE, {11, 11, 4, 0}},
    };
    for (const auto& known : cases) {
        SCOPED_TRACE(testing::Message() << "card " << known.card << " person " << known.person);
        hold(known.card, known.person, known.square);
        const ScriptedRand script{3};
        applyEventCard();
        throwExtraDie(); // which only a person is asked to do
        EXPECT_EQ(gameState, known.state);
        EXPECT_EQ(moves(), known.moves);
        EXPECT_EQ(race.extraDie, known.card == EXTRA_DIE ? 4 : -1);
    }
    EXPECT_EQ(spentCards(0), std::vector{0}); // the first, whatever its value
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
    hold(21, true, FLAT);
    race.breakaway = 1; // declared before the throw
    applyEventCard();
    EXPECT_EQ(race.breakaway, 1);
}

TEST(EventCard, SpacesForACardArePaidByPersonsAsTheyChoose)
{
    apply(PAID_SPACES, true);
    pay({}); // nothing chosen
    EXPECT_EQ(gameState, STATE_EVENT_HANDIN);
    pickCards({2, 3});
    EXPECT_EQ(race.handInCards, (Pair{2, -1})); // one is the price
    confirmHandIn();
    EXPECT_EQ(gameState, STATE_MOVE);
    EXPECT_EQ(moves(), (Moves{11, 7, 4, 0}));
}

TEST(EventCard, WithoutACardToPayTheThrowStands)
{
    for (const bool person : {true, false}) {
        hold(PAID_SPACES, person, MOUNTAIN);
        leaveCards(0, {0}); // blue, which is no use on a climb
        applyEventCard();
        EXPECT_EQ(gameState, STATE_EVENT_NO_CARD);
        goOnWithoutEventCard();
        EXPECT_EQ(gameState, person ? STATE_MOVE : STATE_ANIMATE);
        EXPECT_EQ(race.moveBudget, 7 + squareAt(MOUNTAIN.row, MOUNTAIN.lane));
        EXPECT_EQ(race.eventRider, -1);
    }
}
