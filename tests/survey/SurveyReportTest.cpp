// SPDX-License-Identifier: GPL-3.0-or-later
#include "survey/SurveyReport.h"

#include "SurveySample.h"
#include "survey/Peaks.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::fillFeeder;

const ReadingTime printed = toReadingTime({2024, 4, 2, 9, 30});

class Report : public ::testing::Test {
protected:
    SurveyData survey;

    Report() { survey.stationName = "NORTH"; }
    void process(int feeder) {
        const auto at = static_cast<std::size_t>(feeder);
        survey.feederPeaks[at] = feederPeaksOf(survey.feeders[at]);
    }
};

TEST_F(Report, TheLabelsOfAResult) {
    survey.feederNames[2] = "Mill Lane";
    EXPECT_EQ(stationLabel(survey), "STATION: NORTH");
    EXPECT_EQ(feederLabel(survey, 2), "  F3: Mill Lane");
    EXPECT_EQ(resultTitle, "TARNWELL STATION FEEDER REPORT");
    EXPECT_EQ(resultCaption, "FEEDER AMPS DURING FEEDER PEAK (NON-COINCIDENTAL)  ");
}

TEST_F(Report, AResultShowsPeaksInWholeAmperesAndTheirTimes) {
    fillFeeder(survey, 0, {100, 1235, 20}, {11, 21, 12344}, {72, 32, 12});
    process(0);
    EXPECT_EQ(feederResult(survey, 0), "\t\tAmps          Peak Time;  Date\r\n"
                                       "RED           \t0124           \t14:15      Mar 15, 24\r\n"
                                       "WHITE       \t1234           \t14:30      Mar 15, 24\r\n"
                                       "BLUE         \t0007           \t14:00      Mar 15, 24\r\n"
                                       "\r\n"
                                       "\t\tRED\tWHITE\tBLUE\tSum\r\n"
                                       "At RED peak\t0124\t0002\t0003\t0129\r\n"
                                       "At WHITE peak\t0002\t1234\t0001\t1238\r\n"
                                       "At BLUE peak\t0010\t0001\t0007\t0018\r\n");
}

TEST_F(Report, TheStationReportListsTheFeedersThatAreLoaded) {
    fillFeeder(survey, 0, {100, 1235}, {0, 20}, {72, 35});
    fillFeeder(survey, 1, {0, 500}, {0, 400}, {0, 300});
    findStationPeak(survey);
    EXPECT_EQ(stationReport(survey), "                          14:15             Mar 15, 24\r\n"
                                     "                      Peak Time         Peak Date\r\n"
                                     "\t\t\t RED          WHITE      BLUE  \r\n"
                                     "   F1:  Feeder1\t\t 0124           0002         0004\r\n"
                                     "   F2:  Feeder2\t\t 0050           0040         0030\r\n"
                                     "Station: NORTH\r\n");
}

TEST_F(Report, NamesOfAnyLengthKeepTheColumnsInLine) {
    fillFeeder(survey, 0, {1}, {1}, {1});
    fillFeeder(survey, 1, {1}, {1}, {1});
    fillFeeder(survey, 3, {1}, {1}, {1});
    survey.feederNames = {"A", "Süd-Ost Ärger", "", "A very long name of a feeder"};
    findStationPeak(survey);
    const std::string report = expandTabs(stationReport(survey));
    for (const char* label : {"   F1:  ", "   F2:  ", "   F4:  "}) {
        const auto at = report.find(label);
        ASSERT_NE(at, std::string::npos);
        const std::string line = report.substr(at, report.find("\r\n", at) - at);
        // The accented letters take two bytes each.
        const std::size_t extra = label[4] == '2' ? 2U : 0U;
        EXPECT_EQ(line.find(" 0000 "), 40U + extra) << line;
    }
    EXPECT_NE(report.find("\r\n" + std::string(40, ' ') + " RED          WHITE      BLUE  \r\n"),
              std::string::npos);
}

