#include "race/event_deck.h"
#include "screen/support/drawn_texts.h"
#include "screen/support/player.h"
#include "screen/support/scenes.h"
#include "store/golden_files.h"
#include "ui/cameras.h"
#include "ui/dialogs.h"
#include "ui/frame.h"
#include "ui/manual_pages.h"
#include "ui/matrices.h"
#include "ui/scale.h"
#include "ui/team_setup.h"
#include "ui/text.h"

#include <cstdlib>
#include <fstream>
#include <map>

// Every scene in every language. On every monitor and in every window down to 640 by 480 each
// control lies in the drawing area, clear of the others that act, and holds its label; and from 800
// by 600 on each text has its room. With GRAVELON_GALLERY naming a folder pictures are left there,
// to be looked at.

namespace
{

// Heights of windows, the smallest and those of the usual monitors at their scales. The drawing
// area has the same shape in each, and everything else follows from it.
constexpr int HEIGHTS[] = {480, 501,  512,  533,  540,  576,  600,  621,  640,
                           666, 682,  720,  752,  768,  777,  800,  864,  900,
                           960, 1000, 1024, 1050, 1080, 1200, 1440, 2160, 2880};

constexpr const char* LANGUAGE_LETTERS[] = {"de", "en", "fr", "nl"};

// An edge in common, and less than a pixel, is not in the way.
bool inTheWay(const Rect& a, const Rect& b)
{
    constexpr float touch = 1.0f;
    return a.x + a.w - b.x > touch && b.x + b.w - a.x > touch && a.y + a.h - b.y > touch &&
           b.y + b.h - a.y > touch;
}

bool isInside(const Rect& inner, const Rect& outer)
{
    constexpr float hair = 0.6f;
    return inner.x >= outer.x - hair && inner.y >= outer.y - hair &&
           inner.x + inner.w <= outer.x + outer.w + hair &&
           inner.y + inner.h <= outer.y + outer.h + hair;
}

Rect drawingArea()
{
    return {0.0f, 0.0f, static_cast<float>(layout.viewW), static_cast<float>(layout.viewH)};
}

bool isLarge()
{
    return layout.viewW >= 1280;
}

// The label of a box or a circle stands beside it, as far as it goes in a small window.
bool holdsItsLabel(Control control)
{
    const bool isBox = control == CONTROL_SPRINT || control == CONTROL_FINISH ||
                       (control >= CONTROL_COMPUTER_1 && control <= CONTROL_EVENT_CARDS) ||
                       (control >= CONTROL_SMOOTH && control <= CONTROL_RATIO_1610);
    const float labelW = static_cast<float>(textWidth(controlLabel(control), FONT_BODY));
    return control == CONTROL_BREAKAWAY || (isBox && !isLarge()) || labelW <= placeOf(control).w;
}

void expectControlsInTheirPlaces()
{
    for (const Control control : everyControl()) {
        if (!isLive(control))
            continue;
        const Rect place = placeOf(control);
        EXPECT_TRUE(isInside(place, drawingArea())) << "control " << control;
        EXPECT_TRUE(holdsItsLabel(control)) << controlLabel(control);
        for (const Control other : everyControl())
            EXPECT_FALSE(other > control && isLive(other) && inTheWay(place, placeOf(other)))
                << "controls " << control << " and " << other;
    }
}

// A text may stand within a control, or clear of it. As its label it is grey unless the control
// acts.
void expectBesideControls(const DrawnText& text)
{
    bool labels = false;
    bool live = false;
    for (const Control control : everyControl()) {
        const Rect place = placeOf(control);
        const bool inside = isInside(text.place, place);
        if (text.words != controlLabel(control)) {
            EXPECT_FALSE(isLive(control) && inTheWay(text.place, place) && !inside)
                << text.words << ", control " << control;
        } else if (inside) {
            labels = true;
            live |= isLive(control);
        }
    }
    EXPECT_TRUE(!labels || live == (text.colour != pixelOf(disabledGrey))) << text.words;
}

// No word runs out of what it stands on nor, on a large screen, into another. What lies under a box
// isn't looked at, and the numbers on pawns are told from the pawn's middle.
void expectWordsInTheirPlaces()
{
    const bool sheet = scorecardShown();
    const Rect paper = sheet ? scorecardBox() : dialogShown() ? dialogBox() : drawingArea();
    std::vector<DrawnText> seen;
    for (const DrawnText& text : drawnTexts())
        if (!text.words.empty() && text.onBox == (sheet || dialogShown()) && text.place.x > 10.0f)
            seen.push_back(text);
    for (std::size_t i = 0; i < seen.size(); ++i) {
        const DrawnText& text = seen[i];
        EXPECT_TRUE(isInside(text.place, paper)) << text.words;
        expectBesideControls(text);
        for (std::size_t k = 0; k < i && isLarge() && text.words.size() > 2; ++k)
            EXPECT_FALSE(seen[k].words.size() > 2 && inTheWay(text.place, seen[k].place))
                << text.words << " and " << seen[k].words;
    }
}

// As much to say as there can be.
void setWordyScene(Scene scene, int language)
{
    setScene(scene, language);
    if (scene == Scene::DOPING_DRAW)
        race.dopingNumber = filled<int, RIDER_COUNT>(3);
    if (scene == Scene::SCORECARD || scene == Scene::GENERAL)
        view.exportStatus = EXPORT_FAILED;
    if (scene == Scene::SAVE_FAILED)
        raceSetup.raceFileName = std::string(20, 'W') + " " + std::string(200, 'W');
    if (scene == Scene::SETUP_MESSAGE && layout.viewW >= 1024)
        teamSetup.setupMessages.back() = withName(texts.raceNameExists, "WWWWWWWWWWWW");
}

void expectEverythingInItsPlace(Scene scene, int language)
{
    setWordyScene(scene, language);
    paginateManual();
    expectControlsInTheirPlaces();
    if (layout.viewH < 600)
        return;
    expectWordsInTheirPlaces();
    for (int card = 1; scene == Scene::EVENT_CARD && card < EVENT_CARD_COUNT; ++card) {
        deck.eventCardPos = card;
        expectWordsInTheirPlaces();
    }
}

void write(const Image& image, const std::filesystem::path& file)
{
    std::ofstream out(file, std::ios::binary);
    out << "P6 " << image.width << ' ' << image.height << " 255\n";
    out.write(reinterpret_cast<const char*>(image.bytes.data()),
              static_cast<std::streamsize>(image.bytes.size()));
}

// Adds an image to the bottom of another, each block of pixels by its mean.
void addShrunk(Image& sheet, const Image& image)
{
    constexpr int BLOCK = 16;
    sheet.width = image.width / BLOCK;
    sheet.height += image.height / BLOCK;
    for (int top = 0; top < image.height; top += BLOCK)
        for (int left = 0; left < image.width; left += BLOCK) {
            Pixel sum = {BLOCK * BLOCK / 2, BLOCK * BLOCK / 2, BLOCK * BLOCK / 2};
            for (int i = 0; i < BLOCK * BLOCK; ++i) {
                const Pixel pixel = image.at(left + i % BLOCK, top + i / BLOCK);
                sum = {sum.red + pixel.red, sum.green + pixel.green, sum.blue + pixel.blue};
            }
            for (const int part : {sum.red, sum.green, sum.blue})
                sheet.bytes.push_back(static_cast<std::uint8_t>(part / (BLOCK * BLOCK)));
        }
}

// Beside the drawing area stand black bars, into which nothing may run.
bool barsAreBlack(const Image& image)
{
    const int right = layout.viewX + layout.viewW;
    for (int y = 0; y < image.height; ++y)
        for (int x = 0; x < image.width; ++x)
            if ((x < layout.viewX || x > right) && image.at(x, y) != Pixel{0, 0, 0})
                return false;
    return true;
}

using Shapes = ScreenTest;
using Gallery = ScreenTest;

} // namespace

