#pragma once

#include <string_view>

// The standings as a text file for spreadsheets: the general classification, then a block for each
// stage, in the layout of the paper score sheet.

// The words of the current language.
struct ExportWords {
    std::string_view generalAfterStage;
    std::string_view standings;
    std::string_view result;
    std::string_view stage;
};

// Replaces raceSetup.standingsFileName and sets view.exportStatus; redraws. In STATE_SCORECARD the
// stage in progress is part of it, in STATE_FINAL_SCORECARD a single stage.
void exportStandings(const ExportWords& words);
