#include "app/settings.h"
#include "board/designer.h"
#include "race/event_deck.h"
#include "screen/support/drawn_texts.h"
#include "screen/support/player.h"
#include "screen/support/scenes.h"
#include "ui/event_texts.h"
#include "ui/frame.h"
#include "ui/layout.h"
#include "ui/texts.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

// What there is to be seen: every word of every scene, and what shapes and colours tell.

namespace
{

std::string nameOf(Pixel colour)
{
    if (colour == pixelOf(WHITE) || colour == pixelOf(BLACK))
        return "";
    char name[16];
    std::snprintf(name, sizeof name, "<%02x%02x%02x>", static_cast<unsigned>(colour.red),
                  static_cast<unsigned>(colour.green), static_cast<unsigned>(colour.blue));
    return name;
}

std::string told(const std::vector<std::string>& lines)
{
    std::string words;
    for (const std::string& line : lines)
        words += "|" + line;
    return words;
}

// A line for each scene, then one for each event card. A colour stands in front of the words that
// are neither black nor white.
std::vector<std::string> everyWord()
{
    std::vector<std::string> lines;
    for (const Scene scene : everyScene()) {
        setScene(scene, LANGUAGE_ENGLISH);
        lines.push_back(std::string(nameOf(scene)) + ":");
        for (const DrawnText& text : drawnTexts())
            if (text.words != headLine) // which tells the version
                lines.back() += "|" + nameOf(text.colour) + text.words;
    }
    for (int card = 0; card < EVENT_CARD_COUNT; ++card)
        lines.push_back("event " + std::to_string(card) + ":" + told(eventTitle(card)) + " /" +
                        told(eventEffect(card)));
    return lines;
}

// The part of the screen above the panel as it looks now.
Image boardSeen()
{
    drawFrame();
    Image image = screenshot();
    image.height = static_cast<int>(layout.hudY);
    image.bytes.resize(static_cast<std::size_t>(3 * image.width * image.height));
    return image;
}

bool alike(const Image& a, const Image& b, const Rect& place)
{
    for (float y = place.y; y <= place.y + place.h; y += 1.0f)
        for (float x = place.x; x <= place.x + place.w; x += 1.0f)
            if (a.at(x, y) != b.at(x, y))
                return false;
    return true;
}

int count(const Image& image, const Rect& place, Pixel colour)
{
    int found = 0;
    for (float y = place.y; y <= place.y + place.h; y += 1.0f)
        for (float x = place.x; x <= place.x + place.w; x += 1.0f)
            found += image.at(x, y) == colour;
    return found;
}

// Round a rider on the board, his figure in perspective included.
Rect around(int rider)
{
    const ScreenPoint at = seenAt(race.riders[rider].x, race.riders[rider].y);
    return {static_cast<float>(at.x - 40), static_cast<float>(at.y - 60), 80.0f, 90.0f};
}

// The middle of a check box, or of the circle of a radio button, that begins at the place's left.
Pixel markOf(const Rect& place)
{
    drawFrame();
    return screenshot().at(place.x + place.h * 0.5f, place.y + place.h * 0.5f);
}

using Looks = ScreenTest;

} // namespace

// The words are kept in a file. With GRAVELON_GALLERY naming a folder they are left there, to take
// its place when they are meant to have changed.
TEST_F(Looks, EveryWordOfEveryScene)
{
    const std::vector<std::string> seen = everyWord();
    if (const char* gallery = std::getenv("GRAVELON_GALLERY")) {
        std::ofstream out(std::filesystem::path(gallery) / "words.txt");
        for (const std::string& line : seen)
            out << line << '\n';
    }
    std::ifstream kept(SOURCE_DIR "/tests/screen/golden/words.txt");
    for (const std::string& line : seen) {
        std::string wanted;
        std::getline(kept, wanted);
        EXPECT_EQ(line, wanted);
    }
}

TEST_F(Looks, ADieHasAsManyPipsAsItSays)
{
    setScene(Scene::TURN, LANGUAGE_ENGLISH);
    double ofOne = 0.0;
    for (int value = 1; value <= 6; ++value) {
        race.dice = {value, -1};
        drawFrame();
        const int white = count(screenshot(), dicePlace(0), pixelOf(WHITE));
        ofOne = value == 1 ? white : ofOne;
        EXPECT_NEAR(white / ofOne, value, 0.2);
    }
}

