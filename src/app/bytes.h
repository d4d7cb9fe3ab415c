#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The fields that files are made of, little-endian, and files read and written whole.

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

// Opens a file for reading; the caller closes it. nullptr if there is none or if it is no regular
// file: a directory can't be read, and a pipe would wait for a writer that may never come.
std::FILE* openForReading(const char* fileName);

// Reads a file into bytes, up to maxSize of it. False and no bytes if it can't be read.
bool readWholeFile(const char* fileName, std::size_t maxSize, std::vector<std::uint8_t>& bytes);

// Replaces a file of the current folder. What is written has another name until it has reached the
// disk whole, so that whoever reads the file, even after a crash, finds the old one or the new one.
// False if any step of that fails, or if something other than a regular file has the name; nothing
// but the old file is there then, unless only the very last step failed.
bool writeWholeFile(const char* fileName, std::span<const std::uint8_t> bytes);

// Appends a record to a file of the current folder that is made of records of this one size, and
// sees that it reaches the disk. A torn record at the end, left by a crash, is cut first. False if
// any step fails, or if something other than a regular file has the name; the record is cut again
// then.
bool appendRecord(const char* fileName, std::span<const std::uint8_t> record);
