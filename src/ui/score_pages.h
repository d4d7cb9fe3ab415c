#pragma once

#include "race/race_state.h"
#include "race/scoring.h"

#include <string>
#include <vector>

// What the score sheet shows: which page of which stage, its words and its numbers. All of it is
// worked out from the race and the view and changes neither.
//
// A race of several stages has a page for each record, one for the stage in progress while the race
// is on, and the general page. Any other race has one page.

bool generalPageShown();

// The stage on view and the last one that can be turned to, from 0. A stage that lies beyond the
// records of a race read since counts as the last one.
int shownStage();
int lastStage();

// Whether the stage on view has no record yet.
bool shownStageRuns();

// The places of the stage on view. A saved race without a finished stage has none.
const Table<int, RESULT_SLOT_COUNT>& shownSlots();

// Which controls of the sheet act.
bool mayTurnBack();
bool mayTurnOn();
bool mayShowGeneral();
bool mayShowStage();

// Empty for a race of one stage.
std::string scorePageTitle();

// What stands for a rider, or a team, on a stage page; empty where nothing is known yet.
std::string riderTotalText(const StagePoints& points, int rider);
std::string teamTotalText(const StagePoints& points, int team);

// The numbers of a team's riders: "(21-24)".
std::string teamNumbersText(int team);

// What the last export has to tell, a line or two; none if there was no export.
std::vector<std::string> exportMessage();
