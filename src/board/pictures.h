#pragma once

#include "app/table.h"
#include "board/sections.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The picture files, and the pictures of single sections and courses made from them: pixels only.

constexpr int BOARD_PICTURE_WIDTH = 1024;
constexpr int BOARD_PICTURE_HEIGHT = 512;
constexpr int RIDER_PICTURE_SIZE = 64;
constexpr int SCORECARD_PICTURE_SIZE = 512;
constexpr int FIXED_COURSE_COUNT = 4;

// Row 0 is the top row. Each row is stored mirrored: column c of the file stands in column
// width - 1 - c. Drawing makes up for it with its texture coordinates.
struct Picture {
    int width = 0;
    int height = 0;
    int components = 3; // 3 RGB, 4 RGBA
    std::vector<std::uint8_t> bytes;
};

extern Picture boardPicture;
extern Table<Picture, SECTION_COUNT> sectionPixels;
extern Table<Picture, FIXED_COURSE_COUNT> coursePixels;

// Reads a JPEG file of the size that picture has (width and height are set by the caller). With
// alpha the key colour, red and green from 230 and blue up to 25, becomes transparent black and any
// other pixel opaque. False if the file can't be opened, decoded or has another size; the reason
// goes to the error stream and picture is left as it was.
bool loadPicture(const char* fileName, Picture& picture, bool withAlpha);

// Dims everything but the road of the section to half brightness. picture is a copy of the board.
void paintSectionPicture(Picture& picture, int section);

// Takes from source each pixel whose red byte is brighter than the target's.
void mergeBrightest(Picture& target, const Picture& source);

// Paints section picture s (0 to 8) from boardPicture; course picture c (0 to 3) from the section
// pictures of a course string up to its "F".
void paintSection(int section);
void paintCourse(int index, std::string_view text);
