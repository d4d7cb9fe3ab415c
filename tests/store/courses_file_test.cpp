#include "store/courses_file.h"

#include "board/course.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace
{

namespace fs = std::filesystem;

// Each test in an empty folder of its own.
class SavedCourses : public testing::Test
{
protected:
    void SetUp() override
    {
        before = fs::current_path();
        folder = fs::temp_directory_path() / ("gravelon-courses-" + std::to_string(getpid()));
        fs::create_directories(folder);
        fs::current_path(folder);
    }
    void TearDown() override
    {
        fs::current_path(before);
        fs::remove_all(folder);
    }
    static void save(const char* text)
    {
        courseText = text;
        EXPECT_TRUE(saveDesign());
    }
    static void append(const std::string& bytes)
    {
        std::ofstream("courses", std::ios::app | std::ios::binary) << bytes;
    }

private:
    fs::path before;
    fs::path folder;
};

} // namespace

TEST_F(SavedCourses, AreAppendedAndReadBack)
{
    EXPECT_EQ(countSavedCourses(), 0);
    EXPECT_EQ(readSavedCourse(0), "");
    save("01S2S3S45123451234512345F");
    save("67S8F");
    save("67S8F");
    EXPECT_EQ(fs::file_size("courses"), 3u * 48);
    EXPECT_EQ(countSavedCourses(), 3);
    EXPECT_EQ(readSavedCourse(0), "01S2S3S45123451234512345F");
    EXPECT_EQ(readSavedCourse(2), "67S8F");
    EXPECT_EQ(readSavedCourse(3), "");
    EXPECT_EQ(readSavedCourse(-1), "");
}

TEST_F(SavedCourses, RecordsAreFixedBytes)
{
    save("64S5F");
    std::ifstream file("courses", std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    EXPECT_EQ(bytes, "xyz" + std::string(17, '\0') + "64S5F" + std::string(23, '\0'));
}

TEST_F(SavedCourses, CutAndBrokenRecordsDoNoHarm)
{
    save("64S5F");
    append("xyz" + std::string(17, '\0') + "649999F" + std::string(21, '\0'));
    append(std::string(48, '4'));
    append("torn");
    EXPECT_EQ(countSavedCourses(), 3);
    save("67S8F"); // not behind the torn rest
    EXPECT_EQ(readSavedCourse(3), "67S8F");
    EXPECT_EQ(readSavedCourse(0), "64S5F");
    EXPECT_EQ(readSavedCourse(1), "");
    EXPECT_EQ(readSavedCourse(2), "");
}

TEST_F(SavedCourses, AFolderOrAPipeOfTheNameIsNoFile)
{
    courseText = "64S5F";
    fs::create_directory("courses");
    EXPECT_EQ(countSavedCourses(), 0);
    EXPECT_FALSE(saveDesign());
    fs::remove("courses");
    ASSERT_EQ(mkfifo("courses", 0600), 0);
    EXPECT_EQ(countSavedCourses(), 0);
    EXPECT_FALSE(saveDesign());
}
