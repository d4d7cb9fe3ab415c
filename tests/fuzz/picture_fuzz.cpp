#include "fuzz/fuzz_input.h"

#include "board/pictures.h"

// A picture is loaded whole or not at all.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    putInput("picture.dat", bytes, size);
    Picture picture{.width = RIDER_PICTURE_SIZE, .height = RIDER_PICTURE_SIZE};
    const bool loaded = loadPicture("picture.dat", picture, true);
    const std::size_t pixels = static_cast<std::size_t>(RIDER_PICTURE_SIZE) * RIDER_PICTURE_SIZE;
    require(picture.bytes.size() == (loaded ? 4 * pixels : 0));
    return 0;
}
