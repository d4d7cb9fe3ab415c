#include "store/bytes.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// What is being written goes by this name until it is whole: hidden, no race on the list, and with
// the number of the process, so that two games in one folder keep out of each other's way.
static constexpr std::string_view TEMPORARY_PREFIX = ".gravelon-";
static constexpr std::string_view TEMPORARY_SUFFIX = ".new";

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

// Writes everything, however often the system is interrupted or takes only a part.
static bool writeAll(int file, std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written == -1 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

static bool flush(int file)
{
    int result = fsync(file);
    while (result == -1 && errno == EINTR)
        result = fsync(file);
    return result == 0;
}

static int openFolder()
{
    return open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

// A new or changed name lasts only once its folder has been flushed. Some file systems of networks
// know no such thing, and say so by EINVAL.
static bool flushAndCloseFolder(int folder)
{
    const bool flushed = flush(folder) || errno == EINVAL;
    return close(folder) == 0 && flushed;
}

static std::string temporaryName()
{
    return std::string(TEMPORARY_PREFIX) + std::to_string(getpid()) + std::string(TEMPORARY_SUFFIX);
}

// Whether a file of this name was left behind by a game that was killed while it wrote: nobody has
// its number any more, or we have, who aren't writing yet.
static bool isLeftover(std::string_view name)
{
    if (!name.starts_with(TEMPORARY_PREFIX) || !name.ends_with(TEMPORARY_SUFFIX))
        return false;
    name.remove_prefix(TEMPORARY_PREFIX.size());
    name.remove_suffix(TEMPORARY_SUFFIX.size());
    pid_t process = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), process);
    if (error != std::errc{} || end != name.data() + name.size() || process <= 0)
        return false;
    return process == getpid() || (kill(process, 0) == -1 && errno == ESRCH);
}

static void removeLeftovers()
{
    DIR* folder = opendir(".");
    if (!folder)
        return;
    while (const dirent* entry = readdir(folder))
        if (isLeftover(entry->d_name))
            unlink(entry->d_name);
    closedir(folder);
}

// A link is replaced itself and not what it leads to, but one that leads to a directory or a pipe
// is no file of ours. A file protected against writing stays.
static bool mayReplace(const char* fileName)
{
    struct stat status;
    if (stat(fileName, &status) != 0)
        return errno == ENOENT;
    return S_ISREG(status.st_mode) && access(fileName, W_OK) == 0;
}

static bool writeNewFile(const char* fileName, std::span<const std::uint8_t> bytes)
{
    const int file = open(fileName, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    if (file == -1)
        return false;
    const bool written = writeAll(file, bytes) && flush(file);
    return close(file) == 0 && written;
}

bool writeWholeFile(const char* fileName, std::span<const std::uint8_t> bytes)
{
    if (!mayReplace(fileName))
        return false;
    removeLeftovers();
    const int folder = openFolder();
    if (folder == -1)
        return false;
    const std::string temporary = temporaryName();
    if (!writeNewFile(temporary.c_str(), bytes) || rename(temporary.c_str(), fileName) != 0) {
        unlink(temporary.c_str());
        close(folder);
        return false;
    }
    return flushAndCloseFolder(folder);
}

// The size of the records in a file that are whole; -1 if it can't be told.
static off_t wholeRecordsSize(int file, std::size_t recordSize)
{
    struct stat status;
    if (fstat(file, &status) != 0)
        return -1;
    return status.st_size - status.st_size % static_cast<off_t>(recordSize);
}

static bool cutTo(int file, off_t size)
{
    return ftruncate(file, size) == 0;
}

static bool flushFolder()
{
    const int folder = openFolder();
    return folder != -1 && flushAndCloseFolder(folder);
}

bool appendRecord(const char* fileName, std::span<const std::uint8_t> record)
{
    const int file = openRegular(fileName, O_WRONLY | O_CREAT | O_APPEND);
    if (file == -1)
        return false;
    const off_t size = wholeRecordsSize(file, record.size());
    const bool good = size != -1 && cutTo(file, size) && writeAll(file, record) && flush(file) &&
                      (size > 0 || flushFolder());
    if (!good && size != -1)
        cutTo(file, size);
    return close(file) == 0 && good;
}
