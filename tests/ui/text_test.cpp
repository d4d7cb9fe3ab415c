#include "app/settings.h"
#include "race/event_deck.h"
#include "race/race_state.h"
#include "ui/event_texts.h"
#include "ui/glyphs.h"
#include "ui/manual_pages.h"
#include "ui/text.h"
#include "ui/texts.h"
#include "ui/texts_language.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <string>

namespace
{

TEST(Measuring, QuotesTakeNoWidthAndOtherFontsCountCharacters)
{
    EXPECT_EQ(textWidth("Throw", FONT_BODY), 7 + 7 + 4 + 7 + 9);
    EXPECT_EQ(textWidth("\"Throw\"", FONT_BODY), textWidth("Throw", FONT_BODY));
    EXPECT_EQ(textWidth("iiii", FONT_SERIF), 24);
    EXPECT_EQ(cutToWidth("Throw", 34.0f), "Throw");
    EXPECT_EQ(cutToWidth("ThrowThrow", 34.0f), "Thro...");
}

TEST(Glyphs, ACodeWithoutOneFallsBackToASafeLetter)
{
    EXPECT_EQ(baseLetter(0xD6), 'O');
    for (int code = 0x80; code < 0x100; ++code) {
        EXPECT_TRUE(std::isprint(baseLetter(static_cast<std::uint8_t>(code)))) << code;
        EXPECT_TRUE(bodyWidths[code] > 0 && titleWidths[code] > 0) << code;
    }
}

// Each word with its place in the line, a slash for a new line and a star for a heading.
std::string layOut(std::string_view text, int wrapWidth)
{
    std::string placed;
    int line = 0;
    for (const ManualWord& word : layOutManualPage(text, 0, wrapWidth, 99).words) {
        placed += std::string(static_cast<std::size_t>(word.line - line), '/');
        line = word.line;
        placed += (word.heading ? "*" : "") + std::string(word.text) + std::to_string(word.x);
    }
    return placed;
}

// In FONT_TITLE "ab" takes 20 pixels and a blank 5.
TEST(ManualPages, BreaksAtBlanksAndWordsThatAreWiderThanALine)
{
    EXPECT_EQ(layOut("ab ab", 45), "ab0 ab20") << "it just fits";
    EXPECT_EQ(layOut("ab ab", 44), "ab0/ab0");
    EXPECT_EQ(layOut("  ab  ab<l>  ab", 99), "ab0 20 ab25/ab0");
    EXPECT_EQ(layOut("ab ababab", 44), "ab0/abab0/ab0");
    EXPECT_EQ(layOut("<1>a</1>b<2>c</2>d<ll>e", 99), "*a0//b0//*c0/d0//e0");
}

// Whatever the size of the page, each letter stands on exactly one page and within it, and no page
// is empty.
TEST(ManualPages, LosesNothingAndEndsForEverySize)
{
    const std::string text = "<1>Title here</1>One two, three.<ll><2>Head</2>Four fivesixseven<l>x "
                             "< y<2>Last head</2>end  ";
    for (int lines = -1; lines < 12; ++lines)
        for (int width = -5; width < 200; width += 3) {
            SCOPED_TRACE(std::to_string(lines) + " lines of " + std::to_string(width));
            std::string drawn;
            for (std::size_t at = 0; at < text.size();) {
                const std::size_t before = drawn.size();
                const auto page = layOutManualPage(text, at, width, static_cast<float>(lines));
                for (const ManualWord& word : page.words) {
                    ASSERT_LE(word.line, std::max(lines, 1));
                    std::ranges::remove_copy(word.text, std::back_inserter(drawn), ' ');
                }
                ASSERT_GT(drawn.size(), before);
                at = page.end;
            }
            ASSERT_EQ(drawn, "TitlehereOnetwo,three.HeadFourfivesixsevenx<yLastheadend");
        }
}

void choose(int language)
{
    settings.language = language;
    loadTexts();
}

using Names = Table<std::string, TEAM_COUNT>;

TEST(TextsTest, DefaultTeamNamesFollowTheLanguageAndTypedOnesStay)
{
    raceSetup.teamName = {};
    choose(LANGUAGE_ENGLISH);
    EXPECT_EQ(raceSetup.teamName, (Names{"Belgium", "Netherlands", "Germany", "France"}));

    choose(LANGUAGE_GERMAN);
    raceSetup.teamName[1] = "Les Rapides";
    raceSetup.teamName[2] = "Belgien"; // the default of another team counts as typed
    choose(LANGUAGE_FRENCH);
    choose(-1); // none: everything stays
    EXPECT_EQ(raceSetup.teamName, (Names{"Belgique", "Les Rapides", "Belgien", "France"}));
    EXPECT_EQ(texts.exit, "Fin");
}

TEST(TextsTest, AreLatin1)
{
    choose(LANGUAGE_GERMAN);
    EXPECT_EQ(texts.mainMenuTitle, "Hauptmen\xFC");
    EXPECT_EQ(latin1("Stra\u00DFe \u20AC5 \U0001F6B2!"), "Stra\xDF"
                                                         "e ?5 ?!");
    EXPECT_EQ(latin1("cut short \xC3"), "cut short ?");
}

// What joins a text with a name or a number: blanks at its ends, and the mark within.
std::string jointsOf(std::string_view words)
{
    const std::size_t mark = words.find('%');
    return {words.front() == ' ' ? '_' : '.', words.back() == ' ' ? '_' : '.',
            mark == words.npos ? '.' : words[mark + 1]};
}

// A text with a letter that its font can't draw shows the reader a wrong letter.
void expectDrawable(std::string_view text, Font font)
{
    for (const char c : text) {
        const auto code = static_cast<std::uint8_t>(c);
        EXPECT_TRUE(code < 0x80 || findGlyph(code, font)) << text << ", code " << int{code};
    }
}

TEST(TextsTest, CanBeDrawnAndAreJoinedAlikeInEveryLanguage)
{
    for (const Language* language : {&GERMAN, &ENGLISH, &FRENCH, &DUTCH}) {
        const TextEntry* english = ENGLISH.words.data();
        for (const TextEntry& entry : language->words) {
            expectDrawable(latin1(entry.words), FONT_BODY);
            EXPECT_EQ(jointsOf(entry.words), jointsOf((english++)->words)) << entry.words;
        }
        for (const std::string_view name : language->teamNames) {
            expectDrawable(latin1(name), FONT_TITLE);
            EXPECT_LE(latin1(name).size(), static_cast<std::size_t>(NAME_LENGTH_MAX)) << name;
        }
    }
    for (int language = 0; language < LANGUAGE_COUNT; ++language) {
        choose(language);
        for (const std::string& title : {texts.mainMenuTitle, texts.teamSetupTitle,
                                         texts.courseSelectionTitle, texts.settings})
            expectDrawable(title, FONT_TITLE);
        int untitled = 0;  // cards without a title
        std::string kinds; // where cards begin that do something else
        for (int card = 0; card < EVENT_CARD_COUNT; ++card) {
            untitled += eventTitle(card).empty();
            kinds += card == 0 || eventEffect(card) != eventEffect(card - 1) ? 'x' : '.';
            for (const auto& lines : {eventTitle(card), eventEffect(card)})
                for (const std::string& line : lines)
                    expectDrawable(line, FONT_BODY);
        }
        EXPECT_EQ(untitled, (Table<int, LANGUAGE_COUNT>{1, 2, 2, 0}[language])) << language;
        EXPECT_EQ(kinds, "x....x......x.xx..x..xxx.x.x.x") << language;
        expectDrawable(languageNames[language], FONT_SERIF);
        expectDrawable(manualText, FONT_TITLE);
        // A quote measures 0, so the word behind it would be drawn over it.
        EXPECT_EQ(manualText.find('"'), manualText.npos);
    }
}

} // namespace
