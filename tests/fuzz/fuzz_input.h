#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

// A target is one reader of files that is given whatever bytes the fuzzer thinks of. The seeds of
// each lie in corpus/; a file that once did harm joins them.

// A folder in memory, where there is one: thousands of files a second aren't for a disk.
struct FuzzFolder {
    FuzzFolder()
    {
        std::string name = "/dev/shm/gravelonXXXXXX";
        if (!mkdtemp(name.data())) {
            name = "/tmp/gravelonXXXXXX";
            mkdtemp(name.data());
        }
        folder = name;
        std::filesystem::current_path(folder);
    }
    ~FuzzFolder() { std::filesystem::remove_all(folder); }
    FuzzFolder(const FuzzFolder&) = delete;
    FuzzFolder& operator=(const FuzzFolder&) = delete;

    std::filesystem::path folder;
};

// The input as a file of this name, in a folder that lasts as long as the run.
inline void putInput(const char* fileName, const std::uint8_t* bytes, std::size_t size)
{
    static const FuzzFolder folder;
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
