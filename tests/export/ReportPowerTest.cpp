// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/ReportPower.h"

#include "ExportFixture.h"
#include "core/Fault.h"

namespace tally {
namespace {

using testing::addFile;
using testing::constant;
using testing::ramp;

class PowerForReport : public testing::ExportTest {};

TEST_F(PowerForReport, WithoutASelectionTheReportCoversTheWholeFirstFile) {
    addFile(recordings, "/data/x.dat", ramp(9));
    recordings.gDatastart = 3;
    EXPECT_EQ(reportRange(recordings, state).first, 0);
    EXPECT_EQ(reportRange(recordings, state).last, 8);
}

TEST_F(PowerForReport, LeavesWhatIsShownAsItIs) {
    addFile(recordings, "/data/x.dat", ramp(9));
    recordings.gDatastart = 2;
    recordings.gdataend = 5;
    state.viewKind = ViewKind::dataPlot;
    state.spanSelected = true;
    state.zoomRequest = true;
    state.userScale = true;
    state.extremeMax = 77;
    EXPECT_EQ(powerForReport(recordings, state, 10000, clock), PowerRefusal::none);
    EXPECT_EQ(state.power, (std::vector<float>{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(state.powerFirst, 0);
    EXPECT_EQ(state.powerExtremeMax, 8);
    EXPECT_EQ(state.energyText, "9 KWHR");
    EXPECT_TRUE(state.powerDrawn);
    EXPECT_EQ(recordings.gDatastart, 2);
    EXPECT_EQ(recordings.gdataend, 5);
    EXPECT_EQ(state.viewKind, ViewKind::dataPlot);
    EXPECT_TRUE(state.spanSelected && state.zoomRequest && state.userScale);
    EXPECT_FALSE(state.powerView);
    EXPECT_EQ(state.extremeMax, 77);
}

TEST_F(PowerForReport, CoversTheSelection) {
    addFile(recordings, "/data/x.dat", ramp(9));
    ASSERT_TRUE(applyRange(recordings, state, 2, 4));
    EXPECT_EQ(powerForReport(recordings, state, 10000, clock), PowerRefusal::none);
    EXPECT_EQ(state.power, (std::vector<float>{2, 3, 4}));
    EXPECT_EQ(state.powerFirst, 2);
    EXPECT_TRUE(powerCovers(state, {2, 4}));
    EXPECT_TRUE(powerCovers(state, {3, 3}));
    EXPECT_FALSE(powerCovers(state, {1, 4}));
    EXPECT_FALSE(powerCovers(state, {2, 5}));
}

TEST_F(PowerForReport, WithNonePlottedNothingIsCovered) {
    EXPECT_FALSE(powerCovers(state, {0, 0}));
}

TEST_F(PowerForReport, RefusedOrFailedItChangesNothing) {
    addFile(recordings, "/data/x.dat", ramp(9), {.type = 'V'});
    EXPECT_EQ(powerForReport(recordings, state, 10000, clock), PowerRefusal::notAmps);
    EXPECT_FALSE(state.powerDrawn);
    recordings.closeAll();
    for (const char* path : {"a", "b", "c"})
        addFile(recordings, path, constant(4, 20000));
    recordings.gdataend = 2;
    EXPECT_THROW(powerForReport(recordings, state, 10000, clock), Fault);
    EXPECT_FALSE(state.powerDrawn);
    EXPECT_TRUE(state.power.empty());
    EXPECT_EQ(recordings.gdataend, 2);
}

} // namespace
} // namespace tally
