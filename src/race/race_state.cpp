#include "race/race_state.h"

RaceState race;
RaceSetup raceSetup;
