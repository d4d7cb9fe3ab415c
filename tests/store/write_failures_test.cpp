#include "app/settings.h"
#include "app/view.h"
#include "board/course.h"
#include "store/courses_file.h"
#include "store/golden_files.h"
#include "store/race_file.h"
#include "store/settings_file.h"
#include "store/standings_export.h"
#include "support/own_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <cstdarg>
#include <fcntl.h>
#include <functional>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

// Files must outlive a disk that fails, fills up or loses its power at any moment. The test program
// is linked so that every call by which the game changes files comes here first.

namespace
{

enum Fault {
    NO_FAULT,
    ERROR,       // the call fails
    DISK_FULL,   // a write takes a part only, the next one none
    INTERRUPTED, // a signal comes between, and the call has to be made again
    POWER_CUT,   // the process ends there; a write has taken a part
};

Fault fault = NO_FAULT;
int callsBefore = 0; // before the one that is struck
bool struck = false;

// What a power cut would take away, since it hasn't been flushed yet.
bool bytesAtRisk = false;
bool nameAtRisk = false;

enum Call { PLAIN, WAITING, WRITING }; // the last two may be interrupted

// What strikes this call.
Fault faultOf(Call call)
{
    if (fault == NO_FAULT || callsBefore-- > 0)
        return NO_FAULT;
    if (struck)
        return fault == DISK_FULL && call == WRITING ? ERROR : NO_FAULT;
    if ((fault == INTERRUPTED && call == PLAIN) || (fault == DISK_FULL && call != WRITING))
        return NO_FAULT;
    struck = true;
    if (fault == POWER_CUT && call != WRITING)
        _exit(0);
    errno = fault == INTERRUPTED ? EINTR : EIO;
    return fault;
}

bool fails(Call call = PLAIN)
{
    return faultOf(call) != NO_FAULT;
}

} // namespace

extern "C" {
#define WRAP(call, parameters, arguments, first)                                                   \
    int __real_##call parameters;                                                                  \
    int __wrap_##call parameters                                                                   \
    {                                                                                              \
        first;                                                                                     \
        return fails() ? -1 : __real_##call arguments;                                             \
    }
WRAP(stat, (const char* name, struct stat* status), (name, status), )
WRAP(fstat, (int file, struct stat* status), (file, status), )
WRAP(ftruncate, (int file, off_t size), (file, size), )
WRAP(mkostemps, (char* name, int suffix, int flags), (name, suffix, flags), nameAtRisk = true)
WRAP(rename, (const char* from, const char* to), (from, to), EXPECT_FALSE(bytesAtRisk);
     nameAtRisk = true)

int __real_open(const char* name, int flags, mode_t mode);
int __wrap_open(const char* name, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    if (mode != 0 && access(name, F_OK) != 0)
        nameAtRisk = true;
    return fails() ? -1 : __real_open(name, flags, mode);
}

ssize_t __real_write(int file, const void* bytes, size_t size);
ssize_t __wrap_write(int file, const void* bytes, size_t size)
{
    const Fault here = faultOf(WRITING);
    if (here == ERROR || here == INTERRUPTED)
        return -1;
    bytesAtRisk = true;
    const ssize_t written = __real_write(file, bytes, here == NO_FAULT ? size : size / 2);
    if (here == POWER_CUT)
        _exit(0);
    return written;
}

// No test waits for the real disk.
int __wrap_fsync(int file)
{
    struct stat status;
    if (fails(WAITING) || __real_fstat(file, &status) != 0)
        return -1;
    (S_ISDIR(status.st_mode) ? nameAtRisk : bytesAtRisk) = false;
    return 0;
}

int __real_close(int file);
int __wrap_close(int file)
{
    const bool failed = fails();
    return __real_close(file) != 0 || failed ? -1 : 0;
}
}

namespace
{

namespace fs = std::filesystem;

struct Writer {
    const char* file;
    bool (*write)();
    bool appends = false;
};

// clang-format off
const Writer WRITERS[] = {
    {"settings",      writeSettings},
    {"r.race",        [] { return writeRace("r.race"); }},
    {"standings.csv", [] { exportStandings({}); return view.exportStatus == EXPORT_WRITTEN; }},
    {"courses",       saveDesign, true},
};
// clang-format on

pid_t startProcess(const std::function<bool()>& work)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(work() ? 1 : 0);
    return child;
}

bool answerOf(pid_t child)
{
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status));
    return WEXITSTATUS(status) == 1;
}

class WriteFailures : public testing::TestWithParam<Writer>
{
protected:
    void TearDown() override
    {
        fault = NO_FAULT;
        raceSetup = {};
        view = {};
        courseText.clear();
    }

    // Leaves the old file, if there is to be one, and the state that is to be written next.
    void prepare(bool hasOld)
    {
        raceSetup = {};
        raceSetup.standingsFileName = "standings.csv";
        raceSetup.raceStages.resize(2);
        fs::remove(file);
        courseText = "64S5F";
        ASSERT_TRUE(!hasOld || write());
        oldBytes = bytesOfFile(file);
        raceSetup.teamName[0] = "New";
        courseText = "67S8F";
        ASSERT_TRUE(write());
        newBytes = bytesOfFile(file);
        ASSERT_NE(oldBytes, newBytes);
        fs::remove(file);
        if (hasOld)
            putBytes(file, oldBytes);
    }

    static void arm(Fault kind, int call)
    {
        fault = kind;
        callsBefore = call;
        struck = bytesAtRisk = nameAtRisk = false;
    }

    bool isOldOrNew() const
    {
        const std::string bytes = bytesOfFile(file);
        return bytes == oldBytes || bytes == newBytes;
    }

