// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/SpanFigures.h"

#include "support/Shown.h"

namespace tally {
namespace {

using testing::addFile;

class SpanFiguresOf : public testing::ShownFiles {
protected:
    SpanFigures figures(int first, int last) const {
        return spanFigures(recordings, {first, last}, display.statistic());
    }
};

// 20, 10, 40, 40 A: mean 27.5, load factor 27.5 / 40.
TEST_F(SpanFiguresOf, AFileOfAverages) {
    addFile(recordings, "/x/a.dat", {999, 200, 100, 400, 400, 999});
    const SpanFigures all = figures(1, 4);
    EXPECT_EQ(all.points, 4);
    EXPECT_EQ(all.to.minutes - all.from.minutes, 45);
    ASSERT_EQ(all.lines.size(), 1U);
    const SpanLine& line = all.lines[0];
    EXPECT_EQ(line.name, "a.dat");
    EXPECT_EQ(line.unit, "A");
    EXPECT_EQ(line.first, 20);
    EXPECT_EQ(line.last, 40);
    EXPECT_EQ(line.difference, 20);
    EXPECT_EQ(line.max->value, 40);
    EXPECT_EQ(line.max->at, timeOf(recordings.info(0), 3)) << "the earlier of equal ones";
    EXPECT_EQ(line.min->value, 10);
    EXPECT_EQ(line.min->at, timeOf(recordings.info(0), 2));
    EXPECT_EQ(line.mean, 27.5);
    EXPECT_DOUBLE_EQ(*line.loadFactor, 0.6875);
    EXPECT_EQ(all.energy, "");
}

TEST_F(SpanFiguresOf, ForcedReadingsCountAsTheyNowAre) {
    addFile(recordings, "a.dat", {100, 200});
    recordings.gReadings[0][1] = 300;
    EXPECT_EQ(figures(0, 1).lines[0].mean, 20);
}

TEST_F(SpanFiguresOf, AReadingThatAFileLacksIsNoZero) {
    addFile(recordings, "a.dat", {100, 200, 300});
    addFile(recordings, "b.dat", {500, 600});
    const SpanFigures all = figures(1, 2);
    const SpanLine& shorter = all.lines[1];
    EXPECT_EQ(shorter.readings, 1);
    EXPECT_EQ(shorter.mean, 60);
    EXPECT_EQ(shorter.min->value, 60);
    EXPECT_EQ(shorter.first, 60);
    EXPECT_EQ(shorter.last, std::nullopt);
    EXPECT_EQ(shorter.difference, std::nullopt);
    EXPECT_EQ(all.remarks, std::vector<std::string>{"b.dat has 1 of 2 readings"});
    const SpanFigures none = figures(2, 2);
    EXPECT_EQ(none.lines[1].mean, std::nullopt);
    EXPECT_EQ(none.lines[1].max, std::nullopt);
    EXPECT_EQ(spanRows(none)[8], (std::vector<std::string>{"Mean", "30.0 A", "-"}));
}

TEST_F(SpanFiguresOf, ItemsThatCouldNotBeReadAreNamed) {
    addFile(recordings, "a.dat", {100, 200});
    recordings.gInfo[0].unreadable = 2;
    EXPECT_EQ(figures(0, 1).remarks,
              std::vector<std::string>{"a.dat: 2 items of the file could not be read"});
    recordings.gInfo[0].unreadable = 1;
    EXPECT_EQ(figures(0, 1).remarks, std::vector<std::string>{"a.dat: 1 item of the file could not be read"});
}

TEST_F(SpanFiguresOf, OneFileOfTriplesHasItsThreeLines) {
    addFile(recordings, "g.dat", {100, 150, 50, 110, 160, 60}, {.letter = 'g'});
    const SpanFigures all = figures(0, 5);
    EXPECT_EQ(all.points, 2);
    ASSERT_EQ(all.lines.size(), 3U);
    EXPECT_EQ(all.lines[0].name, "Average");
    EXPECT_EQ(all.lines[0].mean, 10.5);
    EXPECT_EQ(all.lines[1].name, "Max");
    EXPECT_EQ(all.lines[1].max->value, 16);
    EXPECT_EQ(all.lines[1].loadFactor, std::nullopt);
    EXPECT_EQ(all.lines[2].name, "Min");
    EXPECT_EQ(all.lines[2].min->value, 5);
}

TEST_F(SpanFiguresOf, VoltsAndNothingButZeroHaveNoLoadFactor) {
    addFile(recordings, "z.dat", {0, 0});
    EXPECT_EQ(figures(0, 1).lines[0].loadFactor, std::nullopt);
    recordings.closeAll();
    addFile(recordings, "v.dat", {1200, 1100}, {.type = 'V'});
    EXPECT_EQ(figures(0, 1).lines[0].loadFactor, std::nullopt);
}

// 13,800 V and 1: 10 A are 138 KW, 20 A 276, 30 A 414. Energy: 276 + 414 in quarter hours, 172.5.
TEST_F(SpanFiguresOf, PowerCarriesTheEnergyThatItsSummarySays) {
    addFile(recordings, "a.dat", {100, 200, 300});
    const Power power = powerOf(recordings, {0, 2}, basis).value();
    const SpanFigures all = spanFigures(recordings, power);
    ASSERT_EQ(all.lines.size(), 1U);
    EXPECT_NEAR(*all.lines[0].mean, 276, 0.001);
    EXPECT_NEAR(all.lines[0].max->value, 414, 0.001);
    EXPECT_NEAR(*all.lines[0].loadFactor, 276.0 / 414, 1e-6);
    EXPECT_EQ(all.energy, "173 KWHR");
}

TEST_F(SpanFiguresOf, AreCopiedAsRowsPartedByTabs) {
    addFile(recordings, "a.dat", {100, 200});
    EXPECT_EQ(spanText(figures(0, 1)),
              "14:00  Mar 15, 24 to 14:15  Mar 15, 24 (15 min, 2 readings)\r\n"
              "\ta.dat\r\n"
              "First\t10.0 A\r\nLast\t20.0 A\r\nDifference\t10.0 A\r\n"
              "Max\t20.0 A\r\nMax at\t14:15  Mar 15, 24\r\nMin\t10.0 A\r\nMin at\t14:00  Mar 15, 24\r\n"
              "Mean\t15.0 A\r\nLoad factor\t0.750\r\n");
}

} // namespace
} // namespace tally
