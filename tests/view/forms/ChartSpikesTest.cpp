// SPDX-License-Identifier: GPL-3.0-or-later
#include "ChartSupport.h"
#include "view/forms/PlotScene.h"
#include "view/forms/QcpInclude.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace tally {
namespace {

const QSize size(900, 500);

QImage painted(PlotScene& scene) {
    QImage image(size, QImage::Format_RGB32);
    QCPPainter painter(&image);
    scene.paint(painter, size, false);
    return image;
}

bool inked(const QImage& image, int x, int y, QColor ink) {
    for (int dx = -1; dx <= 1; ++dx)
        for (int dy = -1; dy <= 1; ++dy) {
            const QColor seen = image.pixelColor(std::clamp(x + dx, 0, size.width() - 1),
                                                 std::clamp(y + dy, 0, size.height() - 1));
            if (std::abs(seen.red() - ink.red()) + std::abs(seen.blue() - ink.blue()) < 90)
                return true;
        }
    return false;
}

// A flat line with spikes up and down at random points.
Plot spikyPlot(int points, std::vector<int>& spikes) {
    Plot plot = testing::samplePlot(points);
    std::fill(plot.series[0].values.begin(), plot.series[0].values.end(), 70.F);
    std::mt19937 random(3);
    for (int i = 0; i < 400; ++i) {
        spikes.push_back(int(random() % unsigned(points)));
        plot.series[0].values[std::size_t(spikes.back())] = i % 2 == 0 ? 140.F : 10.F;
    }
    return plot;
}

// The extremes of every column of pixels, each point taken by itself, must be inked.
int missing(PlotScene& scene) {
    const QImage image = painted(scene);
    const QRectF frame = scene.frame();
    const auto [from, to] = scene.across();
    const Plot& plot = scene.plot();
    const QColor ink = scene.look().line(0);
    std::map<int, std::pair<float, float>> columns;
    for (int k = 0; k < plot.points; ++k) {
        const double x = frame.left() + (k - from) / (to - from) * frame.width();
        if (x < frame.left() + 1 || x >= frame.right() - 1)
            continue;
        const float value = plot.series[0].values[std::size_t(k)];
        const auto [found, fresh] = columns.try_emplace(int(std::floor(x)), value, value);
        found->second = {std::min(found->second.first, value), std::max(found->second.second, value)};
    }
    const auto pixel = [&](float value) {
        const auto [low, high] = scene.up();
        return int(std::lround(frame.bottom() - 1 - (double(value) - low) / (high - low) * frame.height()));
    };
    int lost = 0;
    for (const auto& [x, extremes] : columns)
        lost += !inked(image, x, pixel(extremes.first), ink) + !inked(image, x, pixel(extremes.second), ink);
    EXPECT_FALSE(columns.empty());
    return lost;
}

TEST(ChartSpikes, EverySpikeShowsAtEveryZoom) {
    std::vector<int> spikes;
    PlotScene scene;
    scene.setPlot(spikyPlot(42966, spikes));
    EXPECT_EQ(missing(scene), 0);
    for (int i = 0; i < 40; ++i) {
        scene.zoomAcross(0.8, spikes[std::size_t(i) % 5]);
        EXPECT_EQ(missing(scene), 0) << "zoom " << i;
    }
}

TEST(ChartSpikes, EverySpikeShowsWhereverThePictureIsMoved) {
    std::vector<int> spikes;
    PlotScene scene;
    scene.setPlot(spikyPlot(42966, spikes));
    for (const double factor : {0.3, 0.3, 0.3})
        for (int i = 0; i < 7; ++i) {
            if (i == 0)
                scene.zoomAcross(factor, 0);
            scene.pan(0.137, 0);
            EXPECT_EQ(missing(scene), 0) << factor << " " << i;
        }
}

TEST(ChartSpikes, AForcedRunHasItsOwnColour) {
    Plot plot = testing::samplePlot(3000);
    std::fill(plot.series[0].values.begin(), plot.series[0].values.end(), 70.F);
    plot.series[0].forced = {{1000, 1100}, {2000, 2000}};
    PlotScene scene;
    scene.setPlot(plot);
    const QImage image = painted(scene);
    const QRectF frame = scene.frame();
    const auto colourAt = [&](int point) {
        const int x = int(frame.left() + point / 2999.0 * frame.width());
        const int y = int(std::lround(frame.bottom() - 1 - 70 / 150.0 * frame.height()));
        return image.pixelColor(x, y);
    };
    EXPECT_EQ(colourAt(1050), scene.look().forced);
    EXPECT_EQ(colourAt(2000), scene.look().forced); // a single reading, too
    EXPECT_EQ(colourAt(500), scene.look().line(0));
}

TEST(ChartSpikes, ValuesThatAreNoNumbersLeaveAGapAndHarmNothing) {
    Plot plot = testing::samplePlot(50);
    plot.series[0].values[20] = std::numeric_limits<float>::infinity();
    plot.series[0].values[21] = std::numeric_limits<float>::quiet_NaN();
    plot.series[0].values[22] = 3e38F;
    plot.yMax = std::numeric_limits<double>::infinity();
    PlotScene scene;
    scene.setPlot(plot);
    painted(scene);
    EXPECT_EQ(scene.up(), std::pair(0.0, 10.0));
}

TEST(ChartSpikes, TheGridIsGrey) {
    PlotScene scene;
    Plot plot = testing::samplePlot(801); // a label at every hundredth point
    std::fill(plot.series[0].values.begin(), plot.series[0].values.end(), 1.F);
    scene.setPlot(plot);
    const QImage image = painted(scene);
    const QRectF frame = scene.frame();
    bool grey = false;
    for (int dx = -1; dx <= 1; ++dx)
        grey = grey || image.pixelColor(int(frame.left() + frame.width() / 2) + dx, int(frame.top()) + 20) ==
                           QColor(210, 210, 210);
    EXPECT_TRUE(grey);
}

} // namespace
} // namespace tally
