#include "store/bytes.h"

#include <algorithm>
#include <bit>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

static std::uint64_t takeNumber(ByteReader& reader, std::size_t size)
{
    std::uint64_t value = 0;
    const std::size_t present = std::min(size, reader.rest.size());
    for (std::size_t i = 0; i < present; ++i)
        value |= static_cast<std::uint64_t>(reader.rest[i]) << (8 * i);
    reader.rest = reader.rest.subspan(present);
    return value;
}

int takeByte(ByteReader& reader)
{
    if (reader.rest.empty())
        return -1;
    return static_cast<int>(takeNumber(reader, 1));
}

std::int32_t takeInt32(ByteReader& reader)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(takeNumber(reader, 4)));
}

float takeFloat(ByteReader& reader)
{
    return std::bit_cast<float>(static_cast<std::uint32_t>(takeNumber(reader, 4)));
}

double takeDouble(ByteReader& reader)
{
    return std::bit_cast<double>(takeNumber(reader, 8));
}

static bool isPrintable(int character)
{
    return (character >= 0x20 && character <= 0x7E) || character >= 0xA0;
}

std::string takeText(ByteReader& reader, std::size_t size)
{
    const auto field = reader.rest.first(std::min(size, reader.rest.size()));
    reader.rest = reader.rest.subspan(field.size());
    std::string text;
    for (const std::uint8_t character : field.first(std::min(field.size(), size - 1))) {
        if (character == 0)
            break;
        if (isPrintable(character))
            text += static_cast<char>(character);
    }
    return text;
}

static void putNumber(std::vector<std::uint8_t>& bytes, std::uint64_t value, int size)
{
    for (int i = 0; i < size; ++i)
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

void putByte(std::vector<std::uint8_t>& bytes, int value)
{
    bytes.push_back(static_cast<std::uint8_t>(value));
}

void putInt32(std::vector<std::uint8_t>& bytes, std::int32_t value)
{
    putNumber(bytes, static_cast<std::uint32_t>(value), 4);
}

void putFloat(std::vector<std::uint8_t>& bytes, float value)
{
    putNumber(bytes, std::bit_cast<std::uint32_t>(value), 4);
}

void putDouble(std::vector<std::uint8_t>& bytes, double value)
{
    putNumber(bytes, std::bit_cast<std::uint64_t>(value), 8);
}

void putText(std::vector<std::uint8_t>& bytes, std::string_view text, std::size_t size)
{
    const std::string_view kept = text.substr(0, size - 1);
    bytes.insert(bytes.end(), kept.begin(), kept.end());
    bytes.insert(bytes.end(), size - kept.size(), 0);
}

// Non-blocking, since opening a pipe would otherwise wait for its other end. -1 if the name can't
// be opened or isn't that of a regular file.
static int openRegular(const char* fileName, int flags)
{
    const int file = open(fileName, flags | O_NONBLOCK | O_CLOEXEC, 0666);
    if (file == -1)
        return -1;
    struct stat status;
    if (fstat(file, &status) == 0 && S_ISREG(status.st_mode))
        return file;
    close(file);
    return -1;
}

std::FILE* openForReading(const char* fileName)
{
    const int file = openRegular(fileName, O_RDONLY);
    if (file == -1)
        return nullptr;
    std::FILE* stream = fdopen(file, "rb");
    if (!stream)
        close(file);
    return stream;
}

bool readWholeFile(const char* fileName, std::size_t maxSize, std::vector<std::uint8_t>& bytes)
{
    bytes.clear();
    std::FILE* file = openForReading(fileName);
    if (!file)
        return false;
    std::uint8_t block[4096];
    bool atEnd = false;
    while (!atEnd && bytes.size() < maxSize) {
        const std::size_t wanted = std::min(sizeof block, maxSize - bytes.size());
        const std::size_t got = std::fread(block, 1, wanted, file);
        bytes.insert(bytes.end(), block, block + got);
        atEnd = got < wanted;
    }
    const bool failed = std::ferror(file) != 0;
    std::fclose(file);
    if (failed)
        bytes.clear();
    return !failed;
}

bool writeWholeFile(const char* fileName, std::span<const std::uint8_t> bytes)
{
    const int file = openRegular(fileName, O_WRONLY | O_CREAT);
    if (file == -1)
        return false;
    bool good = ftruncate(file, 0) == 0;
    while (good && !bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        good = written > 0;
        if (good)
            bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return close(file) == 0 && good;
}
