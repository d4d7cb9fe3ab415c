#include "jpeg_file.h"

#include <cstdio>

#include <jpeglib.h>

static void keepFullColour(jpeg_compress_struct& jpeg)
{
    for (int part = 0; part < jpeg.num_components; ++part) {
        jpeg.comp_info[part].h_samp_factor = 1;
        jpeg.comp_info[part].v_samp_factor = 1;
    }
}

bool writeJpeg(const std::string& fileName, int width, int height, int quality,
               const std::vector<std::uint8_t>& bytes)
{
    std::FILE* file = std::fopen(fileName.c_str(), "wb");
    if (file == nullptr)
        return false;
    jpeg_compress_struct jpeg{};
    jpeg_error_mgr errors{};
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    jpeg_stdio_dest(&jpeg, file);
    jpeg.image_width = static_cast<JDIMENSION>(width);
    jpeg.image_height = static_cast<JDIMENSION>(height);
    jpeg.input_components = 3;
    jpeg.in_color_space = JCS_RGB;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, quality, TRUE);
    keepFullColour(jpeg);
    jpeg.dct_method = JDCT_ISLOW;
    jpeg.optimize_coding = TRUE;
    jpeg_start_compress(&jpeg, TRUE);
    while (jpeg.next_scanline < jpeg.image_height) {
        const std::size_t start =
            static_cast<std::size_t>(jpeg.next_scanline) * jpeg.image_width * 3;
        JSAMPROW row = const_cast<JSAMPROW>(bytes.data() + start);
        jpeg_write_scanlines(&jpeg, &row, 1);
    }
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    return std::fclose(file) == 0;
}
