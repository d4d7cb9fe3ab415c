#include "board/pictures.h"

#include "app/files.h"

#include <csetjmp>
#include <cstdio>
#include <jerror.h>
#include <jpeglib.h>

// An error inside libjpeg is left by longjmp, so nothing between the setjmp and the jump may have a
// destructor. The record belongs to the caller of the function that sets the jump.
struct JpegReader {
    jpeg_decompress_struct info;
    jpeg_error_mgr errors;
    std::jmp_buf failed;
    const char* fileName;
};

static void failWithMessage(j_common_ptr info)
{
    JpegReader& reader = *static_cast<JpegReader*>(info->client_data);
    char message[JMSG_LENGTH_MAX];
    info->err->format_message(info, message);
    std::fprintf(stderr, "%s: %s\n", reader.fileName, message);
    std::longjmp(reader.failed, 1);
}

// Whether a warning leaves every pixel as it was meant: it is about stray bytes, or about what the
// file says of itself.
static bool isHarmless(int warning)
{
    switch (warning) {
    case JWRN_EXTRANEOUS_DATA:
    case JWRN_ADOBE_XFORM:
    case JWRN_JFIF_MAJOR:
    case JWRN_NOT_SEQUENTIAL:
        return true;
    default:
        return false;
    }
}

// Any other warning means damaged data, most of all a file cut short, whose missing part libjpeg
// would fill with grey. Levels from 0 only trace.
static void failOnDamage(j_common_ptr info, int level)
{
    if (level < 0 && !isHarmless(info->err->msg_code))
        failWithMessage(info);
}

// Whether the header announces the picture that is wanted. Asked before libjpeg sets aside memory
// for it, since a header may announce 65535 by 65535.
static bool isWanted(const JpegReader& reader, int width, int height)
{
    const jpeg_decompress_struct& info = reader.info;
    if (info.image_width != static_cast<JDIMENSION>(width) ||
        info.image_height != static_cast<JDIMENSION>(height)) {
        std::fprintf(stderr, "%s: the picture is %u x %u, wanted %d x %d\n", reader.fileName,
                     info.image_width, info.image_height, width, height);
        return false;
    }
    if (info.num_components != 3) {
        std::fprintf(stderr, "%s: the picture has %d colour components, wanted 3\n",
                     reader.fileName, info.num_components);
        return false;
    }
    return true;
}

static bool isKeyColour(const JSAMPLE* pixel)
{
    return pixel[0] >= 230 && pixel[1] >= 230 && pixel[2] <= 25;
}

// Copies a row of RGB pixels, last one first.
static void copyMirrored(const JSAMPLE* row, int width, bool withAlpha, std::uint8_t* target)
{
    for (int column = width - 1; column >= 0; --column) {
        const JSAMPLE* pixel = row + 3 * column;
        const bool clear = withAlpha && isKeyColour(pixel);
        for (int i = 0; i < 3; ++i)
            *target++ = clear ? 0 : pixel[i];
        if (withAlpha)
            *target++ = clear ? 0 : 255;
    }
}

// Decodes into bytes, which has room for the whole picture. The caller destroys the decompressor.
static bool decode(JpegReader& reader, std::FILE* file, const Picture& wanted, bool withAlpha,
                   std::uint8_t* bytes)
{
    reader.info.err = jpeg_std_error(&reader.errors);
    reader.info.client_data = &reader;
    reader.errors.error_exit = failWithMessage;
    reader.errors.emit_message = failOnDamage;
    if (setjmp(reader.failed))
        return false;

    jpeg_create_decompress(&reader.info);
    jpeg_stdio_src(&reader.info, file);
    jpeg_read_header(&reader.info, TRUE);
    if (!isWanted(reader, wanted.width, wanted.height))
        return false;
    reader.info.out_color_space = JCS_RGB;
    jpeg_start_decompress(&reader.info);
    const j_common_ptr pool = reinterpret_cast<j_common_ptr>(&reader.info);
    const JSAMPARRAY row = reader.info.mem->alloc_sarray(
        pool, JPOOL_IMAGE, static_cast<JDIMENSION>(3 * wanted.width), 1);
    const std::size_t rowSize = static_cast<std::size_t>(wanted.width * (withAlpha ? 4 : 3));
    while (reader.info.output_scanline < reader.info.output_height) {
        std::uint8_t* target = bytes + rowSize * reader.info.output_scanline;
        jpeg_read_scanlines(&reader.info, row, 1);
        copyMirrored(row[0], wanted.width, withAlpha, target);
    }
    jpeg_finish_decompress(&reader.info);
    return true;
}

bool loadPicture(const char* fileName, Picture& picture, bool withAlpha)
{
    std::FILE* file = openForReading(fileName);
    if (!file) {
        std::fprintf(stderr, "can't open %s\n", fileName);
        return false;
    }
    const int components = withAlpha ? 4 : 3;
    std::vector<std::uint8_t> bytes(
        static_cast<std::size_t>(picture.width * picture.height * components));
    JpegReader reader{};
    reader.fileName = fileName;
    const bool decoded = decode(reader, file, picture, withAlpha, bytes.data());
    jpeg_destroy_decompress(&reader.info);
    std::fclose(file);
    if (!decoded)
        return false;
    picture.components = components;
    picture.bytes = std::move(bytes);
    return true;
}
