#include "app/game_state.h"
#include "app/settings.h"
#include "race/event_deck.h"
#include "race/race_state.h"
#include "screen/support/drawn_texts.h"
#include "screen/support/player.h"
#include "screen/support/scenes.h"
#include "support/own_folder.h"
#include "ui/controls.h"
#include "ui/dialogs.h"
#include "ui/frame.h"
#include "ui/layout.h"
#include "ui/places.h"
#include "ui/team_setup.h"
#include "ui/text.h"
#include "ui/texts.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

// Every state in every language. With GRAVELON_GALLERY naming a folder the pictures are left there,
// to be looked at.

namespace
{

constexpr const char* LANGUAGE_LETTERS[] = {"de", "en", "fr", "nl"};

void write(const Image& image, const std::filesystem::path& file)
{
    std::ofstream out(file, std::ios::binary);
    out << "P6 " << image.width << ' ' << image.height << " 255\n";
    for (const std::uint8_t byte : image.bytes)
        out.put(static_cast<char>(byte));
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

bool within(const Rect& inner, const Rect& outer)
{
    return inner.x >= outer.x && inner.y >= outer.y && inner.x + inner.w <= outer.x + outer.w &&
           inner.y + inner.h <= outer.y + outer.h;
}

// A word that can be pressed is black or white, one that can't is grey.
void expectBrightIfLive(const DrawnText& text)
{
    bool labels = false;
    bool live = false;
    for (int i = 0; i < CONTROL_COUNT; ++i) {
        const Control control = static_cast<Control>(i);
        if (text.words != controlLabel(control) || !within(text.place, placeOf(control)))
            continue;
        labels = true;
        live |= isLive(control);
    }
    EXPECT_TRUE(!labels || live == (text.colour != pixelOf(disabledGrey))) << text.words;
}

// As much to say as there can be.
void setWordyScene(Scene scene, int language)
{
    setScene(scene, language);
    if (scene == SCENE_DOPING_DRAW)
        race.dopingNumber = filled<int, RIDER_COUNT>(3);
    if (scene == SCENE_SAVE_FAILED)
        raceSetup.raceFileName = std::string(20, 'W') + " " + std::string(200, 'W');
    if (scene == SCENE_SETUP_MESSAGE)
        teamSetup.setupMessages.back() = withName(texts.raceNameExists, "WWWWWWWWWWWW");
}

// No word runs out of what it stands on nor, on a screen of the size drawn for, into another. What
// lies under a box isn't looked at.
void expectWordsInTheirPlaces()
{
    const Rect screen = {0.0f, 0.0f, static_cast<float>(layout.viewW),
                         static_cast<float>(layout.viewH)};
    const bool sheet = scorecardShown();
    const Rect paper = sheet ? scorecardBox() : dialogShown() ? dialogBox() : screen;
    std::vector<DrawnText> seen;
    for (const DrawnText& text : drawnTexts())
        if (text.onBox == (sheet || dialogShown()) && text.words.size() > 2) // no pawns and cards
            seen.push_back(text);
    for (std::size_t i = 0; i < seen.size(); ++i) {
        EXPECT_TRUE(within(seen[i].place, paper)) << seen[i].words;
        expectBrightIfLive(seen[i]);
        for (std::size_t k = 0; k < i; ++k)
            EXPECT_FALSE(layout.viewW >= 1280 && overlap(seen[i].place, seen[k].place))
                << seen[i].words << " and " << seen[k].words;
    }
}

} // namespace

TEST(Gallery, WordsStayInTheirPlacesAndAreBrightWhereTheyAct)
{
    const OwnFolder folder;
    for (const int width : {1024, 1280}) {
        startProgram(width, width == 1280 ? 1024 : 768);
        for (int language = 0; language < LANGUAGE_COUNT; ++language)
            for (int i = 0; i < SCENE_COUNT; ++i) {
                const Scene scene = static_cast<Scene>(i);
                SCOPED_TRACE(std::string(nameOf(scene)) + " " + LANGUAGE_LETTERS[language] + " " +
                             std::to_string(width));
                setWordyScene(scene, language);
                expectWordsInTheirPlaces();
                for (deck.eventCardPos = 0;
                     scene == SCENE_EVENT_CARD && deck.eventCardPos < EVENT_CARD_COUNT;)
                    expectWordsInTheirPlaces(), ++deck.eventCardPos;
            }
    }
    for (settings.language = 0; settings.language < LANGUAGE_COUNT; ++settings.language) {
        loadTexts();
        for (int i = 0; i < CONTROL_COUNT; ++i) {
            const Control control = static_cast<Control>(i);
            if (control != CONTROL_BREAKAWAY) {
                EXPECT_LE(static_cast<float>(textWidth(controlLabel(control), FONT_BODY) + 2),
                          placeOf(control).w)
                    << controlLabel(control);
            }
        }
    }
    settings = {};
    loadTexts();
}

// On a screen of the drawing area's shape there are no bars: without anybody to look at the
// pictures, it is left out, and so are three of four on the others.
TEST(Gallery, NothingRunsIntoTheBars)
{
    const char* gallery = std::getenv("GRAVELON_GALLERY");
    const std::filesystem::path pictures = gallery ? std::filesystem::absolute(gallery) : "";
    const OwnFolder folder;
    for (const auto& [width, height] : {std::pair{1280, 1024}, {1920, 1080}, {1024, 768}}) {
        if (!gallery && width == 1280)
            continue;
        startProgram(width, height);
        for (int language = 0; language < LANGUAGE_COUNT; ++language)
            for (int scene = 0; scene < SCENE_COUNT; ++scene) {
                if (!gallery && (scene + language) % LANGUAGE_COUNT != 0)
                    continue;
                setScene(static_cast<Scene>(scene), language);
                drawFrame();
                const Image image = screenshot();
                const std::string name = std::string(LANGUAGE_LETTERS[language]) + "_" +
                                         std::to_string(width) + "_" +
                                         nameOf(static_cast<Scene>(scene));
                EXPECT_TRUE(barsAreBlack(image)) << name;
                if (gallery)
                    write(image, pictures / (name + ".ppm"));
            }
    }
    settings = {};
    loadTexts();
}

// The German one is wider than the space between its box and the button of the extra die.
TEST(Gallery, TheBreakawayLabelDoesNotRunUnderTheExtraThrow)
{
    startProgram(1280, 1024);
    const Rect box = placeOf(CONTROL_BREAKAWAY);
    const Rect below = {box.x - 1.0f, box.y + box.h, box.w, 20.0f};
    for (const int language : {LANGUAGE_GERMAN, LANGUAGE_ENGLISH}) {
        setScene(SCENE_TURN_WITH_CARD, language);
        EXPECT_EQ(wordsAt(below), "");
        setScene(SCENE_EVENT_DIE, language);
        EXPECT_EQ(wordsAt(below), language == LANGUAGE_GERMAN ? texts.breakaway : "");
    }
}
