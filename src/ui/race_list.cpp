#include "ui/race_list.h"

#include "race/race_state.h"
#include "store/race_file.h"
#include "ui/layout.h"
#include "ui/places.h"

#include <algorithm>

RaceList raceList;

static int entryCount()
{
    return static_cast<int>(raceList.raceFileList.size());
}

void openRaceList()
{
    raceList = {.raceFileList = listRaceFiles()};
}

void refreshRaceList()
{
    if (!raceListStale())
        return;
    raceList.raceFileList = listRaceFiles();
    const int columns = (entryCount() + raceListRows - 1) / raceListRows;
    raceList.raceListPage =
        std::clamp(raceList.raceListPage, 0, std::max(0, columns - raceListCols));
}

std::string raceBaseNameOf(std::string_view fileName)
{
    return std::string(fileName.substr(0, fileName.rfind('.')));
}

bool raceChosen()
{
    return !raceSetup.raceFileName.empty();
}

bool racesBefore()
{
    return raceList.raceListPage > 0;
}

bool racesBehind()
{
    return (raceList.raceListPage + raceListCols) * raceListRows < entryCount();
}

int raceEntryAt(int x, int y)
{
    const Rect names = raceListNames();
    if (!names.contains(x, y))
        return -1;
    const int column = static_cast<int>((static_cast<float>(x) - names.x) / layout.raceListColW);
    const int row = static_cast<int>((static_cast<float>(y) - names.y) / layout.raceListRowH);
    const int entry = (raceList.raceListPage + column) * raceListRows + row;
    return row < raceListRows && column < raceListCols && entry < entryCount() ? entry : -1;
}
