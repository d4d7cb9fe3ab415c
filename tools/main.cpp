#include "board_picture.h"
#include "jpeg_file.h"
#include "riders.h"
#include "sheet.h"

#include "board/pictures.h"

#include <cstdio>
#include <string>

// Paints the pictures that the game is given into a folder: painter <folder>.
int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: painter <folder>\n");
        return 2;
    }
    const std::string folder = std::string(argv[1]) + "/";
    bool written = writeJpeg(folder + "board.dat", BOARD_PICTURE_WIDTH, BOARD_PICTURE_HEIGHT, 95,
                             paintBoard());
    for (int i = 0; i < RIDER_PICTURE_COUNT; ++i) {
        // At full quality: what is key colour has to stay key colour.
        written = writeJpeg(folder + "cyclist" + std::to_string(i) + ".dat", RIDER_PICTURE_SIZE,
                            RIDER_PICTURE_SIZE, 100, paintRider(i)) &&
                  written;
    }
    written = writeJpeg(folder + "scorecard.dat", SCORECARD_PICTURE_SIZE, SCORECARD_PICTURE_SIZE,
                        95, paintSheet()) &&
              written;
    if (!written)
        std::fprintf(stderr, "painter: can't write the pictures into %s\n", argv[1]);
    return written ? 0 : 1;
}
