// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/InformationReport.h"

#include "LinkBench.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::header;

const std::string title = "                 Instrument Information from download                 \r\n\r\n";
const std::string reminder = "\r\n                  REMEMBER TO SAVE THIS DOWNLOAD TO A FILE               ";

TEST(InformationReportTest, ShowsTheFieldsOfTheHeader) {
    EXPECT_EQ(informationReport("\r\n" + header() + "\rT: 1"),
              title +
                  "Type: KWT     Ser. 1234\r\nMode:  Average 15 min interval\r\n"
                  "           Downloaded or stopped at:  14:05  Mar 15, 24\r\n"
                  "  Readings: 1\r\n  They span: 0 d 0 h 15 min\r\n" +
                  reminder);
}

TEST(InformationReportTest, SaysHowMuchThereIsAndHowMuchTheMemoryHolds) {
    // 40 readings of three values an interval of 5 minutes: Int(5 * 40 / 3) = 66 minutes.
    const std::string text = informationReport(testing::memory(4, header("KWT", 'h')), {.memory = 10710});
    EXPECT_NE(
        text.find("  Readings: 40\r\n  They span: 0 d 1 h 6 min\r\n  The memory holds: 10710 readings\r\n"),
        std::string::npos)
        << text;
}

TEST(InformationReportTest, NamesTheModeByItsLetter) {
    EXPECT_NE(informationReport(header("PQX", 'H')).find("Mode:  Min/Max/Avg 5 min interval\r\n"),
              std::string::npos);
    EXPECT_NE(informationReport(header("PQX", 'f')).find("Mode:  Average 1 min interval\r\n"),
              std::string::npos);
    EXPECT_NE(informationReport(header("HVN", ' ')).find("Mode:  Average 15 min interval\r\n"),
              std::string::npos);
}

TEST(InformationReportTest, ARecoverAddsStartStopAndReadings) {
    EXPECT_EQ(informationReport(header(),
                                {.recovered = RecoveredFacts{"10:00  Mar 01, 24", "12:30  Mar 02, 24", 106}}),
              title +
                  "Type: KWT     Ser. 1234\r\nMode:  Average 15 min interval\r\n"
                  "Start Time 10:00  Mar 01, 24\r\n"
                  "  Downloaded (stopped):  12:30  Mar 02, 24\r\n"
                  "  Readings: 106\r\n" +
                  reminder);
}

TEST(InformationReportTest, TellsHowFarTheClocksAreApart) {
    const auto line = [](std::int64_t minutes) {
        const std::string text = informationReport(header(), {.clockDifference = minutes});
        const std::size_t at = text.find("Instrument clock");
        return text.substr(at, text.find("\r\n", at) - at);
    };
    EXPECT_EQ(line(3), "Instrument clock: 3 min ahead of this computer's");
    EXPECT_EQ(line(-61), "Instrument clock: 61 min behind this computer's");
    EXPECT_EQ(line(0), "Instrument clock: the same as this computer's");
    EXPECT_EQ(informationReport(header()).find("Instrument clock"), std::string::npos);
    EXPECT_EQ(line(2879), "Instrument clock: 2879 min ahead of this computer's");
    EXPECT_EQ(line(-2880), "Instrument clock: 2 days behind this computer's");
    EXPECT_EQ(line(-5000000), "Instrument clock: 3472 days behind this computer's");
}

TEST(InformationReportTest, AModeOutsideTheTableIsUnknown) {
    for (const char mode : {'m', 'n', '5'})
        EXPECT_NE(informationReport(header("KWT", mode)).find("Mode:  unknown\r\n"), std::string::npos);
}

TEST(InformationReportTest, AHeaderWithoutFieldsLeavesThemEmpty) {
    EXPECT_EQ(informationReport("KW\r"), title +
                                             "Type: KW     Ser. \r\nMode:  Average 15 min interval\r\n"
                                             "           Downloaded or stopped at:  \r\n" +
                                             reminder);
}

TEST(InformationReportTest, BytesOfTheHeaderAreShownAsCharacters) {
    std::string head = header();
    head[7] = '\xe9';
    EXPECT_NE(informationReport(head).find("Ser. \u00e9234"), std::string::npos);
}

} // namespace
} // namespace tally
