#include <cstdlib>
#include <ctime>

// The program seeds its dice with the time of day. The linker sends it here, to the time that
// GRAVELON_SEED tells.
extern "C" std::time_t __wrap_time(std::time_t*);

extern "C" std::time_t __wrap_time(std::time_t*)
{
    const char* seed = std::getenv("GRAVELON_SEED");
    return seed ? std::atol(seed) : 1;
}
