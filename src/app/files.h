#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <span>
#include <string>
#include <vector>

// Files read and written whole. What is no regular file is never opened, whatever leads to it.

// Opens a file for reading; the caller closes it. nullptr if there is none or if it is no regular
// file: a directory can't be read, and a pipe would wait for a writer that may never come.
std::FILE* openForReading(const char* fileName);

// Reads a file into bytes, up to maxSize of it. False and no bytes if it can't be read.
bool readWholeFile(const char* fileName, std::size_t maxSize, std::vector<std::uint8_t>& bytes);

// Whether anything at all has this name: a file, a folder, or a link, wherever that leads.
bool nameTaken(const std::string& fileName);

// Replaces a file of the current folder; it keeps its permissions. What is written has another name
// until it has reached the disk whole, so that whoever reads the file, even after a crash, finds
// the old one or the new one. A link stays one: what it leads to is replaced, beside which the new
// file is written. False if any step of that fails, if something other than a regular file has the
// name, or if a link leads to no such file; nothing but the old file is there then, unless only the
// very last step failed.
bool writeWholeFile(const char* fileName, std::span<const std::uint8_t> bytes);

// Appends a record to a file of the current folder that is made of records of this one size, and
// sees that it reaches the disk. Games that append at the same time take turns. A torn record at
// the end, left by a crash, is cut first. False if any step fails, if something other than a
// regular file has the name, if a link of that name leads nowhere, or if another program holds the
// file for two seconds; the record is cut again then. A failure of nothing but the closing of the
// file is told as well, though the record has reached the disk by then and stays.
bool appendRecord(const char* fileName, std::span<const std::uint8_t> record);
