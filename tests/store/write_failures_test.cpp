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
#include <functional>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

// Files must outlive a disk that fails, fills up or loses its power at any moment. The test program
// is linked so that the calls by which the game changes files come here first.

namespace
{

int callsBefore = -1;    // before the one that fails, -1 none does
bool powerFails = false; // the process ends there
bool struck = false;
bool diskFull = false;

// What a power cut would take away, since it hasn't been flushed yet.
bool bytesAtRisk = false;
bool nameAtRisk = false;

bool fails()
{
    if (callsBefore < 0 || callsBefore-- > 0)
        return false;
    struck = true;
    if (powerFails)
        _exit(0);
    errno = EIO;
    return true;
}

} // namespace

extern "C" {
int __real_rename(const char* from, const char* to);
int __wrap_rename(const char* from, const char* to)
{
    EXPECT_FALSE(bytesAtRisk);
    nameAtRisk = true;
    return fails() ? -1 : __real_rename(from, to);
}

// The write that is struck takes a part only, and those behind it none.
ssize_t __real_write(int file, const void* bytes, size_t size);
ssize_t __wrap_write(int file, const void* bytes, size_t size)
{
    errno = ENOSPC;
    if (diskFull)
        return -1;
    bytesAtRisk = true;
    diskFull = callsBefore == 0;
    const ssize_t written = __real_write(file, bytes, diskFull ? size / 2 : size);
    fails();
    return written;
}

// No test waits for the real disk.
int __wrap_fsync(int file)
{
    struct stat status;
    if (fails() || fstat(file, &status) != 0)
        return -1;
    (S_ISDIR(status.st_mode) ? nameAtRisk : bytesAtRisk) = false;
    return 0;
}
}

namespace
{

namespace fs = std::filesystem;

struct Writer {
    const char* file;
    bool (*write)();
    bool appends = false; // and replaces nothing
};

// clang-format off
const Writer WRITERS[] = {
    {"settings",      writeSettings},
    {"r.race",        [] { return writeRace("r.race"); }},
    {"standings.csv", [] { exportStandings({}); return view.exportStatus == EXPORT_WRITTEN; }},
    {"courses",       saveDesign, true},
};
// clang-format on

class WriteFailures : public testing::TestWithParam<Writer>
{
protected:
    void TearDown() override
    {
        callsBefore = -1;
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

    static void strikeAt(int call)
    {
        callsBefore = call;
        struck = diskFull = bytesAtRisk = false;
    }

    bool isOldOrNew() const
    {
        const std::string bytes = bytesOfFile(file);
        return bytes == oldBytes || bytes == newBytes;
    }

    void expectNothingElseInFolder() const
    {
        for (const auto& entry : fs::directory_iterator("."))
            EXPECT_EQ(entry.path().filename(), file);
    }

    // Whether a write in a process of its own, which first does something else, succeeds.
    bool writesAfter(const std::function<void()>& first) const
    {
        const pid_t child = fork();
        if (child == 0) {
            first();
            _exit(write() ? 1 : 0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status));
        return WEXITSTATUS(status) == 1;
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
    for (const bool hasOld : {true, false}) {
        struck = true;
        for (int call = 0; struck; ++call) {
            SCOPED_TRACE(call);
            prepare(hasOld);
            strikeAt(call);
            nameAtRisk = !hasOld;
            const bool written = write();
            callsBefore = -1;
            diskFull = false;
            EXPECT_EQ(written, !struck);
            EXPECT_FALSE(written && (bytesAtRisk || nameAtRisk));
            EXPECT_TRUE(struck ? isOldOrNew() : bytesOfFile(file) == newBytes);
            expectNothingElseInFolder();
        }
    }
}

TEST_P(WriteFailures, APowerCutAtAnyCallIsMendedByTheNextWrite)
{
    bool survived = false;
    for (int call = 0; !survived; ++call) {
        SCOPED_TRACE(call);
        prepare(true);
        survived = writesAfter([call] {
            powerFails = true;
            strikeAt(call);
        });
        std::string cut = bytesOfFile(file);
        if (appends) {
            EXPECT_TRUE(cut.starts_with(oldBytes) && newBytes.starts_with(cut));
            newBytes = (cut == newBytes ? newBytes : oldBytes) + newBytes.substr(oldBytes.size());
        } else {
            EXPECT_TRUE(isOldOrNew());
        }
        EXPECT_TRUE(write());
        EXPECT_EQ(bytesOfFile(file), newBytes);
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
    fs::create_directory(file);
    EXPECT_FALSE(write());
    expectNothingElseInFolder();
}

TEST_P(WriteFailures, ALinkStaysOneAndWhatItLeadsToKeepsItsPermissions)
{
    prepare(true);
    fs::create_directory("away");
    fs::rename(file, "away/kept");
    fs::permissions("away/kept", fs::perms(0640));
    fs::create_symlink("away/kept", file);
    EXPECT_TRUE(write());
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(bytesOfFile("away/kept"), newBytes);
    EXPECT_EQ(fs::status("away/kept").permissions(), fs::perms(0640));
}

INSTANTIATE_TEST_SUITE_P(Files, WriteFailures, testing::ValuesIn(WRITERS));