TEST_F(Looks, TheCardsInUseTellWhoseTheyAre)
{
    setScene(Scene::TURN, LANGUAGE_ENGLISH);
    giveWonCard(15, 1, WHITE_CARD);
    EXPECT_EQ(wordsAt(cardPlace(15)), "22|5");
    race.playedCards = {DOPING_CARD, -1};
    race.dopingCardValue = WHITE_CARD; // as on a mountain
    EXPECT_EQ(wordsAt(dicePlace(0)), "D|5");
    setScene(Scene::DOPING_NUMBER, LANGUAGE_ENGLISH);
    race.currentRider = 4;
    race.dopingNumber[4] = 2;
    EXPECT_TRUE(screenSays("Doping number: 2"));
}

TEST_F(Looks, MarksStandWhereSomethingIsChosen)
{
    setScene(Scene::TEAMS, LANGUAGE_ENGLISH);
    race.riders[4].isHuman = 1;
    for (const auto& [control, mark] : {std::pair{CONTROL_COMPUTER_1, BLACK},
                                        {CONTROL_COMPUTER_2, WHITE},
                                        {CONTROL_SINGLE_STAGE, WHITE},
                                        {CONTROL_MULTI_STAGE, BLACK}})
        EXPECT_EQ(markOf(placeOf(control)), pixelOf(mark)) << control;
    setScene(Scene::DESIGN, LANGUAGE_ENGLISH);
    EXPECT_EQ(markOf(sectionRadio(0)), pixelOf(WHITE));
    EXPECT_EQ(markOf(sectionRadio(1)), pixelOf(BLACK));
    setScene(Scene::RACE_CHOSEN, LANGUAGE_ENGLISH);
    std::vector<bool> ticked;
    for (const DrawnText& text : drawnTexts())
        if (text.words == "Computer player")
            ticked.push_back(screenshot().at(text.place.x - layout.teamCheckSize * 0.65f,
                                             text.place.y + 5.0f) == pixelOf(BLACK));
    EXPECT_EQ(ticked, (std::vector{true, false, true, true})) << "the second is a person's";
}

TEST_F(Looks, TheCourseUnderThePointerHasAFrame)
{
    setScene(Scene::COURSES, LANGUAGE_ENGLISH);
    const Rect picture = coursePicture(2);
    const auto edge = [&picture] {
        drawFrame();
        const Rect beside = {picture.x - 8.0f, picture.y + picture.h * 0.5f, 6.0f, 0.0f};
        return count(screenshot(), beside, pixelOf(WHITE));
    };
    player.hover(picture);
    EXPECT_GT(edge(), 0);
    player.hover(coursePicture(1));
    EXPECT_EQ(edge(), 0);
}

TEST_F(Looks, ALineLeadsFromARiderInHisColourThatIsDimOffTheBoard)
{
    for (const int offBoard : {0, 1}) {
        setScene(Scene::POSITIONS, LANGUAGE_ENGLISH);
        race.riders[4].offBoard = offBoard;
        const Image image = boardSeen();
        const Rect map = {0.0f, 20.0f, 1279.0f, 640.0f};
        EXPECT_EQ(count(image, map, pixelOf(teamColour[1])) > 0, offBoard == 0);
        EXPECT_EQ(count(image, map, pixelOf(teamColourDim[1])) > 0, offBoard == 1);
    }
}

TEST_F(Looks, TheSprintWinnerStandsOutAndOnThePodium)
{
    setScene(Scene::TURN, LANGUAGE_ENGLISH);
    const Rect winner = around(3);
    EXPECT_EQ(count(boardSeen(), winner, pixelOf(BLACK)), 0);
    race.sprintWinner = 3;
    EXPECT_GT(count(boardSeen(), winner, pixelOf(YELLOW)), 50);
    EXPECT_GT(count(boardSeen(), winner, pixelOf(BLACK)), 10) << "his number";

    const auto seen = [](int rider, int sprintWinner) {
        setUpRace(ONE_LAP, {{rider, 60, 5}});
        view.viewMode = VIEW_PERSPECTIVE;
        view.cameraIndex = 5;
        race.sprintWinner = sprintWinner;
        return boardSeen();
    };
    const Image green = seen(0, 0);
    const Image red = seen(4, 4);
    EXPECT_TRUE(alike(green, red, around(4))) << "in yellow whatever his team";
    EXPECT_FALSE(green == red) << "in his team's colour on the podium";
    const Image nobody = seen(0, -1);
    EXPECT_FALSE(alike(green, nobody, around(0)));
}
