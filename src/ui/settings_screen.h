#pragma once

#include "app/settings.h"
#include "app/table.h"

#include <string>

// What the screen "Settings" keeps beside the settings themselves: its three number fields as they
// are typed, which reach the game only with "OK".

enum SettingsField { FIELD_STEP_TIME, FIELD_STEP_DISTANCE, FIELD_STEP_DELAY, SETTINGS_FIELD_COUNT };

constexpr int SETTINGS_DIGITS_MAX = 3;

struct SettingsScreen {
    Table<std::string, SETTINGS_FIELD_COUNT> settingsFieldText = {{"", "", ""}};
    int settingsActiveField = FIELD_STEP_TIME; // the field with the cursor
    int settingsCursor = 0;                    // digits in front of the cursor
    bool guessGivenUp = false; // a ratio that the program had guessed was changed by hand
};

extern SettingsScreen settingsScreen;

// Takes the numbers of these settings into the fields; a distance loses its fraction. The cursor
// goes to the start of the first field that is open.
void fillSettingsFields(const Settings& from);

// The fields of smooth movement are open while the settings have it, else that of stepwise
// movement.
bool settingsFieldOpen(int field);
int firstOpenSettingsField();
