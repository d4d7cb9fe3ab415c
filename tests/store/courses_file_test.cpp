#include "store/courses_file.h"

#include "board/course.h"
#include "store/golden_files.h"
#include "support/own_folder.h"

#include <gtest/gtest.h>

static void save(const char* text)
{
    courseText = text;
    EXPECT_TRUE(saveDesign());
}

TEST(SavedCourses, AreRecordsOf48BytesOneBehindTheOther)
{
    const OwnFolder folder;
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

TEST(SavedCourses, CutAndBrokenRecordsDoNoHarm)
{
    const OwnFolder folder;
    save("64S5F");
    putBytes("courses", bytesOfFile("courses") + "xyz" + std::string(17, '\0') + "649999F" +
                            std::string(21, '\0') + std::string(48, '4') + "torn");
    EXPECT_EQ(countSavedCourses(), 3);
    save("67S8F"); // not behind the torn rest
    EXPECT_EQ(readSavedCourse(3), "67S8F");
    EXPECT_EQ(readSavedCourse(0), "64S5F");
    EXPECT_EQ(readSavedCourse(1), "");
    EXPECT_EQ(readSavedCourse(2), "");
}
