// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/RecoverText.h"

#include "Bench.h"
#include "core/Fault.h"

namespace tally {
namespace {

using testing::header;

std::string memory(char mode, int readings, const std::string& time = "03-15-24 14:05") {
    std::string text = header("PQX", mode, "0417", time) + "\r\nT:";
    for (int i = 0; i < readings; ++i)
        text += i % 10 == 9 ? " 123\r\n" : " 123";
    return text + "\x1a";
}

ReadingTime at(int day, int hour, int minute) {
    return toReadingTime({2024, 3, day, hour, minute});
}

TEST(RecoverText, TwoCharactersOfTheHeaderSpeakAgainstIt) {
    EXPECT_EQ(recoverRefusal(46, 'T', 7), std::nullopt);
    EXPECT_EQ(recoverRefusal(46, 'X', 7), RecoverRefusal::notValid);
    EXPECT_EQ(recoverRefusal(45, '\x1a', 7), RecoverRefusal::notValid);
    EXPECT_EQ(recoverRefusal(47, '\x1a', 7), std::nullopt);
    EXPECT_EQ(recoverRefusal(2, 'A', 3), RecoverRefusal::notVoltmeter);
    EXPECT_EQ(recoverRefusal(2, 'A', 7), std::nullopt);
    EXPECT_EQ(recoverRefusal(2, 'V', 6), std::nullopt);
}

TEST(RecoverText, ABlankModeIsA) {
    EXPECT_EQ(recoverHeader(memory(' ', 3)).mode, 'a');
}

TEST(RecoverText, TheHeaderGivesModeAndStartTime) {
    const RecoverHeader found = recoverHeader(memory('F', 3));
    EXPECT_EQ(found.mode, 'f');
    EXPECT_EQ(found.start, at(15, 14, 5));
}

TEST(RecoverText, AModeOutsideTheTableIsASubscriptFault) {
    for (const char mode : {'M', 'Z', '0', '@'}) {
        try {
            recoverHeader(memory(mode, 3));
            FAIL() << mode;
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number(), 9);
        }
    }
    EXPECT_THROW(recoverHeader("PQX"), Fault);
}

TEST(RecoverText, AStartTimeThatIsNoDateIsATypeMismatch) {
    for (const char* time : {"99-99-99 99:99", "              ", "03-15-24 24:00", "ab-cd-ef gh:ij"}) {
        try {
            recoverHeader(memory('F', 3, time));
            FAIL() << time;
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number(), 13);
        }
    }
    EXPECT_THROW(recoverHeader("PQXF"), Fault);
}

TEST(RecoverText, TheFileHoldsTheTextInDoubleQuotes) {
    EXPECT_EQ(quotedText("abc"), "\"abc\"\r\n");
}

TEST(RecoverText, CountsTheReadingsNotTheHeaderNorTheMark) {
    EXPECT_EQ(countReadings(quotedText(memory('F', 0))), 0);
    EXPECT_EQ(countReadings(quotedText(memory('F', 1))), 1);
    EXPECT_EQ(countReadings(quotedText(memory('F', 25))), 25);
    EXPECT_EQ(countReadings(quotedText(memory('F', 42966))), 42966);
    EXPECT_EQ(countReadings(quotedText(memory('F', 43000))), 42966);
}

TEST(RecoverText, AReadingThatNoRecordingCanHoldIsAnOverflow) {
    EXPECT_THROW(countReadings(quotedText(header("PQX", 'F') + "\r\nT: 12 99999999 \x1a")), Fault);
}

TEST(RecoverText, OnlyAFullMemoryInAContinuousModeIsOverwritten) {
    for (const char mode : std::string("abcghi")) {
        EXPECT_TRUE(overwritten(mode, 10710, 10710)) << mode;
        EXPECT_TRUE(overwritten(mode, 10711, 10710)) << mode;
        EXPECT_FALSE(overwritten(mode, 10709, 10710)) << mode;
    }
    for (const char mode : std::string("defjkl"))
        EXPECT_FALSE(overwritten(mode, 10710, 10710)) << mode;
}

TEST(RecoverText, TheStopTimeLiesAnIntervalAReadingAfterTheStart) {
    EXPECT_EQ(stopTime({'f', at(15, 14, 5)}, 0), at(15, 14, 5));
    EXPECT_EQ(stopTime({'f', at(15, 14, 5)}, 60), at(15, 15, 5));
    EXPECT_EQ(stopTime({'e', at(15, 14, 5)}, 13), at(15, 15, 10));
    EXPECT_EQ(stopTime({'d', at(15, 14, 5)}, 96), at(16, 14, 5));
}

TEST(RecoverText, ThreeReadingsOfMinMaxAvgAreOneInterval) {
    EXPECT_EQ(stopTime({'l', at(15, 14, 5)}, 180), at(15, 15, 5));
    // Int(15 * 5 / 3) = 25 minutes.
    EXPECT_EQ(stopTime({'j', at(15, 14, 5)}, 5), at(15, 14, 30));
}

TEST(RecoverText, TheStopTimeTakesTheFourteenPlacesOfTheHeaderTime) {
    const RecoveredText done = recoverText("?" + memory('F', 60), {'f', at(15, 14, 5)}, 60);
    EXPECT_EQ(done.text, "?" + memory('F', 60, "03-15-24 15:05"));
    EXPECT_EQ(done.start, at(15, 14, 5));
    EXPECT_EQ(done.stopped, at(15, 15, 5));
    EXPECT_EQ(done.readings, 60);
}

TEST(RecoverText, DamageOnTheLineIsCounted) {
    const std::string header = "KWTF   1234                   03-15-24 11:00\r\nT:";
    const std::string ten = "   1   2   3   4   5   6   7   8   9  10\n\r";
    EXPECT_EQ(damageText(header + ten + ten + "  11\x1a"), "");
    EXPECT_EQ(damageText(header + "105.3 99.9 99.8  0.8  0.5  0.0  0.1  0.2  0.3  0.4\n\r  0.6\x1a"), "");
    EXPECT_EQ(damageText(header + "\x1a"), "");
    const std::string damaged = damageText(header + ten + "   1   2   A   4   5   6   7   8   9\n\r\x1a");
    EXPECT_NE(damaged.find("1 line(s) with an incorrect number of readings\r\n"), std::string::npos);
    EXPECT_NE(damaged.find("1 reading(s) that are no numbers\r\n"), std::string::npos);
    EXPECT_NE(damageText(header + "   1 1.2.3\x1a").find(" 1 reading(s)"), std::string::npos);
}

} // namespace
} // namespace tally
