#include "play/events.h"

#include "app/game_state.h"
#include "board/course.h"
#include "play/cards.h"
#include "play/hand_in.h"
#include "play/turn_cycle.h"
#include "race/card_rules.h"
#include "race/event_deck.h"
#include "support/races.h"
#include "support/scripted_rand.h"

#include <gtest/gtest.h>

namespace
{

constexpr std::string_view ONE_LAP = "01S23S4S5F12";
constexpr Square FLAT = {13, 2};
constexpr Square MOUNTAIN = {32, 2};
constexpr Square DESCENT = {44, 2}; // +5
constexpr int FREE_CARD = 16;
constexpr int EXTRA_DIE = 19;
constexpr int PAID_SPACES = 29;

void putOnTop(int card)
{
    deck.eventDeck[deck.eventCardPos] = card;
}

// Rider 0 has thrown 4 and 3 and holds this card; rider 15 comes next.
void draw(int card, Square square, bool person)
{
    setUpRace(ONE_LAP, {{0, square.row, square.lane}, {15, 6, 0}});
    if (person)
        makeHuman(0);
    makeHuman(3);
    beginPersonsMove(0, 7 + squareAt(square.row, square.lane));
    race.dice = {4, 3};
    race.movesTotal = 7;
    gameState = STATE_EVENT_CARD;
    putOnTop(card);
}

void drawAndApply(int card, Square square, bool person)
{
    draw(card, square, person);
    applyEventCard();
}

void spendCards(int team)
{
    for (int slot = 0; slot < SET_CARD_COUNT; ++slot)
        race.cardUsed[team][slot] = CARD_SPENT;
}

int spentCards(int team)
{
    int spent = 0;
    for (int slot = 0; slot < SET_CARD_COUNT; ++slot)
        spent += race.cardUsed[team][slot] == CARD_SPENT;
    return spent;
}

} // namespace

TEST(EventCard, IsDrawnForASevenFromTheSecondRoundOn)
{
    const auto stateAfter = [](int first, int second, int round, bool cardsOn, bool cardLaid,
                               int position = 3) {
        setUpPersonsRace(ONE_LAP, {{0, FLAT.row, FLAT.lane}});
        raceSetup.eventCardsOn = cardsOn;
        beginPersonsTurn(0);
        if (cardLaid)
            pickCard(0);
        race.roundNumber = round;
        const ScriptedRand script{raceThrow(first, second)};
        deck.eventCardPos = position;
        humanThrow();
        EXPECT_EQ(deck.eventCardPos != position, gameState == STATE_EVENT_CARD);
        return gameState;
    };
    EXPECT_EQ(stateAfter(3, 4, 2, true, false), STATE_EVENT_CARD);
    EXPECT_EQ(stateAfter(3, 4, 1, true, false), STATE_MOVE);
    EXPECT_EQ(stateAfter(3, 4, 2, false, false), STATE_MOVE);
    EXPECT_EQ(stateAfter(3, 5, 2, true, false), STATE_MOVE);
    EXPECT_EQ(stateAfter(5, 1, 2, true, true), STATE_EVENT_CARD); // a blue card and a die
    setUpPersonsRace(ONE_LAP, {{0, DESCENT.row, DESCENT.lane}});
    raceSetup.eventCardsOn = true;
    beginPersonsTurn(0);
    {
        const ScriptedRand script{raceThrow(1, 1)};
        humanThrow();
    }
    EXPECT_EQ(race.moveBudget, 7); // seven moves, but no throw of seven
    EXPECT_EQ(gameState, STATE_MOVE);
    stateAfter(3, 4, 2, true, false, EVENT_CARD_COUNT - 1);
    EXPECT_EQ(deck.eventCardPos, 0);
}

TEST(EventCard, LostTurnsAreBoughtOffByPersonsIfTheyLike)
{
    for (const int card : {0, 4, 5, 11}) {
        const int turns = card < 5 ? 1 : 2;
        drawAndApply(card, FLAT, true);
        EXPECT_EQ(gameState, STATE_SKIP_HANDIN) << card;
        EXPECT_EQ(race.riders[0].skipTurns, turns) << card;
        EXPECT_EQ(handInSlotCount(), turns) << card;
        for (const int slot : {0, 10})
            pickCard(slot);
        confirmHandIn();
        EXPECT_EQ(gameState, STATE_MOVE) << card; // with his throw
        EXPECT_EQ(race.moveBudget, 7);
    }
    drawAndApply(7, FLAT, true);
    pickCard(3);
    confirmHandIn(); // one card for two turns: the running one is lost
    EXPECT_TRUE(race.riders[0].offBoard);
    EXPECT_EQ(race.riders[0].skipTurns, 0);
    EXPECT_EQ(race.currentRider, 15);

    draw(7, FLAT, true);
    spendCards(0);
    applyEventCard();
    EXPECT_EQ(gameState, STATE_SKIP_NO_CARD);
}

