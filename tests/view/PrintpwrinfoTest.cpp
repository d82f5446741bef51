// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Printpwrinfo.h"

#include "core/Fault.h"
#include "support/Shown.h"

namespace tally {
namespace {

using testing::addFile;
using testing::constant;

class PowerSummary : public testing::ShownFiles {
protected:
    std::string summary() {
        return Printpwrinfo(recordings, power(), display.zoomed(), timeOfFiles(recordings));
    }
    bool has(const std::string& text, const std::string& part) {
        return text.find(part) != std::string::npos;
    }
};

TEST_F(PowerSummary, NoFileIsASubscriptFault) {
    EXPECT_THROW(Printpwrinfo(recordings, {}, false, {}), Fault);
}

TEST_F(PowerSummary, ThreeFilesOfAHundredAmps) {
    for (const char* path : {"a.dat", "b.dat", "c.dat"})
        addFile(recordings, path, constant(5, 1000));
    recordings.gNotes[0] = {"Elm St", "12", "Ann", "x"};
    const std::string noNotes = "Loc:    \r\nName: \r\nCirc:    \r\nOther: \r\n";
    EXPECT_EQ(summary(),
              "Average          Values\r\n"
              "    File:     a.dat             Ser. A123\r\n"
              "    File:     b.dat             Ser. A123\r\n"
              "    File:     c.dat             Ser. A123\r\n"
              "Mode:  Cont  15 min interval                    Range  LOW\r\n"
              "All Files:  Start:  14:00  Mar 15, 24                End:  15:00  Mar 15, 24\r\n"
              "         Min: 2390.2 KW                                      Max: 4140.0 KW    \r\n"
              "Line Voltage: 13800      Total Energy In Displayed Area: 2,390 KWHR     Power Factor: 1\r\n"
              "Loc:    Elm St\r\nName: Ann\r\nCirc:    12\r\nOther: x\r\n" +
                  noNotes + noNotes);
}

TEST_F(PowerSummary, AllFiguresComeFromTheReadingsVoltageAndFactorInForce) {
    addFile(recordings, "a.dat", {1000, 2000});
    setVolts(10000);
    viewPower();
    basis.factor = 0.5F;
    setVolts(20000);
    recordings.gReadings[0] = {1000, 4000};
    const std::string text = summary();
    EXPECT_TRUE(
        has(text, "         Min: 1000.0 KW                                      Max: 4000.0 KW    \r\n"));
    // 4000 KW for a quarter of an hour.
    EXPECT_TRUE(has(text, "Line Voltage: 20000      Total Energy In Displayed Area: 1,000 KWHR   "));
    EXPECT_TRUE(has(text, "  Power Factor: 0.5\r\n"));
}

TEST_F(PowerSummary, SpanOfAllFilesReachesFromTheOldestToTheNewest) {
    addFile(recordings, "a.dat", constant(5, 1));
    addFile(recordings, "b.dat", constant(9, 1), {.start = toReadingTime({2024, 3, 15, 13, 0})});
    EXPECT_TRUE(
        has(summary(), "All Files:  Start:  13:00  Mar 15, 24                End:  15:00  Mar 15, 24\r\n"));
}

TEST_F(PowerSummary, SelectedBlockOnlyWhileASpanIsApplied) {
    addFile(recordings, "a.dat", testing::ramp(100, 10));
    setVolts(10000);
    const Plot plot = viewPower();
    EXPECT_FALSE(has(summary(), "Selected"));
    mark(plot, 4, 6);
    zoom();
    EXPECT_TRUE(has(summary(),
                    "Selected:       Start  15:00  Mar 15, 24                Finish  15:30  Mar 15, 24\r\n"
                    " Min 40.0                                      max  60.0\r\n"));
}

TEST_F(PowerSummary, SpanMarkedInADataPlotIsNamedByItsOwnTimes) {
    addFile(recordings, "a.dat", testing::ramp(100, 10));
    setVolts(10000);
    viewPower();
    mark(viewPlot(), 4, 6);
    zoom();
    EXPECT_TRUE(has(summary(),
                    "Selected:       Start  15:00  Mar 15, 24                Finish  15:30  Mar 15, 24\r\n"
                    " Min 40.0                                      max  60.0\r\n"));
}

} // namespace
} // namespace tally
