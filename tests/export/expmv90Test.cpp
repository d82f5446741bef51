// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/expmv90.h"

#include "ExportFixture.h"
#include "export/ReportPower.h"
#include "view/Power.h"

namespace tally {
namespace {

using testing::addFile;
using testing::constant;
using testing::linesOf;
using testing::ramp;

constexpr double tenKilovolts = 10000;
const ReadingTime midnight = toReadingTime({2024, 3, 15, 0, 0});

class MeteringReport : public testing::ExportTest {
protected:
    std::string recorderId;
    int made = 0;

    MakePower makePower = [this] {
        ++made;
        return powerForReport(recordings, state, tenKilovolts, clock) == PowerRefusal::none;
    };

    ExportOutcome report(const std::optional<std::string>& id = "ABC") {
        prompt.inputs.push_back(id);
        return expmv90(desk, recorderId, makePower);
    }
    // The data lines, without the header, the line end that closes the file and the blanks at the end.
    std::vector<std::string> records() {
        auto lines = linesOf(files.contents.at("/out/Lotusint.prn"));
        EXPECT_EQ(lines.back(), "");
        lines.pop_back();
        for (std::string& line : lines) {
            EXPECT_EQ(line.substr(line.size() - 157), blanks(157));
            line.resize(line.size() - 157);
        }
        EXPECT_EQ(lines.front(),
                  "\"RECORDER ID\",\" DATE\",\" HOUR\",\" IN\",\" UN\",\"     KW\",\"   KVAR\","
                  "\"       \",\"       \"");
        lines.erase(lines.begin());
        return lines;
    }
    static std::string dateAndHour(const std::string& record) { return record.substr(17, 11); }
};

TEST_F(MeteringReport, ADayGivesTwentyFourRecordsInTimeOrder) {
    // Reading i is 0.1 i A, so at 10 kV i kilowatts; hour h has the mean 4 h + 1.5.
    addFile(recordings, "/data/x.dat", ramp(96), {.start = midnight});
    EXPECT_EQ(report(), ExportOutcome::saved);
    const auto lines = records();
    ASSERT_EQ(lines.size(), 24U);
    EXPECT_EQ(lines[0],
              "\"ABC           \",240315,0100,60,\"   KW\",         2,         0,         2,         0");
    EXPECT_EQ(lines[12],
              "\"ABC           \",240315,1300,60,\"   KW\",        50,         0,         50,         0");
    EXPECT_EQ(lines[23],
              "\"ABC           \",240315,2400,60,\"   KW\",        94,         0,         94,         0");
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{"/out/Lotusint.prn  saved OK  "});
    EXPECT_EQ(state.viewKind, ViewKind::none);
}

TEST_F(MeteringReport, ARecordingFromSevenPastTwoBeginsWithTheFirstHourOfTheNextDay) {
    addFile(recordings, "/data/x.dat", ramp(100), {.start = toReadingTime({2024, 3, 15, 14, 7})});
    EXPECT_EQ(report(), ExportOutcome::saved);
    const auto lines = records();
    // 40 readings are skipped; of the 60 that are left each four are an hour.
    ASSERT_EQ(lines.size(), 15U);
    EXPECT_EQ(lines[0],
              "\"ABC           \",240316,0100,60,\"   KW\",        42,         0,         42,         0");
    EXPECT_EQ(dateAndHour(lines[14]), "240316,1500");
}

TEST_F(MeteringReport, TheHourFromTwentyThreeIsTwentyFourHundredOfThatDay) {
    addFile(recordings, "/data/x.dat", constant(200, 10), {.start = midnight});
    report();
    const auto lines = records();
    EXPECT_EQ(dateAndHour(lines[22]), "240315,2300");
    EXPECT_EQ(dateAndHour(lines[23]), "240315,2400");
    EXPECT_EQ(dateAndHour(lines[24]), "240316,0100");
    EXPECT_EQ(dateAndHour(lines[47]), "240316,2400");
}

TEST_F(MeteringReport, EveryHourComesOnceOverTheEndsOfYearAndLeapFebruary) {
    for (const CivilTime& start : {CivilTime{2023, 12, 30, 0, 0}, CivilTime{2024, 2, 27, 0, 7}}) {
        recordings.closeAll();
        state = {};
        addFile(recordings, "/data/x.dat", constant(96 * 4, 10), {.start = toReadingTime(start)});
        report();
        const auto lines = records();
        ASSERT_EQ(lines.size(), 96U);
        ReadingTime end = toReadingTime({start.year, start.month, start.day, 1, 0});
        for (const std::string& line : lines) {
            const bool day = formatTime(end, "%H") == "00";
            EXPECT_EQ(dateAndHour(line),
                      day ? formatTime(end - 1, "%y%m%d,2400") : formatTime(end, "%y%m%d,%H%M"));
            end = end + 60;
        }
    }
}

TEST_F(MeteringReport, ReadingsLeftOverAreNotReported) {
    addFile(recordings, "/data/x.dat", constant(7, 10), {.start = midnight});
    report();
    EXPECT_EQ(records().size(), 1U);
}

TEST_F(MeteringReport, PowerFactorOfEightTenths) {
    recordings.powerFactor = 0.8F;
    // 12.5 A at 10 kV and 0.8 are 100 kW.
    addFile(recordings, "/data/x.dat", constant(4, 125), {.start = midnight});
    report();
    EXPECT_EQ(records().at(0),
              "\"ABC           \",240315,0100,60,\"   KW\",       100,        75,         125,         0");
}

TEST_F(MeteringReport, TheQuestionNamesThePowerFactorAndOffersTheLastIdentifier) {
    addFile(recordings, "/data/x.dat", constant(4, 10), {.start = midnight});
    report("Feeder 12");
    recordings.powerFactor = 0.95F;
    report("Feeder 13");
    ASSERT_EQ(prompt.asked.size(), 2U);
    EXPECT_EQ(prompt.asked[0].text, "Enter Recorder ID\rNo More Than 14 Characters\r\rPower Factor In Use 1; "
                                    "Use OPTIONS to Alter \r");
    EXPECT_EQ(prompt.asked[0].preset, "");
    EXPECT_EQ(prompt.asked[1].text, "Enter Recorder ID\rNo More Than 14 Characters\r\rPower Factor In Use "
                                    "0.95; Use OPTIONS to Alter \r");
    EXPECT_EQ(prompt.asked[1].preset, "Feeder 12");
    EXPECT_EQ(recorderId, "Feeder 13");
}

TEST_F(MeteringReport, AnIdentifierOfTwentyCharactersIsCutToFourteen) {
    addFile(recordings, "/data/x.dat", constant(4, 10), {.start = midnight});
    EXPECT_EQ(report("12345678901234567890"), ExportOutcome::saved);
    EXPECT_EQ(records().at(0).substr(0, 17), "\"12345678901234\",");
    EXPECT_EQ(recorderId, "12345678901234");
}

TEST_F(MeteringReport, AnEmptyIdentifierReadsNotAvailable) {
    addFile(recordings, "/data/x.dat", constant(4, 10), {.start = midnight});
    EXPECT_EQ(report(""), ExportOutcome::saved);
    EXPECT_EQ(records().at(0).substr(0, 17), "\" N/A          \",");
}

TEST_F(MeteringReport, AnIdentifierWithQuotesOrControlCharactersIsRefused) {
    addFile(recordings, "/data/x.dat", constant(4, 10), {.start = midnight});
    for (const char* id : {"A\"B", "A\r\nB", "A\tB", "\x7f"}) {
        EXPECT_EQ(report(id), ExportOutcome::badId);
        EXPECT_EQ(prompt.shown.back().text,
                  "A Recorder ID can hold no double quotes and no control characters. "
                  "No report was written.");
    }
    EXPECT_TRUE(files.contents.empty());
    EXPECT_EQ(recorderId, "");
}

TEST_F(MeteringReport, ACancelledQuestionEndsQuietly) {
    addFile(recordings, "/data/x.dat", constant(4, 10), {.start = midnight});
    recorderId = "kept";
    EXPECT_EQ(report(std::nullopt), ExportOutcome::cancelled);
    EXPECT_TRUE(files.contents.empty());
    EXPECT_TRUE(prompt.shown.empty());
    EXPECT_EQ(recorderId, "kept");
}

TEST_F(MeteringReport, EveryOtherModeIsRefused) {
    for (const char letter : std::string("bcefghijkl")) {
        recordings.closeAll();
        addFile(recordings, "/data/x.dat", constant(300, 10), {.letter = letter, .start = midnight});
        EXPECT_EQ(expmv90(desk, recorderId, makePower), ExportOutcome::wrongMode);
        EXPECT_EQ(prompt.shown.back().text,
                  "            NOT A VALID MODE    \r   INTERVAL MUST BE 15 MINUTES    \r\r");
    }
    EXPECT_TRUE(files.contents.empty());
    EXPECT_EQ(made, 0);
}

TEST_F(MeteringReport, ModeDIsReported) {
    addFile(recordings, "/data/x.dat", constant(4, 10), {.letter = 'd', .start = midnight});
    EXPECT_EQ(report(), ExportOutcome::saved);
}

TEST_F(MeteringReport, ARecordingWithoutAWholeHourAfterAMidnightGivesAMessageAndNoFile) {
    for (const int readings : {1, 39, 43}) {
        recordings.closeAll();
        addFile(recordings, "/data/x.dat", constant(readings, 10),
                {.start = toReadingTime({2024, 3, 15, 14, 7})});
        EXPECT_EQ(expmv90(desk, recorderId, makePower), ExportOutcome::noWholeHour);
        EXPECT_EQ(prompt.shown.back().text,
                  "The readings hold no whole hour after a midnight. No report was written.");
    }
    EXPECT_TRUE(files.contents.empty());
    EXPECT_TRUE(prompt.asked.empty());
}

TEST_F(MeteringReport, TheSelectionStartsAtItsFirstReading) {
    addFile(recordings, "/data/x.dat", ramp(300), {.start = midnight});
    ASSERT_TRUE(applyRange(recordings, state, 10, 110));
    EXPECT_EQ(report(), ExportOutcome::saved);
    // From reading 96, the next midnight, to 110: three whole hours.
    const auto lines = records();
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0],
              "\"ABC           \",240316,0100,60,\"   KW\",        98,         0,         98,         0");
    EXPECT_EQ(lines[2],
              "\"ABC           \",240316,0300,60,\"   KW\",       106,         0,         106,         0");
}

