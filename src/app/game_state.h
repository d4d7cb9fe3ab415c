#pragma once

#include <cstdint>

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

// A set of states.
struct StateSet {
    std::uint64_t bits = 0;

    constexpr bool contains(GameState state) const { return (bits >> state & 1) != 0; }
};

template <typename... States> constexpr StateSet in(States... states)
{
    return {((std::uint64_t{1} << states) | ...)};
}

// Where Scorecard, Positions, Settings and Quit act.
constexpr StateSet RACE_PANEL_STATES =
    in(STATE_TURN, STATE_MOVE, STATE_ANIMATE, STATE_SKIP_HANDIN, STATE_EVENT_DIE,
       STATE_EVENT_HANDIN, STATE_ORDER_THROW, STATE_ORDER_RESULT, STATE_PLACE_HUMAN);

// Where the buttons for view and camera act.
constexpr StateSet CAMERA_STATES =
    in(STATE_TURN, STATE_MOVE, STATE_ANIMATE, STATE_FOLLOW_PROMPT, STATE_EVENT_CARD,
       STATE_SKIP_HANDIN, STATE_EVENT_CARD_KIND, STATE_EVENT_CARD_WHEN, STATE_EVENT_DIE,
       STATE_ORDER_THROW, STATE_ORDER_RESULT, STATE_PLACE_HUMAN);

// Where strength cards are picked and taken back.
constexpr StateSet CARD_STATES = in(STATE_TURN, STATE_SKIP_HANDIN, STATE_EVENT_HANDIN);

// Where the score sheet stands on the screen and can be dragged by its title bar.
constexpr StateSet SCORECARD_STATES =
    in(STATE_SCORECARD, STATE_FINAL_SCORECARD, STATE_RACE_STANDINGS);

// Where the race screen isn't shown: the board and the panel at its foot.
constexpr StateSet STATES_WITHOUT_BOARD =
    in(STATE_POSITIONS, STATE_MAIN_MENU, STATE_LANGUAGE, STATE_MANUAL, STATE_COURSE_SELECT,
       STATE_COURSE_DESIGN, STATE_COURSE_SAVED, STATE_TEAM_SETUP, STATE_LOADING, STATE_SETTINGS,
       STATE_SETUP_MESSAGE, STATE_RACE_FILES, STATE_RACE_STANDINGS);

// Where a team's tab brings its cards into view: wherever the board is drawn, but under the
// scorecards.
constexpr StateSet TEAM_TAB_STATES = {~STATES_WITHOUT_BOARD.bits & ~SCORECARD_STATES.bits};

bool boardVisible();
bool cardsActive();
bool scorecardShown();
