#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

// Folders are floors: the order of the folders is the order of the includes, and within a folder
// they never run in a circle. A header and its source are one room.

namespace
{

namespace fs = std::filesystem;

using Rooms = std::map<std::string, std::set<std::string>>;

Rooms readRooms()
{
    Rooms rooms;
    constexpr std::string_view INCLUDE = "#include \"";
    const fs::path source = fs::path(SOURCE_DIR) / "src";
    for (const auto& entry : fs::recursive_directory_iterator(source)) {
        if (!entry.is_regular_file())
            continue;
        const std::string room = fs::relative(entry.path(), source).replace_extension();
        std::ifstream file(entry.path());
        rooms[room];
        for (std::string line; std::getline(file, line);)
            if (line.starts_with(INCLUDE))
                rooms[room].insert(fs::path(line.substr(INCLUDE.size())).replace_extension());
        rooms[room].erase(room);
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
