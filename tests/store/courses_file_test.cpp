#include "store/courses_file.h"

#include "board/course.h"
#include "store/golden_files.h"
#include "support/own_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace
{

namespace fs = std::filesystem;

// Each test in an empty folder of its own.
class SavedCourses : public testing::Test
{
protected:
    void TearDown() override { courseText.clear(); }
    static void save(const char* text)
    {
        courseText = text;
        EXPECT_TRUE(saveDesign());
    }
    static void append(const std::string& bytes)
    {
        std::ofstream("courses", std::ios::app | std::ios::binary) << bytes;
    }

    OwnFolder folder;
};

} // namespace

TEST_F(SavedCourses, AreAppendedAndReadBack)
{
    EXPECT_EQ(countSavedCourses(), 0);
    EXPECT_EQ(readSavedCourse(0), "");
    save("01S2S3S45123451234512345F");
    save("67S8F");
    EXPECT_EQ(bytesOfFile("courses"), goldenBytes("courses"));
    save("67S8F");
    EXPECT_EQ(countSavedCourses(), 3);
    EXPECT_EQ(readSavedCourse(0), "01S2S3S45123451234512345F");
    EXPECT_EQ(readSavedCourse(2), "67S8F");
    EXPECT_EQ(readSavedCourse(3), "");
    EXPECT_EQ(readSavedCourse(-1), "");
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
