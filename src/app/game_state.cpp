#include "app/game_state.h"

#include "app/host.h"

GameState gameState = STATE_LOADING;
GameState returnState = STATE_TRANSIT;

void enter(GameState state)
{
    gameState = state;
    redrawNow();
}

bool boardVisible()
{
    return !STATES_WITHOUT_BOARD.contains(gameState);
}

bool cardsActive()
{
    return CARD_STATES.contains(gameState);
}

bool scorecardShown()
{
    return SCORECARD_STATES.contains(gameState);
}
