// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/PaperText.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <map>

namespace tally {
namespace {

using ::testing::HasSubstr;

QString readPdf(const std::string& bytes, const QStringList& options) {
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("report.pdf")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes.data(), qint64(bytes.size()));
    file.close();
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), options + QStringList{file.fileName(), QStringLiteral("-")});
    EXPECT_TRUE(reader.waitForFinished(20000));
    return QString::fromUtf8(reader.readAllStandardOutput());
}

TextReport tableReport(int lines) {
    TextReport report{"FEEDER.DAT", " Time     Date                            Eight readings of average", "",
                      "J. M\xC3\xBCller", "Nov-21-26"};
    for (int line = 0; line < lines; ++line) {
        report.text += "12:00  MAY 10, 26      ";
        for (int value = 0; value < 8; ++value)
            report.text += line % 2 == 0 ? "  011.1  " : "  888.8  ";
        report.text += "\r\n";
    }
    return report;
}

TEST(PaperText, FieldsAreWhatTwoBlanksSetApart) {
    const auto fields = fieldsOf(QStringLiteral("12:00  MAY 10, 26        000.5   -12  "));
    ASSERT_EQ(fields.size(), 4U);
    EXPECT_EQ(fields[0].text, QStringLiteral("12:00"));
    EXPECT_FALSE(fields[0].number);
    EXPECT_EQ(fields[1].first, 7);
    EXPECT_EQ(fields[1].text, QStringLiteral("MAY 10, 26"));
    EXPECT_EQ(fields[2].first, 25);
    EXPECT_TRUE(fields[2].number);
    EXPECT_EQ(fields[3].text, QStringLiteral("-12"));
    EXPECT_TRUE(fieldsOf(QStringLiteral("     ")).empty());
}

TEST(PaperText, HeadingAndPageNumberStandOnEveryPage) {
    const QString text = readPdf(pdfOfText(tableReport(200)), {QStringLiteral("-layout")});
    const QStringList pages = text.split(u'\f', Qt::SkipEmptyParts);
    ASSERT_GE(pages.size(), 3);
    for (int page = 0; page < pages.size(); ++page) {
        EXPECT_EQ(pages[page].count(QStringLiteral("Eight readings of average")), 1);
        EXPECT_EQ(pages[page].count(QStringLiteral("FEEDER.DAT")), 1);
        EXPECT_TRUE(pages[page].contains(QStringLiteral("Page %1 of %2").arg(page + 1).arg(pages.size())));
        EXPECT_TRUE(pages[page].contains(QString::fromUtf8("J. M\xC3\xBCller")));
        EXPECT_TRUE(pages[page].contains(QStringLiteral("Nov-21-26")));
    }
    EXPECT_EQ(text.count(QStringLiteral("MAY 10, 26")), 200); // no line is lost at a page's end
}

TEST(PaperText, ColumnsStayAlignedInAProportionalFont) {
    const QString boxes = readPdf(pdfOfText(tableReport(30)), {QStringLiteral("-bbox")});
    const QRegularExpression word(QStringLiteral("xMax=\"([0-9.]+)\" yMax=\"[0-9.]+\">(011\\.1|888\\.8)<"));
    std::map<int, int> rightBorders; // tenths of a point
    int numbers = 0;
    for (auto match = word.globalMatch(boxes); match.hasNext(); ++numbers)
        ++rightBorders[int(std::lround(match.next().captured(1).toDouble() * 2))];
    EXPECT_EQ(numbers, 30 * 8);
    EXPECT_LE(rightBorders.size(), 16U); // eight columns, at most two neighbouring half points each
    EXPECT_GE(rightBorders.size(), 8U);
}

TEST(PaperText, TheFontIsTimesNewRomanOrWhatStandsForIt) {
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("report.pdf")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const std::string bytes = pdfOfText(tableReport(3));
    file.write(bytes.data(), qint64(bytes.size()));
    file.close();
    QProcess reader;
    reader.start(QStringLiteral("pdffonts"), {file.fileName()});
    ASSERT_TRUE(reader.waitForFinished(20000));
    const std::string fonts = reader.readAllStandardOutput().toStdString();
    EXPECT_THAT(fonts, ::testing::AnyOf(HasSubstr("LiberationSerif"), HasSubstr("TimesNewRoman")));
}

TEST(PaperText, AFormFeedBeginsAPage) {
    const TextReport report{"", "", "first\r\n\fsecond\r\n", "", ""};
    const QStringList pages = readPdf(pdfOfText(report), {}).split(u'\f', Qt::SkipEmptyParts);
    ASSERT_EQ(pages.size(), 2);
    EXPECT_TRUE(pages[0].contains(QStringLiteral("first")));
    EXPECT_TRUE(pages[1].contains(QStringLiteral("second")));
}

TEST(PaperText, TheNameOfTheDocumentIsItsTitleWithoutTheFill) {
    const TextReport report{"LOAD REPORT" + std::string(40, ' ') + "Jan 02, 2024\r\nmore", "", "text", "",
                            ""};
    const QString boxes = readPdf(pdfOfText(report), {QStringLiteral("-bbox")});
    EXPECT_THAT(boxes.toStdString(), HasSubstr("<title>LOAD REPORT Jan 02, 2024</title>"));
}

TEST(PaperText, AnEmptyReportIsOnePage) {
    const QString text = readPdf(pdfOfText({}), {});
    EXPECT_TRUE(text.contains(QStringLiteral("Page 1 of 1")));
}

TEST(PaperText, ALineOfAnyLengthStaysOnThePaper) {
    const std::string longest(400, 'W');
    const TextReport report{"", "", longest + "\r\n" + longest + "  end\r\n", "", ""};
    const QString boxes = readPdf(pdfOfText(report), {QStringLiteral("-bbox")});
    const QRegularExpression border(QStringLiteral("xMax=\"([0-9.]+)\""));
    for (auto match = border.globalMatch(boxes); match.hasNext();)
        EXPECT_LT(match.next().captured(1).toDouble(), 596); // points of an A4 sheet
}

} // namespace
} // namespace tally
