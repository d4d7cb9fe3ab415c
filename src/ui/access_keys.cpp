#include "ui/access_keys.h"

#include "app/settings.h"
#include "app/table.h"
#include "ui/texts.h"
#include "ui/widgets.h"

#include <string>

struct AccessKey {
    std::string Texts::*label;
    Table<int, LANGUAGE_COUNT> index;
};

// clang-format off
constexpr Table<AccessKey, CONTROL_COUNT> accessKeys = {{
//                                German  English  French  Dutch
    {&Texts::throwDice,         {{  0,      0,       0,      0 }}},
    {&Texts::next,              {{  0,      0,       1,      0 }}},
    {&Texts::breakaway,         {{  0,      0,       0,      0 }}},
    {&Texts::doping,            {{  0,      0,       1,      1 }}},
    {&Texts::scorecard,         {{  0,      0,       0,      0 }}},
    {&Texts::positions,         {{  0,      0,       0,      0 }}},
    {&Texts::settings,          {{  0,      1,       1,      0 }}},
    {&Texts::quit,              {{  1,      0,       0,      1 }}},
    {&Texts::yes,               {{  0,      0,       0,      0 }}},
    {&Texts::no,                {{  0,      0,       0,      0 }}},
    {&Texts::blue,              {{  0,      0,       2,      0 }}},
    {&Texts::white,             {{  0,      0,       2,      0 }}},
    {&Texts::immediately,       {{ -1,      0,       0,      0 }}},
    {&Texts::later,             {{ -1,      0,       0,      0 }}},
    {&Texts::languageSelection, {{  1,      0,       1,      0 }}},
    {&Texts::manualButton,      {{  0,      0,       0,      0 }}},
    {&Texts::settings,          {{  0,      2,       0,      0 }}},
    {&Texts::continueRace,      {{  0,      0,       3,      0 }}},
    {&Texts::start,             {{  0,      0,       0,      0 }}},
    {&Texts::exit,              {{  0,      0,       0,      0 }}},
    {&Texts::createNewCourse,   {{  0,      0,       0,      0 }}},
    {&Texts::useSavedCourse,    {{  0,      0,       0,      0 }}},
    {&Texts::courseBack,        {{  0,      0,       0,      0 }}},
    {&Texts::addSection,        {{  0,      0,       0,      0 }}},
    {&Texts::previousSection,   {{  0,      0,       0,      0 }}},
    {&Texts::retry,             {{  0,      0,       0,      0 }}},
    {&Texts::abort,             {{  0,      0,       0,      0 }}},
    {&Texts::exportButton,      {{  1,      1,       1,      1 }}},
    {&Texts::general,           {{  0,      0,       0,     -1 }}},
    {&Texts::stageTab,          {{  0,      0,       4,      0 }}},
}};
// clang-format on

std::string_view controlLabel(Control control)
{
    return texts.*accessKeys[control].label;
}

int accessIndex(Control control)
{
    const int language = settings.language;
    if (language < 0 || language >= LANGUAGE_COUNT)
        return NO_ACCESS_KEY;
    return accessKeys[control].index[language];
}

static char lowerCase(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

bool isAccessKey(Control control, unsigned char character)
{
    const int index = accessIndex(control);
    const std::string_view label = controlLabel(control);
    if (index < 0 || index >= static_cast<int>(label.size()))
        return false;
    return lowerCase(label[static_cast<std::size_t>(index)]) ==
           lowerCase(static_cast<char>(character));
}

void drawControl(Control control, const Rect& at, bool enabled)
{
    drawButton(at.x, at.y, at.w, at.h, enabled, controlLabel(control), accessIndex(control));
}
