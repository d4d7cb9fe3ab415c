#pragma once

#include "app/table.h"
#include "race/race_state.h"
#include "ui/text_record.h"

#include <span>
#include <string>
#include <string_view>

// The tables of the four languages, as loadTexts reads them. All words are UTF-8 here.

struct TextEntry {
    std::string Texts::*key;
    std::string_view words;
};

struct Language {
    std::span<const TextEntry> words;
    Table<std::string_view, TEAM_COUNT> teamNames;
    const char* manual;
};

extern const Language GERMAN;
extern const Language ENGLISH;
extern const Language FRENCH;
extern const Language DUTCH;

extern const char MANUAL_GERMAN[];
extern const char MANUAL_ENGLISH[];
extern const char MANUAL_FRENCH[];
extern const char MANUAL_DUTCH[];

// Whether a table has words for each key exactly once.
constexpr bool holdsEveryText(std::span<const TextEntry> words)
{
    if (words.size() != sizeof(Texts) / sizeof(std::string))
        return false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i].words.empty())
            return false;
        for (std::size_t j = 0; j < i; ++j)
            if (words[i].key == words[j].key)
                return false;
    }
    return true;
}
