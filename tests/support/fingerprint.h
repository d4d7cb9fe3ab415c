#pragma once

#include <cstdint>

// One number for many, FNV-1a: it is another as soon as one of them is.
struct Fingerprint {
    void add(int value)
    {
        for (int byte = 0; byte < 4; ++byte) {
            hash ^= static_cast<std::uint32_t>(value >> (8 * byte)) & 0xffu;
            hash *= 16777619u;
        }
    }
    std::uint32_t hash = 2166136261u;
};