TEST_F(MeteringReport, ThePowerOfTheLastPlotIsUsedWhenItCoversTheRange) {
    addFile(recordings, "/data/x.dat", constant(300, 10), {.start = midnight});
    Plot plot;
    ASSERT_EQ(viewPower(recordings, state, 20000, clock, plot), PowerRefusal::none);
    ASSERT_TRUE(applyRange(recordings, state, 96, 99));
    EXPECT_EQ(report(), ExportOutcome::saved);
    EXPECT_EQ(made, 0);
    EXPECT_EQ(records(),
              std::vector<std::string>{"\"ABC           \",240316,0100,60,\"   KW\",        20,         "
                                       "0,         20,         0"});
}

TEST_F(MeteringReport, ThePowerOfAnotherRangeIsWorkedOutAnew) {
    addFile(recordings, "/data/x.dat", constant(300, 10), {.start = midnight});
    ASSERT_TRUE(applyRange(recordings, state, 0, 95));
    Plot plot;
    ASSERT_EQ(DisplPlotPwr(recordings, state, 20000, clock, plot), PowerRefusal::none);
    state.spanApplied = false;
    EXPECT_EQ(report(), ExportOutcome::saved);
    EXPECT_EQ(made, 1);
    const auto lines = records();
    ASSERT_EQ(lines.size(), 75U);
    EXPECT_EQ(lines[0].substr(40, 11), "        10,");
}

