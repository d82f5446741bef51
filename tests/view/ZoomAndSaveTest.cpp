// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Fileopen.h"
#include "core/SaveText.h"
#include "support/DataTexts.h"
#include "support/FixedClock.h"
#include "support/MemoryFiles.h"
#include "view/PlotModel.h"
#include "view/Print.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tally {
namespace {

// A file goes through plot, mark and zoom, is saved and opened again.
class ZoomAndSave : public ::testing::Test {
protected:
    testing::MemoryFiles files;
    testing::FixedClock clock;
    Recordings recordings;
    DisplayState state;

    void open(char mode, const std::vector<std::string>& newestFirst) {
        files.contents["old.dat"] =
            testing::dataFile({.mode = mode, .time = "03-15-24 14:00"}, testing::fieldLines(newestFirst, 5));
        ASSERT_EQ(Fileopen(recordings, files, "old.dat"), OpenOutcome::opened);
    }
    void zoom(int pressed, int released) {
        startPlot(recordings, state);
        const Plot whole = DisplPlot(recordings, state, clock);
        markSpanStart(recordings, state, whole, pressed);
        markSpanEnd(recordings, state, whole, released);
        requestZoom(recordings, state);
        DisplPlot(recordings, state, clock);
    }
    Recordings saveAndReopen() {
        files.contents["new.dat"] = tally::quoted(buildDataText(recordings));
        Recordings reopened;
        EXPECT_EQ(Fileopen(reopened, files, "new.dat"), OpenOutcome::opened);
        return reopened;
    }
};

std::string tenthsText(int tenths) {
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

TEST_F(ZoomAndSave, SpanOfTriplesComesBackAsWholeTriples) {
    std::vector<std::string> newestFirst;
    for (int interval = 9; interval >= 0; --interval)
        for (const int value : {100, 300, 200}) // smallest, largest, middle
            newestFirst.push_back(tenthsText(value + interval));
    open('g', newestFirst);
    ASSERT_EQ(recordings.gInfo[0].count, 30);
    zoom(2, 4);
    EXPECT_EQ(recordings.gDatastart, 6);
    EXPECT_EQ(recordings.gdataend, 14);
    const Recordings reopened = saveAndReopen();
    EXPECT_EQ(reopened.gReadings[0],
              (std::vector<std::int16_t>{202, 302, 102, 203, 303, 103, 204, 304, 104}));
    const auto& original = recordings.gReadings[0];
    EXPECT_TRUE(std::equal(reopened.gReadings[0].begin(), reopened.gReadings[0].end(), original.begin() + 6));
}

TEST_F(ZoomAndSave, DragPastTheRightEdgeEndsWithTheLastReading) {
    std::vector<std::string> newestFirst;
    for (int i = 19; i >= 0; --i)
        newestFirst.push_back(tenthsText(500 + i));
    open('a', newestFirst);
    zoom(15, 400);
    EXPECT_EQ(recordings.gdataend, recordings.gInfo[0].count - 1);
    EXPECT_EQ(state.extremeMin, 515);
    EXPECT_EQ(saveAndReopen().gReadings[0], (std::vector<std::int16_t>{515, 516, 517, 518, 519}));
}

TEST_F(ZoomAndSave, TableOfAnOpenedFileCoversEveryReadingBeforeAnyPlot) {
    open('a', {"1.0", "2.0", "3.0"});
    Print(recordings, state);
    EXPECT_TRUE(recordings.gTable.ends_with("  003.0    002.0    001.0  \r\n")) << recordings.gTable;
}

TEST_F(ZoomAndSave, NewestTripleHasTheTimeOfTheLastReadingWhateverTheCount) {
    for (int extra = 0; extra < 3; ++extra) {
        recordings = {};
        std::vector<std::string> newestFirst;
        for (int i = 0; i < 9 + extra; ++i)
            newestFirst.push_back("1.0");
        open('g', newestFirst);
        const Plot plot = DisplPlot(recordings, state, clock);
        EXPECT_EQ(plot.points, 3);
        const FileFacts& info = recordings.gInfo[0];
        EXPECT_EQ(readOut(recordings, plot, 2).time, screenTime(timeOf(info, info.count - 1)));
    }
}

} // namespace
} // namespace tally
