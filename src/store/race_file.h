#pragma once

#include "app/table.h"
#include "race/race_state.h"

#include <cstdint>
#include <string>
#include <vector>

// Races of several stages, one file each, in the current folder: what the race needs from one stage
// to the next, and nothing of a stage in progress. The bytes:
//
//      0      1   event cards, 0 or 1
//      1   4 x 14 the teams: the name, NUL-terminated in 13 bytes, and 1 if a person plays it
//     57  n x 116 the stages: the packed course, 2 bytes of 0, and the 25 result slots as int32

constexpr char RACE_EXTENSION[] = ".race";

// The head of a race file: of the race chosen on the list, which isn't the race in memory yet.
struct RaceHead {
    bool eventCardsOn = false;
    Table<std::string, TEAM_COUNT> teamName; // Latin-1, at most 12 characters
    Table<std::uint8_t, TEAM_COUNT> isHuman{};
};

extern RaceHead racePreview;

// The names of the race files in the current folder, extension included, in the order of the
// system's listing. Only regular files (and links to them) are races, and none that is hidden.
// Names are as the folder holds them, whatever their bytes.
std::vector<std::string> listRaceFiles();

// Whether the folder may hold other files than when it was last listed: it has changed since, or
// had changed so shortly before that more may have come unseen. True before the first listing.
bool raceListStale();

// Reads a race into raceSetup.raceStages, its head into racePreview or into the race in memory.
// Whatever the bytes, slots hold riders or -1, and each rider at most once at the finish. A head
// that is cut short leaves the fields behind the cut as they were, and no stages. A file that can't
// be read leaves them all, without stages; readRace answers false then. Stages behind the 9999th
// aren't read.
void readRacePreview(const std::string& fileName);
bool readRace(const std::string& fileName);

// Replaces the file with the race in memory. False if that fails at any point, and if the file
// holds more stages than when this game last read or wrote it, since somebody else has gone on with
// the race; the old file is left as it was then.
bool writeRace(const std::string& fileName);

// Adds the stage that is over to raceSetup.raceStages. Disqualified riders leave no trace in it.
void appendStage();

// The name of a team of the race whose points the scorecard shows: in STATE_RACE_STANDINGS the one
// chosen on the list, else the one in memory.
const std::string& scorecardTeamName(int team);
