#include "fuzz/fuzz_input.h"

#include "board/course.h"
#include "store/courses_file.h"

// Every record is a course that can be built or none at all, and what lies in the file doesn't keep
// a design from being added.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    putInput("courses", bytes, size);
    const int count = countSavedCourses();
    for (int index = 0; index < count; ++index) {
        courseText = readSavedCourse(index);
        assembleCourse();
        require(courseText.empty() || course.finishRow > 0);
    }
    courseText = "67S8F";
    require(saveDesign());
    require(countSavedCourses() == count + 1 && readSavedCourse(count) == courseText);
    return 0;
}
