#include "store/race_file.h"

#include "app/bytes.h"
#include "app/files.h"
#include "app/game_state.h"
#include "board/course.h"

#include <chrono>
#include <dirent.h>
#include <fcntl.h>
#include <optional>
#include <string_view>
#include <sys/stat.h>

static constexpr std::size_t NAME_FIELD_SIZE = NAME_LENGTH_MAX + 1;
static constexpr std::size_t HEAD_SIZE = 1 + TEAM_COUNT * (NAME_FIELD_SIZE + 1);
static constexpr std::size_t STAGE_SIZE = PACKED_COURSE_SIZE + 2 + RESULT_SLOT_COUNT * 4;

// More stages than anybody races. A file may be of any length, and is read while a player waits.
static constexpr std::size_t STAGES_READ_MAX = 9999;
static constexpr std::size_t READ_SIZE_MAX = HEAD_SIZE + STAGES_READ_MAX * STAGE_SIZE;

RaceHead racePreview;

// What a race's file held when this game last read or wrote it.
struct KnownFile {
    std::string name;
    std::size_t stages = 0;
};

static KnownFile knownFile;

// The state of the folder when it was last listed.
struct FolderStamp {
    dev_t device;
    ino_t folder;
    timespec changed;
};

// None before the first listing and while the last one can't be trusted.
static std::optional<FolderStamp> listedFolder;

static std::optional<FolderStamp> folderStamp()
{
    struct stat status;
    if (stat(".", &status) != 0)
        return {};
    return FolderStamp{status.st_dev, status.st_ino, status.st_mtim};
}

// The clock by which files are dated ticks every few milliseconds: a file added in the tick in
// which the folder was listed would leave the date as it is.
static bool isSettled(const FolderStamp& stamp)
{
    using namespace std::chrono;
    const auto changed = seconds(stamp.changed.tv_sec) + nanoseconds(stamp.changed.tv_nsec);
    return system_clock::now().time_since_epoch() - changed > milliseconds(50);
}

bool raceListStale()
{
    const auto now = folderStamp();
    return !listedFolder || !now || now->device != listedFolder->device ||
           now->folder != listedFolder->folder ||
           now->changed.tv_sec != listedFolder->changed.tv_sec ||
           now->changed.tv_nsec != listedFolder->changed.tv_nsec;
}

// What the listing itself says of an entry saves asking for it, except for links.
static bool isFile(int folder, const dirent& entry)
{
    if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK)
        return entry.d_type == DT_REG;
    struct stat status;
    return fstatat(folder, entry.d_name, &status, 0) == 0 && S_ISREG(status.st_mode);
}

std::vector<std::string> listRaceFiles()
{
    listedFolder = folderStamp();
    if (listedFolder && !isSettled(*listedFolder))
        listedFolder.reset();
    std::vector<std::string> names;
    DIR* folder = opendir(".");
    if (!folder)
        return names;
    while (const dirent* entry = readdir(folder)) {
        const std::string_view name = entry->d_name;
        if (name.ends_with(RACE_EXTENSION) && !name.starts_with('.') &&
            isFile(dirfd(folder), *entry))
            names.emplace_back(name);
    }
    closedir(folder);
    return names;
}

// False if the bytes end within the head. What stands behind the cut, and a name that the cut goes
// through, stays as it was.
static bool takeHead(ByteReader& reader, RaceHead& head)
{
    if (reader.rest.empty())
        return false;
    head.eventCardsOn = takeByte(reader) != 0;
    for (int team = 0; team < TEAM_COUNT; ++team) {
        if (reader.rest.size() < NAME_FIELD_SIZE)
            return false;
        head.teamName[team] = takeText(reader, NAME_FIELD_SIZE);
        if (reader.rest.empty())
            return false;
        head.isHuman[team] = takeByte(reader) != 0;
    }
    return true;
}

static void putHead(std::vector<std::uint8_t>& bytes, const RaceHead& head)
{
    putByte(bytes, head.eventCardsOn);
    for (int team = 0; team < TEAM_COUNT; ++team) {
        putText(bytes, head.teamName[team], NAME_FIELD_SIZE);
        putByte(bytes, head.isHuman[team] != 0);
    }
}

// A rider comes in once: the first of his places at the finish is his. Behind a sprint he may have
// been set back and have crossed it again, so that both are.
static void dropRepeatsAtFinish(Table<int, RESULT_SLOT_COUNT>& slots)
{
    Table<bool, RIDER_COUNT> seen{};
    for (int slot = FINISH_SLOT; slot < RESULT_SLOT_COUNT; ++slot) {
        int& rider = slots[slot];
        if (rider == -1)
            continue;
        if (seen[rider])
            rider = -1;
        else
            seen[rider] = true;
    }
}

