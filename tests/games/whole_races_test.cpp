#include "app/settings.h"
#include "play/start.h"
#include "race/soundness.h"
#include "support/races.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ostream>

namespace
{

// One number for all that a race decides: FNV-1a over the records that the rules write.
struct Fingerprint {
    void add(int value)
    {
        for (int byte = 0; byte < 4; ++byte) {
            hash ^= static_cast<std::uint32_t>(value >> (8 * byte)) & 0xffu;
            hash *= 16777619u;
        }
    }
    std::uint32_t hash = 2166136261u;
};

void addTurn(Fingerprint& print)
{
    print.add(race.roundNumber);
    print.add(race.currentRider);
    for (const Rider& rider : race.riders) {
        print.add(rider.row);
        print.add(rider.lane);
        print.add(rider.hasMoved + 2 * rider.offBoard + 4 * rider.finished + 8 * rider.skipTurns);
    }
    for (const auto& cards : race.cardUsed)
        for (const int used : cards)
            print.add(used);
    for (const int rider : race.resultSlots)
        print.add(rider);
}

// What may not happen from one turn to the next.
std::string changeFault(const RaceState& before)
{
    for (int rider = 0; rider < RIDER_COUNT; ++rider) {
        const Rider& was = before.riders[rider];
        const Rider& is = race.riders[rider];
        const bool setBack = was.offBoard && race.roundNumber > before.roundNumber;
        if (is.row < was.row && !setBack)
            return "rider " + std::to_string(riderNumber(rider)) + " moved backward";
        if (was.finished && !is.finished)
            return "a finisher came back";
    }
    for (int team = 0; team < TEAM_COUNT; ++team)
        for (int slot = 0; slot < CARD_SLOT_COUNT; ++slot)
            if (before.cardUsed[team][slot] == CARD_SPENT &&
                race.cardUsed[team][slot] == CARD_AVAILABLE)
                return "a spent card came back";
    for (int slot = 0; slot < RESULT_SLOT_COUNT; ++slot)
        if (before.resultSlots[slot] != -1 && race.resultSlots[slot] != before.resultSlots[slot])
            return "a place changed hands";
    return {};
}

// Runs a seeded race to its end; every turn goes into the fingerprint and is checked.
std::uint32_t runRace(std::string_view text, unsigned seed, bool eventCards)
{
    startSeededRace(text, seed);
    raceSetup.eventCardsOn = eventCards;
    Fingerprint print;
    RaceState before = race;
    int steps = 0;
    while (advanceComputerRace()) {
        if (++steps > 200000) {
            ADD_FAILURE() << "the race never ends";
            break;
        }
        // A turn has just ended when the next rider is about to be carried off.
        if (gameState != STATE_ANIMATE && gameState != STATE_NO_MOVE)
            continue;
        if (race.currentRider == before.currentRider && race.roundNumber == before.roundNumber)
            continue;
        const std::string fault = raceFault() + changeFault(before);
        EXPECT_EQ(fault, "") << text << " seed " << seed << " round " << race.roundNumber;
        if (!fault.empty())
            return 0;
        addTurn(print);
        before = race;
    }
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    for (int slot = FINISH_SLOT; slot < RESULT_SLOT_COUNT; ++slot)
        EXPECT_NE(race.resultSlots[slot], -1);
    for (const Rider& rider : race.riders)
        EXPECT_TRUE(rider.finished);
    EXPECT_GT(spentCards(0).size() + spentCards(1).size(), 0u);
    addTurn(print);
    return print.hash;
}

struct Recorded {
    const char* course;
    unsigned firstSeed;
    unsigned races;
    bool eventCards;
    std::uint32_t print;

    friend std::ostream& operator<<(std::ostream& out, const Recorded& recorded)
    {
        return out << recorded.course;
    }
};

// Races whose every turn is known. A change here is a change of the game: say so in the commit.
// clang-format off
constexpr Recorded RECORDED[] = {
    // course                        first seed  races  events  fingerprint
    {"64S5F12",                     1,          12,    false,  0xa67b084bu},
    {"01S23S7S8F12",                1,          12,    false,  0x26d4c464u},
    {"67S8F12",                     1,          12,    false,  0xf71a7a8au},
    {"01S23S4S5F12",                1,          12,    false,  0x27384af0u},
    {"01F23",                       1,          8,     false,  0xd79e1e2du},
    {"012S37812F34",                1,          6,     false,  0x4937e919u},
    {"012345123451234512345F12",    1,          3,     false,  0x8ec69162u},
    {"01S23S4S5123781234512378F12", 1,          3,     false,  0xaaf37331u},
    {"678S12S3S451237812345123F45", 1,          3,     false,  0xe212abe1u},
    {"64S5F12",                     1,          12,    true,   0x3fc0d77cu},
    {"01S23S7S8F12",                1,          12,    true,   0x085e874cu},
    {"01S23S4S5F12",                1,          12,    true,   0x97005989u},
    {"67S8F12",                     1,          12,    true,   0xe48c9e04u},
    {"678S12S3S451237812345123F45", 1,          3,     true,   0xe83f62b4u},
    {"01S23S4S5123781234512378F12", 1,          3,     true,   0xec80a4f5u},
};
// clang-format on

class WholeRaces : public testing::TestWithParam<Recorded>
{
};

} // namespace

TEST_P(WholeRaces, RunToTheirRecordedEnd)
{
    const Recorded& recorded = GetParam();
    Fingerprint all;
    for (unsigned i = 0; i < recorded.races; ++i)
        all.add(static_cast<int>(
            runRace(recorded.course, recorded.firstSeed + i, recorded.eventCards)));
    EXPECT_EQ(all.hash, recorded.print)
        << "course " << recorded.course << " fingerprint 0x" << std::hex << all.hash;
}

INSTANTIATE_TEST_SUITE_P(Seeded, WholeRaces, testing::ValuesIn(RECORDED));

TEST(WholeRaces, TheWayOfCarryingChangesNothing)
{
    startSeededRace(ONE_LAP, 77);
    settings.stepDistance = 37.5f;
    runComputerRace();
    const RaceState smooth = race;
    startSeededRace(ONE_LAP, 77);
    settings.smoothMovement = 0;
    runComputerRace();
    EXPECT_EQ(race.resultSlots, smooth.resultSlots);
    EXPECT_EQ(race.roundNumber, smooth.roundNumber);
    EXPECT_EQ(race.cardUsed, smooth.cardUsed);
}

TEST(WholeRaces, ASecondRaceRunsAsIfItWereTheFirst)
{
    startSeededRace(FROM_START_2, 5);
    runComputerRace();
    const auto first = race.resultSlots;
    std::srand(5);
    startRace();
    runComputerRace();
    EXPECT_EQ(race.resultSlots, first);
}
