#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

// Folders are floors: a file includes its own folder and those below, and within a folder includes
// never run in a circle. A header and its source are one room.

namespace fs = std::filesystem;

using Rooms = std::map<std::string, std::set<std::string>>; // and what each includes

// From the bottom up; the files of src itself lie on top.
static constexpr std::string_view FLOORS[] = {"app",  "board", "race",  "store", "ai",
                                              "play", "ui",    "input", ""};

static Rooms readRooms()
{
    Rooms rooms;
    constexpr std::string_view INCLUDE = "#include \"";
    const fs::path source = fs::path(SOURCE_DIR) / "src";
    for (const auto& entry : fs::recursive_directory_iterator(source)) {
        const std::string room = fs::relative(entry.path(), source).replace_extension();
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);)
            if (line.starts_with(INCLUDE))
                rooms[room].insert(fs::path(line.substr(INCLUDE.size())).replace_extension());
        rooms[room].erase(room);
    }
    return rooms;
}

static std::ptrdiff_t floorOf(const std::string& room)
{
    return std::ranges::find(FLOORS, fs::path(room).parent_path().string()) - FLOORS;
}

TEST(House, IncludesLeadDownAndNeverInACircle)
{
    Rooms rooms = readRooms();
    ASSERT_GT(rooms.size(), 20u);
    for (const auto& [room, below] : rooms)
        for (const std::string& to : below)
            EXPECT_LE(floorOf(to), floorOf(room)) << room << " -> " << to;
    // Room by room whatever leads nowhere any more is taken away; what stays runs in a circle.
    const auto leadsNowhere = [&rooms](const auto& room) {
        return std::ranges::none_of(room.second,
                                    [&](const auto& to) { return rooms.contains(to); });
    };
    while (std::erase_if(rooms, leadsNowhere)) {
    }
    for (const auto& [room, below] : rooms)
        ADD_FAILURE() << room << " is in a circle or above one";
}
