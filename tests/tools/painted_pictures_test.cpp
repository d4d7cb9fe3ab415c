#include "app/files.h"
#include "board/pictures.h"
#include "support/own_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>

// Road and rules can't disagree as long as the pictures are what the painter makes of the tables.

namespace
{

constexpr const char* RIDERS[] = {"cyclist0.dat", "cyclist1.dat", "cyclist2.dat", "cyclist3.dat",
                                  "cyclist4.dat"};

// Fonts and decoders differ a little from machine to machine; a line that has moved shows up in the
// blocks that it has left.
constexpr int BLOCK = 8;
constexpr int NOISE_MAX = 12; // mean difference of a block's bytes

Picture load(const std::string& path, int width, int height, bool withAlpha = false)
{
    Picture picture{width, height, 3, {}};
    EXPECT_TRUE(loadPicture(path.c_str(), picture, withAlpha)) << path;
    return picture;
}

int blockDifference(const Picture& a, const Picture& b, int left, int top)
{
    int sum = 0;
    for (int y = top; y < top + BLOCK; ++y) {
        const int first = (y * a.width + left) * a.components;
        for (int i = first; i < first + BLOCK * a.components; ++i)
            sum += std::abs(a.bytes[static_cast<std::size_t>(i)] -
                            b.bytes[static_cast<std::size_t>(i)]);
    }
    return sum / (BLOCK * BLOCK * a.components);
}

// The painter's own picture of this name against the one in data.
void expectTheSame(const std::string& name, int width, int height)
{
    const Picture given = load(SOURCE_DIR "/data/" + name, width, height);
    const Picture painted = load(name, width, height);
    ASSERT_EQ(given.bytes.size(), painted.bytes.size());
    int worst = 0;
    for (int top = 0; top + BLOCK <= height; top += BLOCK)
        for (int left = 0; left + BLOCK <= width; left += BLOCK)
            worst = std::max(worst, blockDifference(given, painted, left, top));
    EXPECT_LE(worst, NOISE_MAX) << name;
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

// The icon shows the rider of the pictures, and a window manager takes its sizes on trust.
TEST(PaintedPictures, TheWindowsIconIsTheOneThatIsPainted)
{
    const OwnFolder folder;
    ASSERT_EQ(std::system(PAINTER " --icon ."), 0);
    std::vector<std::uint8_t> given;
    std::vector<std::uint8_t> painted;
    ASSERT_TRUE(readWholeFile(SOURCE_DIR "/packaging/icon/window_icon.argb", 100000, given));
    ASSERT_TRUE(readWholeFile("window_icon.argb", 100000, painted));
    ASSERT_EQ(given.size(), 4U * (8 + 16 * 16 + 32 * 32 + 48 * 48 + 64 * 64));
    ASSERT_EQ(given.size(), painted.size());
    int difference = 0;
    for (std::size_t i = 0; i < given.size(); ++i)
        difference += std::abs(given[i] - painted[i]);
    EXPECT_LE(difference, static_cast<int>(given.size()));
}

// A pixel between figure and key colour would stand as a yellow speck beside the rider.
TEST(PaintedPictures, RidersAreCutOutCleanly)
{
    for (const std::string name : RIDERS) {
        const Picture rider =
            load(SOURCE_DIR "/data/" + name, RIDER_PICTURE_SIZE, RIDER_PICTURE_SIZE, true);
        for (std::size_t at = 0; at < rider.bytes.size(); at += 4) {
            const std::uint8_t* const pixel = &rider.bytes[at];
            EXPECT_FALSE(pixel[3] != 0 && pixel[0] > 200 && pixel[1] > 200 && pixel[2] < 80)
                << name << " pixel " << at / 4;
        }
    }
}
