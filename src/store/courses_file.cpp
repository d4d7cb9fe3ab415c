#include "store/courses_file.h"

#include "app/bytes.h"
#include "app/files.h"
#include "board/course.h"
#include "board/designer.h"

#include <cstdio>
#include <vector>

static constexpr const char* FILE_NAME = "courses";
static constexpr std::size_t NAME_SIZE = 20;
static constexpr std::size_t TEXT_SIZE = 28;
static constexpr std::size_t RECORD_SIZE = NAME_SIZE + TEXT_SIZE;

// The name is part of the format and never shown.
static constexpr std::string_view RECORD_NAME = "xyz";

static long sizeOf(std::FILE* file)
{
    if (std::fseek(file, 0, SEEK_END) != 0)
        return 0;
    return std::ftell(file);
}

int countSavedCourses()
{
    std::FILE* file = openForReading(FILE_NAME);
    if (!file)
        return 0;
    const long size = sizeOf(file);
    std::fclose(file);
    return static_cast<int>(size / static_cast<long>(RECORD_SIZE));
}

std::string readSavedCourse(int index)
{
    if (index < 0 || index >= countSavedCourses())
        return {};
    std::FILE* file = openForReading(FILE_NAME);
    if (!file)
        return {};
    std::vector<std::uint8_t> record(RECORD_SIZE);
    const bool read = std::fseek(file, static_cast<long>(RECORD_SIZE) * index, SEEK_SET) == 0 &&
                      std::fread(record.data(), 1, RECORD_SIZE, file) == RECORD_SIZE;
    std::fclose(file);
    if (!read)
        return {};
    ByteReader reader{record};
    takeText(reader, NAME_SIZE);
    const std::string text = takeText(reader, TEXT_SIZE);
    return isFinishedDesign(text) ? text : std::string{};
}

bool saveDesign()
{
    std::vector<std::uint8_t> record;
    putText(record, RECORD_NAME, NAME_SIZE);
    putText(record, courseText, TEXT_SIZE);
    return appendRecord(FILE_NAME, record);
}
