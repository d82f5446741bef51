// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/Export.h"

#include "ExportFixture.h"
#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "view/Power.h"
#include "view/Print.h"
#include "view/Printpwr.h"
#include "view/Range.h"

namespace tally {
namespace {

using testing::addFile;
using testing::constant;
using testing::linesOf;
using testing::ramp;

constexpr const char* readingHeader = "yy mm dd hh mm Reading";
constexpr const char* minMaxAvgHeader = "yy mm dd hh mm Avg Max Min";

class TextExport : public testing::ExportTest {
protected:
    Table table;

    // Opens /data/x.dat and lays out its table.
    void show(std::vector<std::int16_t> tenths, const testing::Sample& sample = {}) {
        recordings.closeAll();
        addFile(recordings, "/data/x.dat", std::move(tenths), sample);
        table = Print(recordings, 0, wholeFile(recordings, 0));
    }
    Expected<Exported> write(bool onePerLine) { return Export(recordings, 0, table, onePerLine, files); }
    std::string exported() const { return files.contents.at("/data/x.prn"); }
    // The lines of the one-per-line form without the empty one that ends the file.
    std::vector<std::string> perLine() {
        EXPECT_TRUE(write(true));
        auto lines = linesOf(exported());
        EXPECT_FALSE(lines.empty() || !lines.back().empty());
        lines.pop_back();
        return lines;
    }
};

using Lines = std::vector<std::string>;

TEST_F(TextExport, TheTableFormIsTitleAndTableAsTheyStand) {
    show(ramp(9));
    EXPECT_TRUE(write(false));
    EXPECT_EQ(exported(), " Time     Date                            Eight readings of average\r\n"
                          "14:00  Mar 15, 24        000.0    000.1    000.2    000.3    000.4    000.5    "
                          "000.6    000.7  \r\n"
                          "16:00  Mar 15, 24        000.8  \r\n"
                          "\r\n");
}

TEST_F(TextExport, TheMessageKeepsTheBlankThatTheFileNameDrops) {
    show(ramp(1));
    const auto done = write(true);
    ASSERT_TRUE(done);
    EXPECT_EQ(done->path, "/data/x.prn");
    EXPECT_EQ(done->text, "/data/x.prn saved OK");
    EXPECT_EQ(files.contents.size(), 1U);
    EXPECT_TRUE(files.contents.contains("/data/x.prn"));
}

TEST_F(TextExport, TheWorkedExampleOfTwoValues) {
    table.text = "14:00  Mar 15, 24       101  102  \r\n";
    addFile(recordings, "/data/x.dat", ramp(2));
    EXPECT_TRUE(write(true));
    EXPECT_EQ(exported(), "yy mm dd hh mm Reading\r\n"
                          "24 03 15 14 00 101\r\n"
                          "24 03 15 14 15 102\r\n"
                          "\r\n"
                          "\r\n");
}

TEST_F(TextExport, FullLinesHaveNoEmptyLineBetweenThem) {
    show(ramp(16));
    const Lines lines = perLine();
    ASSERT_EQ(lines.size(), 17U);
    EXPECT_EQ(lines[8], "24 03 15 15 45 000.7");
    EXPECT_EQ(lines[9], "24 03 15 16 00 000.8");
    EXPECT_EQ(lines[16], "24 03 15 17 45 001.5");
}

TEST_F(TextExport, ALowFifteenMinuteFileOnePerLine) {
    show({1230, 5, 32767});
    perLine();
    EXPECT_EQ(exported(), "yy mm dd hh mm Reading\r\n"
                          "24 03 15 14 00 123.0\r\n"
                          "24 03 15 14 15 000.5\r\n"
                          "24 03 15 14 30 3276.7\r\n"
                          "\r\n"
                          "\r\n");
}

TEST_F(TextExport, AHighFifteenMinuteFileOnePerLine) {
    show({1230, 5, 32767}, {.letter = 'd', .low = false});
    perLine();
    EXPECT_EQ(exported(), "yy mm dd hh mm Reading\r\n"
                          "24 03 15 14 00 123\r\n"
                          "24 03 15 14 15 001\r\n"
                          "24 03 15 14 30 3277\r\n"
                          "\r\n"
                          "\r\n");
}

TEST_F(TextExport, FiveMinuteAveragesAreSixIntervalsATableLine) {
    for (const char letter : {'b', 'e'}) {
        show(ramp(7), {.letter = letter});
        EXPECT_EQ(perLine(), (Lines{readingHeader, "24 03 15 14 00 000.0", "24 03 15 14 05 000.1",
                                    "24 03 15 14 10 000.2", "24 03 15 14 15 000.3", "24 03 15 14 20 000.4",
                                    "24 03 15 14 25 000.5", "24 03 15 14 30 000.6", ""}));
    }
}

TEST_F(TextExport, OneMinuteAveragesAreTenIntervalsATableLine) {
    for (const char letter : {'c', 'f'}) {
        show(ramp(11), {.letter = letter});
        EXPECT_EQ(perLine(),
                  (Lines{readingHeader, "24 03 15 14 00 000.0", "24 03 15 14 01 000.1",
                         "24 03 15 14 02 000.2", "24 03 15 14 03 000.3", "24 03 15 14 04 000.4",
                         "24 03 15 14 05 000.5", "24 03 15 14 06 000.6", "24 03 15 14 07 000.7",
                         "24 03 15 14 08 000.8", "24 03 15 14 09 000.9", "24 03 15 14 10 001.0", ""}));
    }
}

TEST_F(TextExport, FifteenMinuteTriplesAreTwoIntervalsATableLine) {
    for (const char letter : {'g', 'j'}) {
        show(ramp(9), {.letter = letter});
        EXPECT_EQ(perLine(),
                  (Lines{minMaxAvgHeader, "24 03 15 14 00 000.0 000.1 000.2",
                         "24 03 15 14 15 000.3 000.4 000.5", "24 03 15 14 30 000.6 000.7 000.8", ""}));
    }
}

TEST_F(TextExport, FiveMinuteTriplesAreTwoIntervalsATableLine) {
    for (const char letter : {'h', 'k'}) {
        show(ramp(9), {.letter = letter});
        EXPECT_EQ(perLine(),
                  (Lines{minMaxAvgHeader, "24 03 15 14 00 000.0 000.1 000.2",
                         "24 03 15 14 05 000.3 000.4 000.5", "24 03 15 14 10 000.6 000.7 000.8", ""}));
    }
}

TEST_F(TextExport, OneMinuteTriplesAreTwoIntervalsATableLine) {
    for (const char letter : {'i', 'l'}) {
        show(ramp(9), {.letter = letter});
        EXPECT_EQ(perLine(),
                  (Lines{minMaxAvgHeader, "24 03 15 14 00 000.0 000.1 000.2",
                         "24 03 15 14 01 000.3 000.4 000.5", "24 03 15 14 02 000.6 000.7 000.8", ""}));
    }
}

TEST_F(TextExport, SixFieldsOfAMinMaxAvgLineAreTwoLinesOfThreeValues) {
    show(ramp(6), {.letter = 'g'});
    EXPECT_EQ(perLine(), (Lines{minMaxAvgHeader, "24 03 15 14 00 000.0 000.1 000.2",
                                "24 03 15 14 15 000.3 000.4 000.5"}));
}

TEST_F(TextExport, ATripleThatIsCutShortMakesAShortenedLine) {
    addFile(recordings, "/data/x.dat", ramp(3), {.letter = 'g'});
    table.text = "14:00  Mar 15, 24       1  2  3  4  5  \r\n";
    EXPECT_EQ(perLine(), (Lines{minMaxAvgHeader, "24 03 15 14 00 1 2 3", "24 03 15 14 15 4 5"}));
}

TEST_F(TextExport, ALetterOutsideTheTableTakesTheFirstRow) {
    EXPECT_EQ(onePerLineText("14:00  Mar 15, 24       1  2  \r\n", ' ').text,
              "yy mm dd hh mm Reading\r\n24 03 15 14 00 1\r\n24 03 15 14 15 2\r\n\r\n");
    EXPECT_EQ(onePerLineText("14:00  Mar 15, 24       1  2  3  4  5  6  7  8  9  \r\n", 'A').text.size(),
              24U + 8 * 18U);
}

TEST_F(TextExport, FieldsBeyondTheTenthAreIgnored) {
    const std::string text = onePerLineText("14:00  Mar 15, 24  1 2 3 4 5 6 7 8 9 10 11 12\r\n", 'c').text;
    EXPECT_EQ(linesOf(text).size(), 11U);
    EXPECT_EQ(linesOf(text).back(), "24 03 15 14 09 10");
}

TEST_F(TextExport, EachTableLineBeginsWithItsOwnTime) {
    EXPECT_EQ(onePerLineText("14:00  Mar 15, 24  1\r\n09:07  Feb 29, 24  2\r\n", 'a').text,
              "yy mm dd hh mm Reading\r\n24 03 15 14 00 1\r\n\r\n24 02 29 09 07 2\r\n\r\n");
}

TEST_F(TextExport, ALineWithoutValuesIsAnEmptyLine) {
    EXPECT_EQ(onePerLineText("14:00  Mar 15, 24 \r\n", 'a').text, "yy mm dd hh mm Reading\r\n\r\n");
}

TEST_F(TextExport, LinesAreEndedByCarriageReturnsAndLineFeedsDoNotCount) {
    const auto made = onePerLineText("14:00  Mar 15, 24  1\r14:15  Mar 15, 24  2", 'a');
    EXPECT_FALSE(made.lineTooShort);
    EXPECT_EQ(made.text, "yy mm dd hh mm Reading\r\n24 03 15 14 00 1\r\n\r\n24 03 15 14 15 2\r\n\r\n");
}

TEST_F(TextExport, AnEmptyTableGivesTheHeaderAlone) {
    addFile(recordings, "/data/x.dat", ramp(1));
    EXPECT_EQ(perLine(), Lines{readingHeader});
}

TEST_F(TextExport, AShortTableLineIsASoftwareErrorAndLeavesWhatWasConverted) {
    addFile(recordings, "/data/x.dat", ramp(1));
    table.text = "14:00  Mar 15, 24       1  \r\n14:00  Mar 15, 2\r\n14:15  Mar 15, 24       2  \r\n";
    const auto refused = write(true);
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().message(), "Software Error #2 in Export.bas. Line in gTable$ too short.");
    EXPECT_EQ(exported(), "yy mm dd hh mm Reading\r\n24 03 15 14 00 1\r\n\r\n");
}

TEST_F(TextExport, ALineOfEighteenCharactersIsLongEnoughOneOfSeventeenIsNot) {
    EXPECT_FALSE(onePerLineText("14:00  Mar 15, 24 \r\n", 'a').lineTooShort);
    EXPECT_TRUE(onePerLineText("14:00  Mar 15, 24\r\n", 'a').lineTooShort);
    EXPECT_TRUE(onePerLineText("\r\n", 'a').lineTooShort);
}

TEST_F(TextExport, ALineThatBeginsWithNoTimeChangesNothing) {
    addFile(recordings, "/data/x.dat", ramp(1));
    table.text = "no time at all, but long enough\r\n";
    EXPECT_THROW(write(true), Fault);
    EXPECT_TRUE(files.contents.empty());
}

TEST_F(TextExport, TheRangeOfTheTableIsWhatIsWritten) {
    recordings.closeAll();
    addFile(recordings, "/data/x.dat", ramp(40));
    table = Print(recordings, 0, {10, 12});
    EXPECT_EQ(perLine(), (Lines{readingHeader, "24 03 15 16 30 001.0", "24 03 15 16 45 001.1",
                                "24 03 15 17 00 001.2", ""}));
}

TEST_F(TextExport, DaysRunOverTheEndsOfMonthYearAndLeapFebruary) {
    const auto lastLine = [this](const CivilTime& start) {
        show(ramp(2), {.start = toReadingTime(start)});
        return perLine().at(2);
    };
    EXPECT_EQ(lastLine({2024, 4, 30, 23, 45}), "24 05 01 00 00 000.1");
    EXPECT_EQ(lastLine({2023, 12, 31, 23, 52}), "24 01 01 00 07 000.1");
    EXPECT_EQ(lastLine({2024, 2, 28, 23, 45}), "24 02 29 00 00 000.1");
    EXPECT_EQ(lastLine({2024, 2, 29, 23, 45}), "24 03 01 00 00 000.1");
    EXPECT_EQ(lastLine({2023, 2, 28, 23, 45}), "23 03 01 00 00 000.1");
    EXPECT_EQ(lastLine({1999, 12, 31, 23, 45}), "00 01 01 00 00 000.1");
}

TEST_F(TextExport, ThePowerTableIsWrittenWhenItIsTheTableShown) {
    addFile(recordings, "/data/x.dat", constant(2, 1000));
    table = Printpwr(recordings, powerOf(recordings, {0, 1}, {"10000", 1.0F}).value());
    EXPECT_EQ(perLine(), (Lines{readingHeader, "24 03 15 14 00 1000.0", "24 03 15 14 15 1000.0", ""}));
}

TEST_F(TextExport, WithNoFileOpenItSaysSo) {
    for (const int slot : {Recordings::noFile, Recordings::cancelled, 0}) {
        const auto refused = Export(recordings, slot, table, false, files);
        ASSERT_FALSE(refused);
        EXPECT_EQ(refused.error().text, "Error - No file available. Need to open a file.");
    }
}

TEST_F(TextExport, WhenTheFileCannotBeWrittenTheOldOneStays) {
    show(ramp(3));
    files.contents["/data/x.prn"] = "old";
    for (const Fault& fault : {fault::diskFull(), fault::permissionDenied(), fault::pathNotFound()}) {
        files.failWrite = fault;
        EXPECT_THROW(write(true), Fault);
        EXPECT_THROW(write(false), Fault);
    }
    EXPECT_EQ(exported(), "old");
}

TEST_F(TextExport, ADataFileNamedLikeItsExportIsNotReplaced) {
    addFile(recordings, "/data/x.prn", ramp(3));
    EXPECT_FALSE(write(true));
    EXPECT_TRUE(files.contents.empty());
}

TEST_F(TextExport, AVeryShortPathStillGetsItsExtension) {
    addFile(recordings, "ab", ramp(1));
    EXPECT_TRUE(write(false));
    EXPECT_TRUE(files.contents.contains("ab.prn"));
}

// One line a reading, and the empty line that a short last table line ends with.
std::string plainLines(const Recordings& recordings, int valuesPerTableLine) {
    const FileFacts& info = recordings.info(0);
    const int k = valuesPerInterval(info.modeLetter);
    std::string text = std::string(k == 3 ? minMaxAvgHeader : readingHeader) + "\r\n";
    for (int i = 0; i < info.count; i += k) {
        text += formatTime(timeOf(info, i), "%y %m %d %H %M");
        for (int j = i; j < i + k; ++j)
            text += " " + Format(recordings.reading(0, j) / 10.0, info.low ? "000.0" : "000");
        text += "\r\n";
    }
    return text + (info.count % valuesPerTableLine == 0 ? "\r\n" : "\r\n\r\n");
}

TEST_F(TextExport, LongFilesOfEveryModeKeepEveryReading) {
    for (const char letter : std::string("abcdefghijkl")) {
        for (const bool low : {true, false}) {
            show(ramp(9999), {.letter = letter, .low = low});
            perLine();
            const int minutes = modeRow(letter).minutes;
            const int perTableLine = isMinMaxAvg(letter) || minutes == 5 ? 6 : minutes == 15 ? 8 : 10;
            ASSERT_EQ(exported(), plainLines(recordings, perTableLine)) << letter;
        }
    }
}

} // namespace
} // namespace tally
