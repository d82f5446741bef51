// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bench.h"
#include "sim/Instrument.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using namespace sim;
using testing::currentHeader;
using testing::OpenInstrument;
using testing::setupWith;

// An instrument that has sent its memory and answers without pace.
struct Ready : OpenInstrument {
    explicit Ready(InstrumentSetup setup)
        : OpenInstrument([&] {
              setup.speed = 0;
              return setup;
          }()) {
        until(1000);
    }
    std::string after(std::int64_t time, const std::string& characters, std::int64_t later) {
        instrument.received(time, characters);
        return until(time + later);
    }
};

TEST(Initialization, TabIsAnsweredUpToT) {
    Ready line(setupWith(7, {1}));
    EXPECT_EQ(line.after(1000, "\t", 49), "");
    EXPECT_EQ(line.until(1050), "\r\nSET");
}

TEST(Initialization, TheCommandStopsTheMemory) {
    OpenInstrument line(setupOf(7, testing::noon(), 10710));
    line.until(700);
    line.instrument.received(700, "\t");
    EXPECT_EQ(line.until(2000), "\r\nSET");
}

TEST(Initialization, EighteenCharactersEraseAndAreReadBack) {
    Ready line(setupWith(7, {1, 2, 3}));
    line.after(1000, "\t", 500);
    EXPECT_EQ(line.after(1500, "03-15-24 14:05 c1\r", 1999), "");
    EXPECT_EQ(line.instrument.erasures(), 1);
    EXPECT_EQ(line.instrument.initString(), "03-15-24 14:05 c1\r");
    EXPECT_EQ(line.until(3500), currentHeader("KWT", 'i', "03-15-24 14:05") + "\r\x1a");
}

TEST(Initialization, EveryModeComesBackAsItWasSent) {
    for (char letter = 'a'; letter <= 'f'; ++letter)
        for (const char digit : {'0', '1'}) {
            Ready line(setupWith(8, {1}));
            line.after(1000, "\t", 500);
            const std::string back =
                line.after(1500, std::string("03-15-24 14:05 ") + letter + digit + "\r", 5000);
            EXPECT_EQ(back.substr(3, 1), std::string(1, static_cast<char>(letter + (digit == '1' ? 6 : 0))));
        }
}

