// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Fileopen.h"
#include "core/SaveText.h"
#include "support/DataTexts.h"
#include "support/MemoryFiles.h"
#include "support/Shown.h"
#include "view/Print.h"

#include <algorithm>

namespace tally {
namespace {

// A file goes through plot, mark and zoom, is saved and opened again.
class ZoomAndSave : public testing::ShownFiles {
protected:
    testing::MemoryFiles files;

    void open(char mode, const std::vector<std::string>& newestFirst) {
        files.contents["old.dat"] =
            testing::dataFile({.mode = mode, .time = "03-15-24 14:00"}, testing::fieldLines(newestFirst, 5));
        ASSERT_TRUE(Fileopen(recordings, files, "old.dat"));
        display.opened(recordings, 0);
    }
    Plot zoomTo(int pressed, int released) {
        mark(viewPlot(), pressed, released);
        return zoom();
    }
    Recordings saveAndReopen() {
        files.contents["new.dat"] =
            tally::quoted(buildDataText(recordings, 0, display.readings(recordings, 0).value()));
        Recordings reopened;
        EXPECT_TRUE(Fileopen(reopened, files, "new.dat"));
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
    zoomTo(2, 4);
    EXPECT_EQ(display.gDatastart(), 6);
    EXPECT_EQ(display.gdataend(), 14);
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
    EXPECT_EQ(zoomTo(15, 400).extremeMin, 515);
    EXPECT_EQ(display.gdataend(), recordings.gInfo[0].count - 1);
    EXPECT_EQ(saveAndReopen().gReadings[0], (std::vector<std::int16_t>{515, 516, 517, 518, 519}));
}

TEST_F(ZoomAndSave, TableOfAnOpenedFileCoversEveryReadingBeforeAnyPlot) {
    open('a', {"1.0", "2.0", "3.0"});
    const Table table = Print(recordings, 0, display.part(recordings, 0).value());
    EXPECT_TRUE(table.text.ends_with("  003.0    002.0    001.0  \r\n")) << table.text;
}

TEST_F(ZoomAndSave, NewestTripleHasTheTimeOfAFullCountWhateverIsOver) {
    for (int extra = 0; extra < 3; ++extra) {
        recordings = {};
        std::vector<std::string> newestFirst;
        for (int i = 0; i < 9 + extra; ++i)
            newestFirst.push_back("1.0");
        open('g', newestFirst);
        const Plot plot = viewPlot();
        EXPECT_EQ(plot.points, 3);
        // The header time is 14:00, two intervals after the newest triple.
        EXPECT_EQ(readOut(recordings, plot, 2).time, "13:30  Mar 15, 24");
        EXPECT_EQ(readOut(recordings, plot, 0).time, "13:00  Mar 15, 24");
    }
}

} // namespace
} // namespace tally
