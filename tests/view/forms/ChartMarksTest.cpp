// SPDX-License-Identifier: GPL-3.0-or-later
// What a line alone would not show: a plot of one point, a lone forced reading, phases, limits, two axes.
#include "view/forms/ChartPicture.h"

#include "ChartSupport.h"
#include "view/forms/ChartLook.h"

#include <QImage>
#include <gtest/gtest.h>

namespace tally {
namespace {

QImage imageOf(const Plot& plot) {
    const std::string bytes = pictureBytes(plot, {}, PictureKind::png, {900, 600});
    return QImage::fromData(QByteArray::fromStdString(bytes));
}

int pixelsOf(const QImage& image, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    return count;
}

const ChartLook paper = ChartLook::onPaper();

TEST(ChartMarks, APlotOfOnePointShowsIt) {
    EXPECT_GE(pixelsOf(imageOf(testing::samplePlot(1)), paper.line(0)), 12);
}

TEST(ChartMarks, ALonePointBetweenGapsShows) {
    Plot plot = testing::samplePlot(9);
    const float none = std::nanf("");
    plot.series[0].values = {none, none, none, none, 75, none, none, none, none};
    EXPECT_GE(pixelsOf(imageOf(plot), paper.line(0)), 12);
}

TEST(ChartMarks, ALoneForcedReadingShowsAlsoAtTheEdge) {
    for (const int points : {20, 500, 42966})
        for (const int at : {0, points / 2, points - 1}) {
            Plot plot = testing::samplePlot(points);
            plot.series[0].legend = "";
            plot.series[0].forced = {{at, at}};
            const int legend = 30 * 3; // the legend's stroke at least
            EXPECT_GE(pixelsOf(imageOf(plot), paper.forced), legend + 30) << points << " at " << at;
        }
}

TEST(ChartMarks, PhasesHaveColoursOfTheirFamilyThatGreyTellsApart) {
    for (const ChartLook& look : {ChartLook::onPaper()}) {
        EXPECT_GT(look.phases[0].red(), 2 * look.phases[0].green());
        EXPECT_GT(look.phases[2].blue(), 2 * look.phases[2].red());
        EXPECT_LT(look.phases[1].saturation(), 20);
        for (const auto& [one, other] : {std::pair{0, 1}, {1, 2}, {0, 2}})
            EXPECT_GE(std::abs(qGray(look.phases[std::size_t(one)].rgb()) -
                               qGray(look.phases[std::size_t(other)].rgb())),
                      25);
    }
    EXPECT_NE(ChartLook::dashes(Phase::white), ChartLook::dashes(Phase::blue));
    EXPECT_TRUE(ChartLook::dashes(Phase::red).isEmpty());
}

TEST(ChartMarks, ALineOfAPhaseIsDrawnInItsColourTheOthersInThePalette) {
    Plot plot = testing::samplePlot(60, 2);
    plot.series[0].phase = Phase::red;
    const QImage image = imageOf(plot);
    EXPECT_GT(pixelsOf(image, paper.phases[0]), 100);
    EXPECT_EQ(pixelsOf(image, paper.line(0)), 0);
    EXPECT_GT(pixelsOf(image, paper.line(1)), 100);
}

TEST(ChartMarks, ALimitIsALineAcrossTheFrame) {
    Plot plot = testing::samplePlot(60);
    EXPECT_EQ(pixelsOf(imageOf(plot), paper.limit), 0);
    plot.limits = {{120, "Rating 120 A", 0}};
    EXPECT_GT(pixelsOf(imageOf(plot), paper.limit), 300);
}

// Left 0 to 150, right 0 to 300: 200 on the right stands where 100 stands on the left.
TEST(ChartMarks, ASecondAxisHasAScaleOfItsOwn) {
    Plot one = testing::samplePlot(60);
    one.series[0].values.assign(60, 100);
    Plot two = one;
    two.axes = {{"AMPS", 0, 150}, {"VOLTS", 0, 300}};
    two.series[0].values.assign(60, 200);
    two.series[0].axis = 1;
    // The row that is least like paper and grid: the line's.
    const auto rowOf = [](const QImage& image) {
        int row = -1;
        int most = 0;
        for (int y = image.height() / 3; y < image.height() - 60; ++y) {
            const int blue = 255 - image.pixelColor(image.width() / 2 + 7, y).red();
            if (blue > most) {
                most = blue;
                row = y;
            }
        }
        return row;
    };
    EXPECT_GT(rowOf(imageOf(one)), 0);
    EXPECT_NEAR(rowOf(imageOf(two)), rowOf(imageOf(one)), 1);
}

} // namespace
} // namespace tally
