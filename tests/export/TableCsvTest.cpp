// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/TableCsv.h"

#include "support/SampleFile.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::addFile;
using testing::Sample;

std::string csvOf(const Recordings& recordings, const CsvForm& form = {}, std::optional<Range> range = {}) {
    const auto table = readingTable(recordings, range);
    return table ? tableCsv(recordings, *table, form) : table.error().text;
}

const ReadingTime twoOClock = toReadingTime({2024, 3, 15, 14, 0});

TEST(TableCsv, ARowAReadingUnderTheNameOfItsFile) {
    Recordings recordings;
    addFile(recordings, "/data/a.dat", {105, -5, 0});
    EXPECT_EQ(csvOf(recordings), "Time,a.dat\r\n2024-03-15 14:00,10.5\r\n2024-03-15 14:15,-0.5\r\n"
                                 "2024-03-15 14:30,0.0\r\n");
}

TEST(TableCsv, FilesStandOnTheirCommonTimeAxis) {
    Recordings recordings;
    addFile(recordings, "/x/a.dat", {10, 20, 30});
    addFile(recordings, "/y/a.dat", {40, 50, 60}, {.start = twoOClock + 15});
    EXPECT_EQ(csvOf(recordings),
              "Time,a.dat,a.dat (2)\r\n2024-03-15 14:15,2.0,4.0\r\n2024-03-15 14:30,3.0,5.0\r\n");
    EXPECT_EQ(csvOf(recordings, {}, Range{2, 2}), "Time,a.dat,a.dat (2)\r\n2024-03-15 14:30,3.0,5.0\r\n");
}

TEST(TableCsv, AMinMaxAvgFileGivesARowATripleAndThreeColumns) {
    Recordings recordings;
    // One surplus reading, then triples of average, maximum, minimum.
    addFile(recordings, "g.dat", {7, 20, 30, 10, 50, 60, 40}, {.letter = 'g'});
    EXPECT_EQ(csvOf(recordings), "Time,g.dat min,g.dat max,g.dat avg\r\n2024-03-15 14:15,1.0,3.0,2.0\r\n"
                                 "2024-03-15 14:30,4.0,6.0,5.0\r\n");
}

TEST(TableCsv, SeparatorDecimalSignAndTimeFollowTheForm) {
    Recordings recordings;
    addFile(recordings, "a;b.dat", {105});
    EXPECT_EQ(csvOf(recordings, {';', ',', TimeForm::iso}), "Time;\"a;b.dat\"\r\n2024-03-15 14:00;10,5\r\n");
    EXPECT_EQ(csvOf(recordings, {'\t', '.', TimeForm::shown}),
              "Time\ta;b.dat\r\n14:00  Mar 15, 24\t10.5\r\n");
}

TEST(TableCsv, WhatHoldsTheSeparatorOrAQuoteStandsInQuotes) {
    Recordings recordings;
    addFile(recordings, "a,\"b\".dat", {105});
    EXPECT_EQ(csvOf(recordings, {',', ',', TimeForm::shown}),
              "Time,\"a,\"\"b\"\".dat\"\r\n\"14:00  Mar 15, 24\",\"10,5\"\r\n");
}

TEST(TableCsv, FilesWithoutACommonReadingAreRefused) {
    Recordings recordings;
    addFile(recordings, "a.dat", {10});
    addFile(recordings, "b.dat", {10}, {.start = twoOClock + 15});
    EXPECT_EQ(csvOf(recordings), axisNothingCommon);
}

} // namespace
} // namespace tally
