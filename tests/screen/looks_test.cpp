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

// What there is to be seen: every word of every scene, and what its picture leaves open.

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

int count(const Image& image, const Rect& place, Pixel colour)
{
    int found = 0;
    for (float y = place.y; y <= place.y + place.h; y += 1.0f)
        for (float x = place.x; x <= place.x + place.w; x += 1.0f)
            found += image.at(x, y) == colour;
    return found;
}

using Looks = ScreenTest;

} // namespace

// The words are kept in a file. With GRAVELON_GALLERY naming a folder they are left there, to take
// its place when they are meant to have changed.
TEST_F(Looks, EveryWordOfEveryScene)
{
    const std::vector<std::string> seen = everyWord();
    if (const char* gallery = std::getenv("GRAVELON_GALLERY")) {
        std::ofstream out(here.before / gallery / "words.txt");
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
    player.hover(Spot(picture.x + 9.0f, picture.y + picture.h + 25.0f)); // its caption
    EXPECT_GT(edge(), 0);
    player.hover(coursePicture(1));
    EXPECT_EQ(edge(), 0);
}
