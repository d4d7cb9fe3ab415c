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

    // Calls of rand() since it began.
    int calls() const;
};

// The number behind a race throw of these two dice, and behind a throw for the order, which shares
// it out the other way round.
constexpr int raceThrow(int first, int second)
{
    return (second - 1) * 6 + first - 1;
}

constexpr int orderThrow(int first, int second)
{
    return raceThrow(second, first);
}

// The throw of the person on turn, with this number behind it.
void throwNumber(int number);
