#include "board/pictures.h"

#include "support/fingerprint.h"
#include "support/own_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <jpeglib.h>

namespace
{

using Bytes = std::vector<std::uint8_t>;

constexpr int BLOCK = 8; // an even block of this size survives JPEG exactly

struct Colour {
    std::uint8_t red, green, blue;
    friend bool operator==(const Colour&, const Colour&) = default;
};

// Reads and writes pictures of a rider's size in a folder of its own.
class PictureFiles : public testing::Test
{
protected:
    // A JPEG of even blocks, coloured in turn.
    static void write(int width, const std::vector<Colour>& colours)
    {
        jpeg_compress_struct info;
        jpeg_error_mgr errors;
        info.err = jpeg_std_error(&errors);
        jpeg_create_compress(&info);
        std::FILE* file = std::fopen(NAME, "wb");
        jpeg_stdio_dest(&info, file);
        info.image_width = static_cast<JDIMENSION>(width);
        info.image_height = RIDER_PICTURE_SIZE;
        info.input_components = 3;
        info.in_color_space = JCS_RGB;
        jpeg_set_defaults(&info);
        jpeg_set_colorspace(&info, JCS_RGB);
        jpeg_set_quality(&info, 100, TRUE);
        jpeg_start_compress(&info, TRUE);
        for (int y = 0; y < RIDER_PICTURE_SIZE; ++y) {
            Bytes row;
            for (int x = 0; x < width; ++x) {
                const int block = y / BLOCK * (width / BLOCK) + x / BLOCK;
                const Colour& colour = colours[static_cast<std::size_t>(block) % colours.size()];
                row.insert(row.end(), {colour.red, colour.green, colour.blue});
            }
            JSAMPROW rows[] = {row.data()};
            jpeg_write_scanlines(&info, rows, 1);
        }
        jpeg_finish_compress(&info);
        jpeg_destroy_compress(&info);
        std::fclose(file);
    }

    // The one line in which the file is refused; the picture is left alone.
    static std::string refusal()
    {
        const Bytes before{1, 2, 3};
        Picture picture{RIDER_PICTURE_SIZE, RIDER_PICTURE_SIZE, 3, before};
        testing::internal::CaptureStderr();
        EXPECT_FALSE(loadPicture(NAME, picture, true));
        EXPECT_EQ(picture.bytes, before);
        EXPECT_EQ(picture.components, 3);
        return testing::internal::GetCapturedStderr();
    }

    static constexpr const char* NAME = "picture.dat";
    OwnFolder folder;
};

TEST_F(PictureFiles, RowsAreMirroredAndTheKeyColourIsClear)
{
    const std::vector<Colour> colours = {
        {230, 230, 25}, {255, 255, 0}, {229, 230, 25}, {230, 229, 25}, {230, 230, 26}};
    write(RIDER_PICTURE_SIZE, colours);
    for (const std::size_t components : {3u, 4u}) {
        Picture picture{RIDER_PICTURE_SIZE, RIDER_PICTURE_SIZE, 3, {}};
        ASSERT_TRUE(loadPicture(NAME, picture, components == 4));
        ASSERT_EQ(picture.bytes.size(), 64 * 64 * components);
        for (std::size_t block = 0; block < 64; ++block) {
            const std::size_t column = block % 8 * BLOCK + 3;
            const std::size_t row = block / 8 * BLOCK;
            const std::uint8_t* const pixel = &picture.bytes[(row * 64 + 63 - column) * components];
            const bool clear = components == 4 && block % 5 < 2;
            EXPECT_EQ((Colour{pixel[0], pixel[1], pixel[2]}), clear ? Colour{} : colours[block % 5])
                << block;
            EXPECT_TRUE(components == 3 || pixel[3] == (clear ? 0 : 255)) << block;
        }
    }
}

TEST_F(PictureFiles, MissingAndDamagedFilesAndOtherSizesAreRefusedInOneLine)
{
    EXPECT_EQ(refusal(), "can't open picture.dat\n");
    write(72, {{1, 2, 3}});
    EXPECT_EQ(refusal(), "picture.dat: the picture is 72 x 64, wanted 64 x 64\n");
    write(64, {{1, 2, 3}});
    const std::uintmax_t whole = std::filesystem::file_size(NAME);
    for (const std::uintmax_t kept : {whole - 2, whole / 2, std::uintmax_t{2}, std::uintmax_t{0}}) {
        std::filesystem::resize_file(NAME, kept);
        const std::string message = refusal();
        EXPECT_TRUE(message.starts_with("picture.dat: ")) << message;
        EXPECT_EQ(std::ranges::count(message, '\n'), 1) << message;
    }
}

// To the pixel, with the oddities of the fill: it misses a few single pixels where the lines of a
// curve touch, and it fills the columns between the upright ends of B's half turn. On a plain board
// the road is 201, all else half of it.
TEST(SectionPictures, AndTheirCoursesAreTheKnownOnes)
{
    constexpr Table<std::uint32_t, SECTION_COUNT> KNOWN = {0xdc2a8b05, 0x69017bc5, 0x1a5b7ed8,
                                                           0x3c235ff8, 0xacf32c88, 0x139c6e58,
                                                           0xe8666e85, 0x8a3fd5c8, 0x982a77c8};
    const auto printOf = [](const Picture& picture) {
        Fingerprint print;
        for (std::size_t at = 0; at < picture.bytes.size(); at += 3)
            print.add(picture.bytes[at]);
        return print.hash;
    };
    boardPicture.bytes.assign(BOARD_PICTURE_WIDTH * BOARD_PICTURE_HEIGHT * 3, 201);
    for (int section = 0; section < SECTION_COUNT; ++section) {
        paintSection(section);
        EXPECT_EQ(printOf(sectionPixels[section]), KNOWN[section]) << section;
    }
    paintCourse(0, "64S5F12"); // up to the finish
    EXPECT_EQ(printOf(coursePixels[0]), 0x8f7a0268u);
}

} // namespace
