#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The fields that files are made of, little-endian.

// What is still to be read of a file.
struct ByteReader {
    std::span<const std::uint8_t> rest;
};

// The next byte, 0 to 255, or -1 at the end.
int takeByte(ByteReader& reader);

// The next number. Bytes behind the end count as 0. The floating-point ones may be NaN or infinite.
std::int32_t takeInt32(ByteReader& reader);
float takeFloat(ByteReader& reader);
double takeDouble(ByteReader& reader);

// A text field of size bytes with a NUL behind the text: the characters in front of the first NUL,
// at most size - 1, without those that Latin-1 can't print.
std::string takeText(ByteReader& reader, std::size_t size);

void putByte(std::vector<std::uint8_t>& bytes, int value); // the low 8 bits
void putInt32(std::vector<std::uint8_t>& bytes, std::int32_t value);
void putFloat(std::vector<std::uint8_t>& bytes, float value);
void putDouble(std::vector<std::uint8_t>& bytes, double value);

// A text field of size bytes: the text, cut to size - 1 characters, and NULs behind it.
void putText(std::vector<std::uint8_t>& bytes, std::string_view text, std::size_t size);
