#include "race/event_deck.h"
#include "ui/event_texts.h"
#include "ui/glyphs.h"
#include "ui/layout.h"
#include "ui/manual_pages.h"
#include "ui/texts.h"
#include "ui/texts_language.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

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
