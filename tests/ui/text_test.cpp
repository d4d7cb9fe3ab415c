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

#include <string>
#include <vector>

namespace
{

TEST(Measuring, QuotesTakeNoWidthAndOtherFontsCountCharacters)
{
    EXPECT_EQ(textWidth("Throw", FONT_BODY), 7 + 7 + 4 + 7 + 9);
    EXPECT_EQ(textWidth("\"Throw\"", FONT_BODY), textWidth("Throw", FONT_BODY));
    EXPECT_EQ(textWidth("iiii", FONT_SERIF), 24);
    EXPECT_EQ(titleWidths[0xC0], titleWidths[0xC4]);
    EXPECT_EQ(titleWidths[0xC8], titleWidths['E']); // listed nowhere: as the letter drawn for it
    for (int code = 0x80; code < 0x100; ++code) {
        EXPECT_GT(bodyWidths[code], 0) << code;
        EXPECT_GT(titleWidths[code], 0) << code;
    }
    EXPECT_EQ(cutToWidth("Throw", 34.0f), "Throw");
    EXPECT_EQ(cutToWidth("ThrowThrow", 34.0f), "Thro...");
}

// Only a cedilla hangs below the line.
TEST(Glyphs, StandOnTheLineAndAHighCodeWithoutOneFallsBackToASafeLetter)
{
    EXPECT_EQ(findGlyph(0xE7, FONT_TITLE)->origin.y, 3);
    EXPECT_EQ(findGlyph(0xE9, FONT_TITLE)->origin.y, 0);
    EXPECT_EQ(findGlyph(0xE7, FONT_BODY), nullptr);
    EXPECT_EQ(baseLetter(0xD6), 'O');
    EXPECT_EQ(baseLetter(0xE7), 'c');
    EXPECT_EQ(baseLetter(0x80), '?');
    EXPECT_EQ(baseLetter('"'), '"');
    for (int code = 0x80; code < 0x100; ++code) {
        EXPECT_GE(baseLetter(static_cast<std::uint8_t>(code)), 0x20) << code;
        EXPECT_LT(baseLetter(static_cast<std::uint8_t>(code)), 0x7F) << code;
    }
}

struct Placed {
    std::string text;
    int x, line;
    bool heading;
    friend bool operator==(const Placed&, const Placed&) = default;
};

void PrintTo(const Placed& word, std::ostream* out)
{
    *out << '"' << word.text << "\" at " << word.x << ", line " << word.line;
}

std::vector<Placed> layOut(std::string_view text, int wrapWidth, float linesPerPage = 99)
{
    std::vector<Placed> placed;
    for (const ManualWord& word : layOutManualPage(text, 0, wrapWidth, linesPerPage).words)
        placed.push_back({std::string(word.text), word.x, word.line, word.heading});
    return placed;
}

std::size_t endOfPage(std::string_view text, int wrapWidth, float linesPerPage)
{
    return layOutManualPage(text, 0, wrapWidth, linesPerPage).end;
}

// In FONT_TITLE "ab" takes 20 pixels and a blank 5.
TEST(Wrap, AWordThatFitsExactlyStays)
{
    EXPECT_EQ(layOut("ab ab", 45),
              (std::vector<Placed>{{"ab", 0, 0, false}, {" ab", 20, 0, false}}));
    EXPECT_EQ(layOut("ab ab", 44), (std::vector<Placed>{{"ab", 0, 0, false}, {"ab", 0, 1, false}}));
}

TEST(Wrap, BlanksCountInsideALineOnly)
{
    EXPECT_EQ(
        layOut("  ab  ab<l>  ab", 99),
        (std::vector<Placed>{
            {"ab", 0, 0, false}, {" ", 20, 0, false}, {" ab", 25, 0, false}, {"ab", 0, 1, false}}));
}

TEST(Wrap, AWordWiderThanALineIsBroken)
{
    EXPECT_EQ(
        layOut("ab ababab", 44),
        (std::vector<Placed>{{"ab", 0, 0, false}, {"abab", 0, 1, false}, {"ab", 0, 2, false}}));
    const std::string longWord(50, 'a');
    EXPECT_EQ(layOut(longWord, 450).front().text, longWord);
    EXPECT_EQ(layOut("ab", -1), (std::vector<Placed>{{"a", 0, 0, false}, {"b", 0, 1, false}}));
}

TEST(Wrap, HeadingsAreYellowAndStandOffFromTheTextBefore)
{
    EXPECT_EQ(layOut("<1>a</1>b<2>c</2>d<ll><2>e</2>f", 99),
              (std::vector<Placed>{{"a", 0, 0, true},
                                   {"b", 0, 2, false},
                                   {"c", 0, 4, true},
                                   {"d", 0, 5, false},
                                   {"e", 0, 8, true},
                                   {"f", 0, 9, false}}));
}

TEST(Pages, StartAtWhatTheyDrawFirst)
{
    EXPECT_EQ(endOfPage("a<l>b<l>c", 99, 1), 8u);     // behind the tag
    EXPECT_EQ(endOfPage("a<l>b<2>c</2>", 99, 1), 5u); // at the heading's tag
    EXPECT_EQ(endOfPage("a<2>b</2>c", 99, 2), 5u);    // at the end of a heading
    EXPECT_EQ(endOfPage("ab ab ab", 20, 1), 6u);      // at the word
    EXPECT_EQ(endOfPage("ab ab  ", 20, 1), 7u);       // no page of blanks alone

    const ManualPageWords next = layOutManualPage("a<2>b</2>c", 5, 99, 2);
    ASSERT_EQ(next.words.size(), 1u);
    EXPECT_EQ(next.words[0].line, 1); // the heading's own line stands on the page before
    EXPECT_FALSE(next.words[0].heading);
}

// Whatever the size of the page, each letter stands on exactly one page and within it.
TEST(Pages, LoseNothingAndEndForEverySize)
{
    const std::string text = "<1>Title here</1>One two, three.<ll><2>Head</2>Four fivesixseven<l>x "
                             "< y<2>Last head</2>end";
    const std::string letters = "TitlehereOnetwo,three.HeadFourfivesixsevenx<yLastheadend";
    for (int lines = -1; lines < 12; ++lines)
        for (int width = -5; width < 200; width += 3) {
            std::string drawn;
            std::size_t at = 0;
            while (at < text.size()) {
                const ManualPageWords page =
                    layOutManualPage(text, at, width, static_cast<float>(lines));
                ASSERT_GT(page.end, at) << lines << " lines of " << width;
                for (const ManualWord& word : page.words) {
                    ASSERT_LE(word.line, std::max(lines, 1));
                    for (const char c : word.text)
                        if (c != ' ')
                            drawn += c;
                }
                at = page.end;
            }
            ASSERT_EQ(drawn, letters) << lines << " lines of " << width;
        }
}

constexpr Table<const Language*, LANGUAGE_COUNT> ALL = {&GERMAN, &ENGLISH, &FRENCH, &DUTCH};

class TextsTest : public testing::Test
{
protected:
    void SetUp() override { raceSetup.teamName = {}; }

