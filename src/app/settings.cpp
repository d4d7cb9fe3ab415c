#include "app/settings.h"

Settings settings;
Settings settingsBackup;
bool ratioChosenByProgram = false;

float tickDistance()
{
    return settings.stepDistance >= 1.0f ? settings.stepDistance : DEFAULT_STEP_DISTANCE;
}
