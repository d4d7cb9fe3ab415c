#include "support/scripted_rand.h"

#include "play/cards.h"

#include <vector>

static std::vector<int> script;
static int callCount = 0;

extern "C" int __real_rand();
extern "C" int __wrap_rand();

extern "C" int __wrap_rand()
{
    const auto call = static_cast<std::size_t>(callCount++);
    return call < script.size() ? script[call] : __real_rand();
}

ScriptedRand::ScriptedRand(std::initializer_list<int> numbers)
{
    script = numbers;
    callCount = 0;
}

ScriptedRand::~ScriptedRand()
{
    script.clear();
}

int ScriptedRand::calls() const
{
    return callCount;
}

void throwNumber(int number)
{
    const ScriptedRand once{number};
    humanThrow();
}
