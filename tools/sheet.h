#pragma once

#include <cstdint>
#include <vector>

// The score sheet without words: 512 x 512 pixels that cover a paper of 1072 x 1419 units.
std::vector<std::uint8_t> paintSheet();
