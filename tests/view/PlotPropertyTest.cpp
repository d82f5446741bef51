// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ModeTable.h"
#include "support/FixedClock.h"
#include "support/SampleFile.h"
#include "view/PlotModel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace tally {
namespace {

// A recording of files with the same mode, and a span marked on its whole plot.
struct Case {
    Recordings recordings;
    char letter;
    int files;
    int counts[3];
    int firstPoint;
    int lastPoint;
};

class Cases {
public:
    explicit Cases(unsigned seed) : random_(seed) {}

    int within(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

    Case next(char letter) {
        Case made{{}, letter, within(1, 3), {}, 0, 0};
        const ReadingTime start =
            toReadingTime({2024, within(1, 12), within(1, 28), within(0, 23), within(0, 59)});
        for (int file = 0; file < made.files; ++file) {
            made.counts[file] = within(3, 400);
            std::vector<std::int16_t> tenths;
            for (int i = 0; i < made.counts[file]; ++i)
                tenths.push_back(static_cast<std::int16_t>(within(0, 9999)));
            testing::addFile(made.recordings, "f" + std::to_string(file), tenths,
                             {.letter = letter, .start = start});
        }
        const int points = made.counts[0] / (letter > 'f' ? 3 : 1);
        made.firstPoint = within(0, points - 1);
        made.lastPoint = within(made.firstPoint, points - 1);
        return made;
    }

private:
    std::mt19937 random_;
};

// Value `part` of interval `point` of a file, in tenths, by counting back from the newest reading.
int tenthsAt(const Case& made, int file, int point, int part) {
    const int each = made.letter > 'f' ? 3 : 1;
    const int count = made.counts[file];
    const int whole = count / each;
    if (point >= whole)
        return 0;
    const int fromEnd = (whole - point) * each - part;
    return made.recordings
        .gReadings[static_cast<std::size_t>(file)][static_cast<std::size_t>(count - fromEnd)];
}

void checkSeries(const Case& made, const Plot& plot, int first, int last, Statistic statistic) {
    const bool triples = made.letter > 'f';
    const bool three = triples && made.files == 1;
    ASSERT_EQ(plot.series.size(), static_cast<std::size_t>(three ? 3 : made.files));
    ASSERT_EQ(plot.points, last - first + 1);
    for (std::size_t s = 0; s < plot.series.size(); ++s) {
        ASSERT_EQ(plot.series[s].values.size(), static_cast<std::size_t>(plot.points));
        for (int k = 0; k < plot.points; ++k) {
            const int file = three ? 0 : static_cast<int>(s);
            const int part = three ? static_cast<int>(s) : triples ? static_cast<int>(statistic) - 1 : 0;
            const double expected = tenthsAt(made, file, first + k, part) / 10.0;
            ASSERT_NEAR(static_cast<double>(plot.series[s].values[static_cast<std::size_t>(k)]), expected,
                        1e-4);
        }
    }
}

void checkExtremes(const Case& made, const Plot& plot, int first, int last) {
    int smallest = 99999;
    int largest = -99999;
    for (int file = 0; file < made.files; ++file)
        for (int point = first; point <= last; ++point)
            for (int part = 0; part < (made.letter > 'f' ? 3 : 1); ++part) {
                smallest = std::min(smallest, tenthsAt(made, file, point, part));
                largest = std::max(largest, tenthsAt(made, file, point, part));
            }
    EXPECT_EQ(plot.extremeMin, smallest);
    EXPECT_EQ(plot.extremeMax, largest);
    EXPECT_EQ(plot.yMin, smallest * 9 / 100); // whole numbers throughout, so this rounds down
    EXPECT_NEAR(plot.yMax, largest * 11 >= 1000 ? largest * 0.11 : 10.0, 1e-9);
}

void checkLabels(const Case& made, const Plot& plot, int first) {
    const int minutes[] = {15, 5, 1};
    const int interval = minutes[(made.letter - 'a') % 3];
    // An odd oldest rest is an interval of its own.
    const int rest = made.letter > 'f' && made.counts[0] % 3 != 0 ? 1 : 0;
    ReadingTime start = made.recordings.gInfo[0].start + std::int64_t{first + rest} * interval;
    while (toCivil(start).minute % interval != 0)
        start = start - 1;
    const int step = plot.points < 16 ? 1 : plot.points / 8;
    EXPECT_EQ(plot.labelStep, step);
    for (int i = 0; i <= 8; ++i)
        EXPECT_EQ(plot.labels[static_cast<std::size_t>(i)],
                  formatTime(start + std::int64_t{i} * step * interval, "%b %d %H:%M"));
}

class PlotProperty : public ::testing::TestWithParam<char> {};

TEST_P(PlotProperty, WholeAndZoomedPlotsEqualAPlainComputation) {
    Cases cases(static_cast<unsigned>(GetParam()));
    const testing::FixedClock clock;
    for (int round = 0; round < 40; ++round) {
        Case made = cases.next(GetParam());
        Display display;
        const auto draw = [&] {
            const PlotRequest request = display.plotRequest(made.recordings);
            Plot plot = DisplPlot(made.recordings, request, clock);
            display.plotShown(request, View::dataPlot);
            return plot;
        };
        const auto statistic = static_cast<Statistic>(cases.within(1, 3));
        display.setStatistic(statistic);
        display.startPlot(made.recordings);
        const Plot whole = draw();
        const int last = made.counts[0] / (made.letter > 'f' ? 3 : 1) - 1;
        checkSeries(made, whole, 0, last, statistic);
        checkExtremes(made, whole, 0, last);
        checkLabels(made, whole, 0);

        display.markStart(whole, made.lastPoint);
        display.markEnd(whole, made.firstPoint);
        display.requestZoom();
        const Plot zoomed = draw();
        checkSeries(made, zoomed, made.firstPoint, made.lastPoint, statistic);
        checkExtremes(made, zoomed, made.firstPoint, made.lastPoint);
        checkLabels(made, zoomed, made.firstPoint);
        EXPECT_LT(display.gdataend(), made.counts[0]);
        if (::testing::Test::HasFailure())
            return;
    }
}

INSTANTIATE_TEST_SUITE_P(AllModes, PlotProperty, ::testing::Range('a', 'm'),
                         [](const auto& mode) { return std::string(1, mode.param); });

} // namespace
} // namespace tally
