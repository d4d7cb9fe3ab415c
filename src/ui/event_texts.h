#pragma once

#include <string>
#include <vector>

// The words on the event cards, 0 to 29, in the current language: lines of Latin-1 that are read
// one below the other. Without a language there are none.

// Two lines at most. A few cards have none.
std::vector<std::string> eventTitle(int card);

// One to five lines.
std::vector<std::string> eventEffect(int card);