TEST_F(MeteringReport, WithoutPowerThereIsNoReport) {
    addFile(recordings, "/data/x.dat", constant(300, 10), {.start = midnight});
    makePower = [] { return false; };
    EXPECT_EQ(expmv90(desk, recorderId, makePower), ExportOutcome::noPower);
    // Nor when what was worked out is not the range of the report.
    makePower = [] { return true; };
    EXPECT_EQ(expmv90(desk, recorderId, makePower), ExportOutcome::noPower);
    EXPECT_TRUE(files.contents.empty());
    EXPECT_TRUE(prompt.asked.empty());
}

TEST_F(MeteringReport, ThreeFilesAreReportedAsOneLoad) {
    for (const char* path : {"/data/r.dat", "/data/w.dat", "/data/b.dat"})
        addFile(recordings, path, constant(4, 1000), {.start = midnight});
    makePower = [this] { return powerForReport(recordings, state, 13800, clock) == PowerRefusal::none; };
    report();
    // 100.0 A a phase at 13.8 kV are 2390.16 kW.
    EXPECT_EQ(records().at(0).substr(40, 11), "      2390,");
}

TEST_F(MeteringReport, APowerFactorAboveOneIsRefused) {
    addFile(recordings, "/data/x.dat", constant(300, 10), {.start = midnight});
    recordings.powerFactor = 1.2F;
    EXPECT_EQ(expmv90(desk, recorderId, makePower), ExportOutcome::badFactor);
    EXPECT_EQ(prompt.texts(),
              std::vector<std::string>{"The power factor in use is above 1; use OPTIONS to alter "
                                       "it. No report was written."});
    EXPECT_TRUE(files.contents.empty());
}

TEST_F(MeteringReport, APowerFactorOfZeroCountsAsOne) {
    addFile(recordings, "/data/x.dat", constant(4, 10), {.start = midnight});
    recordings.powerFactor = 0;
    EXPECT_EQ(report(), ExportOutcome::saved);
    EXPECT_EQ(records().at(0).substr(40, 22), "        10,         0,");
}

TEST_F(MeteringReport, WithNoFileOpenItSaysSo) {
    EXPECT_EQ(expmv90(desk, recorderId, makePower), ExportOutcome::noFile);
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{"Error - No file available. Need to open a file."});
}

TEST_F(MeteringReport, WithoutADefaultDirectoryItGoesBesideTheDataFile) {
    desk.directory.clear();
    addFile(recordings, "/data/x.dat", constant(4, 10), {.start = midnight});
    report();
    EXPECT_TRUE(files.contents.contains("/data/Lotusint.prn"));
}

TEST_F(MeteringReport, WhenTheFileCannotBeWrittenTheOldOneStays) {
    addFile(recordings, "/data/x.dat", constant(4, 10), {.start = midnight});
    files.contents["/out/Lotusint.prn"] = "old";
    state.viewKind = ViewKind::powerPlot;
    for (const Fault& fault : {fault::diskFull(), fault::permissionDenied(), fault::pathNotFound()}) {
        files.failWrite = fault;
        EXPECT_THROW(report(), Fault);
    }
    EXPECT_EQ(files.contents["/out/Lotusint.prn"], "old");
    EXPECT_EQ(state.viewKind, ViewKind::powerPlot);
    EXPECT_TRUE(prompt.shown.empty());
}

} // namespace
} // namespace tally
