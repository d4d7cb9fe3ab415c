#pragma once

#include <string>

// What must hold between any two turns of a race: grid and riders agree, one rider a printed
// square, places without gaps or repeats, cards in one of their states. Returns what is wrong, or
// an empty text. For tests and for whoever hunts a fault.
std::string raceFault();
