#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

// Files whose bytes are known: each format as it was told, worked out by hand and not by the game.

inline std::string bytesOfFile(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline void putBytes(const std::filesystem::path& file, const std::string& bytes)
{
    std::ofstream(file, std::ios::binary) << bytes;
}

inline std::string goldenBytes(const char* name)
{
    return bytesOfFile(std::filesystem::path(SOURCE_DIR) / "tests/store/golden" / name);
}
