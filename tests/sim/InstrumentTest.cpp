// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Instrument.h"

#include "Bench.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace tally {
namespace {

using namespace sim;
using testing::currentHeader;
using testing::noon;
using testing::OpenInstrument;
using testing::setupWith;

constexpr std::int64_t longAfter = 60'000;

TEST(Instrument, SendsItsMemoryHalfASecondAfterTheOpening) {
    OpenInstrument line(setupWith(7, {101, 102, 103}));
    EXPECT_EQ(line.instrument.nextAt(), 500);
    EXPECT_EQ(line.until(501), "");
    EXPECT_EQ(line.until(longAfter), currentHeader("KWT", 'a', "03-15-24 12:00") + "\rT: 103 102 101\x1a");
    EXPECT_EQ(line.instrument.completed(), 1);
    EXPECT_EQ(line.instrument.nextAt(), never);
}

TEST(Instrument, PacesItselfByItsRate) {
    OpenInstrument line(setupOf(8, noon(), 42966));
    // 115,200 baud are 11,520 characters a second.
    EXPECT_EQ(line.until(1500).size(), 11520U);
    InstrumentSetup slow = setupOf(7, noon(), 10710);
    OpenInstrument slowLine(slow);
    EXPECT_EQ(slowLine.until(1500).size(), 960U);
    slow.speed = 10;
    OpenInstrument fastLine(slow);
    EXPECT_EQ(fastLine.until(1500).size(), 9600U);
}

TEST(Instrument, EveryTypeBeginsWithItsModelCode) {
    const char* const codes[] = {"HV ", "HVA", "HTV", "PQA", "PQD", "PTV", "KWT", "KWT", "KWT", "PQX"};
    for (int type = 1; type <= 10; ++type) {
        OpenInstrument line(setupWith(type, {1}));
        const std::string text = line.until(longAfter);
        EXPECT_EQ(text.substr(0, 3), codes[type - 1]);
        EXPECT_EQ(text[3], type == 1 ? ' ' : 'a');
        EXPECT_EQ(text.substr(7, 4), "1234");
        // Voltage recorders are the types 3 and 6.
        EXPECT_EQ(text[2] == 'V', type == 3 || type == 6) << type;
    }
    EXPECT_THROW(setupOf(0, noon()), std::invalid_argument);
    EXPECT_THROW(setupOf(11, noon()), std::invalid_argument);
}

TEST(Instrument, HoldsAsManyReadingsAsItsTypeDoes) {
    const int samples[] = {2091, 10710, 10710, 10710, 10710, 10710, 10710, 42966, 10710, 2091};
    for (int type = 1; type <= 10; ++type)
        EXPECT_EQ(setupOf(type, noon()).memory.newestFirst(noon()).size(),
                  static_cast<std::size_t>(samples[type - 1]));
}

TEST(Instrument, IsSilentAtAnotherRate) {
    Instrument instrument(setupOf(7, noon(), 100));
    instrument.opened(0);
    instrument.rate(1, 115200);
    EXPECT_EQ(instrument.sent(longAfter), "");
}

TEST(Instrument, SendsRubbishAtAnotherRateWhenAsked) {
    InstrumentSetup setup = setupWith(7, {1});
    setup.rubbishAtWrongRate = true;
    Instrument instrument(setup);
    instrument.opened(0);
    instrument.rate(1, 115200);
    const std::string rubbish = instrument.sent(longAfter);
    EXPECT_EQ(rubbish.size(), 56U + 1 + 2 + 4 + 1);
    EXPECT_EQ(rubbish.find("KWT"), std::string::npos);
    // Each text is garbled in another way; together they hold every value.
    std::string all;
    for (int i = 1; i <= 200; ++i) {
        instrument.plug(i * longAfter);
        all += instrument.sent((i + 1) * longAfter - 1);
    }
    for (int value = 0; value < 256; ++value)
        EXPECT_NE(all.find(static_cast<char>(value)), std::string::npos) << value;
}

TEST(Instrument, BeginsAnewAfterACloseAndReopen) {
    OpenInstrument line(setupWith(7, {1, 2}));
    EXPECT_EQ(line.until(520).size(), 19U);
    line.instrument.closed(530);
    EXPECT_EQ(line.until(longAfter), "");
    line.instrument.opened(longAfter);
    line.instrument.rate(longAfter, 9600);
    EXPECT_EQ(line.until(2 * longAfter).substr(0, 4), "KWTa");
}

TEST(Instrument, IsIgnoredUnlessAskedFor) {
    OpenInstrument line(setupWith(7, {1, 2}));
    EXPECT_EQ(line.until(520).size(), 19U);
    line.instrument.dtr(520, false);
    EXPECT_EQ(line.until(530).size(), 9U);
}

TEST(Instrument, AnInstrumentThatRestartsIsSilentWhileDtrIsLow) {
    InstrumentSetup setup = setupWith(7, {1});
    setup.reset = Reset::restarts;
    OpenInstrument line(setup);
    EXPECT_EQ(line.until(520).size(), 19U);
    line.instrument.dtr(520, false);
    EXPECT_EQ(line.until(5520), "");
    line.instrument.dtr(5520, true);
    EXPECT_EQ(line.until(6019), "");
    EXPECT_EQ(line.until(longAfter), currentHeader("KWT", 'a', "03-15-24 12:00") + "\rT:   1\x1a");
}

TEST(Instrument, AnExcitedInstrumentSendsDuringTheResetAndAfter) {
    InstrumentSetup setup = setupWith(7, {1});
    setup.reset = Reset::excites;
    OpenInstrument line(setup);
    line.instrument.dtr(100, false);
    const std::string whole = currentHeader("KWT", 'a', "03-15-24 12:00") + "\rT:   1\x1a";
    EXPECT_EQ(line.until(599), "");
    EXPECT_EQ(line.until(5100), whole);
    line.instrument.dtr(5100, true);
    EXPECT_EQ(line.until(longAfter), whole);
}

TEST(Instrument, ClosedPortsStartNothing) {
    InstrumentSetup setup = setupWith(7, {1});
    setup.reset = Reset::excites;
    Instrument instrument(setup);
    instrument.dtr(100, false);
    EXPECT_EQ(instrument.nextAt(), never);
}

TEST(Instrument, AProbeOfThePortStartsNothing) {
    OpenInstrument line(setupWith(7, {1}));
    line.instrument.closed(2);
    EXPECT_EQ(line.instrument.nextAt(), never);
    EXPECT_EQ(line.until(longAfter), "");
}

TEST(Instrument, RunningSendsItsClockAndStoppedWhenItStopped) {
    InstrumentSetup setup = setupOf(7, noon(), 10);
    setup.clockSeconds = 30;
    OpenInstrument running(setup);
    EXPECT_EQ(running.until(29'999).substr(0, 44), currentHeader("KWT", 'a', "03-15-24 12:00").substr(0, 44));
    running.instrument.plug(30'000);
    EXPECT_EQ(running.until(31'000).substr(30, 14), "03-15-24 12:01");

    setup.memory.stopped = true;
    setup.memory.stoppedAt = noon() - 60;
    OpenInstrument stopped(setup);
    EXPECT_EQ(stopped.until(longAfter).substr(0, 44),
              currentHeader("KWT", 'A', "03-15-24 11:00").substr(0, 44));
}

TEST(Instrument, AFullMemoryThatStopsShowsItsModeInUpperCase) {
    InstrumentSetup setup = setupOf(7, noon(), 0);
    setup.memory = filledMemory('d', 10710, 10710, noon());
    OpenInstrument line(setup);
    EXPECT_EQ(line.until(longAfter)[3], 'D');
}

TEST(Instrument, AFailedBatteryGivesABriefHeaderWithTheBegin) {
    InstrumentSetup setup = setupOf(7, noon(), 0);
    setup.memory = filledMemory('f', 10710, 60, noon());
    setup.batteryFailed = true;
    setup.layout = Layout::brief;
    OpenInstrument line(setup);
    const std::string text = line.until(longAfter);
    EXPECT_EQ(text.substr(0, 44), currentHeader("KWT", 'F', "03-15-24 11:00").substr(0, 44));
    EXPECT_EQ(text.substr(44, 4), "\r\nT:");
}

TEST(Instrument, TheCableCanGoInAgainAndAgain) {
    InstrumentSetup setup = setupWith(7, {1});
    setup.speed = 0;
    setup.repeatAfter = 2000;
    OpenInstrument line(setup);
    const std::size_t once = line.until(500).size();
    EXPECT_EQ(line.until(2499), "");
    EXPECT_EQ(line.until(4500).size(), 2 * once);
}

TEST(Instrument, WaitsForTheTrainerWhenAsked) {
    InstrumentSetup setup = setupWith(7, {1});
    setup.plugOnOpen = false;
    OpenInstrument line(setup);
    EXPECT_EQ(line.until(longAfter), "");
    line.instrument.pressed(longAfter);
    EXPECT_EQ(line.until(2 * longAfter).substr(0, 3), "KWT");
}

TEST(Instrument, LowBatterySendsTheInitialInLowerCase) {
    InstrumentSetup setup = setupWith(10, {1});
    setup.faults.lowBattery = true;
    EXPECT_EQ(OpenInstrument(setup).until(longAfter).substr(0, 3), "pQX");
}

TEST(Instrument, WrongTokenBeginsWithAnInitialAndIsNoKWT) {
    InstrumentSetup setup = setupWith(7, {1});
    setup.faults.wrongToken = true;
    EXPECT_EQ(OpenInstrument(setup).until(longAfter).substr(0, 3), "KWX");
}

TEST(Instrument, SilentSendsNothingAndStallsPause) {
    InstrumentSetup setup = setupWith(7, {1});
    setup.speed = 0;
    setup.faults.stalls = {{10, 700}};
    OpenInstrument stalling(setup);
    EXPECT_EQ(stalling.until(1199).size(), 10U);
    EXPECT_EQ(stalling.until(1200).size(), 54U);
    setup.faults.silent = true;
    EXPECT_EQ(OpenInstrument(setup).until(longAfter), "");
}

TEST(Instrument, AModeOutsideTheTableAndATimeThatIsNone) {
    InstrumentSetup setup = setupWith(7, {1});
    setup.modeShown = 'z';
    setup.faults.badTime = true;
    EXPECT_EQ(OpenInstrument(setup).until(longAfter).substr(0, 44),
              currentHeader("KWT", 'z', "99-99-99 99:99").substr(0, 44));
}

TEST(Instrument, ThePulledCableFallsSilentAfterSoManyCharacters) {
    for (const std::int64_t count : {0, 1, 3, 56, 63}) {
        InstrumentSetup setup = setupWith(7, {1});
        setup.faults.cable = count;
        OpenInstrument line(setup);
        EXPECT_EQ(line.until(longAfter).size(), static_cast<std::size_t>(count));
        EXPECT_FALSE(line.instrument.gone());
        EXPECT_EQ(line.instrument.completed(), 0);
        line.instrument.received(longAfter, "\t");
        EXPECT_EQ(line.instrument.nextAt(), never);
    }
}

TEST(Instrument, ThePulledAdapterTakesThePortAway) {
    for (const std::int64_t count : {0, 1, 50}) {
        InstrumentSetup setup = setupWith(7, {1});
        setup.faults.gone = count;
        OpenInstrument line(setup);
        EXPECT_FALSE(line.instrument.gone());
        EXPECT_EQ(line.until(longAfter).size(), static_cast<std::size_t>(count));
        EXPECT_TRUE(line.instrument.gone());
    }
}

TEST(Instrument, AnEndlessTextWithoutPaceComesInPieces) {
    InstrumentSetup setup = setupWith(7, {1});
    setup.speed = 0;
    setup.faults.endless = true;
    OpenInstrument line(setup);
    EXPECT_EQ(line.until(500).size(), 65536U);
    EXPECT_EQ(line.until(500).size(), 65536U);
    Instrument deaf(setup);
    deaf.opened(0);
    deaf.rate(0, 300);
    EXPECT_EQ(deaf.sent(500), "");
}

} // namespace
} // namespace tally
