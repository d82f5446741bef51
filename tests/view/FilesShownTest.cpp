// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/FilesShown.h"

#include "core/TimeAxis.h"
#include "support/Shown.h"

namespace tally {
namespace {

using testing::addFile;

class FilesShownOf : public testing::ShownFiles {
protected:
    // The second file starts two quarter hours later and ends one later.
    FilesShownOf() {
        addFile(recordings, "a.dat", {100, 110, 120, 130, 140});
        addFile(recordings, "b.dat", {520, 530, 540, 550});
        recordings.gInfo[1].start = recordings.gInfo[0].start + 30;
        display.opened(recordings, 1);
    }

    Plot plotOf() {
        const PlotRequest request = display.plotRequest(recordings);
        const FilesShown files = FilesShown::of(recordings, display.byTime(), request.range).value();
        Plot plot = files.plot(DisplPlot(files.recordings(), files.request(request), clock));
        display.plotShown(request, View::dataPlot);
        return plot;
    }
};

TEST_F(FilesShownOf, ByNumberTheFilesStandAsTheyAre) {
    const Plot plot = plotOf();
    EXPECT_EQ(plot.points, 5);
    EXPECT_EQ(plot.series[1].values, (std::vector<float>{52, 53, 54, 55, 0}));
}

TEST_F(FilesShownOf, ByTimeOnlyWhatTheyShareStandsTogether) {
    ASSERT_TRUE(display.showByTime(recordings, true));
    const Plot plot = plotOf();
    EXPECT_EQ(plot.points, 3);
    EXPECT_EQ(plot.series[0].values, (std::vector<float>{12, 13, 14}));
    EXPECT_EQ(plot.series[1].values, (std::vector<float>{52, 53, 54}));
    EXPECT_EQ(plot.firstEntry, 2) << "of the first file as it is open";
    EXPECT_EQ(plot.remark, "Readings are combined by time, 14:30  Mar 15, 24 to 15:00  Mar 15, 24");
}

TEST_F(FilesShownOf, AMarkAndAZoomByTimeMeanTheSameTimes) {
    ASSERT_TRUE(display.showByTime(recordings, true));
    mark(plotOf(), 1, 2);
    EXPECT_EQ(display.span(), (Range{3, 4}));
    EXPECT_TRUE(plotOf().title.ends_with("Selected:   14:45  Mar 15, 24   to   15:00  Mar 15, 24"));
    display.requestZoom();
    const Plot plot = plotOf();
    EXPECT_EQ(plot.series[1].values, (std::vector<float>{53, 54}));
    EXPECT_EQ(display.part(recordings, 0), (Range{3, 4}));
    EXPECT_EQ(display.part(recordings, 1), (Range{1, 2})) << "the readings of those times";
    EXPECT_EQ(display.readings(recordings, 1), (Range{1, 2}));
}

TEST_F(FilesShownOf, AZoomByNumberIsCutToTheCommonTime) {
    ASSERT_TRUE(display.applyRange(recordings, 0, 2));
    ASSERT_TRUE(display.showByTime(recordings, true));
    EXPECT_EQ(plotOf().points, 1);
    ASSERT_TRUE(display.showByTime(recordings, false));
    EXPECT_EQ(display.part(recordings, 1).value().first, 0);
}

TEST_F(FilesShownOf, WithoutCommonTimeItIsRefusedAndStaysByNumber) {
    ASSERT_TRUE(display.applyRange(recordings, 0, 1));
    const auto done = display.showByTime(recordings, true);
    ASSERT_FALSE(done);
    EXPECT_EQ(done.error().text, axisNothingCommon);
    EXPECT_FALSE(display.byTime());
}

TEST_F(FilesShownOf, StartsNoWholeIntervalApartAreRefused) {
    recordings.gInfo[1].start = recordings.gInfo[0].start + 20;
    EXPECT_EQ(display.showByTime(recordings, true).error().text, axisOffset);
}

TEST_F(FilesShownOf, OpeningAFileEndsIt) {
    ASSERT_TRUE(display.showByTime(recordings, true));
    display.opened(recordings, 1);
    EXPECT_FALSE(display.byTime());
}

// 12 + 52, 13 + 53, 14 + 54 A at 13.8 KV.
TEST_F(FilesShownOf, PowerAddsReadingsOfOneTime) {
    const FilesShown files = FilesShown::of(recordings, true, display.displayed(recordings)).value();
    const Power power = powerOf(files.recordings(), files.range(), basis).value();
    ASSERT_EQ(power.kilowatts.size(), 3U);
    EXPECT_NEAR(power.kilowatts[0], 64 * 13.8, 0.01);
    EXPECT_NEAR(power.kilowatts[2], 68 * 13.8, 0.01);
}

} // namespace
} // namespace tally
