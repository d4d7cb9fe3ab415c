#pragma once

#include "app/game_state.h"
#include "ui/rect.h"

#include <string_view>

// Every button, check box, radio button and tab: a row each of one table, which says where it lies,
// what stands on it, which letter presses it, in which states it acts, and when. What it does is a
// row of the table in input/acts. Drawing, mouse and keyboard all ask here, so they can't disagree.

enum Control {
    NO_CONTROL = -1,

    // The race screen.
    CONTROL_THROW,
    CONTROL_ORDER_THROW,
    CONTROL_NEXT,
    CONTROL_EXTRA_THROW,
    CONTROL_BREAKAWAY,
    CONTROL_DOPING,
    CONTROL_HAND_IN,
    CONTROL_TAB_1,
    CONTROL_TAB_2,
    CONTROL_TAB_3,
    CONTROL_TAB_4,
    CONTROL_QUIT,
    CONTROL_SCORECARD,
    CONTROL_POSITIONS,
    CONTROL_RACE_SETTINGS,
    CONTROL_VIEW,
    CONTROL_CAMERA,

    // Dialogs.
    CONTROL_FOLLOW_YES,
    CONTROL_FOLLOW_NO,
    CONTROL_QUIT_YES,
    CONTROL_QUIT_NO,
    CONTROL_DOPING_YES,
    CONTROL_DOPING_NO,
    CONTROL_BLUE,
    CONTROL_WHITE,
    CONTROL_IMMEDIATELY,
    CONTROL_LATER,
    CONTROL_RETRY,
    CONTROL_ABORT,
    CONTROL_EVENT_OK,
    CONTROL_NO_EVENT_OK,
    CONTROL_NO_MOVE_OK,
    CONTROL_NO_CARD_OK,
    CONTROL_DOPING_NUMBER_OK,
    CONTROL_DOPING_DRAW_OK,
    CONTROL_COUNTERCHECK_OK,
    CONTROL_SETUP_MESSAGE_OK,

    // Score sheet and positions.
    CONTROL_SHEET_OK,
    CONTROL_SHEET_QUIT,
    CONTROL_EXPORT,
    CONTROL_GENERAL,
    CONTROL_STAGE,
    CONTROL_PREVIOUS_STAGE,
    CONTROL_NEXT_STAGE,
    CONTROL_POSITIONS_OK,

    // Main menu and manual.
    CONTROL_START,
    CONTROL_MANUAL,
    CONTROL_MENU_SETTINGS,
    CONTROL_LANGUAGE,
    CONTROL_CONTINUE,
    CONTROL_EXIT,
    CONTROL_MANUAL_OK,
    CONTROL_PREVIOUS_PAGE,
    CONTROL_NEXT_PAGE,

    // Team setup.
    CONTROL_TEAM_OK,
    CONTROL_TEAM_BACK,
    CONTROL_COMPUTER_1,
    CONTROL_COMPUTER_2,
    CONTROL_COMPUTER_3,
    CONTROL_COMPUTER_4,
    CONTROL_MULTI_STAGE,
    CONTROL_SINGLE_STAGE,
    CONTROL_EVENT_CARDS,

    // Courses.
    CONTROL_CREATE_COURSE,
    CONTROL_SAVED_COURSE,
    CONTROL_COURSE_BACK,
    CONTROL_ADD_SECTION,
    CONTROL_DESIGN_OK,
    CONTROL_PREVIOUS_SECTION,
    CONTROL_SAVE_COURSE,
    CONTROL_DESIGN_BACK,
    CONTROL_SPRINT,
    CONTROL_FINISH,
    CONTROL_PREVIOUS_COURSE,
    CONTROL_NEXT_COURSE,
    CONTROL_SAVED_BACK,
    CONTROL_SAVED_OK,

    // Settings.
    CONTROL_SETTINGS_OK,
    CONTROL_SETTINGS_CANCEL,
    CONTROL_DEFAULT,
    CONTROL_SMOOTH,
    CONTROL_STEPWISE,
    CONTROL_RATIO_54,
    CONTROL_RATIO_43,
    CONTROL_RATIO_1610,

    // Race list.
    CONTROL_LIST_OK,
    CONTROL_LIST_SCORECARD,
    CONTROL_LIST_BACK,
    CONTROL_LIST_PREVIOUS,
    CONTROL_LIST_NEXT,

    CONTROL_COUNT
};

// When a control acts. Those of cards, dice and side panel take the press, all others the release.
// A click asks these groups in this order, and each sees the state that the one before has left.
enum Moment {
    ON_PRESS,
    ON_PRESS_HAND_IN,
    ON_PRESS_PANEL, // their letters too are asked last
    ON_PRESS_CAMERA,
    ON_RELEASE,
    ON_RELEASE_TAB,
    ON_RELEASE_BOX, // of dialogs, score sheet and positions
};

// In pixels of the drawing area. A check box and a radio button answer to their label as well: see
// checkBoxArea and radioArea in ui/places.
Rect placeOf(Control control);

Moment momentOf(Control control);

// Whether it acts at present, and so is drawn bright.
bool isLive(Control control);

// Whether the second half of a double click would answer the next question with it, unread.
bool asksOnce(Control control);

// The label in the current language; empty where none is drawn.
std::string_view controlLabel(Control control);

// The index of the underlined character in the current language, or NO_ACCESS_KEY.
int accessIndex(Control control);

// The live control of this moment at a place in pixels of the drawing area, or NO_CONTROL.
Control controlAt(int x, int y, Moment moment);

// The live control that a key presses, a letter in either case or one that says "OK", or
// NO_CONTROL. panel: of the side panel alone, else of all others.
Control controlOfKey(unsigned char key, bool panel);

// A button, grey unless it is live, or as told; a check box at the left of its place.
void drawControl(Control control);
void drawControl(Control control, bool bright);
void drawCheckControl(Control control, bool checked);
