#include "board_picture.h"
#include "icon.h"
#include "jpeg_file.h"
#include "riders.h"
#include "sheet.h"

#include "board/pictures.h"

#include <cstdio>
#include <string>

static bool paintPictures(const std::string& folder)
{
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
    return written;
}

// Paints the pictures that the game is given into a folder, or the program's icon:
// painter [--icon] <folder>.
int main(int argc, char** argv)
{
    const bool icon = argc == 3 && std::string(argv[1]) == "--icon";
    if (argc != 2 && !icon) {
        std::fprintf(stderr, "usage: painter [--icon] <folder>\n");
        return 2;
    }
    const std::string folder = std::string(argv[argc - 1]) + "/";
    const bool written = icon ? paintIcons(folder) : paintPictures(folder);
    if (!written)
        std::fprintf(stderr, "painter: can't write into %s\n", argv[argc - 1]);
    return written ? 0 : 1;
}
