#pragma once

// What the program is doing. Every callback branches on this one value.

// clang-format off
enum GameState {
    STATE_TRANSIT            = 0,   // between two steps of the rules; only team tabs act
    STATE_TURN               = 1,   // a person before his throw
    STATE_MOVE               = 2,   // a person steers his rider
    STATE_COMPUTING          = 3,   // a computer rider's route is worked out
    STATE_ANIMATE            = 4,   // the timer carries a computer rider
    STATE_SCORECARD          = 5,
    STATE_FOLLOW_PROMPT      = 6,
    STATE_EVENT_CARD         = 7,
    STATE_SKIP_HANDIN        = 8,   // a person may hand in cards for turns to miss
    STATE_EVENT_CARD_KIND    = 9,
    STATE_EVENT_CARD_WHEN    = 10,
    STATE_EVENT_DIE          = 11,
    STATE_EVENT_HANDIN       = 12,
    STATE_EVENT_NO_CARD      = 13,
                                    // no state has the number 14
    STATE_NO_MOVE            = 15,
    STATE_POSITIONS          = 16,
    STATE_DOPING_NUMBER      = 17,
    STATE_DOPING_DRAW        = 18,
    STATE_DOPING_COUNTERCHECK = 19,
    STATE_ORDER_THROW        = 20,
    STATE_ORDER_RESULT       = 21,
    STATE_PLACE_HUMAN        = 22,
    STATE_PLACE_COMPUTER     = 23,  // passes at once
    STATE_CONFIRM_QUIT       = 24,
    STATE_RACE_CLOSED        = 25,  // only ever in returnState, behind the final scorecard
    STATE_CONFIRM_DOPING     = 26,
    STATE_MAIN_MENU          = 27,
    STATE_LANGUAGE           = 28,
    STATE_FINAL_SCORECARD    = 29,
    STATE_SKIP_NO_CARD       = 30,
    STATE_MANUAL             = 31,
    STATE_COURSE_SELECT      = 32,
    STATE_COURSE_DESIGN      = 33,
    STATE_COURSE_SAVED       = 34,
    STATE_TEAM_SETUP         = 35,
    STATE_LOADING            = 36,
    STATE_SETTINGS           = 37,
    STATE_SETUP_MESSAGE      = 38,
    STATE_RACE_FILES         = 39,
    STATE_RACE_STANDINGS     = 40,
    STATE_SAVE_FAILED        = 41,
};
// clang-format on

constexpr int STATE_COUNT = 42;

extern GameState gameState;

// The state that an overlay goes back to. One value, not a stack: overlays never open on top of
// each other.
extern GameState returnState;

// Goes over to a state and paints it.
void enter(GameState state);

// Whether the present state shows the race screen: the board and the panel at its foot.
bool boardVisible();

// The states in which Scorecard, Positions, Settings and Quit act and are drawn active.
bool racePanelActive();

// The states in which the buttons for view and camera act.
bool cameraActive();

// The states in which a team's tab brings its cards into view: wherever the board is drawn, but
// under the scorecards.
bool teamTabsActive();

// The states in which strength cards are picked and taken back.
bool cardsActive();

// The states in which the score sheet stands on the screen and can be dragged by its title bar.
bool scorecardShown();

// The states in which a dialog box stands on the screen and can be dragged by its title bar.
bool dialogShown();