TEST(EventCard, LostTurnsAreBoughtOffByComputerRidersAtOnce)
{
    drawAndApply(9, FLAT, false);
    EXPECT_EQ(gameState, STATE_ANIMATE);
    EXPECT_EQ(spentCards(0), 2);
    EXPECT_EQ(race.riders[0].skipTurns, 0);

    draw(9, FLAT, false);
    spendCards(0);
    applyEventCard();
    EXPECT_TRUE(race.riders[0].offBoard);
    EXPECT_EQ(race.riders[0].skipTurns, 1);
    EXPECT_EQ(race.currentRider, 15);
}

// Behind rider 0 stand rider 4, who has moved, and rider 8; rider 12 stands clear.
TEST(EventCard, VictimsOfACrashAnswerAfterItsCauser)
{
    for (const int card : {12, 13, 14}) {
        setUpPersonsRace(ONE_LAP, {{0, 7, 2}, {4, 6, 2, true}, {8, 5, 2}, {12, 2, 0}});
        beginPersonsMove(0, 7);
        race.dice = {4, 3};
        gameState = STATE_EVENT_CARD;
        putOnTop(card);
        applyEventCard();
        EXPECT_EQ(race.riders[0].skipTurns, card == 14 ? 2 : 1);
        EXPECT_EQ(race.riders[4].skipTurns, 1);
        EXPECT_EQ(race.riders[12].skipTurns, 0);
        EXPECT_EQ(occupant(7, 2), -1); // it is still his turn

        EXPECT_EQ(race.currentRider, 0);
        pickCard(0);
        pickCard(1);
        confirmHandIn();
        EXPECT_EQ(race.currentRider, 4);
        pickCard(0);
        confirmHandIn();
        EXPECT_EQ(race.currentRider, 8);
        EXPECT_EQ(gameState, STATE_SKIP_HANDIN);
        confirmHandIn(); // pays nothing
        EXPECT_TRUE(race.riders[8].offBoard);
        EXPECT_EQ(occupant(5, 2), -1);
        EXPECT_EQ(occupant(6, 2), 4);
        EXPECT_EQ(race.currentRider, 0); // has paid and moves with his throw
        EXPECT_EQ(gameState, STATE_MOVE);
    }
}

TEST(EventCard, AComputerCauserOfACrashLetsThePersonsBehindHimAnswer)
{
    setUpRace(ONE_LAP, {{0, 7, 2}, {4, 6, 2}, {12, 2, 0}});
    makeHuman(1);
    beginPersonsMove(0, 7);
    race.dice = {4, 3};
    spendCards(0);
    gameState = STATE_EVENT_CARD;
    putOnTop(14);
    applyEventCard();
    EXPECT_TRUE(race.riders[0].offBoard);
    EXPECT_EQ(race.riders[0].skipTurns, 1);
    EXPECT_EQ(race.currentRider, 4);
    pickCard(0);
    confirmHandIn();
    EXPECT_EQ(race.currentRider, 4); // the turn in hand was lost; now it is his own
    EXPECT_EQ(gameState, STATE_TURN);
}

TEST(EventCard, ComputerVictimsOfACrashPayAtOnce)
{
    setUpPersonsRace(ONE_LAP, {{0, 7, 2}, {8, 6, 2}, {4, 5, 2}});
    race.riders[8].isHuman = 0;
    beginPersonsMove(0, 7);
    gameState = STATE_EVENT_CARD;
    putOnTop(12);
    applyEventCard();
    confirmHandIn();
    EXPECT_EQ(spentCards(2), 1);
    EXPECT_EQ(race.currentRider, 4); // behind him, and asked after him
    EXPECT_EQ(gameState, STATE_SKIP_HANDIN);
}

TEST(EventCard, AFreeCardIsAChoiceForPersonsAndABonusForComputerRiders)
{
    drawAndApply(FREE_CARD, FLAT, true);
    EXPECT_EQ(gameState, STATE_EVENT_CARD_KIND);
    EXPECT_EQ(race.moveBudget, 7);

    for (const Square square : {FLAT, MOUNTAIN}) {
        drawAndApply(FREE_CARD, square, false);
        const int bonus = square == MOUNTAIN ? WHITE_CARD : BLUE_CARD;
        EXPECT_EQ(gameState, STATE_ANIMATE);
        EXPECT_EQ(race.bonusMoves, bonus);
        EXPECT_EQ(race.movesTotal, 7 + bonus);
        EXPECT_EQ(race.cardUsed[0][SET_CARD_COUNT], CARD_NONE); // never a card
    }
}