    void expectNothingElseInFolder() const
    {
        for (const auto& entry : fs::directory_iterator("."))
            EXPECT_TRUE(entry.path().filename() == file || entry.is_directory() || entry.is_fifo())
                << entry.path();
    }

    // Strikes at one call after the other until one lies behind the last.
    void strikeEachCall(Fault kind, bool hasOld)
    {
        struck = true;
        for (int call = 0; struck; ++call) {
            SCOPED_TRACE(call);
            prepare(hasOld);
            arm(kind, call);
            const bool written = write();
            fault = NO_FAULT;
            EXPECT_EQ(written, !struck || kind == INTERRUPTED);
            EXPECT_FALSE(written && (bytesAtRisk || nameAtRisk));
            EXPECT_TRUE(struck ? isOldOrNew() : bytesOfFile(file) == newBytes);
            expectNothingElseInFolder();
        }
    }

    // Whether a write in a process of its own, which first does something else, succeeds.
    bool writesAfter(const std::function<void()>& first) const
    {
        return answerOf(startProcess([&] {
            first();
            return write();
        }));
    }

    OwnFolder folder;
    const std::string file = GetParam().file;
    bool (*const write)() = GetParam().write;
    const bool appends = GetParam().appends;
    std::string oldBytes;
    std::string newBytes;
};

} // namespace

TEST_P(WriteFailures, AnErrorAtAnyCallLeavesTheOldFileOrTheNewOne)
{
    for (const Fault kind : {ERROR, DISK_FULL, INTERRUPTED})
        for (const bool hasOld : {true, false})
            strikeEachCall(kind, hasOld);
}

TEST_P(WriteFailures, APowerCutAtAnyCallIsMendedByTheNextWrite)
{
    bool survived = false;
    for (int call = 0; !survived; ++call) {
        SCOPED_TRACE(call);
        prepare(true);
        survived = writesAfter([call] { arm(POWER_CUT, call); });
        std::string cut = bytesOfFile(file);
        if (appends) {
            EXPECT_TRUE(cut.starts_with(oldBytes) && newBytes.starts_with(cut));
            newBytes = (cut == newBytes ? newBytes : oldBytes) + newBytes.substr(oldBytes.size());
        } else {
            EXPECT_TRUE(isOldOrNew());
        }
        EXPECT_TRUE(write());
        EXPECT_EQ(bytesOfFile(file), newBytes);
        // What a game that was killed leaves behind goes an hour later, and no sooner.
        for (const auto& entry : fs::directory_iterator("."))
            if (entry.path().filename().string().starts_with(".gravelon-"))
                fs::last_write_time(entry,
                                    fs::file_time_type::clock::now() - std::chrono::hours(1));
        EXPECT_TRUE(appends || write());
        expectNothingElseInFolder();
    }
}

TEST_P(WriteFailures, WhatIsNoFileOrIsProtectedIsLeftAlone)
{
    const auto becomeOrdinaryUser = [] {
        if (getuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
            _exit(1);
    };
    prepare(true);
    fs::permissions(".", fs::perms(0555));
    EXPECT_FALSE(writesAfter(becomeOrdinaryUser));
    fs::permissions(".", fs::perms(0777));
    fs::permissions(file, fs::perms(0444));
    EXPECT_FALSE(writesAfter(becomeOrdinaryUser));
    EXPECT_EQ(bytesOfFile(file), oldBytes);

    fs::remove(file);
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_FALSE(write());
    fs::create_directory("folder");
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    for (const char* target : {"nowhere", file.c_str(), "pipe", "folder"}) {
        fs::remove(file);
        fs::create_symlink(target, file);
        EXPECT_FALSE(write()) << target;
        EXPECT_TRUE(fs::is_symlink(file)) << target;
        expectNothingElseInFolder();
    }
}

// What it leads to is replaced where it lies, and keeps its permissions as any file does. The
// temporary file of another game that writes at this moment stays.
TEST_P(WriteFailures, ALinkIsFollowedAndStaysOne)
{
    prepare(true);
    fs::create_directories("far/away");
    fs::rename(file, "far/away/kept");
    fs::permissions("far/away/kept", fs::perms(0640));
    fs::create_symlink("away/kept", "far/second");
    fs::create_symlink("far/second", file);
    putBytes("far/away/.gravelon-others.new", "half");
    EXPECT_TRUE(write());
    EXPECT_EQ(bytesOfFile("far/away/kept"), newBytes);
    EXPECT_EQ(fs::status("far/away/kept").permissions(), fs::perms(0640));
    EXPECT_TRUE(fs::is_symlink(file) && fs::is_symlink("far/second"));
    EXPECT_EQ(bytesOfFile("far/away/.gravelon-others.new"), "half");
    expectNothingElseInFolder();
}

// Both halves are there, none within the other, though each game cuts what the other was killed at.
TEST(TwoGames, LoseNoneOfTheCoursesThatTheySave)
{
    const OwnFolder folder;
    constexpr int each = 300;
    courseText = "64S5F";
    const auto saveAll = [] {
        bool saved = true;
        for (int i = 0; i < each; ++i)
            saved &= saveDesign();
        return saved;
    };
    const pid_t other = startProcess(saveAll);
    EXPECT_TRUE(saveAll());
    EXPECT_TRUE(answerOf(other));
    EXPECT_EQ(countSavedCourses(), 2 * each);
    for (int i = 0; i < 2 * each; ++i)
        ASSERT_EQ(readSavedCourse(i), "64S5F") << i;
    courseText.clear();
}

INSTANTIATE_TEST_SUITE_P(Files, WriteFailures, testing::ValuesIn(WRITERS));
