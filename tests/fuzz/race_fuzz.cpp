#include "fuzz/fuzz_input.h"

#include "app/game_state.h"
#include "app/view.h"
#include "store/race_file.h"
#include "store/standings_export.h"

// The standings of whatever was read can be written, and so can the race, which comes back the
// same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    putInput("input.race", bytes, size);
    raceSetup.standingsFileName = "standings.csv";
    gameState = STATE_FINAL_SCORECARD;
    readRace("input.race");
    for (const StageRecord& stage : raceSetup.raceStages)
        for (const int rider : stage.slots)
            require(rider >= -1 && rider < RIDER_COUNT);
    exportStandings({});
    require(view.exportStatus == EXPORT_WRITTEN);
    const RaceSetup read = raceSetup;
    require(writeRace("input.race"));
    readRace("input.race");
    require(raceSetup.teamName == read.teamName && raceSetup.eventCardsOn == read.eventCardsOn);
    require(raceSetup.raceStages.size() == read.raceStages.size());
    for (std::size_t i = 0; i < read.raceStages.size(); ++i)
        require(raceSetup.raceStages[i].slots == read.raceStages[i].slots);
    return 0;
}
