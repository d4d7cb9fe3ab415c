#include "support/scripted_rand.h"

#include "play/cards.h"

#include <deque>

static std::deque<int> script;

extern "C" int __real_rand();
extern "C" int __wrap_rand();

extern "C" int __wrap_rand()
{
    if (script.empty())
        return __real_rand();
    const int number = script.front();
    script.pop_front();
    return number;
}

ScriptedRand::ScriptedRand(std::initializer_list<int> numbers)
{
    script = numbers;
}

ScriptedRand::~ScriptedRand()
{
    script.clear();
}

void throwNumber(int number)
{
    const ScriptedRand once{number};
    humanThrow();
}
