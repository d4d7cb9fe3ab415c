#include "app/settings.h"
#include "race/soundness.h"
#include "support/fingerprint.h"
#include "support/races.h"

#include <gtest/gtest.h>

namespace
{

// All that a race decides: the records that the rules write.
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

// Runs a seeded race to its end; every turn goes into the fingerprint and is checked.
std::uint32_t runRace(std::string_view text, unsigned seed, bool eventCards)
{
    startSeededRace(text, seed);
    raceSetup.eventCardsOn = eventCards;
    Fingerprint print;
    std::pair before(race.currentRider, race.roundNumber);
    for (int steps = 0; steps < 200000 && advanceComputerRace(); ++steps) {
        const std::pair now(race.currentRider, race.roundNumber);
        // A turn has just ended when the next rider is about to be carried off.
        if ((gameState != STATE_ANIMATE && gameState != STATE_NO_MOVE) || now == before)
            continue;
        EXPECT_EQ(raceFault(), "") << text << " seed " << seed << " round " << race.roundNumber;
        addTurn(print);
        before = now;
    }
    EXPECT_EQ(gameState, STATE_FINAL_SCORECARD);
    for (const Rider& rider : race.riders)
        EXPECT_TRUE(rider.finished);
    addTurn(print);
    return print.hash;
}

struct Recorded {
    const char* course;
    unsigned races; // seeded with 1, 2 and so on
    bool eventCards;
    std::uint32_t print;
};

// Races whose every turn is known. A change here is a change of the game: say so in the commit.
// clang-format off
constexpr Recorded RECORDED[] = {
    // course                        races  events  fingerprint
    {"64S5F12",                     12,    false,  0xa67b084bu},
    {"01S23S7S8F12",                12,    false,  0x26d4c464u},
    {"67S8F12",                     12,    false,  0xf71a7a8au},
    {"01S23S4S5F12",                12,    false,  0x27384af0u},
    {"01F23",                       8,     false,  0xd79e1e2du},
    {"012S37812F34",                6,     false,  0x4937e919u},
    {"012345123451234512345F12",    3,     false,  0x8ec69162u},
    {"01S23S4S5123781234512378F12", 3,     false,  0xaaf37331u},
    {"678S12S3S451237812345123F45", 3,     false,  0xe212abe1u},
    {"64S5F12",                     12,    true,   0x3fc0d77cu},
    {"01S23S7S8F12",                12,    true,   0x085e874cu},
    {"01S23S4S5F12",                12,    true,   0x97005989u},
    {"67S8F12",                     12,    true,   0xe48c9e04u},
    {"678S12S3S451237812345123F45", 3,     true,   0xe83f62b4u},
    {"01S23S4S5123781234512378F12", 3,     true,   0xec80a4f5u},
};
// clang-format on

} // namespace

TEST(WholeRaces, RunToTheirRecordedEnd)
{
    for (const Recorded& recorded : RECORDED) {
        Fingerprint all;
        for (unsigned seed = 1; seed <= recorded.races; ++seed)
            all.add(static_cast<int>(runRace(recorded.course, seed, recorded.eventCards)));
        EXPECT_EQ(all.hash, recorded.print)
            << recorded.course << " fingerprint 0x" << std::hex << all.hash;
    }
}

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
}
