#pragma once

#include "support/own_folder.h"

#include <cstdint>
#include <cstdio>
#include <unistd.h>

// A target is one reader of files that is given whatever bytes the fuzzer thinks of. The seeds of
// each lie in corpus/; a file that once did harm joins them.

// The input as a file of this name, in a folder that lasts as long as the run.
inline void putInput(const char* fileName, const std::uint8_t* bytes, std::size_t size)
{
    // In memory, where that can be: thousands of files a second aren't for a disk.
    static const OwnFolder folder(access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp");
    std::FILE* file = std::fopen(fileName, "wb");
    std::fwrite(bytes, 1, size, file);
    std::fclose(file);
}

// Ends the run, which keeps the input.
inline void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);
