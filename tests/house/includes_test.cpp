#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// Folders are floors: the order of the folders is the order of the includes, and within a folder
// they never run in a circle. A header and its source are one room.

namespace
{

namespace fs = std::filesystem;

using Rooms = std::map<std::string, std::set<std::string>>;

std::string roomOf(fs::path file)
{
    return file.replace_extension().generic_string();
}

Rooms readRooms()
{
    Rooms rooms;
    const fs::path source = fs::path(SOURCE_DIR) / "src";
    const std::regex include("#include \"(.+)\"");
    for (const auto& entry : fs::recursive_directory_iterator(source)) {
        if (!entry.is_regular_file())
            continue;
        const std::string room = roomOf(fs::relative(entry.path(), source));
        std::ifstream file(entry.path());
        rooms[room];
        for (std::string line; std::getline(file, line);) {
            std::smatch match;
            if (std::regex_search(line, match, include) && roomOf(match[1].str()) != room)
                rooms[room].insert(roomOf(match[1].str()));
        }
    }
    return rooms;
}

// From the bottom up; the files of src itself lie on top.
constexpr std::string_view FLOORS[] = {"app",  "board", "race",  "store", "ai",
                                       "play", "ui",    "input", ""};

std::ptrdiff_t floorOf(const std::string& room)
{
    const std::string folder = fs::path(room).parent_path();
    const auto found = std::ranges::find(FLOORS, folder);
    EXPECT_NE(found, std::end(FLOORS)) << folder << " has no floor";
    return found - FLOORS;
}

} // namespace

// Room by room whatever leads nowhere any more is taken away; what stays runs in a circle.
TEST(House, IncludesNeverRunInACircle)
{
    Rooms rooms = readRooms();
    ASSERT_GT(rooms.size(), 20u);
    for (std::size_t before = 0; before != rooms.size();) {
        before = rooms.size();
        std::erase_if(rooms, [&rooms](const auto& room) {
            return std::ranges::none_of(
                room.second, [&rooms](const std::string& below) { return rooms.contains(below); });
        });
    }
    for (const auto& [room, below] : rooms)
        ADD_FAILURE() << room << " is in a circle or above one";
}

TEST(House, AFileIncludesItsOwnFolderAndThoseBelow)
{
    for (const auto& [room, below] : readRooms())
        for (const std::string& to : below)
            EXPECT_LE(floorOf(to), floorOf(room)) << room << " -> " << to;
}
