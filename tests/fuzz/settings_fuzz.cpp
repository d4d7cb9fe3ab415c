#include "fuzz/fuzz_input.h"

#include "app/settings.h"
#include "race/race_state.h"
#include "store/settings_file.h"

// What was read is in range and comes back the same once it is written.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    putInput("settings", bytes, size);
    readSettings();
    require(settings.language >= 0 && settings.language < LANGUAGE_COUNT);
    require(settings.stepTime >= 0 && settings.stepTime <= SETTINGS_NUMBER_MAX);
    require(settings.stepDelay >= 0 && settings.stepDelay <= SETTINGS_NUMBER_MAX);
    require(settings.stepDistance >= 0 && settings.stepDistance <= SETTINGS_NUMBER_MAX);
    const Settings read = settings;
    const auto names = raceSetup.teamName;
    require(writeSettings());
    readSettings();
    require(settings == read && raceSetup.teamName == names);
    return 0;
}
