#include "app/game_state.h"
#include "app/settings.h"
#include "race/event_deck.h"
#include "race/race_state.h"
#include "screen/support/gl_window.h"
#include "screen/support/scenes.h"
#include "support/own_folder.h"
#include "screen/support/old_places.h"
#include "ui/event_texts.h"
#include "ui/frame.h"
#include "ui/layout.h"
#include "ui/team_setup.h"
#include "ui/text.h"
#include "ui/texts.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

// Every state in every language, on three screens. With GRAVELON_GALLERY naming a folder the
// pictures are left there, to be looked at.

namespace
{

struct ScreenSize {
    int width, height;
};

constexpr ScreenSize SIZES[] = {{1280, 1024}, {1920, 1080}, {1024, 768}};
constexpr ScreenSize DESIGN_SIZE = SIZES[0];
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

// The label of a button, of which a pixel at either end is to stay free.
struct ButtonLabel {
    std::string Texts::*label;
    Rect (*at)();
};

// clang-format off
constexpr ButtonLabel BUTTON_LABELS[] = {
    {&Texts::languageSelection, menuLanguageButton},
    {&Texts::manualButton,      menuManualButton},
    {&Texts::settings,          menuSettingsButton},
    {&Texts::continueRace,      menuContinueButton},
    {&Texts::start,             menuStartButton},
    {&Texts::exit,              exitButton},
    {&Texts::teamBack,          cornerButton},
    {&Texts::useSavedCourse,    savedCourseButton},
    {&Texts::createNewCourse,   newCourseButton},
    {&Texts::courseBack,        cornerButton},
    {&Texts::previousSection,   prevSectionButton},
    {&Texts::addSection,        addSectionButton},
    {&Texts::saveCourse,        saveCourseButton},
    {&Texts::previousCourse,    prevCourseButton},
    {&Texts::nextCourse,        nextCourseButton},
    {&Texts::savedBack,         savedBackButton},
    {&Texts::previousPage,      prevPageButton},
    {&Texts::nextPage,          nextPageButton},
    {&Texts::throwDice,         throwButton},
    {&Texts::throwDice,         extraThrowButton},
    {&Texts::next,              throwButton},
    {&Texts::scorecard,         scorecardButton},
    {&Texts::positions,         positionsButton},
    {&Texts::doping,            dopingButton},
    {&Texts::settings,          settingsButton},
    {&Texts::quit,              quitButton},
    {&Texts::quit,              scorecardOkButton},
    {&Texts::yes,               dialogLeftButton},
    {&Texts::no,                dialogRightButton},
    {&Texts::blue,              dialogLeftButton},
    {&Texts::white,             dialogRightButton},
    {&Texts::immediately,       dialogLeftButton},
    {&Texts::later,             dialogRightButton},
    {&Texts::defaultValues,     defaultButton},
    {&Texts::cancel,            settingsCancelButton},
    {&Texts::scorecard,         listScorecardButton},
    {&Texts::retry,             dialogLeftButton},
    {&Texts::abort,             dialogRightButton},
};

// The label of a box or a circle, and where it has to end.
struct SideLabel {
    std::string Texts::*label;
    float (*left)();
    float (*end)();
};

float besideBox(const Rect& box) { return box.x + 1.15f * aspectFix() * box.h; }
float rightEdge()                { return static_cast<float>(layout.viewW); }
float afterRadio(float x)        { return x + layout.settingsRowH; }
float settingsEdge()             { return movementFrame().x + movementFrame().w; }
float ratioEdge()                { return ratioFrame().x + ratioFrame().w; }
float fieldLabel()               { return layout.movementRadioX + layout.settingsRowH * 1.5f; }

const SideLabel SIDE_LABELS[] = {
    {&Texts::computerPlayer,   [] { return besideBox(teamComputerBox(0)); },                rightEdge},
    {&Texts::enableEventCards, [] { return besideBox(eventCardsBox()); },                   rightEdge},
    {&Texts::multipleStages,   [] { return layout.stageRadioX + layout.stageRowH; },        rightEdge},
    {&Texts::singleStage,      [] { return layout.stageRadioX + layout.stageRowH; },        rightEdge},
    {&Texts::raceName,         [] { return layout.stageRadioX + layout.stageRowH * 1.5f; }, [] { return raceNameBox().x; }},
    {&Texts::sprint,           [] { return besideBox(sprintBox()); },                       rightEdge},
    {&Texts::finish,           [] { return besideBox(finishBox()); },                       rightEdge},
    {&Texts::smoothMovement,   [] { return afterRadio(layout.movementRadioX); },            settingsEdge},
    {&Texts::stepwiseMovement, [] { return afterRadio(layout.movementRadioX); },            settingsEdge},
    {&Texts::delay,            fieldLabel,                                                  [] { return settingsField(0).x; }},
    {&Texts::distance,         fieldLabel,                                                  [] { return settingsField(1).x; }},
    {&Texts::timeBetweenSteps, fieldLabel,                                                  [] { return settingsField(2).x; }},
    {&Texts::ratio1610,        [] { return afterRadio(layout.ratioRadioX); },               ratioEdge},
};
// clang-format on

} // namespace

