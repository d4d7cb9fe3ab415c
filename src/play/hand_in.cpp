#include "play/hand_in.h"

#include "ai/computer_choices.h"
#include "ai/computer_turn.h"
#include "app/game_state.h"
#include "app/host.h"
#include "app/view.h"
#include "board/course.h"
#include "play/turn_cycle.h"
#include "race/card_rules.h"
#include "race/race_state.h"
#include "race/rider_place.h"

int nextPendingRider()
{
    return frontMostRider([](const Rider& rider) { return rider.pendingHandIn != 0; });
}

// He has answered; whoever didn't buy off every turn misses this one.
static void settleTurns(int rider)
{
    race.riders[rider].pendingHandIn = 0;
    if (race.riders[rider].skipTurns <= 0)
        return;
    liftOffBoard(rider);
    --race.riders[rider].skipTurns;
    redrawNow();
}

void askHandIn()
{
    gameState = hasCardToHandIn(race.currentRider) ? STATE_SKIP_HANDIN : STATE_SKIP_NO_CARD;
    redrawNow();
}

void computerHandIn()
{
    payForLostTurns(race.currentRider);
    redrawNow();
    settleTurns(race.currentRider);
    resumeAfterHandIn(nextPendingRider());
}

void confirmHandIn()
{
    if (gameState == STATE_EVENT_HANDIN) {
        if (race.handInCards[0] == -1)
            return;
        race.moveBudget += MOVES_FOR_CARD;
        race.extraMoves = MOVES_FOR_CARD;
        resumeAfterHandIn(-1);
    } else if (gameState == STATE_SKIP_HANDIN || gameState == STATE_SKIP_NO_CARD) {
        for (const int card : race.handInCards)
            if (card != -1)
                --race.riders[race.currentRider].skipTurns;
        settleTurns(race.currentRider);
        resumeAfterHandIn(nextPendingRider());
    }
}

static void goOnWith(int rider)
{
    if (gameState == STATE_SKIP_NO_CARD) {
        enter(STATE_TRANSIT);
    }
    race.currentRider = rider;
    updateRiderLap(rider);
    if (!race.riders[rider].isHuman) {
        computerHandIn();
        return;
    }
    view.shownTeam = riderTeam(rider);
    race.handInCards = filled<int, 2>(-1);
    redrawNow();
    askHandIn();
}

// The rider who drew the card has paid and still has his throw.
static void resumeMove()
{
    enter(STATE_TRANSIT);
    const Rider& rider = race.riders[race.currentRider];
    if (rider.isHuman) {
        enter(STATE_MOVE);
        return;
    }
    gameState = STATE_COMPUTING;
    leaveSquare(race.currentRider);
    race.moveBudget = race.dice[0] + race.dice[1] + race.extraMoves;
    redrawNow();
    planComputerMove(race.moveBudget, {0, 0});
}

void resumeAfterHandIn(int next)
{
    if (next != -1) {
        goOnWith(next);
        return;
    }
    const bool paidForLostTurn = gameState != STATE_EVENT_HANDIN;
    race.currentRider = frontMostRider([](const Rider& rider) { return rider.hasMoved == 0; });
    if (race.currentRider == -1 || (paidForLostTurn && race.currentRider != race.eventRider)) {
        enter(STATE_TRANSIT);
        nextTurn();
        return;
    }
    resumeMove();
}
