#include "ui/settings_screen.h"

SettingsScreen settingsScreen;

void fillSettingsFields(const Settings& from)
{
    settingsScreen.settingsFieldText = {{std::to_string(from.stepTime),
                                         std::to_string(static_cast<int>(from.stepDistance)),
                                         std::to_string(from.stepDelay)}};
    settingsScreen.settingsActiveField = firstOpenSettingsField();
    settingsScreen.settingsCursor = 0;
}

bool settingsFieldOpen(int field)
{
    return (field == FIELD_STEP_DELAY) == (settings.smoothMovement == 0);
}

int firstOpenSettingsField()
{
    return settings.smoothMovement ? FIELD_STEP_TIME : FIELD_STEP_DELAY;
}