TEST(Gallery, EveryStateInEveryLanguageOnThreeScreens)
{
    const char* gallery = std::getenv("GRAVELON_GALLERY");
    const std::filesystem::path pictures = gallery ? std::filesystem::absolute(gallery) : "";
    const OwnFolder folder;
    for (const ScreenSize& size : SIZES) {
        startProgram(size.width, size.height);
        for (int language = 0; language < LANGUAGE_COUNT; ++language)
            for (int scene = 0; scene < SCENE_COUNT; ++scene) {
                // Without anybody to look at them a few will do.
                if (!gallery && (scene + language) % LANGUAGE_COUNT != 0)
                    continue;
                setScene(static_cast<Scene>(scene), language);
                drawFrame();
                const Image image = screenshot();
                const std::string name = std::string(LANGUAGE_LETTERS[language]) + "_" +
                                         std::to_string(size.width) + "_" +
                                         nameOf(static_cast<Scene>(scene));
                EXPECT_TRUE(barsAreBlack(image)) << name;
                if (gallery)
                    write(image, pictures / (name + ".ppm"));
            }
    }
    settings = {};
    loadTexts();
}

TEST(Gallery, LabelsStayInTheirPlaces)
{
    startProgram(DESIGN_SIZE.width, DESIGN_SIZE.height);
    for (settings.language = 0; settings.language < LANGUAGE_COUNT; ++settings.language) {
        loadTexts();
        for (const ButtonLabel& button : BUTTON_LABELS)
            EXPECT_LE(textWidth(texts.*button.label, FONT_BODY) + 2, button.at().w)
                << texts.*button.label;
        for (const SideLabel& side : SIDE_LABELS)
            EXPECT_LE(side.left() + static_cast<float>(textWidth(texts.*side.label, FONT_BODY)),
                      side.end())
                << texts.*side.label;
    }
    settings = {};
    loadTexts();
}

// The German one is wider than the space between its box and the button of the extra die.
TEST(Gallery, TheBreakawayLabelDoesNotRunUnderTheExtraThrow)
{
    const OwnFolder folder;
    startProgram(DESIGN_SIZE.width, DESIGN_SIZE.height);
    setScene(SCENE_TURN_WITH_CARD, LANGUAGE_GERMAN);
    const Rect box = breakawayBox();
    const Rect below = {box.x, box.y + box.h + 4.0f, box.w, 12.0f};
    drawFrame();
    EXPECT_EQ(countPixels(screenshot(), below, pixelOf(disabledGrey)), 0);
    gameState = STATE_EVENT_DIE;
    drawFrame();
    const Image image = screenshot();
    EXPECT_GT(countPixels(image, below, pixelOf(disabledGrey)), 100);
    settings.language = LANGUAGE_ENGLISH;
    loadTexts();
    drawFrame();
    EXPECT_EQ(countPixels(screenshot(), below, pixelOf(disabledGrey)), 0);
}

namespace
{

// On the smallest screen, with as much to say as there can be.
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

// Dark on the white of the box.
int wordsIn(const Image& image, const Rect& rect)
{
    int dark = 0;
    for (float y = rect.y; y < rect.y + rect.h; y += 1.0f)
        for (float x = rect.x; x < rect.x + rect.w; x += 1.0f)
            dark += image.at(x, y).green < 100 ? 1 : 0;
    return dark;
}

} // namespace

// A rim of each dialog stays free, and so does the place of its buttons.
TEST(Gallery, WordsStayInTheirDialogs)
{
    constexpr float rim = 2.0f;
    const OwnFolder folder;
    startProgram(1024, 768);
    const Rect box = dialogBox();
    const Rect inside = {box.x, box.y, box.w, dialogOkButton().y - box.y};
    for (int language = 0; language < LANGUAGE_COUNT; ++language)
        for (const Scene scene :
             {SCENE_SETUP_MESSAGE, SCENE_EVENT_CARD, SCENE_EVENT_NO_CARD, SCENE_DOPING,
              SCENE_DOPING_NUMBER, SCENE_DOPING_DRAW, SCENE_COUNTERCHECK, SCENE_SAVE_FAILED}) {
            setWordyScene(scene, language);
            drawFrame();
            const Image image = screenshot();
            SCOPED_TRACE(std::string(nameOf(scene)) + " " + LANGUAGE_LETTERS[language]);
            EXPECT_GT(wordsIn(image, inside), 100);
            EXPECT_EQ(wordsIn(image, {box.x, box.y, rim, box.h}), 0);
            EXPECT_EQ(wordsIn(image, {box.x + box.w - rim, box.y, rim, box.h}), 0);
            EXPECT_EQ(wordsIn(image, {box.x, box.y, box.w, rim}), 0);
            EXPECT_EQ(wordsIn(image, {box.x, inside.y + inside.h + 1.0f, box.w, rim}), 0);
        }
    settings = {};
    loadTexts();
}

TEST(Gallery, NoEventCardIsWiderThanItsDialog)
{
    startProgram(1024, 768);
    for (settings.language = 0; settings.language < LANGUAGE_COUNT; ++settings.language)
        for (int card = 0; card < EVENT_CARD_COUNT; ++card) {
            for (const std::string& line : eventTitle(card))
                EXPECT_LT(static_cast<float>(textWidth(line, FONT_BODY)), dialogBox().w - 10.0f);
            for (const std::string& line : eventEffect(card))
                EXPECT_LT(static_cast<float>(textWidth(line, FONT_BODY)), dialogBox().w - 10.0f);
        }
    settings = {};
    loadTexts();
}
