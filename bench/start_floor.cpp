// The floor of the game's start: the same window, the same seven files decoded, the same textures
// built. Then it fills the screen with the grey of the menu's buttons and rests.

#include <GL/freeglut.h>

#include <cstdio>
#include <cstdlib>
#include <jpeglib.h>
#include <vector>

constexpr int TEXTURE_COUNT = 8;
constexpr float GREY = 178.0f / 255.0f;

struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<unsigned char> bytes;
};

static Pixels decode(const char* fileName)
{
    std::FILE* file = std::fopen(fileName, "rb");
    if (!file)
        std::exit(1);
    jpeg_decompress_struct info{};
    jpeg_error_mgr errors{};
    info.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&info);
    jpeg_stdio_src(&info, file);
    jpeg_read_header(&info, TRUE);
    jpeg_start_decompress(&info);
    const std::size_t rowSize = 3 * static_cast<std::size_t>(info.output_width);
    Pixels pixels{static_cast<int>(info.output_width), static_cast<int>(info.output_height), {}};
    pixels.bytes.resize(rowSize * info.output_height);
    while (info.output_scanline < info.output_height) {
        JSAMPROW row = pixels.bytes.data() + rowSize * info.output_scanline;
        jpeg_read_scanlines(&info, &row, 1);
    }
    jpeg_finish_decompress(&info);
    jpeg_destroy_decompress(&info);
    std::fclose(file);
    return pixels;
}

// Riders' pictures have a fourth byte a pixel.
static Pixels withAlpha(const Pixels& pixels)
{
    Pixels wider{pixels.width, pixels.height, {}};
    for (std::size_t i = 0; i < pixels.bytes.size(); i += 3)
        wider.bytes.insert(wider.bytes.end(),
                           {pixels.bytes[i], pixels.bytes[i + 1], pixels.bytes[i + 2], 255});
    return wider;
}

static void buildTexture(unsigned name, const Pixels& pixels, int components)
{
    glBindTexture(GL_TEXTURE_2D, name);
    gluBuild2DMipmaps(GL_TEXTURE_2D, components, pixels.width, pixels.height,
                      components == 4 ? GL_RGBA : GL_RGB, GL_UNSIGNED_BYTE, pixels.bytes.data());
}

static void buildTextures()
{
    unsigned names[TEXTURE_COUNT];
    glGenTextures(TEXTURE_COUNT, names);
    const Pixels board = decode("board.dat");
    buildTexture(names[0], board, 3);
    buildTexture(names[7], board, 3);
    char fileName[] = "cyclist0.dat";
    for (unsigned rider = 0; rider < 5; ++rider) {
        fileName[7] = static_cast<char>('0' + rider);
        buildTexture(names[1 + rider], withAlpha(decode(fileName)), 4);
    }
    buildTexture(names[6], decode("scorecard.dat"), 3);
}

static void onDisplay()
{
    const bool fullScreen = glutGet(GLUT_WINDOW_WIDTH) >= glutGet(GLUT_SCREEN_WIDTH) &&
                            glutGet(GLUT_WINDOW_HEIGHT) >= glutGet(GLUT_SCREEN_HEIGHT);
    const float shade = fullScreen ? GREY : 0.0f;
    glClearColor(shade, shade, shade, 0.0f);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glutSwapBuffers();
}

int main(int argc, char** argv)
{
    glutInit(&argc, argv);
    glutInitDisplayMode(GLUT_DOUBLE | GLUT_DEPTH);
    glutInitWindowPosition(0, 0);
    glutInitWindowSize(1280, 960);
    glutCreateWindow("Gravelon's floor");
    glutDisplayFunc(onDisplay);
    glutFullScreen();
    buildTextures();
    glutMainLoop();
    return 0;
}
