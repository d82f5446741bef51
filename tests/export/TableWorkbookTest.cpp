// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/TableWorkbook.h"

#include "support/SampleFile.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::addFile;

const ReadingTime twoOClock = toReadingTime({2024, 3, 15, 14, 0});

Workbook bookOf(const Recordings& recordings) {
    return tableWorkbook(recordings, readingTable(recordings).value(), twoOClock);
}

double number(const Cell& cell) {
    return std::get<NumberCell>(cell).value;
}

TEST(TableWorkbook, ReadingsAreDatesAndNumbersUnderHeadings) {
    Recordings recordings;
    addFile(recordings, "/x/a.dat", {105, 20});
    addFile(recordings, "/x/b.dat", {30, 45});
    const Workbook book = bookOf(recordings);
    ASSERT_EQ(book.sheets.size(), 2U);
    const auto& rows = book.sheets[0].rows;
    EXPECT_EQ(book.sheets[0].name, "Readings");
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(std::get<std::string>(rows[0][0]), "Time");
    EXPECT_EQ(std::get<std::string>(rows[0][2]), "b.dat");
    EXPECT_EQ(std::get<ReadingTime>(rows[2][0]), twoOClock + 15);
    EXPECT_EQ(number(rows[1][1]), 10.5);
    EXPECT_EQ(number(rows[2][2]), 4.5);
    EXPECT_EQ(book.made, twoOClock);
}

TEST(TableWorkbook, TheChartDrawsEveryColumnOverTheTimes) {
    Recordings recordings;
    addFile(recordings, "g.dat", {20, 30, 10, 50, 60, 40}, {.letter = 'g'});
    const Workbook book = bookOf(recordings);
    ASSERT_EQ(book.sheets[0].charts.size(), 1U);
    const WorkbookChart& chart = book.sheets[0].charts[0];
    ASSERT_EQ(chart.lines.size(), 3U);
    EXPECT_EQ(chart.lines[2].y.column, 3);
    EXPECT_EQ(chart.lines[2].y.last, 2);
    EXPECT_EQ(chart.lines[2].x.column, 0);
    EXPECT_GT(chart.column, 3);
}

// The cell of a fact of a file, counted from 0.
Cell fact(const Workbook& book, const std::string& label, std::size_t file) {
    for (const auto& row : book.sheets[1].rows)
        if (std::get<std::string>(row[0]) == label)
            return row.at(file + 1);
    return {};
}

TEST(TableWorkbook, FactsStandInAColumnAFile) {
    Recordings recordings;
    addFile(recordings, "/x/a.dat", {105, 20}, {.type = 'V'});
    recordings.gNotes[0][1] = "Feeder 7";
    const Workbook book = bookOf(recordings);
    EXPECT_EQ(book.sheets[1].name, "Facts");
    EXPECT_EQ(std::get<std::string>(fact(book, "File", 0)), "a.dat");
    EXPECT_EQ(std::get<std::string>(fact(book, "Path", 0)), "/x/a.dat");
    EXPECT_EQ(std::get<std::string>(fact(book, "Unit", 0)), "V");
    EXPECT_EQ(std::get<std::string>(fact(book, "Circuit", 0)), "Feeder 7");
    EXPECT_EQ(std::get<ReadingTime>(fact(book, "Last reading", 0)), twoOClock + 15);
    EXPECT_EQ(number(fact(book, "Number of readings", 0)), 2);
    EXPECT_EQ(number(fact(book, "Maximum", 0)), 10.5);
}

} // namespace
} // namespace tally
