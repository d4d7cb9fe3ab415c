#include "app/settings.h"

Settings settings;
Settings settingsBackup;

float tickDistance()
{
    return settings.stepDistance > 0.0f ? settings.stepDistance : DEFAULT_STEP_DISTANCE;
}
