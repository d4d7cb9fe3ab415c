#include "board/pictures.h"

#include "support/fingerprint.h"
#include "support/own_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <jpeglib.h>
#include <sys/stat.h>

namespace
{

using Bytes = std::vector<std::uint8_t>;

constexpr int BLOCK = 8; // an even block of this size survives JPEG exactly

struct Colour {
    int red, green, blue;
    friend bool operator==(const Colour&, const Colour&) = default;
};

// A JPEG of even blocks, coloured in turn. space is RGB, or grey or CMYK for files to be refused.
Bytes jpegOf(int width, int height, const std::vector<Colour>& colours, J_COLOR_SPACE space)
{
    jpeg_compress_struct info;
    jpeg_error_mgr errors;
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    unsigned char* data = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&info, &data, &size);
    info.image_width = static_cast<JDIMENSION>(width);
    info.image_height = static_cast<JDIMENSION>(height);
    info.input_components = space == JCS_GRAYSCALE ? 1 : space == JCS_CMYK ? 4 : 3;
    info.in_color_space = space;
    jpeg_set_defaults(&info);
    jpeg_set_colorspace(&info, space);
    jpeg_set_quality(&info, 100, TRUE);
    jpeg_start_compress(&info, TRUE);
    for (int y = 0; y < height; ++y) {
        Bytes row;
        for (int x = 0; x < width; ++x) {
            const std::size_t block =
                static_cast<std::size_t>(y / BLOCK * (width / BLOCK) + x / BLOCK);
            const Colour colour = colours[block % colours.size()];
            const int samples[] = {colour.red, colour.green, colour.blue, 0};
            for (int i = 0; i < info.input_components; ++i)
                row.push_back(static_cast<std::uint8_t>(samples[i]));
        }
        JSAMPROW rows[] = {row.data()};
        jpeg_write_scanlines(&info, rows, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    Bytes bytes(data, data + size);
    std::free(data);
    return bytes;
}

Bytes riderJpeg()
{
    return jpegOf(RIDER_PICTURE_SIZE, RIDER_PICTURE_SIZE,
                  {{10, 20, 30}, {200, 100, 50}, {90, 0, 90}}, JCS_RGB);
}

// The colour at a column of the file, so counted from the right in the buffer.
Colour colourAt(const Picture& picture, int fileColumn, int row)
{
    const int column = picture.width - 1 - fileColumn;
    const std::size_t at =
        static_cast<std::size_t>((row * picture.width + column) * picture.components);
    return {picture.bytes[at], picture.bytes[at + 1], picture.bytes[at + 2]};
}

// Reads pictures of a rider's size in a folder of its own.
class PictureFiles : public testing::Test
{
protected:
    static void write(const Bytes& bytes)
    {
        std::ofstream(NAME, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), std::ssize(bytes));
    }

    static Picture loaded(const Bytes& bytes, bool withAlpha = false)
    {
        write(bytes);
        Picture picture{RIDER_PICTURE_SIZE, RIDER_PICTURE_SIZE, 3, {}};
        EXPECT_TRUE(loadPicture(NAME, picture, withAlpha));
        EXPECT_EQ(picture.bytes.size(), 64u * 64u * (withAlpha ? 4 : 3));
        return picture;
    }

    // The one line in which the file is refused, with its name; the picture is left alone.
    static std::string refusal()
    {
        const Bytes before{1, 2, 3};
        Picture picture{RIDER_PICTURE_SIZE, RIDER_PICTURE_SIZE, 3, before};
        testing::internal::CaptureStderr();
        EXPECT_FALSE(loadPicture(NAME, picture, true));
        const std::string message = testing::internal::GetCapturedStderr();
        EXPECT_EQ(picture.bytes, before);
        EXPECT_EQ(picture.components, 3);
        EXPECT_NE(message.find(NAME), std::string::npos) << message;
        EXPECT_EQ(std::ranges::count(message, '\n'), 1) << message;
        return message;
    }
    static std::string refusalOf(const Bytes& bytes)
    {
        write(bytes);
        return refusal();
    }

    static constexpr const char* NAME = "picture.dat";
    OwnFolder folder;
};

TEST_F(PictureFiles, RowsAreMirroredAndStayInOrder)
{
    const Picture picture = loaded(riderJpeg());
    EXPECT_EQ(picture.bytes[0], colourAt(picture, 63, 0).red);
    EXPECT_EQ(colourAt(picture, 0, 0), (Colour{10, 20, 30}));
    EXPECT_EQ(colourAt(picture, 8, 0), (Colour{200, 100, 50}));
    EXPECT_EQ(colourAt(picture, 63, 0), (Colour{200, 100, 50})); // block 7 of the first row
    EXPECT_EQ(colourAt(picture, 0, 8), (Colour{90, 0, 90}));     // block 8 opens the second row
}

TEST_F(PictureFiles, StrayBytesBeforeAMarkerHarmNoPixel)
{
    const Bytes bytes = riderJpeg();
    for (const std::ptrdiff_t at : {std::ssize(bytes) - 2, std::ptrdiff_t{2}}) {
        Bytes stray = bytes;
        stray.insert(stray.begin() + at, {1, 2, 3});
        EXPECT_EQ(loaded(stray).bytes, loaded(bytes).bytes) << at;
    }
}

TEST_F(PictureFiles, KeyColourEndsExactly)
{
    const std::vector<Colour> colours = {
        {230, 230, 25}, {255, 255, 0}, {229, 230, 25}, {230, 229, 25}, {230, 230, 26}};
    const Picture picture =
        loaded(jpegOf(RIDER_PICTURE_SIZE, RIDER_PICTURE_SIZE, colours, JCS_RGB), true);
    for (int block = 0; block < 5; ++block) {
        const bool clear = block < 2;
        const int column = block * BLOCK + 3;
        EXPECT_EQ(colourAt(picture, column, 3),
                  clear ? Colour{} : colours[static_cast<std::size_t>(block)]);
        const std::size_t alpha = static_cast<std::size_t>((3 * 64 + 63 - column) * 4 + 3);
        EXPECT_EQ(picture.bytes[alpha], clear ? 0 : 255) << block;
    }
}

TEST_F(PictureFiles, WhatIsNoReadableFileIsRefusedWithoutWaiting)
{
    EXPECT_EQ(refusal(), "can't open picture.dat\n");
    std::filesystem::create_directory(NAME);
    refusal();
    std::filesystem::remove(NAME);
    ASSERT_EQ(mkfifo(NAME, 0600), 0);
    refusal();
}

TEST_F(PictureFiles, DamagedFilesAndOtherSizesAndColoursAreRefused)
{
    const Bytes good = riderJpeg();
    refusalOf({});
    refusalOf({0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13});
    for (const std::size_t kept : {good.size() / 8, good.size() / 2, good.size() - 2})
        refusalOf(Bytes(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(kept)));

    const std::string message = refusalOf(jpegOf(72, 64, {{1, 2, 3}}, JCS_RGB));
    EXPECT_NE(message.find("72 x 64"), std::string::npos) << message;
    EXPECT_NE(message.find("64 x 64"), std::string::npos) << message;
    refusalOf(jpegOf(64, 64, {{1, 2, 3}}, JCS_GRAYSCALE));
    refusalOf(jpegOf(64, 64, {{1, 2, 3}}, JCS_CMYK));

    Bytes huge = good; // announces 65500 by 65500
    const std::uint8_t frame[] = {0xFF, 0xC0};
    const auto at = std::search(huge.begin(), huge.end(), std::begin(frame), std::end(frame));
    ASSERT_LT(at + 9, huge.end());
    at[5] = at[7] = 0xFF;
    at[6] = at[8] = 0xDC;
    EXPECT_NE(refusalOf(huge).find("65500 x 65500"), std::string::npos);
}

TEST_F(PictureFiles, AnyBrokenByteIsHarmless)
{
    const Bytes good = riderJpeg();
    for (std::size_t i = 0; i < good.size(); ++i) {
        Bytes broken = good;
        broken[i] = static_cast<std::uint8_t>(broken[i] ^ (i % 3 == 0 ? 0xFF : 1 << (i % 8)));
        write(broken);
        Picture picture{RIDER_PICTURE_SIZE, RIDER_PICTURE_SIZE, 3, {}};
        testing::internal::CaptureStderr();
        const bool read = loadPicture(NAME, picture, true);
        testing::internal::GetCapturedStderr();
        EXPECT_EQ(picture.bytes.size(), read ? 64u * 64u * 4u : 0u) << "byte " << i;
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

TEST(CoursePictures, MergingComparesRedAlone)
{
    Picture target{3, 1, 3, {10, 200, 200, 10, 20, 30, 10, 1, 1}};
    mergeBrightest(target, {3, 1, 3, {11, 0, 0, 10, 99, 99, 9, 255, 255}});
    EXPECT_EQ(target.bytes, (Bytes{11, 0, 0, 10, 20, 30, 10, 1, 1}));
}

} // namespace
