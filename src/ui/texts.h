#pragma once

#include "app/settings.h"
#include "app/table.h"
#include "ui/text_record.h"

#include <string>
#include <string_view>

extern Texts texts;

// The two lines that stand on every frame, whatever the language. The words of the foot line are
// the same in all four.
constexpr std::string_view headLine = "Gravelon " GRAVELON_VERSION " for Windows XP";
constexpr std::string_view footLine = "Gravelon: Peloton, Sprint, Finale";

// Each language by its own name, in the order of Settings::language.
extern const Table<std::string_view, LANGUAGE_COUNT> languageNames;

// Fills texts and the manual from the language of the settings. A team without a name, or with
// the default name of another language, takes the default name of this one. With no language
// chosen all of them stay as they are.
void loadTexts();

// The text with its first "%d" replaced by the number, or its first "%s" by the name. A text
// without the mark comes back as it is.
std::string withNumber(std::string_view text, int number);
std::string withName(std::string_view text, std::string_view name);

// Latin-1 for UTF-8. Whatever Latin-1 doesn't hold becomes "?".
std::string latin1(std::string_view utf8);

// UTF-8 for Latin-1.
std::string utf8(std::string_view latin1);

// A file's name, which may be any bytes at all, as it can be drawn: UTF-8 as it is meant, any other
// bytes as Latin-1, control characters as "?".
std::string shownFileName(std::string_view bytes);
