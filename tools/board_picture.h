#pragma once

#include <cstdint>
#include <vector>

// The picture of the board: 1024 x 512 pixels that cover the board's 1954 x 1152 units.
std::vector<std::uint8_t> paintBoard();
