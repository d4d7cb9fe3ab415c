#pragma once

#include <initializer_list>

// Chance told in advance. The test programs are linked so that every rand() comes here; while no
// script is running the C library answers as ever.

// While it lives, rand() gives these numbers, one a call, and behind the last one those of the C
// library again. One at a time.
struct ScriptedRand {
    explicit ScriptedRand(std::initializer_list<int> numbers);
    ~ScriptedRand();
    ScriptedRand(const ScriptedRand&) = delete;
    ScriptedRand& operator=(const ScriptedRand&) = delete;
};

// The number behind a race throw of these two dice.
constexpr int raceThrow(int first, int second)
{
    return (second - 1) * 6 + first - 1;
}

// The throw of the person on turn, with this number behind it.
void throwNumber(int number);
