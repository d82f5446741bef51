// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Study.h"

#include "Some.h"
#include "core/Fault.h"
#include "support/SampleFile.h"

#include <gtest/gtest.h>

namespace tally::study {
namespace {

using tally::testing::addFile;
using tally::testing::constant;
using tally::testing::ramp;
using tally::testing::Sample;
using testing::on;

class StudyOfFiles : public ::testing::Test {
protected:
    Recordings recordings;
    StudyOptions options;

    Study study(std::optional<Range> range = {}) const {
        auto made = studyOf(recordings, range, options);
        EXPECT_TRUE(made) << (made ? std::string() : made.error().text);
        return made ? std::move(*made) : Study();
    }
    std::string refusal() const {
        const auto made = studyOf(recordings, {}, options);
        return made ? "" : made.error().text;
    }
};

TEST_F(StudyOfFiles, FilesAreCutToTheTimeThatTheyShare) {
    addFile(recordings, "a/red.dat", ramp(10), {.start = on(2024, 3, 4, 0, 0)});
    addFile(recordings, "b/white.dat", ramp(10, 10), {.start = on(2024, 3, 4, 0, 30)});
    const Study both = study();
    EXPECT_EQ(both.axis.start, on(2024, 3, 4, 0, 30));
    EXPECT_EQ(both.axis.points, 8U);
    EXPECT_EQ(both.axis.end(), on(2024, 3, 4, 2, 30));
    EXPECT_EQ(both.channels[0].loads.front(), 2);
    EXPECT_EQ(both.channels[1].loads.back(), 70);
    EXPECT_EQ(both.basis[0].before, 2);
    EXPECT_EQ(both.basis[0].after, 0);
    EXPECT_EQ(both.basis[1].before, 0);
    EXPECT_EQ(both.basis[1].after, 2);
    EXPECT_FALSE(both.phases);
    EXPECT_TRUE(both.diversity);
}

TEST_F(StudyOfFiles, EqualNamesAreNumbered) {
    for (const char* folder : {"a", "b", "c"})
        addFile(recordings, std::string(folder) + "/red.dat", constant(2, 10));
    const Study all = study();
    EXPECT_EQ(all.channels[0].name, "red.dat");
    EXPECT_EQ(all.channels[1].name, "red.dat (2)");
    EXPECT_EQ(all.channels[2].name, "red.dat (3)");
}

TEST_F(StudyOfFiles, ARangeCountsInReadingsOfTheFirstFile) {
    addFile(recordings, "red.dat", ramp(10), {.start = on(2024, 3, 4, 0, 0)});
    addFile(recordings, "white.dat", ramp(10, 10), {.start = on(2024, 3, 4, 0, 30)});
    const Study part = study(Range{0, 3});
    EXPECT_EQ(part.axis.start, on(2024, 3, 4, 0, 30));
    EXPECT_EQ(part.axis.points, 2U);
}

TEST_F(StudyOfFiles, TriplesGiveAveragesAndExtremes) {
    // An odd oldest reading, then average, maximum, minimum.
    addFile(recordings, "g.dat", {7, 50, 90, 10, 60, 70, 20}, {.letter = 'h', .start = on(2024, 3, 4, 0, 0)});
    const Study triples = study();
    EXPECT_EQ(triples.axis.points, 2U);
    EXPECT_EQ(triples.axis.interval, 5);
    EXPECT_EQ(triples.axis.start, on(2024, 3, 4, 0, 5));
    EXPECT_EQ(triples.channels[0].loads, (std::vector<std::int32_t>{50, 60}));
    EXPECT_EQ(triples.channels[0].maxima, (std::vector<std::int32_t>{90, 70}));
    EXPECT_EQ(triples.channels[0].minima, (std::vector<std::int32_t>{10, 20}));
    EXPECT_TRUE(triples.basis[0].oddTriple);
    EXPECT_EQ(triples.basis[0].entries, 2);
    EXPECT_EQ(triples.basis[0].before, 0);
    EXPECT_EQ(study(Range{6, 6}).channels[0].loads, (std::vector<std::int32_t>{60}));
}

TEST_F(StudyOfFiles, PowerIsTheLastChannel) {
    for (const char* name : {"r.dat", "w.dat", "b.dat"})
        addFile(recordings, name, constant(4, 1000));
    options.power = PowerBase{13800, 0};
    const Study powered = study();
    ASSERT_EQ(powered.channels.size(), 4U);
    EXPECT_EQ(powered.files, 3U);
    EXPECT_EQ(powered.channels[3].name, "power");
    EXPECT_NEAR(powered.figures[3].level.mean, 2390.16, 0.001);
    EXPECT_NEAR(powered.figures[3].demand.block->value, 2390.16, 0.001);
    EXPECT_EQ(*powered.figures[3].demand.loadFactor, 1.0);
    EXPECT_EQ(powered.flags.size(), 0U);
}

TEST_F(StudyOfFiles, WhatHasNoPowerIsRefusedInTheWordsOfThePowerView) {
    options.power = PowerBase{13800, 1};
    addFile(recordings, "v.dat", constant(4, 1200), {.type = 'V'});
    EXPECT_EQ(refusal(), "Files must all be amps for power to plot");
    recordings.closeAll();
    addFile(recordings, "g.dat", constant(6, 100), {.letter = 'g'});
    EXPECT_EQ(refusal(), "Files must be average mode for power to plot");
}

TEST_F(StudyOfFiles, ThreeCurrentsBeyondSixteenBitsOverflow) {
    for (const char* name : {"r.dat", "w.dat", "b.dat"})
        addFile(recordings, name, constant(2, 20000));
    options.power = PowerBase{100, 1};
    EXPECT_THROW(study(), Fault);
}

TEST_F(StudyOfFiles, ACapacityCheckOfVoltsIsRefused) {
    addFile(recordings, "v.dat", constant(4, 1200), {.type = 'V'});
    options.capacity = CapacityCheck{100};
    EXPECT_EQ(refusal(), "A capacity check needs files of amps");
}

TEST_F(StudyOfFiles, DaysAreDatesWithAReading) {
    addFile(recordings, "a.dat", ramp(2), {.start = on(2024, 2, 28, 23, 45)});
    EXPECT_EQ(study().days(), 2); // 28 and 29 February
}

TEST_F(StudyOfFiles, LoadsOfOneFileStandOnTheirOwnTimes) {
    addFile(recordings, "a.dat", ramp(4, 10), {.start = on(2024, 3, 4)});
    addFile(recordings, "v.dat", ramp(4), {.type = 'V', .start = on(2024, 3, 5)});
    const auto series = loadSeries(recordings, Range{1, 2});
    ASSERT_TRUE(series);
    EXPECT_EQ(series->channel.loads, (std::vector<std::int32_t>{10, 20}));
    EXPECT_EQ(series->axis.start, on(2024, 3, 4, 0, 15));
}

} // namespace
} // namespace tally::study
