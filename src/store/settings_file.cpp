#include "store/settings_file.h"

#include "app/bytes.h"
#include "app/files.h"
#include "app/settings.h"
#include "race/race_state.h"

#include <algorithm>

static constexpr char FILE_NAME[] = "settings";
static constexpr std::size_t FILE_SIZE = 82;
static constexpr std::size_t NAME_FIELD_SIZE = NAME_LENGTH_MAX + 1;

static bool isOfferedRatio(double width, double height)
{
    return std::ranges::any_of(SCREEN_RATIOS, [width, height](const ScreenRatio& ratio) {
        return ratio.w == width && ratio.h == height;
    });
}

static void replaceOutOfRange()
{
    // NaN is no number from 0 to 999 either.
    const auto inRange = [](auto value) { return value >= 0 && value <= SETTINGS_NUMBER_MAX; };
    const Settings defaults;
    if (settings.language < 0 || settings.language >= LANGUAGE_COUNT)
        settings.language = defaults.language;
    if (settings.smoothMovement != 0 && settings.smoothMovement != 1)
        settings.smoothMovement = defaults.smoothMovement;
    if (!inRange(settings.stepTime))
        settings.stepTime = defaults.stepTime;
    if (!inRange(settings.stepDistance))
        settings.stepDistance = defaults.stepDistance;
    if (!inRange(settings.stepDelay))
        settings.stepDelay = defaults.stepDelay;
    if (!isOfferedRatio(settings.ratioW, settings.ratioH)) {
        settings.ratioW = defaults.ratioW;
        settings.ratioH = defaults.ratioH;
    }
}

void readSettings()
{
    settings = {};
    ratioChosenByProgram = false;
    raceSetup.teamName = {};
    std::vector<std::uint8_t> bytes;
    if (!readWholeFile(FILE_NAME, FILE_SIZE, bytes))
        return;
    ByteReader reader{bytes};
    settings.language = takeByte(reader);
    settings.smoothMovement = takeByte(reader);
    settings.stepTime = takeInt32(reader);
    settings.stepDistance = takeFloat(reader);
    settings.stepDelay = takeInt32(reader);
    settings.ratioW = takeDouble(reader);
    settings.ratioH = takeDouble(reader);
    for (std::string& name : raceSetup.teamName)
        name = takeText(reader, NAME_FIELD_SIZE);
    replaceOutOfRange();
}

bool writeSettings()
{
    std::vector<std::uint8_t> bytes;
    bytes.reserve(FILE_SIZE);
    putByte(bytes, settings.language);
    putByte(bytes, settings.smoothMovement);
    putInt32(bytes, settings.stepTime);
    putFloat(bytes, settings.stepDistance);
    putInt32(bytes, settings.stepDelay);
    const Settings undecided;
    const Settings& ratio = ratioChosenByProgram ? undecided : settings;
    putDouble(bytes, ratio.ratioW);
    putDouble(bytes, ratio.ratioH);
    for (const std::string& name : raceSetup.teamName)
        putText(bytes, name, NAME_FIELD_SIZE);
    return writeWholeFile(FILE_NAME, bytes);
}
