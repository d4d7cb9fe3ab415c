#include "store/courses_file.h"
#include "store/golden_files.h"
#include "store/race_file.h"
#include "store/settings_file.h"
#include "store/standings_export.h"
#include "support/own_folder.h"
#include "support/races.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

// Files must outlive a disk that fails or fills up, and a power cut. The test program is linked so
// that the calls by which the game changes files come here first.

namespace
{

int callsBefore = -1; // before the one that fails, -1 none does
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
};

// clang-format off
const Writer WRITERS[] = {
    {"settings",      writeSettings},
    {"r.race",        [] { return writeRace("r.race"); }},
    {"standings.csv", [] { exportStandings({}); return view.exportStatus == EXPORT_WRITTEN; }},
    {"courses",       saveDesign},
};
// clang-format on

class WriteFailures : public testing::TestWithParam<Writer>
{
protected:
    void TearDown() override { callsBefore = -1; }

    // Leaves the old file, if there is to be one, and the state that is to be written next.
    void prepare(bool hasOld)
    {
        forgetGame();
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

    OwnFolder folder;
    const std::string file = GetParam().file;
    bool (*const write)() = GetParam().write;
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
            callsBefore = call;
            struck = bytesAtRisk = false;
            nameAtRisk = !hasOld;
            const bool written = write();
            callsBefore = -1;
            diskFull = false;
            EXPECT_EQ(written, !struck);
            EXPECT_FALSE(written && (bytesAtRisk || nameAtRisk));
            const std::string bytes = bytesOfFile(file);
            EXPECT_TRUE(bytes == newBytes || (struck && bytes == oldBytes));
            for (const auto& entry : fs::directory_iterator("."))
                EXPECT_EQ(entry.path().filename(), file);
        }
    }
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

TEST_P(WriteFailures, AProtectedFileIsLeftAlone)
{
    prepare(true);
    fs::permissions(file, fs::perms(0444));
    fs::permissions(".", fs::perms(0777));
    const bool wasRoot = getuid() == 0 && setresuid(65534, 65534, 0) == 0; // whom nothing stops
    EXPECT_FALSE(write());
    EXPECT_TRUE(!wasRoot || setresuid(0, 0, 0) == 0);
}

INSTANTIATE_TEST_SUITE_P(Files, WriteFailures, testing::ValuesIn(WRITERS));