TEST_F(Shapes, EverythingHasItsRoomOnEveryMonitor)
{
    resizeScreen(64, 48); // so that painting takes no time
    for (const int height : HEIGHTS) {
        takeWindowSize(height * 5 / 4, height);
        computeLayout(height * 5 / 4, height);
        computeMatrices();
        for (const Scene scene : everyScene())
            for (int language = 0; language < LANGUAGE_COUNT; ++language) {
                SCOPED_TRACE(std::to_string(height) + " " + nameOf(scene) + " " +
                             LANGUAGE_LETTERS[language]);
                expectEverythingInItsPlace(scene, language);
            }
    }
}

// On a screen of the drawing area's shape there are no bars: without anybody to look at the
// pictures, it is left out, and so are the other languages.
TEST_F(Gallery, EverySceneLeavesTheBarsBlack)
{
    const char* gallery = std::getenv("GRAVELON_GALLERY");
    for (const auto& [width, height] : {std::pair{1280, 1024}, {1920, 1080}, {1024, 768}}) {
        if (!gallery && width == 1280)
            continue;
        startProgram(width, height);
        for (int language = 0; language < (gallery ? LANGUAGE_COUNT : 1); ++language)
            for (const Scene scene : everyScene()) {
                setScene(scene, language);
                drawFrame();
                const Image image = screenshot();
                const std::string name = std::string(LANGUAGE_LETTERS[language]) + "_" +
                                         std::to_string(width) + "_" + nameOf(scene);
                EXPECT_TRUE(barsAreBlack(image)) << name;
                if (gallery)
                    write(image, here.before / gallery / (name + ".ppm"));
            }
    }
}

