// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/XlsxWriter.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <clocale>
#include <limits>

namespace tally {
namespace {

Workbook oneSheet(std::vector<std::vector<Cell>> rows) {
    return {{{.name = "Readings", .rows = std::move(rows)}}, {}};
}

// A part of the file, as the system's own unpacker reads it.
std::string part(const Workbook& workbook, const char* name) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("book.xlsx")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(xlsxBytes(workbook)));
    file.close();
    QProcess unzip;
    unzip.start(QStringLiteral("unzip"), {QStringLiteral("-p"), file.fileName(), QString::fromLatin1(name)});
    EXPECT_TRUE(unzip.waitForFinished());
    return unzip.readAllStandardOutput().toStdString();
}

bool holds(const std::string& text, const std::string& piece) {
    return text.find(piece) != std::string::npos;
}

TEST(XlsxWriter, NumbersAreNumbersAndTimesAreDays) {
    const auto sheet = part(oneSheet({{std::string("Time"), std::string("a.dat")},
                                      {toReadingTime({2024, 3, 15, 6, 0}), NumberCell{12.5}},
                                      {ClockCell{90}, NumberCell{3, 0}}}),
                            "xl/worksheets/sheet1.xml");
    // 15 March 2024 is day 45366 of a spreadsheet; six o'clock is a quarter of a day, 1:30 a sixteenth.
    EXPECT_TRUE(holds(sheet, "<v>45366.25</v>")) << sheet;
    EXPECT_TRUE(holds(sheet, "<v>12.5</v>"));
    EXPECT_TRUE(holds(sheet, "<v>0.0625</v>"));
    EXPECT_TRUE(holds(sheet, "<v>3</v>"));
    EXPECT_TRUE(holds(sheet, R"(state="frozen")"));
}

TEST(XlsxWriter, NumbersHaveAPointInALocaleOfCommas) {
    const QTemporaryDir locales;
    if (QProcess::execute(QStringLiteral("localedef"),
                          {QStringLiteral("-i"), QStringLiteral("de_DE"), QStringLiteral("-f"),
                           QStringLiteral("UTF-8"), locales.filePath(QStringLiteral("de_DE.UTF-8"))}) != 0)
        GTEST_SKIP() << "no locale can be made here";
    qputenv("LOCPATH", QFile::encodeName(locales.path()));
    ASSERT_NE(std::setlocale(LC_NUMERIC, "de_DE.UTF-8"), nullptr);
    const auto sheet = part(oneSheet({{std::string("x")}, {NumberCell{12.5}}}), "xl/worksheets/sheet1.xml");
    EXPECT_STREQ(std::localeconv()->decimal_point, ",");
    std::setlocale(LC_NUMERIC, "C");
    EXPECT_TRUE(holds(sheet, "<v>12.5</v>")) << sheet;
}

TEST(XlsxWriter, DatesAndNumbersHaveTheirFormats) {
    const auto styles =
        part(oneSheet({{std::string("x")}, {ReadingTime{}, NumberCell{1.5}, NumberCell{0.1234, 3}}}),
             "xl/styles.xml");
    EXPECT_TRUE(holds(styles, R"(formatCode="yyyy\-mm\-dd\ hh:mm")") ||
                holds(styles, R"(formatCode="yyyy-mm-dd hh:mm")"))
        << styles;
    EXPECT_TRUE(holds(styles, R"(formatCode="0.000")"));
    EXPECT_TRUE(holds(styles, R"(formatCode="0.0")"));
}

TEST(XlsxWriter, WhatIsNoNumberStaysEmpty) {
    const auto sheet = part(oneSheet({{std::string("x")},
                                      {NumberCell{std::numeric_limits<double>::quiet_NaN()},
                                       NumberCell{std::numeric_limits<double>::infinity()}, Cell{}}}),
                            "xl/worksheets/sheet1.xml");
    EXPECT_FALSE(holds(sheet, "r=\"A2\""));
    EXPECT_FALSE(holds(sheet, "r=\"B2\""));
}

TEST(XlsxWriter, TextIsWrittenAsTextWhateverStandsInIt) {
    const auto strings = part(oneSheet({{std::string("=1+1 <&>")},
                                        {std::string("a\x01\xff"
                                                     "b")}}),
                              "xl/sharedStrings.xml");
    EXPECT_TRUE(holds(strings, "=1+1 &lt;&amp;&gt;")) << strings;
    EXPECT_TRUE(holds(strings, "a \xEF\xBF\xBD"
                               "b"));
}

TEST(XlsxWriter, AChartNamesItsCells) {
    Workbook book = oneSheet({{std::string("Time"), std::string("a.dat")},
                              {toReadingTime({2024, 3, 15, 6, 0}), NumberCell{1}},
                              {toReadingTime({2024, 3, 16, 6, 0}), NumberCell{2}}});
    book.sheets[0].charts.push_back({.title = "Readings",
                                     .xTitle = "Time",
                                     .yTitle = "A",
                                     .xIsTime = true,
                                     .lines = {{.x = {0, 1, 2}, .y = {1, 1, 2}}}});
    const auto chart = part(book, "xl/charts/chart1.xml");
    EXPECT_TRUE(holds(chart, "Readings!$A$2:$A$3")) << chart;
    EXPECT_TRUE(holds(chart, "Readings!$B$2:$B$3"));
    EXPECT_TRUE(holds(chart, "Readings!$B$1"));
    EXPECT_TRUE(holds(chart, R"(<c:max val="45368"/><c:min val="45366"/>)"));
}

TEST(XlsxWriter, TheSameWorkbookGivesTheSameBytes) {
    const Workbook book = oneSheet({{std::string("x")}, {NumberCell{1}}});
    EXPECT_EQ(xlsxBytes(book), xlsxBytes(book));
    EXPECT_TRUE(holds(part(Workbook{book.sheets, toReadingTime({2024, 3, 15, 6, 0})}, "docProps/core.xml"),
                      "2024-03-15T06:00:00Z"));
}

} // namespace
} // namespace tally
