#pragma once

#include <string>

// Every text of the current language, in Latin-1. Texts that end in a blank are joined with a
// number or a name; followPrompt and enterPlayerName hold a "%d", raceNameExists a "%s".
