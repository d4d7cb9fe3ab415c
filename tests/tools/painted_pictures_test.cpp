#include "board/pictures.h"
#include "support/own_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

// Road and rules can't disagree as long as the pictures are what the painter makes of the tables.

namespace
{

constexpr const char* RIDERS[] = {"cyclist0.dat", "cyclist1.dat", "cyclist2.dat", "cyclist3.dat",
                                  "cyclist4.dat"};

Picture load(const std::string& path, int width, int height)
{
    Picture picture{width, height, 3, {}};
    EXPECT_TRUE(loadPicture(path.c_str(), picture, false)) << path;
    return picture;
}

// The painter's own picture of this name against the one in data. Fonts and decoders differ a
// little from machine to machine; a line that has moved shows up in what it has left.
void expectTheSame(const std::string& name, int width, int height)
{
    constexpr int NOISE_MAX = 12;
    const Picture given = load(SOURCE_DIR "/data/" + name, width, height);
    const Picture painted = load(name, width, height);
    ASSERT_EQ(given.bytes.size(), painted.bytes.size());
    std::size_t moved = 0;
    for (std::size_t i = 0; i < given.bytes.size(); ++i)
        moved += std::abs(given.bytes[i] - painted.bytes[i]) > NOISE_MAX;
    EXPECT_LT(moved, 10u) << name;
}

} // namespace

TEST(PaintedPictures, AreTheOnesThatTheGameIsGiven)
{
    const OwnFolder folder;
    ASSERT_EQ(std::system(PAINTER " ."), 0);
    expectTheSame("board.dat", BOARD_PICTURE_WIDTH, BOARD_PICTURE_HEIGHT);
    expectTheSame("scorecard.dat", SCORECARD_PICTURE_SIZE, SCORECARD_PICTURE_SIZE);
    for (const char* name : RIDERS)
        expectTheSame(name, RIDER_PICTURE_SIZE, RIDER_PICTURE_SIZE);
}