TEST(Initialization, ItThenRecordsFromNothing) {
    Ready line(setupWith(7, {1, 2, 3}));
    line.after(1000, "\t", 500);
    line.after(2000, "03-15-24 14:05 c0\r", 5000);
    line.instrument.plug(10'000);
    EXPECT_EQ(line.until(10'000), currentHeader("KWT", 'c', "03-15-24 14:05") + "\rT:\x1a");
    line.instrument.plug(2000 + 3 * 60'000);
    const std::string later = line.until(2000 + 3 * 60'000);
    EXPECT_EQ(later.substr(30, 14), "03-15-24 14:08");
    EXPECT_EQ(later.size(), 56U + 1 + 2 + 3 * 4 + 1);
}

TEST(Initialization, TheBlankModeWantsDC4AndABlank) {
    Ready line(setupWith(1, {1}));
    EXPECT_EQ(line.after(1000, "\t", 500), "");
    EXPECT_EQ(line.after(1500, "\x14", 500), "\r\nSET");
    EXPECT_EQ(line.after(2000, "03-15-24 14:05  0\r", 5000),
              currentHeader("HV ", ' ', "03-15-24 14:05") + "\r\x1a");
    EXPECT_EQ(line.instrument.erasures(), 1);
}

TEST(Initialization, DC4IsNothingToTheOthers) {
    Ready line(setupWith(7, {1}));
    EXPECT_EQ(line.after(1000, "\x14", 5000), "");
}

TEST(Initialization, NothingIsErasedBySettingsThatAreNone) {
    for (const char* text : {"13-15-24 14:05 c1\r", "03-15-24 14:05 g0\r", "03-15-24 14:05 c2\r",
                             "03-15-24 14:05xc1\r", "03-15-24 14:05 c1\n", "03-15-24 14:05  0\r"}) {
        Ready line(setupWith(7, {1}));
        line.after(1000, "\t", 500);
        EXPECT_EQ(line.after(1500, text, 5000), "") << text;
        EXPECT_EQ(line.instrument.erasures(), 0) << text;
    }
}

TEST(Initialization, NothingIsErasedWithoutTheCommandOrAfterTheCableIsOut) {
    Ready line(setupWith(7, {1}));
    line.after(1000, "03-15-24 14:05 c1\r", 500);
    EXPECT_EQ(line.instrument.erasures(), 0);
    line.after(2000, "\t", 500);
    line.instrument.unplug();
    line.after(3000, "03-15-24 14:05 c1\r", 500);
    EXPECT_EQ(line.instrument.erasures(), 0);
}

TEST(Initialization, SeventeenCharactersAreWaitedWith) {
    Ready line(setupWith(7, {1}));
    line.after(1000, "\t", 500);
    line.after(1500, "03-15-24 14:05 c1", 5000);
    EXPECT_EQ(line.instrument.erasures(), 0);
    line.after(7000, "\r", 5000);
    EXPECT_EQ(line.instrument.erasures(), 1);
}

TEST(Initialization, ASecondCommandBeginsAnew) {
    Ready line(setupWith(7, {1}));
    line.after(1000, "\t", 500);
    line.after(1500, "03-15", 500);
    EXPECT_EQ(line.after(2000, "\t", 500), "\r\nSET");
    line.after(3000, "03-15-24 14:05 c1\r", 500);
    EXPECT_EQ(line.instrument.erasures(), 1);
}

TEST(Initialization, AtAnotherRateNothingIsUnderstood) {
    Ready line(setupWith(7, {1}));
    line.instrument.rate(1000, 115200);
    line.after(1000, "\t", 500);
    line.after(1500, "03-15-24 14:05 c1\r", 500);
    EXPECT_EQ(line.instrument.erasures(), 0);
}

TEST(Initialization, AfterAFailedBatteryTheUsualHeaderComesBack) {
    InstrumentSetup setup = setupWith(7, {1});
    setup.batteryFailed = true;
    setup.layout = Layout::brief;
    Ready line(setup);
    line.after(1000, "\t", 500);
    EXPECT_EQ(line.after(1500, "03-15-24 14:05 a0\r", 5000),
              currentHeader("KWT", 'a', "03-15-24 14:05") + "\r\x1a");
}

TEST(Initialization, AStrictInstrumentTakesTheSettingsOnlyAfterItsAnswer) {
    InstrumentSetup setup = setupWith(7, {1});
    setup.answerTime = 300;
    for (const bool strict : {false, true}) {
        setup.strict = strict;
        Ready early(setup);
        early.after(1000, "\t", 200);
        early.after(1200, "03-15-24 14:05 c1\r", 5000);
        EXPECT_EQ(early.instrument.erasures(), strict ? 0 : 1);
        Ready late(setup);
        EXPECT_EQ(late.after(1000, "\t", 299), "");
        EXPECT_EQ(late.until(1300), "\r\nSET");
        late.after(1301, "03-15-24 14:05 c1\r", 5000);
        EXPECT_EQ(late.instrument.erasures(), 1);
    }
}

TEST(Initialization, TheMemoryMayGoOnToItsLineEndOrItsEndBeforeTheAnswer) {
    InstrumentSetup setup = setupWith(7, std::vector<int>(25, 7));
    const std::string ten = "   7   7   7   7   7   7   7   7   7   7";
    const std::string head = currentHeader("KWT", 'a', "03-15-24 12:00") + "\r";
    for (const BeforeAnswer before : {BeforeAnswer::line, BeforeAnswer::memory}) {
        setup.beforeAnswer = before;
        OpenInstrument line(setup);
        // 57 characters at 9,600 baud take 59.4 ms: the header is out, "T:" is not.
        EXPECT_EQ(line.until(560), head);
        line.instrument.received(560, "\t");
        const std::string rest = before == BeforeAnswer::line
                                     ? "T:" + ten + "\n\r"
                                     : "T:" + ten + "\n\r" + ten + "\n\r   7   7   7   7   7\x1a";
        EXPECT_EQ(line.until(5000), rest + "\r\nSET");
        line.instrument.received(5000, "03-15-24 14:05 c1\r");
        EXPECT_EQ(line.instrument.erasures(), 1);
        EXPECT_EQ(line.instrument.completed(), 0);
    }
}

TEST(Initialization, AMemoryThatIsOutAlreadyDelaysNoAnswer) {
    InstrumentSetup setup = setupWith(7, {1});
    setup.beforeAnswer = BeforeAnswer::memory;
    Ready line(setup);
    EXPECT_EQ(line.after(1000, "\t", 50), "\r\nSET");
}

TEST(Initialization, EachStepCanFail) {
    InstrumentSetup setup = setupWith(7, {1});
    setup.faults.noAnswer = true;
    EXPECT_EQ(Ready(setup).after(1000, "\t", 9000), "");

    setup.faults = {};
    setup.faults.rubbishAnswer = true;
    Ready rubbish(setup);
    EXPECT_EQ(rubbish.after(1000, "\t", 9000).size(), 16U);
    // What it sent may hold a "T"; it takes no settings all the same.
    rubbish.after(10'000, "03-15-24 14:05 c1\r", 9000);
    EXPECT_EQ(rubbish.instrument.erasures(), 0);

    const auto readBack = [&](const Faults& faults) {
        setup.faults = faults;
        Ready line(setup);
        line.after(1000, "\t", 500);
        return line.after(1500, "03-15-24 14:05 c1\r", 9000);
    };
    Faults faults;
    faults.noReadBack = true;
    EXPECT_EQ(readBack(faults), "");
    faults = {};
    faults.openReadBack = true;
    EXPECT_EQ(readBack(faults).find('\x1a'), std::string::npos);
    faults = {};
    faults.readBackCut = 20;
    EXPECT_EQ(readBack(faults).size(), 20U);
}

} // namespace
} // namespace tally
