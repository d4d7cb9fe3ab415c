#pragma once

// The file "settings" of the current directory: 82 bytes with the settings and the team names.

// Reads settings and team names; without the file both get their start values. Whatever the file
// holds, every value is in its range afterwards: a number outside gets its default, a ratio that
// isn't offered counts as none chosen. Fields behind the end of a short file are 0 or empty.
void readSettings();

// Replaces the file. A ratio that the program chose itself is kept as none. False if that fails at
// any point; the settings hold for this run all the same.
bool writeSettings();
