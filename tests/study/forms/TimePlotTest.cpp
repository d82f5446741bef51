// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/forms/TimePlot.h"

#include "study/forms/PlotBlocks.h"
#include "support/SampleFile.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QRegularExpression>
#include <QSvgGenerator>

#include <gtest/gtest.h>

#include <vector>

namespace tally::study {
namespace {

using tally::testing::addFile;
using tally::testing::constant;

// Where the dates that a plot of some width draws begin, from left to right.
std::vector<double> datesOf(const Block& block, double width, const ChartLook& look) {
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&out);
    QPainter painter(&generator);
    block.paint(painter, QRectF(0, 0, width, block.height(width)), look);
    painter.end();
    static const QRegularExpression date(QStringLiteral("<text[^>]* x=\"([-0-9.]+)\"[^>]*>\\s*2024-"));
    std::vector<double> begins;
    auto matches = date.globalMatch(QString::fromUtf8(out.data()));
    while (matches.hasNext())
        begins.push_back(matches.next().captured(1).toDouble());
    return begins;
}

// The number of dates on a plot; none begins before the one to the left of it is over.
std::size_t clearDates(const Block& block, double width, const QString& sample) {
    const ChartLook look = ChartLook::onPaper(12);
    const double length = QFontMetricsF(look.font).horizontalAdvance(sample);
    const auto begins = datesOf(block, width, look);
    for (std::size_t i = 1; i < begins.size(); ++i)
        EXPECT_GE(begins[i], begins[i - 1] + length) << "date " << i << " at a width of " << width;
    return begins.size();
}

TEST(TimePlot, ItsTimesStandClearOfEachOther) {
    Recordings recordings;
    addFile(recordings, "red.dat", constant(960, 100), {.start = toReadingTime({2024, 3, 4, 0, 0})});
    for (const int points : {1, 2, 7, 11, 13, 960}) {
        const auto study = studyOf(recordings, Range{0, points - 1}, {});
        ASSERT_TRUE(study);
        for (const double width : {200, 400, 560, 760})
            EXPECT_GE(clearDates(*limitPlot(*study, 0), width, QStringLiteral("0000-00-00 00:00")), 1U);
    }
}

TEST(HeatMap, ItsDatesStandClearOfEachOther) {
    Recordings recordings;
    addFile(recordings, "red.dat", constant(960, 100), {.start = toReadingTime({2024, 3, 4, 0, 0})});
    for (const int points : {1, 192, 672, 960}) {
        const auto study = studyOf(recordings, Range{0, points - 1}, {});
        ASSERT_TRUE(study);
        for (const double width : {200, 400, 560, 760})
            EXPECT_GE(clearDates(*heatMap(*study, 0), width, QStringLiteral("0000-00-00")), 1U);
    }
}

} // namespace
} // namespace tally::study
