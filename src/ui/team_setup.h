#pragma once

#include <string>
#include <vector>

// What the screen "Team Setup" keeps beside the teams themselves.
struct TeamSetup {
    int teamActiveField = 0;                // 0 to 3 the team names, 4 the race name
    int teamCursor = 0;                     // characters in front of the cursor
    std::vector<std::string> setupMessages; // what is wrong, up to 5 lines in Latin-1
};

extern TeamSetup teamSetup;
