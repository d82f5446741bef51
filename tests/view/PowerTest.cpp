// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Power.h"

#include "core/Fault.h"
#include "support/Shown.h"

namespace tally {
namespace {

using testing::addFile;
using testing::constant;
using testing::ramp;

class PowerOf : public testing::ShownFiles {
protected:
    // The power of the whole first file.
    Power of(int volts = 13800) {
        setVolts(volts);
        return powerOf(recordings, recordings.all(0), basis).value();
    }
    // The same as a plot.
    Plot view(int volts = 13800) {
        setVolts(volts);
        return viewPower();
    }
    void openThree(int count, std::int16_t tenths) {
        for (const char* path : {"a.dat", "b.dat", "c.dat"})
            addFile(recordings, path, constant(count, tenths));
    }
};

TEST_F(PowerOf, NoFileIsASubscriptFault) {
    EXPECT_THROW(powerOf(recordings, {0, 1}, basis), Fault);
}

TEST_F(PowerOf, OneFile) {
    addFile(recordings, "a.dat", {1000, 500});
    basis.factor = 0.5F;
    const Plot plot = view(10000);
    EXPECT_EQ(of(10000).kilowatts, (std::vector<float>{500.0F, 250.0F}));
    ASSERT_EQ(plot.series.size(), 1U);
    EXPECT_EQ(plot.series[0].values, (std::vector<float>{500.0F, 250.0F}));
    EXPECT_EQ(plot.yTitle, "KW");
    EXPECT_EQ(plot.points, 2);
    EXPECT_EQ(plot.yMin, 225);        // 50 x 0.9 x 10 x 0.5
    EXPECT_DOUBLE_EQ(plot.yMax, 550); // 100 x 1.1 x 10 x 0.5
    EXPECT_EQ(plot.extremeMin, 500);
    EXPECT_EQ(plot.extremeMax, 1000);
}

TEST_F(PowerOf, TwoFilesAreSummedWithoutTheFactor) {
    addFile(recordings, "a.dat", {1000, 500});
    addFile(recordings, "b.dat", {200, 300});
    const Power power = of(10000);
    EXPECT_EQ(power.kilowatts, (std::vector<float>{1200.0F, 800.0F}));
    EXPECT_EQ(power.extremeMin, 800);
    EXPECT_EQ(power.extremeMax, 1200);
}

TEST_F(PowerOf, ThreeFilesOfAHundredAmps) {
    openThree(4, 1000);
    const Power power = of();
    ASSERT_EQ(power.kilowatts.size(), 4U);
    for (const float kilowatts : power.kilowatts)
        EXPECT_FLOAT_EQ(kilowatts, 2390.16F);
}

TEST_F(PowerOf, ThreeFileAxisReachesAboveThePlottedValues) {
    openThree(4, 1000);
    const Plot plot = view();
    EXPECT_EQ(plot.yMin, 2151);        // 173.2 x 0.9 x 13.8 = 2151.144
    EXPECT_DOUBLE_EQ(plot.yMax, 4554); // 300 x 1.1 x 13.8
    EXPECT_EQ(plot.extremeMin, 1732);
    EXPECT_EQ(plot.extremeMax, 3000);
}

TEST_F(PowerOf, AxisMinimumIsExactWhereTheValueIsWhole) {
    // 100 x 0.9 x 10 x 0.9 = 810; in single precision the last factor is a little less.
    addFile(recordings, "a.dat", constant(2, 1000));
    basis.factor = 0.9F;
    EXPECT_EQ(view(10000).yMin, 810);
    // Every current at every tenth of a factor, held against whole numbers: tenths x 9 x volts x factor /
    // 10^6.
    for (int tenths = 10; tenths < 3000; tenths += 10) {
        for (int factor = 1; factor <= 10; ++factor) {
            recordings.gReadings[0] = {static_cast<std::int16_t>(tenths)};
            recordings.gInfo[0].count = 1;
            basis.factor = static_cast<float>(factor) / 10.0F;
            EXPECT_EQ(view(13800).yMin, tenths * 9 * 13800LL * factor / 1000000) << tenths << " " << factor;
        }
    }
}

TEST_F(PowerOf, AxisHasNoFloorOfTen) {
    addFile(recordings, "a.dat", constant(2, 1));
    EXPECT_DOUBLE_EQ(view(1000).yMax, 0.11);
}

TEST_F(PowerOf, ExtremesAreRoundedToWholeTenths) {
    // Means of 1 and 13 tenths: 1.732, and a sum of 39.
    openThree(2, 1);
    recordings.gReadings[0][1] = recordings.gReadings[1][1] = recordings.gReadings[2][1] = 13;
    const Power power = of();
    EXPECT_EQ(power.extremeMin, 2);
    EXPECT_EQ(power.extremeMax, 39);
}

TEST_F(PowerOf, ThreeFileSumAboveSixteenBitsOverflows) {
    openThree(3, 10000);
    recordings.gReadings[2][1] = 12768; // 10000 + 10000 + 12768 = 32768
    try {
        of(12000);
        ADD_FAILURE();
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.number(), 6);
    }
    EXPECT_EQ(energyOf(recordings, {0, 2}, basis), "") << "a summary goes without it";
    EXPECT_NE(energyOf(recordings, {2, 2}, basis), "");
}

TEST_F(PowerOf, ThreeFileSumOverflowsAlreadyWithTwoCurrents) {
    addFile(recordings, "a.dat", {20000});
    addFile(recordings, "b.dat", {20000});
    addFile(recordings, "c.dat", {-20000});
    EXPECT_THROW(of(), Fault);
}

TEST_F(PowerOf, ThreeFileSumAtTheLimitOfSixteenBits) {
    addFile(recordings, "a.dat", {16383});
    addFile(recordings, "b.dat", {16384});
    addFile(recordings, "c.dat", {0});
    EXPECT_EQ(of().extremeMax, 32767);
}

TEST_F(PowerOf, TwoFileSumIsNoSixteenBitNumberButItsExtremeIs) {
    addFile(recordings, "a.dat", {16000});
    addFile(recordings, "b.dat", {16767});
    EXPECT_EQ(of().extremeMax, 32767);
    recordings.gReadings[1][0] = 16768;
    EXPECT_THROW(of(), Fault);
}

TEST_F(PowerOf, PowerBeyondSinglePrecisionOverflows) {
    addFile(recordings, "a.dat", {30000});
    basis.vline = "3e38";
    EXPECT_THROW(powerOf(recordings, {0, 0}, basis), Fault);
}

TEST_F(PowerOf, VoltageOfZeroAndBelowIsCalculatedAsItStands) {
    addFile(recordings, "a.dat", {1000, 2000});
    EXPECT_EQ(of(0).kilowatts, (std::vector<float>{0.0F, 0.0F}));
    EXPECT_EQ(of(0).energyText, "0 KWHR");
    EXPECT_EQ(of(-10000).kilowatts, (std::vector<float>{-1000.0F, -2000.0F}));
}

TEST_F(PowerOf, EnergyLeavesOutTheFirstReading) {
    addFile(recordings, "a.dat", {30000, 100, 100, 100, 100});
    EXPECT_EQ(of(10000).energyText, "100 KWHR"); // four readings of 100 KW, a quarter of an hour each
}

TEST_F(PowerOf, EnergyOfOneReadingIsZero) {
    addFile(recordings, "a.dat", {1234});
    EXPECT_EQ(of().energyText, "0 KWHR");
}

TEST_F(PowerOf, EnergyFollowsTheInterval) {
    for (const auto& [letter, energy] : {std::pair{'b', "1,000 KWHR"}, {'f', "200 KWHR"}}) {
        recordings.closeAll();
        addFile(recordings, "b.dat", constant(13, 1000), {.letter = letter});
        EXPECT_EQ(of(10000).energyText, energy); // twelve readings of 1000 KW
    }
}

TEST_F(PowerOf, MillionKilowattHoursStayInKilowattHours) {
    addFile(recordings, "a.dat", constant(401, 10000)); // 400 readings of 10,000 KW
    EXPECT_EQ(of(10000).energyText, "1,000,000 KWHR");
}

TEST_F(PowerOf, AboveAMillionItIsMegawattHours) {
    auto tenths = constant(401, 10000);
    tenths.push_back(4); // 4 KW for a quarter of an hour more
    addFile(recordings, "a.dat", tenths);
    EXPECT_EQ(of(10000).energyText, "1,000 MWHR");
}

TEST_F(PowerOf, VoltageFileIsRefused) {
    addFile(recordings, "v.dat", {1000}, {.type = 'V'});
    const auto power = powerOf(recordings, {0, 0}, basis);
    ASSERT_FALSE(power);
    EXPECT_EQ(power.error().text, "Files must all be amps for power to plot");
    EXPECT_EQ(energyOf(recordings, {0, 0}, basis), "");
}

TEST_F(PowerOf, TripleFileIsRefused) {
    addFile(recordings, "g.dat", ramp(3), {.letter = 'g'});
    const auto power = powerOf(recordings, {0, 2}, basis);
    ASSERT_FALSE(power);
    EXPECT_EQ(power.error().text, "Files must be average mode for power to plot");
}

TEST_F(PowerOf, LastFileThatFailsDecides) {
    EXPECT_TRUE(checkPower(recordings));
    addFile(recordings, "v.dat", {1000}, {.type = 'V'});
    addFile(recordings, "g.dat", ramp(3), {.letter = 'g'});
    EXPECT_EQ(checkPower(recordings).error().text, powerNotAverage);
    recordings.closeAll();
    addFile(recordings, "g.dat", ramp(3), {.letter = 'g'});
    addFile(recordings, "v.dat", {1000}, {.type = 'V'});
    EXPECT_EQ(checkPower(recordings).error().text, powerNotAmps);
    addFile(recordings, "a.dat", {1000});
    EXPECT_EQ(checkPower(recordings).error().text, powerNotAmps);
}

TEST_F(PowerOf, TripleFileOfVoltsIsRefusedForItsMode) {
    addFile(recordings, "g.dat", ramp(3), {.letter = 'g', .type = 'V'});
    EXPECT_EQ(checkPower(recordings).error().text, powerNotAverage);
}

TEST_F(PowerOf, TitleOfOneFile) {
    addFile(recordings, "/x/a.dat", {1000});
    basis.factor = 0.85F;
    EXPECT_TRUE(view().title.starts_with(
        "/x/a.dat      Nominal Line Voltage 13.8 KV  Power Factor: 0.85\r\n        File Data:   Max  100A"));
    EXPECT_EQ(powerTitle(recordings, basis),
              "/x/a.dat      Nominal Line Voltage 13.8 KV  Power Factor: 0.85");
}

TEST_F(PowerOf, TitleOfSeveralFiles) {
    openThree(2, 100);
    setVolts(12470);
    EXPECT_EQ(powerTitle(recordings, basis),
              "a.dat   b.dat   c.dat     Combined;   Nominal Line Voltage 12.47 KV  Power Factor: 1");
}

TEST_F(PowerOf, ZoomNarrowsPowerEnergyAndExtremes) {
    addFile(recordings, "a.dat", ramp(100, 10));
    mark(view(10000), 10, 14);
    const Plot plot = zoom();
    EXPECT_EQ(plot.extremeMin, 100);
    EXPECT_EQ(plot.extremeMax, 140);
    EXPECT_EQ(plot.firstEntry, 10);
    EXPECT_EQ(plot.labels[0], "Mar 15 16:30");
    EXPECT_EQ(power().kilowatts, (std::vector<float>{100, 110, 120, 130, 140}));
    EXPECT_EQ(power().energyText, "125 KWHR"); // 500 KW x 15 / 60
}

TEST_F(PowerOf, MarkedSpanIsInTheTitle) {
    addFile(recordings, "a.dat", ramp(100));
    mark(view(), 1, 2);
    EXPECT_TRUE(drawPower().title.ends_with("\r\nSelected:   14:15  Mar 15, 24   to   14:30  Mar 15, 24"));
    EXPECT_EQ(drawPower().title.find("Selected"), std::string::npos);
}

TEST_F(PowerOf, UserScaleNeverAppliesAndIsCleared) {
    addFile(recordings, "a.dat", constant(3, 1000));
    view(10000);
    display.setScale("5");
    EXPECT_EQ(drawPower().yMin, 900);
    EXPECT_FALSE(display.plotRequest(recordings).yMinimum);
}

TEST_F(PowerOf, ShorterFileCountsAsZeroAndIsNamed) {
    addFile(recordings, "a.dat", constant(4, 100));
    addFile(recordings, "b.dat", constant(2, 100));
    EXPECT_EQ(of(10000).kilowatts, (std::vector<float>{200, 200, 100, 100}));
    EXPECT_EQ(view(10000).remark, "Shorter: b.dat (2 of 4 readings)");
}

TEST_F(PowerOf, ForcedReadingsOfAnyFileAreMarked) {
    addFile(recordings, "a.dat", constant(9, 100));
    addFile(recordings, "b.dat", constant(9, 100));
    recordings.forcedEdits[0].push_back({1, {0, 0}});
    recordings.forcedEdits[1].push_back({6, {0}});
    EXPECT_EQ(view().series[0].forced, (std::vector<std::pair<int, int>>{{1, 2}, {6, 6}}));
}

TEST_F(PowerOf, SourceSaysWhatItWasMadeFrom) {
    addFile(recordings, "/x/a.dat", ramp(3));
    addFile(recordings, "/x/b.dat", ramp(3));
    EXPECT_EQ(powerSource(recordings, of()),
              "Power of a.dat, b.dat at 13.8 KV, power factor 1, 14:00  Mar 15, 24 to "
              "14:30  Mar 15, 24");
}

TEST_F(PowerOf, ReadOutIsInKilowatts) {
    openThree(2, 1000);
    EXPECT_EQ(readOut(recordings, view(), 1).value, "2390.2 KW");
}

TEST_F(PowerOf, LongestFilesKeepTheirEnergy) {
    for (const char* path : {"a.dat", "b.dat", "c.dat"})
        addFile(recordings, path, constant(Recordings::maximumReadings, 1000), {.letter = 'c'});
    const Power power = of();
    // 42,965 x 2390.16 / 60 = 1,711,553.74 KWHR
    EXPECT_EQ(power.energyText, "1,712 MWHR");
    EXPECT_EQ(power.kilowatts.size(), 42966U);
}

} // namespace
} // namespace tally