TEST_F(Report, TheFeedersOnPaper) {
    fillFeeder(survey, 0, {100}, {200}, {300});
    fillFeeder(survey, 2, {110}, {210}, {310});
    process(0);
    process(2);
    const SurveyPaper paper = feedersPaper(survey, printed);
    EXPECT_EQ(paper.title, "LOAD SURVEY REPORT" + std::string(42, ' ') + "Apr 02, 2024");
    EXPECT_EQ(paper.text, " STATION NAME: NORTH\r\n"
                          "\r\n"
                          " Feeder Amperes During Feeder Peak (Non-Coincidental Peak) \r\n"
                          "\r\n"
                          "Feeder 1  Feeder1\r\n"
                          "                Amps          Peak Time;  Date\r\n"
                          "RED             0010            14:00      Mar 15, 24\r\n"
                          "WHITE           0020            14:00      Mar 15, 24\r\n"
                          "BLUE            0030            14:00      Mar 15, 24\r\n"
                          "\r\n"
                          "                RED     WHITE   BLUE    Sum\r\n"
                          "At RED peak     0010    0020    0030    0060\r\n"
                          "At WHITE peak   0010    0020    0030    0060\r\n"
                          "At BLUE peak    0010    0020    0030    0060\r\n"
                          "\r\n"
                          "Feeder 3  Feeder3\r\n"
                          "                Amps          Peak Time;  Date\r\n"
                          "RED             0011            14:00      Mar 15, 24\r\n"
                          "WHITE           0021            14:00      Mar 15, 24\r\n"
                          "BLUE            0031            14:00      Mar 15, 24\r\n"
                          "\r\n"
                          "                RED     WHITE   BLUE    Sum\r\n"
                          "At RED peak     0011    0021    0031    0063\r\n"
                          "At WHITE peak   0011    0021    0031    0063\r\n"
                          "At BLUE peak    0011    0021    0031    0063\r\n"
                          "\r\n"
                          "                    ***************                         \r\n");
}

TEST_F(Report, TheStationPeakOnPaperFollowsTheFeeders) {
    fillFeeder(survey, 0, {100}, {200}, {300});
    process(0);
    findStationPeak(survey);
    const SurveyPaper feeders = feedersPaper(survey, printed);
    const SurveyPaper station = stationPaper(survey, printed);
    EXPECT_EQ(station.title, feeders.title);
    EXPECT_EQ(station.text, feeders.text + "\r\n"
                                           "Feeder Phase Amps During Station Peak (Coincidental Peak)\r\n"
                                           "                          14:00             Mar 15, 24\r\n"
                                           "                      Peak Time         Peak Date\r\n"
                                           "                         RED          WHITE      BLUE  \r\n"
                                           "   F1:  Feeder1          0010           0020         0030\r\n"
                                           "Station: NORTH\r\n");
}

TEST_F(Report, NoticesArePrintedAtTheEnd) {
    fillFeeder(survey, 0, {100}, {200}, {300});
    process(0);
    findStationPeak(survey);
    const std::string feeders = feedersPaper(survey, printed).text;
    const std::string station = stationPaper(survey, printed).text;
    survey.notices = {"one", "two"};
    EXPECT_EQ(feedersPaper(survey, printed).text, feeders + "\r\nNotices\r\n  one\r\n  two\r\n");
    EXPECT_EQ(stationPaper(survey, printed).text, station + "\r\nNotices\r\n  one\r\n  two\r\n");
}

TEST(ExpandTabs, LeadToTheNextMultipleOfEight) {
    EXPECT_EQ(expandTabs("\ta\r\nab\tc\t\td"), "        a\r\nab      c               d");
    EXPECT_EQ(expandTabs("12345678\tx"), "12345678        x");
    EXPECT_EQ(expandTabs("\xc3\xa4\tx"), "\xc3\xa4       x");
}

} // namespace
} // namespace tally