static StageRecord takeStage(ByteReader& reader)
{
    StageRecord stage;
    for (std::uint8_t& packed : stage.course)
        packed = static_cast<std::uint8_t>(takeByte(reader));
    takeByte(reader);
    takeByte(reader);
    for (int& rider : stage.slots) {
        rider = takeInt32(reader);
        if (rider < 0 || rider >= RIDER_COUNT)
            rider = -1;
    }
    dropRepeatsAtFinish(stage.slots);
    return stage;
}

static void putStage(std::vector<std::uint8_t>& bytes, const StageRecord& stage)
{
    bytes.insert(bytes.end(), stage.course.begin(), stage.course.end());
    putByte(bytes, 0);
    putByte(bytes, 0);
    for (const int rider : stage.slots)
        putInt32(bytes, rider);
}

static std::size_t stagesIn(const std::vector<std::uint8_t>& bytes)
{
    return bytes.size() < HEAD_SIZE ? 0 : (bytes.size() - HEAD_SIZE) / STAGE_SIZE;
}

// False if the bytes can't be read; what they hold doesn't matter.
static bool readFile(const std::string& fileName, RaceHead& head)
{
    raceSetup.raceStages.clear();
    std::vector<std::uint8_t> bytes;
    if (!readWholeFile(fileName.c_str(), READ_SIZE_MAX, bytes))
        return false;
    knownFile = {fileName, stagesIn(bytes)};
    ByteReader reader{bytes};
    if (!takeHead(reader, head))
        return true;
    while (reader.rest.size() >= STAGE_SIZE)
        raceSetup.raceStages.push_back(takeStage(reader));
    return true;
}

void readRacePreview(const std::string& fileName)
{
    static_cast<void>(readFile(fileName, racePreview));
}

static RaceHead liveHead()
{
    RaceHead head{.eventCardsOn = raceSetup.eventCardsOn, .teamName = raceSetup.teamName};
    for (int team = 0; team < TEAM_COUNT; ++team)
        head.isHuman[team] = race.riders[team * RIDERS_PER_TEAM].isHuman;
    return head;
}

bool readRace(const std::string& fileName)
{
    RaceHead head = liveHead();
    if (!readFile(fileName, head))
        return false;
    raceSetup.eventCardsOn = head.eventCardsOn;
    raceSetup.teamName = head.teamName;
    for (int rider = 0; rider < RIDER_COUNT; ++rider)
        race.riders[rider].isHuman = head.isHuman[riderTeam(rider)];
    return true;
}

// Whether the file holds no stage that this game doesn't know: another one may have gone on with
// the same race meanwhile. What this game has written itself is known, also if it was told that the
// write had failed.
static bool nobodyWentOn(const std::string& fileName, const std::vector<std::uint8_t>& written)
{
    if (!nameTaken(fileName))
        return true;
    std::vector<std::uint8_t> bytes;
    if (!readWholeFile(fileName.c_str(), READ_SIZE_MAX, bytes))
        return false;
    const std::size_t known = knownFile.name == fileName ? knownFile.stages : 0;
    return stagesIn(bytes) <= known || bytes == written;
}

bool writeRace(const std::string& fileName)
{
    std::vector<std::uint8_t> bytes;
    bytes.reserve(HEAD_SIZE + raceSetup.raceStages.size() * STAGE_SIZE);
    putHead(bytes, liveHead());
    for (const StageRecord& stage : raceSetup.raceStages)
        putStage(bytes, stage);
    if (!nobodyWentOn(fileName, bytes) || !writeWholeFile(fileName.c_str(), bytes))
        return false;
    knownFile = {fileName, raceSetup.raceStages.size()};
    return true;
}

static int courseCode(std::size_t index)
{
    const char character = index < courseText.size() ? courseText[index] : '\0';
    if (character >= '0' && character <= '9')
        return character - '0';
    return character == 'F' ? 14 : character == 'S' ? 15 : 0;
}

static Table<std::uint8_t, PACKED_COURSE_SIZE> packedCourse()
{
    Table<std::uint8_t, PACKED_COURSE_SIZE> packed{};
    std::size_t index = 0;
    for (std::uint8_t& codes : packed) {
        codes = static_cast<std::uint8_t>(courseCode(index) | courseCode(index + 1) << 4);
        index += 2;
    }
    return packed;
}

void appendStage()
{
    StageRecord stage{.course = packedCourse(), .slots = race.resultSlots};
    for (int& rider : stage.slots)
        if (rider != -1 && race.riders[rider].disqualified)
            rider = -1;
    raceSetup.raceStages.push_back(stage);
}

const std::string& scorecardTeamName(int team)
{
    return gameState == STATE_RACE_STANDINGS ? racePreview.teamName[team]
                                             : raceSetup.teamName[team];
}
