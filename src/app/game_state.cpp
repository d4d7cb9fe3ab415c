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
    switch (gameState) {
    case STATE_POSITIONS:
    case STATE_MAIN_MENU:
    case STATE_LANGUAGE:
    case STATE_MANUAL:
    case STATE_COURSE_SELECT:
    case STATE_COURSE_DESIGN:
    case STATE_COURSE_SAVED:
    case STATE_TEAM_SETUP:
    case STATE_LOADING:
    case STATE_SETTINGS:
    case STATE_SETUP_MESSAGE:
    case STATE_RACE_FILES:
    case STATE_RACE_STANDINGS:
        return false;
    default:
        return true;
    }
}

bool racePanelActive()
{
    switch (gameState) {
    case STATE_TURN:
    case STATE_MOVE:
    case STATE_ANIMATE:
    case STATE_SKIP_HANDIN:
    case STATE_EVENT_DIE:
    case STATE_EVENT_HANDIN:
    case STATE_ORDER_THROW:
    case STATE_ORDER_RESULT:
    case STATE_PLACE_HUMAN:
        return true;
    default:
        return false;
    }
}

bool cameraActive()
{
    switch (gameState) {
    case STATE_TURN:
    case STATE_MOVE:
    case STATE_ANIMATE:
    case STATE_FOLLOW_PROMPT:
    case STATE_EVENT_CARD:
    case STATE_SKIP_HANDIN:
    case STATE_EVENT_CARD_KIND:
    case STATE_EVENT_CARD_WHEN:
    case STATE_EVENT_DIE:
    case STATE_ORDER_THROW:
    case STATE_ORDER_RESULT:
    case STATE_PLACE_HUMAN:
        return true;
    default:
        return false;
    }
}

bool teamTabsActive()
{
    return boardVisible() && gameState != STATE_SCORECARD && gameState != STATE_FINAL_SCORECARD;
}

bool cardsActive()
{
    return gameState == STATE_TURN || gameState == STATE_SKIP_HANDIN ||
           gameState == STATE_EVENT_HANDIN;
}

bool scorecardShown()
{
    return gameState == STATE_SCORECARD || gameState == STATE_FINAL_SCORECARD ||
           gameState == STATE_RACE_STANDINGS;
}

bool dialogShown()
{
    switch (gameState) {
    case STATE_FOLLOW_PROMPT:
    case STATE_EVENT_CARD:
    case STATE_EVENT_CARD_KIND:
    case STATE_EVENT_CARD_WHEN:
    case STATE_EVENT_NO_CARD:
    case STATE_NO_MOVE:
    case STATE_DOPING_NUMBER:
    case STATE_DOPING_DRAW:
    case STATE_DOPING_COUNTERCHECK:
    case STATE_CONFIRM_QUIT:
    case STATE_CONFIRM_DOPING:
    case STATE_SKIP_NO_CARD:
    case STATE_SETUP_MESSAGE:
    case STATE_SAVE_FAILED:
        return true;
    default:
        return false;
    }
}
