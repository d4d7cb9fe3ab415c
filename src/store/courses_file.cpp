#include "store/courses_file.h"

#include "board/course.h"
#include "board/designer.h"
#include "store/bytes.h"

#include <sys/stat.h>

#include <cstdio>
#include <filesystem>
#include <system_error>
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

// Nothing but a plain file is written to: a pipe would wait for a reader that may never come.
static bool mayAppend()
{
    struct stat info {
    };
    return stat(FILE_NAME, &info) != 0 || S_ISREG(info.st_mode);
}

// A record that was only half written, by a full disk or a crash, would spoil all behind it.
static void cutTornRecord()
{
    std::error_code none;
    const auto size = std::filesystem::file_size(FILE_NAME, none);
    if (!none && size % RECORD_SIZE != 0)
        std::filesystem::resize_file(FILE_NAME, size - size % RECORD_SIZE, none);
}

bool saveDesign()
{
    std::vector<std::uint8_t> record;
    putText(record, RECORD_NAME, NAME_SIZE);
    putText(record, courseText, TEXT_SIZE);
    if (!mayAppend())
        return false;
    cutTornRecord();
    std::FILE* file = std::fopen(FILE_NAME, "ab");
    if (!file)
        return false;
    const bool written = std::fwrite(record.data(), 1, record.size(), file) == record.size();
    return std::fclose(file) == 0 && written;
}
