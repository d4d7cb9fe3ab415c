#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

// The floors of the house: includes run downward only, never in a circle. A header and its source
// are one room.

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

enum Mark { UNSEEN, OPEN, DONE };

// The rooms of a circle, or nothing.
std::vector<std::string> circleFrom(const std::string& room, const Rooms& rooms,
                                    std::map<std::string, Mark>& marks)
{
    if (marks[room] == DONE)
        return {};
    if (marks[room] == OPEN)
        return {room};
    marks[room] = OPEN;
    if (const auto found = rooms.find(room); found != rooms.end())
        for (const std::string& below : found->second)
            if (auto circle = circleFrom(below, rooms, marks); !circle.empty()) {
                marks[room] = DONE;
                circle.push_back(room);
                return circle;
            }
    marks[room] = DONE;
    return {};
}

std::string folderOf(const std::string& room)
{
    return room.substr(0, room.find('/'));
}

} // namespace

TEST(House, IncludesNeverRunInACircle)
{
    const Rooms rooms = readRooms();
    ASSERT_GT(rooms.size(), 20u);
    std::map<std::string, Mark> marks;
    for (const auto& [room, below] : rooms) {
        std::string text;
        for (const std::string& step : circleFrom(room, rooms, marks))
            text += step + " <- ";
        EXPECT_EQ(text, "");
    }
}

TEST(House, FoldersOfTheGameKnowNothingOfTheScreen)
{
    for (const auto& [room, below] : readRooms()) {
        const std::string from = folderOf(room);
        const bool isMain = room == "app/main" || room.starts_with("app/x11_");
        for (const std::string& to : below) {
            const std::string folder = folderOf(to);
            EXPECT_TRUE(folder != "input" || from == "input" || isMain) << room << " -> " << to;
            EXPECT_TRUE(folder != "ui" || from == "ui" || from == "input" || isMain)
                << room << " -> " << to;
            EXPECT_TRUE(to != "app/main" && (!to.starts_with("app/x11_") || isMain))
                << room << " -> " << to;
        }
    }
}

TEST(House, TheStateAtTheBottomKnowsOnlyTheBottom)
{
    const Rooms rooms = readRooms();
    for (const char* bottom : {"app/game_state", "app/host", "app/settings", "app/view",
                               "race/race_state", "board/sections", "board/section_shapes"})
        for (const std::string& to : rooms.at(bottom))
            EXPECT_TRUE(to == "app/table" || to == "board/sections") << bottom << " -> " << to;
}