// As in a file that is kept: every scene, and one of them under all cameras. It was taken with
// Mesa's llvmpipe, which rounds a little differently on other processors; other drivers do more.
TEST_F(Gallery, EverySceneLooksAsItDid)
{
    constexpr int NOISE_MAX = 1;
    Image seen;
    std::vector<std::string> names;
    const auto look = [&](const std::string& name) {
        drawFrame();
        addShrunk(seen, screenshot());
        names.push_back(name);
    };
    for (const Scene scene : everyScene()) {
        setScene(scene, LANGUAGE_ENGLISH);
        look(nameOf(scene));
    }
    setScene(Scene::POSITIONS, LANGUAGE_ENGLISH);
    race.riders[4].offBoard = 1;
    look("a rider off the board");
    setScene(Scene::TURN, LANGUAGE_ENGLISH);
    race.sprintWinner = 4;
    for (int& camera = view.cameraIndex;
         camera < FIRST_PERSPECTIVE_CAMERA + PERSPECTIVE_CAMERA_COUNT; ++camera) {
        view.viewMode = camera < FIRST_PERSPECTIVE_CAMERA ? VIEW_FLAT : VIEW_PERSPECTIVE;
        look("camera " + std::to_string(camera));
    }
    if (const char* gallery = std::getenv("GRAVELON_GALLERY"))
        write(seen, here.before / gallery / "scenes.ppm");
    const std::string kept = bytesOfFile(SOURCE_DIR "/tests/screen/golden/scenes.ppm");
    ASSERT_GT(kept.size(), seen.bytes.size());
    const char* const wanted = &kept[kept.size() - seen.bytes.size()];
    std::map<std::string, int> changed; // bytes of each picture
    for (std::size_t i = 0; i < seen.bytes.size(); ++i)
        if (std::abs(static_cast<std::uint8_t>(wanted[i]) - seen.bytes[i]) > NOISE_MAX)
            ++changed[names[i * names.size() / seen.bytes.size()]];
    for (const auto& [name, bytes] : changed)
        ADD_FAILURE() << name << " looks otherwise, in " << bytes << " bytes";
}