    void TearDown() override
    {
        settings = {};
        loadTexts();
    }

    static void choose(int language)
    {
        settings.language = language;
        loadTexts();
    }
};

using Names = Table<std::string, TEAM_COUNT>;

TEST_F(TextsTest, DefaultTeamNamesFollowTheLanguageAndTypedOnesStay)
{
    choose(LANGUAGE_ENGLISH);
    EXPECT_EQ(raceSetup.teamName, (Names{"Belgium", "Netherlands", "Germany", "France"}));

    choose(LANGUAGE_GERMAN);
    raceSetup.teamName[1] = "Les Rapides";
    raceSetup.teamName[2] = "Belgien"; // the default of another team counts as typed
    choose(LANGUAGE_FRENCH);
    EXPECT_EQ(raceSetup.teamName, (Names{"Belgique", "Les Rapides", "Belgien", "France"}));
}

TEST_F(TextsTest, NoLanguageLeavesEverythingAsItIs)
{
    choose(LANGUAGE_DUTCH);
    choose(-1);
    EXPECT_EQ(texts.throwDice, "Gooi");
    EXPECT_EQ(raceSetup.teamName[0], "Belgie");
}

TEST_F(TextsTest, AreLatin1)
{
    choose(LANGUAGE_GERMAN);
    EXPECT_EQ(texts.mainMenuTitle, "Hauptmen\xFC");
    EXPECT_EQ(latin1("Stra\u00DFe \u20AC5 \U0001F6B2!"), "Stra\xDF"
                                                         "e ?5 ?!");
    EXPECT_EQ(latin1("cut short \xC3"), "cut short ?");
}

TEST_F(TextsTest, HaveTheirMarksAndJoiningBlanksInEveryLanguage)
{
    constexpr std::string Texts::*joined[] = {&Texts::bonusMoves,
                                              &Texts::moves,
                                              &Texts::movesLeft,
                                              &Texts::couldNotSave,
                                              &Texts::stage,
                                              &Texts::standings,
                                              &Texts::result,
                                              &Texts::standingsWritten,
                                              &Texts::generalAfterStage};
    for (int language = 0; language < LANGUAGE_COUNT; ++language) {
        choose(language);
        EXPECT_EQ(withNumber(texts.followPrompt, 34).find("%"), std::string::npos);
        EXPECT_NE(withNumber(texts.followPrompt, 34).find("34"), std::string::npos);
        EXPECT_NE(withNumber(texts.enterPlayerName, 34).find("34"), std::string::npos);
        EXPECT_NE(withName(texts.raceNameExists, "100%s").find("100%s"), std::string::npos);
        for (const auto key : joined)
            EXPECT_TRUE((texts.*key).ends_with(' ')) << texts.*key;
        EXPECT_TRUE(texts.couldNotOpen.starts_with(' '));
    }
}

// A text with a letter that its font can't draw shows the reader a wrong letter.
void expectDrawable(std::string_view text, Font font)
{
    for (const char c : text) {
        const auto code = static_cast<std::uint8_t>(c);
        EXPECT_TRUE(code < 0x80 || findGlyph(code, font)) << text << ", code " << int{code};
    }
}

TEST_F(TextsTest, EveryLetterHasAGlyphInItsFont)
{
    for (const Language* language : ALL) {
        for (const TextEntry& entry : language->words)
            expectDrawable(latin1(entry.words), FONT_BODY);
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
        for (int card = 0; card < EVENT_CARD_COUNT; ++card) {
            for (const std::string& line : eventTitle(card))
                expectDrawable(line, FONT_BODY);
            for (const std::string& line : eventEffect(card))
                expectDrawable(line, FONT_BODY);
        }
        expectDrawable(languageNames[language], FONT_SERIF);
        expectDrawable(manualText, FONT_TITLE);
        // A quote measures 0, so the word behind it would be drawn over it.
        EXPECT_EQ(manualText.find('"'), manualText.npos);
    }
}

} // namespace