TEST(EventCard, TheExtraDieIsThrownByPersonsOnly)
{
    drawAndApply(EXTRA_DIE, FLAT, true);
    EXPECT_EQ(gameState, STATE_EVENT_DIE);
    {
        const ScriptedRand script{3};
        throwExtraDie();
    }
    EXPECT_EQ(race.moveBudget, 7 + 4);
    EXPECT_EQ(race.movesTotal, 7 + 4);

    draw(EXTRA_DIE, FLAT, false);
    const ScriptedRand script{5};
    applyEventCard();
    EXPECT_EQ(gameState, STATE_ANIMATE);
    EXPECT_EQ(race.extraDie, 6);
    EXPECT_EQ(race.movesTotal, 7 + 6);
}

TEST(EventCard, ExtraSpacesRaiseTheTotalOfComputerRidersOnly)
{
    constexpr Table<int, 8> spaces = {2, 2, 3, 3, 4, 4, 4, 4}; // cards 21 to 28
    constexpr Table<int, 8> alone = {0, 1, 0, 0, 0, 0, 1, 1};
    for (int card = 21; card <= 28; ++card) {
        SCOPED_TRACE(card);
        drawAndApply(card, FLAT, true);
        EXPECT_EQ(gameState, STATE_MOVE);
        EXPECT_EQ(race.moveBudget, 7 + spaces[card - 21]);
        EXPECT_EQ(race.extraMoves, spaces[card - 21]);
        EXPECT_EQ(race.movesTotal, 7);
        EXPECT_EQ(race.breakaway, alone[card - 21]);

        drawAndApply(card, FLAT, false);
        EXPECT_EQ(race.movesTotal, 7 + spaces[card - 21]);
        EXPECT_EQ(race.moveBudget, 7 + spaces[card - 21]); // the way ahead is free
        EXPECT_EQ(race.breakaway, alone[card - 21]);
    }
    draw(21, FLAT, true);
    race.breakaway = 1; // declared before the throw
    applyEventCard();
    EXPECT_EQ(race.breakaway, 1);
}

TEST(EventCard, SpacesForACardArePaidByPersonsAsTheyChooseAndByComputerRidersAtOnce)
{
    drawAndApply(PAID_SPACES, FLAT, true);
    EXPECT_EQ(gameState, STATE_EVENT_HANDIN);
    confirmHandIn(); // nothing chosen
    EXPECT_EQ(gameState, STATE_EVENT_HANDIN);
    pickCard(2);
    pickCard(3);
    EXPECT_EQ(race.handInCards, (Table<int, 2>{2, -1})); // one is the price
    confirmHandIn();
    EXPECT_EQ(gameState, STATE_MOVE);
    EXPECT_EQ(race.moveBudget, 7 + 4);
    EXPECT_EQ(race.extraMoves, 4);
    EXPECT_EQ(race.movesTotal, 7);

    drawAndApply(PAID_SPACES, FLAT, false);
    EXPECT_EQ(gameState, STATE_ANIMATE);
    EXPECT_EQ(race.movesTotal, 7 + 4);
    EXPECT_EQ(race.moveBudget, 7 + 4);
    EXPECT_EQ(race.cardUsed[0][0], CARD_SPENT); // the first, whatever its value
    EXPECT_EQ(spentCards(0), 1);
}

TEST(EventCard, WithoutACardToPayTheThrowStands)
{
    for (const bool person : {true, false}) {
        draw(PAID_SPACES, MOUNTAIN, person);
        spendCards(0);
        race.cardUsed[0][0] = CARD_AVAILABLE; // blue, which is no use on a climb
        applyEventCard();
        EXPECT_EQ(gameState, STATE_EVENT_NO_CARD);
        goOnWithoutEventCard();
        EXPECT_EQ(gameState, person ? STATE_MOVE : STATE_ANIMATE);
        EXPECT_EQ(race.moveBudget, 7 + squareAt(MOUNTAIN.row, MOUNTAIN.lane));
        EXPECT_EQ(race.eventRider, -1);
    }
    // A won card pays as well.
    draw(PAID_SPACES, FLAT, true);
    spendCards(0);
    race.cardUsed[0][15] = CARD_AVAILABLE;
    race.wonCardRider[0][1] = 0;
    race.wonCardValue[0][1] = BLUE_CARD;
    applyEventCard();
    EXPECT_EQ(gameState, STATE_EVENT_HANDIN);
}
