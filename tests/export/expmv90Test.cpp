// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/expmv90.h"

#include "ExportFixture.h"
#include "core/Fault.h"
#include "view/Power.h"

namespace tally {
namespace {

using testing::addFile;
using testing::constant;
using testing::in;
using testing::linesOf;
using testing::ramp;

const ReadingTime midnight = toReadingTime({2024, 3, 15, 0, 0});

class MeteringReport : public testing::ExportTest {
protected:
    PowerBasis basis{"10000", 1.0F};

    Expected<MeteringPlan> plan(const Range& range) {
        return planMetering(recordings, range, basis.factor, place);
    }
    Expected<Exported> report(const std::string& id, const Range& range) {
        const auto planned = plan(range);
        if (!planned)
            return tl::make_unexpected(planned.error());
        return expmv90(*planned, powerOf(recordings, range, basis).value(), id, files);
    }
    // Of the whole first file.
    Expected<Exported> report(const std::string& id = "ABC") { return report(id, recordings.all(0)); }
    // Why a report of the whole file cannot be made.
    std::string refused() {
        const auto planned = plan(recordings.all(0));
        return planned ? "" : planned.error().text;
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
    EXPECT_TRUE(report());
    const auto lines = records();
    ASSERT_EQ(lines.size(), 24U);
    EXPECT_EQ(lines[0],
              "\"ABC           \",240315,0100,60,\"   KW\",         2,         0,         2,         0");
    EXPECT_EQ(lines[12],
              "\"ABC           \",240315,1300,60,\"   KW\",        50,         0,         50,         0");
    EXPECT_EQ(lines[23],
              "\"ABC           \",240315,2400,60,\"   KW\",        94,         0,         94,         0");
    EXPECT_EQ(report()->path, in("/out", "Lotusint.prn"));
    EXPECT_EQ(report()->text, in("/out", "Lotusint.prn") + "  saved OK  ");
}

TEST_F(MeteringReport, ARecordingFromSevenPastTwoBeginsWithTheFirstHourOfTheNextDay) {
    addFile(recordings, "/data/x.dat", ramp(100), {.start = toReadingTime({2024, 3, 15, 14, 7})});
    EXPECT_TRUE(report());
    const auto lines = records();
    // 40 readings are skipped; of the 60 that are left each four are an hour.
    ASSERT_EQ(lines.size(), 15U);
    EXPECT_EQ(lines[0],
              "\"ABC           \",240316,0100,60,\"   KW\",        42,         0,         42,         0");
    EXPECT_EQ(dateAndHour(lines[14]), "240316,1500");
}

TEST_F(MeteringReport, TheHourFromTwentyThreeIsTwentyFourHundredOfThatDay) {
    addFile(recordings, "/data/x.dat", constant(200, 10), {.start = midnight});
    EXPECT_TRUE(report());
    const auto lines = records();
    EXPECT_EQ(dateAndHour(lines[22]), "240315,2300");
    EXPECT_EQ(dateAndHour(lines[23]), "240315,2400");
    EXPECT_EQ(dateAndHour(lines[24]), "240316,0100");
    EXPECT_EQ(dateAndHour(lines[47]), "240316,2400");
}

TEST_F(MeteringReport, EveryHourComesOnceOverTheEndsOfYearAndLeapFebruary) {
    for (const CivilTime& start : {CivilTime{2023, 12, 30, 0, 0}, CivilTime{2024, 2, 27, 0, 7}}) {
        recordings.closeAll();
        addFile(recordings, "/data/x.dat", constant(96 * 4, 10), {.start = toReadingTime(start)});
        EXPECT_TRUE(report());
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
    EXPECT_TRUE(report());
    EXPECT_EQ(records().size(), 1U);
}

TEST_F(MeteringReport, PowerFactorOfEightTenths) {
    basis.factor = 0.8F;
    // 12.5 A at 10 kV and 0.8 are 100 kW.
    addFile(recordings, "/data/x.dat", constant(4, 125), {.start = midnight});
    EXPECT_TRUE(report());
    EXPECT_EQ(records().at(0),
              "\"ABC           \",240315,0100,60,\"   KW\",       100,        75,         125,         0");
}

TEST_F(MeteringReport, TheQuestionNamesThePowerFactorAndOffersTheLastIdentifier) {
    const InputQuestion first = recorderQuestion(1.0F, "");
    EXPECT_EQ(first.text, "Enter Recorder ID\rNo More Than 14 Characters\r\rPower Factor In Use 1; "
                          "Use OPTIONS to Alter \r");
    EXPECT_EQ(first.preset, "");
    const InputQuestion second = recorderQuestion(0.95F, "Feeder 12");
    EXPECT_EQ(second.text, "Enter Recorder ID\rNo More Than 14 Characters\r\rPower Factor In Use "
                           "0.95; Use OPTIONS to Alter \r");
    EXPECT_EQ(second.preset, "Feeder 12");
}

TEST_F(MeteringReport, AnIdentifierOfTwentyCharactersIsCutToFourteen) {
    addFile(recordings, "/data/x.dat", constant(4, 10), {.start = midnight});
    EXPECT_TRUE(report("12345678901234567890"));
    EXPECT_EQ(records().at(0).substr(0, 17), "\"12345678901234\",");
    EXPECT_EQ(keptIdentifier("12345678901234567890"), "12345678901234");
    EXPECT_EQ(keptIdentifier("Feeder 12"), "Feeder 12");
}

TEST_F(MeteringReport, AnEmptyIdentifierReadsNotAvailable) {
    addFile(recordings, "/data/x.dat", constant(4, 10), {.start = midnight});
    EXPECT_TRUE(report(""));
    EXPECT_EQ(records().at(0).substr(0, 17), "\" N/A          \",");
}

TEST_F(MeteringReport, AnIdentifierWithQuotesOrControlCharactersIsRefused) {
    addFile(recordings, "/data/x.dat", constant(4, 10), {.start = midnight});
    for (const char* id : {"A\"B", "A\r\nB", "A\tB", "\x7f"}) {
        const auto done = report(id);
        ASSERT_FALSE(done);
        EXPECT_EQ(done.error().text, "A Recorder ID can hold no double quotes and no control characters. "
                                     "No report was written.");
    }
    EXPECT_TRUE(files.contents.empty());
}

TEST_F(MeteringReport, EveryOtherModeIsRefused) {
    for (const char letter : std::string("bcefghijkl")) {
        recordings.closeAll();
        addFile(recordings, "/data/x.dat", constant(300, 10), {.letter = letter, .start = midnight});
        EXPECT_EQ(refused(), "            NOT A VALID MODE    \r   INTERVAL MUST BE 15 MINUTES    \r\r");
    }
}

TEST_F(MeteringReport, ModeDIsReported) {
    addFile(recordings, "/data/x.dat", constant(4, 10), {.letter = 'd', .start = midnight});
    EXPECT_TRUE(report());
}

TEST_F(MeteringReport, ARecordingWithoutAWholeHourAfterAMidnightGivesAMessageAndNoFile) {
    for (const int readings : {1, 39, 43}) {
        recordings.closeAll();
        addFile(recordings, "/data/x.dat", constant(readings, 10),
                {.start = toReadingTime({2024, 3, 15, 14, 7})});
        EXPECT_EQ(refused(), "The readings hold no whole hour after a midnight. No report was written.");
    }
}

TEST_F(MeteringReport, ARangeStartsAtItsFirstReading) {
    addFile(recordings, "/data/x.dat", ramp(300), {.start = midnight});
    EXPECT_TRUE(report("ABC", {10, 110}));
    // From reading 96, the next midnight, to 110: three whole hours.
    const auto lines = records();
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0],
              "\"ABC           \",240316,0100,60,\"   KW\",        98,         0,         98,         0");
    EXPECT_EQ(lines[2],
              "\"ABC           \",240316,0300,60,\"   KW\",       106,         0,         106,         0");
}

TEST_F(MeteringReport, ThePowerOfAnotherRangeIsASoftwareFault) {
    addFile(recordings, "/data/x.dat", constant(300, 10), {.start = midnight});
    const auto planned = plan({96, 99});
    ASSERT_TRUE(planned);
    EXPECT_THROW((void)expmv90(*planned, powerOf(recordings, {0, 95}, basis).value(), "ABC", files), Fault);
    EXPECT_TRUE(files.contents.empty());
}

TEST_F(MeteringReport, ThreeFilesAreReportedAsOneLoad) {
    for (const char* path : {"/data/r.dat", "/data/w.dat", "/data/b.dat"})
        addFile(recordings, path, constant(4, 1000), {.start = midnight});
    basis.vline = "13800";
    EXPECT_TRUE(report());
    // 100.0 A a phase at 13.8 kV are 2390.16 kW.
    EXPECT_EQ(records().at(0).substr(40, 11), "      2390,");
}

TEST_F(MeteringReport, APowerFactorAboveOneIsRefused) {
    addFile(recordings, "/data/x.dat", constant(300, 10), {.start = midnight});
    basis.factor = 1.2F;
    EXPECT_EQ(refused(), "The power factor in use is above 1; use OPTIONS to alter "
                         "it. No report was written.");
}

TEST_F(MeteringReport, WithNoFileOpenItSaysSo) {
    EXPECT_EQ(refused(), "Error - No file available. Need to open a file.");
}

TEST_F(MeteringReport, AnOpenDataFileIsNotReplaced) {
    addFile(recordings, "/out/Lotusint.prn", constant(4, 10), {.start = midnight});
    EXPECT_EQ(refused(), "The export would replace an open data file. Nothing was written.");
}

TEST_F(MeteringReport, WithoutADefaultDirectoryItGoesBesideTheDataFile) {
    place.directory.clear();
    addFile(recordings, "/data/x.dat", constant(4, 10), {.start = midnight});
    EXPECT_TRUE(report());
    EXPECT_TRUE(files.contents.contains("/data/Lotusint.prn"));
}

TEST_F(MeteringReport, WhenTheFileCannotBeWrittenTheOldOneStays) {
    addFile(recordings, "/data/x.dat", constant(4, 10), {.start = midnight});
    files.contents["/out/Lotusint.prn"] = "old";
    for (const Fault& fault : {fault::diskFull(), fault::permissionDenied(), fault::pathNotFound()}) {
        files.failWrite = fault;
        EXPECT_THROW(report(), Fault);
    }
    EXPECT_EQ(files.contents["/out/Lotusint.prn"], "old");
}

} // namespace
} // namespace tally
