#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

// Files whose bytes are known. They were put together by hand, field by field, and not by the game:
//
//   settings   language and kind of movement, 1 byte each; time, distance, delay of 4; both sides
//              of the screen ratio, of 8; four names of 13
//   courses    records of a name of 20 and a course of 28
//   *.race     a head of 57: event cards, and for each team a name of 13 and who plays it; for each
//              stage the packed course in 14, 2 that hold nothing, and 25 riders of 4
//   *.csv      tables with ";" between the fields
//
// Numbers are little-endian, behind a text stand zeros.

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
