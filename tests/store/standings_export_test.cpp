#include "store/standings_export.h"

#include "app/game_state.h"
#include "app/view.h"
#include "store/golden_files.h"
#include "store/race_file.h"
#include "support/own_folder.h"

#include <gtest/gtest.h>

namespace
{

struct Language {
    const char* golden;
    ExportWords words;
};

// clang-format off
constexpr Language LANGUAGES[] = {
    {"standings_english.csv", {"General classification after stage ",       "Standings ",  "Result ",     "stage "}},
    {"standings_german.csv",  {"Gesamtwertung nach Etappe ",                "Stand ",      "Ergebnis ",   "Etappe "}},
    {"standings_french.csv",  {"Classement g\xE9n\xE9ral apr\xE8s l'\xE9tape ", "Classement ", "R\xE9sultat ", "\xE9tape "}},
    {"standings_dutch.csv",   {"Algemeen klassement na etappe ",            "Stand ",      "Uitslag ",    "etappe "}},
};

//                                                  sprints                               finish
constexpr Table<int, RESULT_SLOT_COUNT> RUNNING  = { 2, 6,  7, -1, -1, -1,  6,  2, -1,    3, 0, 6, 2, 1, 12, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1};
// riders 9 and 15 are disqualified
constexpr Table<int, RESULT_SLOT_COUNT> ALL_IN   = {-1, -1, 1, -1, -1, 14,  0,  4,  8,   -1, 14, 13, 12, 11, 10, -1, 8, 7, 6, 5, 4, 3, 2, 1, 0};
// clang-format on

constexpr auto NOBODY = filled<int, RESULT_SLOT_COUNT>(-1);

// The file as a scorecard in this state writes it, with these places in the live race.
std::string written(const ExportWords& words, GameState state,
                    const Table<int, RESULT_SLOT_COUNT>& live)
{
    gameState = state;
    race.resultSlots = live;
    view.exportStatus = EXPORT_NONE;
    exportStandings(words);
    EXPECT_EQ(view.exportStatus, EXPORT_WRITTEN);
    return bytesOfFile("out.csv");
}

} // namespace

TEST(StandingsExport, HasTheTablesOfEachStageAndTheirSum)
{
    const OwnFolder folder;
    putBytes("two_stages.race", goldenBytes("two_stages.race"));
    readRacePreview("two_stages.race");
    const auto savedNames = racePreview.teamName;
    for (const auto& [golden, words] : LANGUAGES) {
        SCOPED_TRACE(golden);
        raceSetup = {};
        raceSetup.teamName = savedNames;
        raceSetup.standingsFileName = "out.csv";
        std::string text = written(words, STATE_SCORECARD, NOBODY);

        readRace("two_stages.race");
        text += "--\n" + written(words, STATE_SCORECARD, RUNNING);
        const std::string stored = written(words, STATE_FINAL_SCORECARD, ALL_IN);
        raceSetup.teamName = {"these", "are", "other", "teams"};
        EXPECT_EQ(written(words, STATE_RACE_STANDINGS, RUNNING), stored);
        text += "--\n" + stored;

        raceSetup.teamName = savedNames;
        raceSetup.raceStages = {{.slots = NOBODY}};
        text += "--\n" + written(words, STATE_FINAL_SCORECARD, ALL_IN);

        raceSetup.raceStages.clear();
        raceSetup.multiStage = false;
        text += "--\n" + written(words, STATE_SCORECARD, RUNNING);
        text += "--\n" + written(words, STATE_FINAL_SCORECARD, ALL_IN);
        EXPECT_EQ(text, goldenBytes(golden));
    }
}
