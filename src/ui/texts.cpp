#include "ui/texts.h"

#include "race/race_state.h"
#include "ui/manual_pages.h"
#include "ui/texts_language.h"

Texts texts;

constinit const Table<std::string_view, LANGUAGE_COUNT> languageNames = {"Deutsch", "English",
                                                                         "Fran\xE7"
                                                                         "ais",
                                                                         "Nederlands"};

static constexpr Table<const Language*, LANGUAGE_COUNT> languages = {&GERMAN, &ENGLISH, &FRENCH,
                                                                     &DUTCH};

static bool isDefaultName(std::string_view name, int team)
{
    for (const Language* language : languages)
        if (latin1(language->teamNames[team]) == name)
            return true;
    return false;
}

static void renameTeams(const Language& language)
{
    for (int team = 0; team < TEAM_COUNT; ++team) {
        std::string& name = raceSetup.teamName[team];
        if (name.empty() || isDefaultName(name, team))
            name = latin1(language.teamNames[team]);
    }
}

void loadTexts()
{
    if (settings.language < 0 || settings.language >= LANGUAGE_COUNT)
        return;
    const Language& language = *languages[settings.language];
    for (const TextEntry& entry : language.words)
        texts.*entry.key = latin1(entry.words);
    renameTeams(language);
    setManual(latin1(language.manual));
}

static std::string replaceMark(std::string_view text, std::string_view mark, std::string_view by)
{
    std::string replaced(text);
    const std::size_t at = replaced.find(mark);
    if (at != std::string::npos)
        replaced.replace(at, mark.size(), by);
    return replaced;
}

std::string withNumber(std::string_view text, int number)
{
    return replaceMark(text, "%d", std::to_string(number));
}

std::string withName(std::string_view text, std::string_view name)
{
    return replaceMark(text, "%s", name);
}

// How many bytes the UTF-8 character takes that begins with this one; 1 for a stray byte.
static std::size_t sequenceLength(unsigned char first)
{
    if (first >= 0xF0)
        return 4;
    if (first >= 0xE0)
        return 3;
    return first >= 0xC0 ? 2 : 1;
}

std::string latin1(std::string_view utf8)
{
    std::string out;
    for (std::size_t i = 0; i < utf8.size();) {
        const unsigned char first = static_cast<unsigned char>(utf8[i]);
        const bool pair = (first == 0xC2 || first == 0xC3) && i + 1 < utf8.size();
        if (first < 0x80)
            out += utf8[i];
        else if (pair)
            out += static_cast<char>((first & 3) << 6 | (utf8[i + 1] & 0x3F));
        else
            out += '?';
        i += sequenceLength(first);
    }
    return out;
}

std::string utf8(std::string_view latin1)
{
    std::string out;
    for (const char c : latin1) {
        const unsigned char code = static_cast<unsigned char>(c);
        if (code < 0x80) {
            out += c;
            continue;
        }
        out += static_cast<char>(0xC0 | code >> 6);
        out += static_cast<char>(0x80 | (code & 0x3F));
    }
    return out;
}

static bool isUtf8(std::string_view bytes)
{
    const auto isRest = [bytes](std::size_t i) {
        return i < bytes.size() && (static_cast<unsigned char>(bytes[i]) & 0xC0) == 0x80;
    };
    for (std::size_t i = 0; i < bytes.size();) {
        const unsigned char first = static_cast<unsigned char>(bytes[i]);
        if ((first >= 0x80 && first < 0xC2) || first > 0xF4)
            return false;
        const std::size_t end = i + sequenceLength(first);
        for (++i; i < end; ++i)
            if (!isRest(i))
                return false;
    }
    return true;
}

std::string shownFileName(std::string_view bytes)
{
    std::string shown = isUtf8(bytes) ? latin1(bytes) : std::string(bytes);
    for (char& c : shown)
        if ((static_cast<unsigned char>(c) & 0x7F) < 0x20 || c == 0x7F)
            c = '?';
    return shown;
}
