#include "app/files.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

// What is being written goes by such a name until it is whole: hidden, and no race on the list.
static constexpr std::string_view TEMPORARY_PREFIX = ".gravelon-";
static constexpr std::string_view TEMPORARY_SUFFIX = ".new";

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

bool nameTaken(const std::string& fileName)
{
    struct stat status;
    return lstat(fileName.c_str(), &status) == 0;
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

static int openFolder(const std::string& folder)
{
    return open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

// A new or changed name lasts only once its folder has been flushed. Some file systems of networks
// know no such thing, and say so by EINVAL.
static bool flushAndCloseFolder(int folder)
{
    const bool flushed = flush(folder) || errno == EINVAL;
    return close(folder) == 0 && flushed;
}

static std::string folderOf(const std::string& fileName)
{
    const std::size_t slash = fileName.rfind('/');
    return slash == std::string::npos ? "./" : fileName.substr(0, slash + 1);
}

// Where a file of this name is to be written: behind a link its end, at which there is a file.
// Empty if that can't be told.
static std::string behindLinks(const char* fileName)
{
    struct stat status;
    if (lstat(fileName, &status) != 0 || !S_ISLNK(status.st_mode))
        return fileName;
    char target[PATH_MAX];
    return realpath(fileName, target) ? target : "";
}

// The permissions of a file that is to be replaced, or those of a new one; -1 where something other
// than a file lies, or one protected against writing.
static int modeFor(const std::string& fileName)
{
    struct stat status;
    if (stat(fileName.c_str(), &status) == 0)
        return S_ISREG(status.st_mode) && access(fileName.c_str(), W_OK) == 0
                   ? static_cast<int>(status.st_mode & 07777)
                   : -1;
    if (errno != ENOENT)
        return -1;
    const mode_t withheld = umask(0);
    umask(withheld);
    return static_cast<int>(0666 & ~withheld);
}

static bool isTemporaryName(std::string_view name)
{
    return name.starts_with(TEMPORARY_PREFIX) && name.ends_with(TEMPORARY_SUFFIX);
}

// Removes what games left behind that were killed while they wrote, an hour ago or more: whoever
// still writes is younger than that. The hour is measured against the file that is written now,
// since the folder may be another machine's, with another clock.
static void removeLeftovers(const std::string& folder, const struct stat& present)
{
    constexpr time_t hour = 3600;
    DIR* listing = opendir(folder.c_str());
    if (!listing)
        return;
    struct stat status;
    while (const dirent* entry = readdir(listing))
        if (isTemporaryName(entry->d_name) &&
            fstatat(dirfd(listing), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
            S_ISREG(status.st_mode) && present.st_mtim.tv_sec - status.st_mtim.tv_sec >= hour)
            unlinkat(dirfd(listing), entry->d_name, 0);
    closedir(listing);
}

// Fills a temporary file that has just been made. Where permissions can't be set it stays the
// player's alone.
static bool fillNewFile(int file, int mode, const std::string& folder,
                        std::span<const std::uint8_t> bytes)
{
    struct stat status;
    const bool dated = fstat(file, &status) == 0;
    if (dated)
        removeLeftovers(folder, status);
    static_cast<void>(fchmod(file, static_cast<mode_t>(mode)));
    const bool written = dated && writeAll(file, bytes) && flush(file);
    return close(file) == 0 && written;
}

bool writeWholeFile(const char* fileName, std::span<const std::uint8_t> bytes)
{
    const std::string target = behindLinks(fileName);
    const int mode = target.empty() ? -1 : modeFor(target);
    if (mode == -1)
        return false;
    const std::string folderName = folderOf(target);
    const int folder = openFolder(folderName);
    if (folder == -1)
        return false;
    std::string temporary = folderName;
    temporary.append(TEMPORARY_PREFIX).append("XXXXXX").append(TEMPORARY_SUFFIX);
    const int file =
        mkostemps(temporary.data(), static_cast<int>(TEMPORARY_SUFFIX.size()), O_CLOEXEC);
    if (file == -1) {
        close(folder);
        return false;
    }
    if (!fillNewFile(file, mode, folderName, bytes) ||
        rename(temporary.c_str(), target.c_str()) != 0) {
        unlink(temporary.c_str());
        close(folder);
        return false;
    }
    return flushAndCloseFolder(folder);
}

// Waits for other games that append at this moment, but not for good: one may have been stopped in
// the middle. Where the file system knows no locks there is nothing to wait for.
static bool lockFile(int file)
{
    constexpr int tries = 200;
    constexpr timespec pause = {.tv_sec = 0, .tv_nsec = 10'000'000};
    for (int i = 0; i < tries; ++i) {
        if (flock(file, LOCK_EX | LOCK_NB) == 0)
            return true;
        if (errno != EWOULDBLOCK && errno != EINTR)
            return true;
        nanosleep(&pause, nullptr);
    }
    return false;
}

static off_t sizeOf(int file)
{
    struct stat status;
    return fstat(file, &status) == 0 ? status.st_size : -1;
}

static bool cutTo(int file, off_t size)
{
    return ftruncate(file, size) == 0;
}

static bool flushFolder()
{
    const int folder = openFolder(".");
    return folder != -1 && flushAndCloseFolder(folder);
}

// Under the lock, so that what is cut is nobody's whole record.
static bool appendLocked(int file, std::span<const std::uint8_t> record)
{
    const off_t size = sizeOf(file);
    if (size == -1)
        return false;
    const off_t torn = size % static_cast<off_t>(record.size());
    const off_t whole = size - torn;
    if (torn != 0 && !cutTo(file, whole))
        return false;
    if (writeAll(file, record) && flush(file) && (whole > 0 || flushFolder()))
        return true;
    cutTo(file, whole);
    return false;
}

// Without O_CREAT first: that would make a file where a link leads to nothing.
static int openForAppending(const char* fileName)
{
    const int flags = O_WRONLY | O_APPEND;
    return nameTaken(fileName) ? openRegular(fileName, flags)
                               : openRegular(fileName, flags | O_CREAT);
}

bool appendRecord(const char* fileName, std::span<const std::uint8_t> record)
{
    const int file = openForAppending(fileName);
    if (file == -1)
        return false;
    const bool appended = lockFile(file) && appendLocked(file, record);
    return close(file) == 0 && appended;
}
