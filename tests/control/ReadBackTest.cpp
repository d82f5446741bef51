// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/ReadBack.h"

#include "Bench.h"
#include "core/Fault.h"

namespace tally {
namespace {

using testing::header;

std::string modeLine(const std::string& report) {
    const std::size_t from = report.find(" Mode setting:     ") + 19;
    return report.substr(from, report.find('\r', from) - from);
}

TEST(ReadBack, TheReportShowsEveryFieldInItsPlace) {
    EXPECT_EQ(readBack(header("PQX", 'c') + "\r\nrest\x1a").report,
              "Initialization complete. New settings as read back from instrument:\r\n\r\n"
              " Type: PQX           Serial Number 0417\r"
              " Mode setting:       Average    Cont     1  min interval\r"
              " Time                     14:05 Mar 15, 24\r\r"
              "       RETURN THE SWITCH TO 'STANDBY'   \r"
              "           OR REMOVE THE CABLE NOW       \r\r");
}

TEST(ReadBack, AllTwelveModesAreNamed) {
    const std::vector<std::string> lines = {
        "  Average    Cont     15  min interval", "  Average    Cont     5  min interval",
        "  Average    Cont     1  min interval",  "  Average    Stop     15  min interval",
        "  Average    Stop     5  min interval",  "  Average    Stop     1  min interval",
        "Min/Max/Avg  Cont     15  min interval", "Min/Max/Avg  Cont     5  min interval",
        "Min/Max/Avg  Cont     1  min interval",  "Min/Max/Avg  Stop     15  min interval",
        "Min/Max/Avg  Stop     5  min interval",  "Min/Max/Avg  Stop     1  min interval"};
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(modeLine(readBack(header("PQX", static_cast<char>('a' + i))).report), lines[i]);
}

TEST(ReadBack, ABlankModeIsReportedAsRowA) {
    const ReadBack back = readBack(header("HVN", ' '));
    EXPECT_TRUE(back.blankMode);
    EXPECT_EQ(modeLine(back.report), "  Average    Cont     15  min interval");
    EXPECT_FALSE(readBack(header("HVN", 'a')).blankMode);
}

TEST(ReadBack, TheEmptyRowMHasNoWordAndNoMinutes) {
    EXPECT_EQ(modeLine(readBack(header("PQX", 'm')).report),
              "Min/Max/Avg" + std::string(9, ' ') + "min interval");
}

TEST(ReadBack, ALetterOutsideTheTableIsAFault) {
    for (const char letter : {'n', 'z', 'A', 'C', '0', '`', '\xe4'})
        EXPECT_THROW(readBack(header("PQX", letter)), Fault) << letter;
}

TEST(ReadBack, ATextCutShortBeforeTheModeIsAFault) {
    for (const char* text : {"", "P", "PQX", "P\x1a", "PQX\x1a"})
        EXPECT_THROW(readBack(text), Fault);
}

TEST(ReadBack, ATextCutShortLaterShowsWhatCame) {
    const std::string report = readBack("PQXc   04\x1a").report;
    EXPECT_NE(report.find("Serial Number 04\r Mode"), std::string::npos);
    EXPECT_NE(report.find(" Time                     \r\r"), std::string::npos);
}

TEST(ReadBack, AClockThatIsNoTimeIsShownAsItCame) {
    const std::string report = readBack(header("PQX", 'c', "0417", "99-99-99 99:99") + "\x1a").report;
    EXPECT_NE(report.find(" Time                     99-99-99 99:99\r"), std::string::npos);
}

TEST(ReadBack, TheFamilyCodeIsShownInUpperCase) {
    EXPECT_NE(readBack(header("Pqx", 'c')).report.find(" Type: PQX "), std::string::npos);
}

TEST(ReadBack, BytesBeyondAsciiBecomeCharacters) {
    EXPECT_NE(readBack(header("P\xe4X", 'c')).report.find("Serial Number 0417"), std::string::npos);
    EXPECT_NE(readBack(header("P\xe4X", 'c')).report.find("P\xc3\xa4X"), std::string::npos);
}

} // namespace
} // namespace tally
