#pragma once

#include "ui/rect.h"

#include <string_view>

// Buttons that can also be pressed with a letter. The letter is a character of the label in the
// language of the moment and stands underlined in it, so label and key can't disagree.

enum Control {
    CONTROL_THROW,
    CONTROL_NEXT,
    CONTROL_BREAKAWAY,
    CONTROL_DOPING,
    CONTROL_SCORECARD,
    CONTROL_POSITIONS,
    CONTROL_RACE_SETTINGS,
    CONTROL_QUIT,
    CONTROL_YES,
    CONTROL_NO,
    CONTROL_BLUE,
    CONTROL_WHITE,
    CONTROL_IMMEDIATELY,
    CONTROL_LATER,
    CONTROL_LANGUAGE,
    CONTROL_MANUAL,
    CONTROL_MENU_SETTINGS,
    CONTROL_CONTINUE,
    CONTROL_START,
    CONTROL_EXIT,
    CONTROL_CREATE_COURSE,
    CONTROL_SAVED_COURSE,
    CONTROL_COURSE_BACK,
    CONTROL_ADD_SECTION,
    CONTROL_PREVIOUS_SECTION,
    CONTROL_RETRY,
    CONTROL_ABORT,
    CONTROL_EXPORT,
    CONTROL_GENERAL,
    CONTROL_STAGE,
    CONTROL_COUNT,
};

// The label in the current language.
std::string_view controlLabel(Control control);

// The index of the underlined character, or NO_ACCESS_KEY.
int accessIndex(Control control);

// Whether the character, in either case, is the key of the control. Never for a control without
// one.
bool isAccessKey(Control control, unsigned char character);

// The button with its label and its key underlined.
void drawControl(Control control, const Rect& at, bool enabled);
