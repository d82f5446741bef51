// SPDX-License-Identifier: GPL-3.0-or-later
// Studies of many random recordings against a plain second computation.
#include "PlainStudy.h"
#include "Some.h"
#include "study/Study.h"
#include "support/SampleFile.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

namespace tally::study {
namespace {

using tally::testing::addFile;

// A random recording: few different values, so that there are ties, and stretches of one value.
std::vector<std::int16_t> randomTenths(std::mt19937& random, int count) {
    std::vector<std::int16_t> tenths;
    const int values = static_cast<int>(random() % 60) + 2;
    while (static_cast<int>(tenths.size()) < count) {
        const auto run = random() % 8 == 0 ? random() % 40 + 1 : 1;
        const auto value = static_cast<std::int16_t>(random() % static_cast<unsigned>(values) * 7);
        tenths.insert(tenths.end(), run, value);
    }
    tenths.resize(static_cast<std::size_t>(count));
    return tenths;
}

class StudyAgainstPlain : public ::testing::TestWithParam<unsigned> {
protected:
    std::mt19937 random{GetParam()};
    Recordings recordings;
    int interval = 15;
    Study study;

    void SetUp() override {
        const char letters[] = {'a', 'b', 'c'};
        const int intervals[] = {15, 5, 1};
        const auto mode = random() % 3;
        interval = intervals[mode];
        const int files = static_cast<int>(random() % 3) + 1;
        const ReadingTime start =
            testing::on(2024, 2, 26, 0, 0) + interval * static_cast<int>(random() % 2000);
        for (int file = 0; file < files; ++file)
            addFile(recordings, "f.dat", randomTenths(random, 300 + static_cast<int>(random() % 900)),
                    {.letter = letters[mode], .start = start + interval * static_cast<int>(random() % 5)});
        StudyOptions options;
        const int windows[] = {15, 30, 60};
        options.window = windows[random() % 3];
        options.high = decimalOf("20.05");
        options.low = decimalOf("3.5");
        options.capacity = CapacityCheck{50, 3, 1.25};
        auto made = studyOf(recordings, {}, options);
        ASSERT_TRUE(made);
        study = std::move(*made);
    }
};

TEST_P(StudyAgainstPlain, LevelDemandAndDuration) {
    const auto n = static_cast<std::size_t>(study.options.window / interval);
    for (std::size_t i = 0; i < study.files; ++i) {
        const auto& loads = study.channels[i].loads;
        const ChannelFigures& of = study.figures[i];
        const double sum = std::accumulate(loads.begin(), loads.end(), 0.0);
        EXPECT_NEAR(of.level.mean, sum / 10 / static_cast<double>(loads.size()), 1e-9);
        const auto windows = plain::windows(loads, study.axis.start.minutes, interval, study.options.window);
        ASSERT_EQ(of.demand.blocks.count, windows.size());
        std::pair<std::int64_t, std::int64_t> best = {-1, 0};
        double mean = 0;
        double squares = 0;
        for (const auto& window : windows) {
            if (window.first > best.first)
                best = window;
            mean += static_cast<double>(window.first);
            squares += static_cast<double>(window.first * window.first);
        }
        EXPECT_NEAR(of.demand.block->value, static_cast<double>(best.first) / 10.0 / static_cast<double>(n),
                    1e-9);
        EXPECT_EQ(of.demand.block->at.minutes, best.second);
        const auto highest = static_cast<double>(best.first);
        const auto count = static_cast<double>(windows.size());
        EXPECT_NEAR(*of.demand.loadFactor, mean / count / highest, 1e-12);
        EXPECT_NEAR(*of.demand.lossFactor, squares / count / highest / highest, 1e-12);
        EXPECT_LE(*of.demand.loadFactor * *of.demand.loadFactor, *of.demand.lossFactor);
        EXPECT_LE(*of.demand.lossFactor, *of.demand.loadFactor);
        const auto rolling = *plain::rolling(loads, n);
        EXPECT_EQ(of.demand.rolling->at, study.axis.at(rolling.second));
        plain::Loads falling = loads;
        std::sort(falling.rbegin(), falling.rend());
        for (std::size_t p = 0; p <= 100; ++p) {
            const auto number = std::max<std::size_t>((p * loads.size() + 99) / 100, 1);
            EXPECT_DOUBLE_EQ(of.duration[p], falling[number - 1] / 10.0);
        }
    }
}

TEST_P(StudyAgainstPlain, TypicalDays) {
    for (std::size_t i = 0; i < study.files; ++i)
        for (std::size_t kind = 0; kind < 3; ++kind) {
            const auto slots =
                plain::slots(study.channels[i].loads, study.axis.start.minutes, interval, [&](auto day) {
                    const auto weekday = (day + 3) % 7; // 0 is Monday
                    return kind == (weekday == 6 ? 2U : weekday == 5 ? 1U : 0U);
                });
            const TypicalDay& of = study.figures[i].days[kind];
            for (std::size_t slot = 0; slot < of.slots.size(); ++slot) {
                const auto found = slots.find(static_cast<std::int64_t>(slot));
                ASSERT_EQ(of.slots[slot].readings, found == slots.end() ? 0U : found->second.size());
                if (found == slots.end())
                    continue;
                EXPECT_DOUBLE_EQ(of.slots[slot].p10, plain::percentile(found->second, 10) / 10.0);
                EXPECT_DOUBLE_EQ(of.slots[slot].p90, plain::percentile(found->second, 90) / 10.0);
                EXPECT_DOUBLE_EQ(of.slots[slot].max, plain::percentile(found->second, 100) / 10.0);
                EXPECT_DOUBLE_EQ(of.slots[slot].min, plain::percentile(found->second, 0) / 10.0);
            }
        }
}

TEST_P(StudyAgainstPlain, LimitsAndFlags) {
    for (std::size_t i = 0; i < study.files; ++i) {
        const auto& loads = study.channels[i].loads;
        const auto above =
            std::count_if(loads.begin(), loads.end(), [](int load) { return load / 10.0 > 20.05; });
        const auto below = std::count_if(loads.begin(), loads.end(), [](int load) { return load < 35; });
        EXPECT_EQ(study.figures[i].limits.minutesAbove, above * interval);
        EXPECT_EQ(study.figures[i].limits.minutesBelow, below * interval);
        std::vector<ReadingTime> spikes;
        for (const Flag& flag : study.flags)
            if (flag.file == i && flag.kind == FlagKind::spike)
                spikes.push_back(flag.start);
        std::vector<ReadingTime> expected;
        for (const std::size_t point : plain::spikes(loads))
            expected.push_back(study.axis.at(point));
        EXPECT_EQ(spikes.size(), expected.size());
        EXPECT_TRUE(std::equal(spikes.begin(), spikes.end(), expected.begin(), expected.end()));
    }
}

TEST_P(StudyAgainstPlain, Phases) {
    if (study.files != 3)
        return;
    double highest = 0;
    for (std::size_t point = 0; point < study.axis.points; ++point)
        highest = std::max(highest, (study.channels[0].loads[point] + study.channels[1].loads[point] +
                                     study.channels[2].loads[point]) /
                                        30.0);
    std::size_t counted = 0;
    double sum = 0;
    for (std::size_t point = 0; point < study.axis.points; ++point) {
        const double a = study.channels[0].loads[point] / 10.0;
        const double b = study.channels[1].loads[point] / 10.0;
        const double c = study.channels[2].loads[point] / 10.0;
        const double mean = (a + b + c) / 3;
        EXPECT_NEAR(study.phases->neutrals[point],
                    std::sqrt(std::max(a * a + b * b + c * c - a * b - b * c - c * a, 0.0)), 1e-6);
        if (mean <= 0 || mean < highest / 10 - 1e-9)
            continue;
        ++counted;
        sum += 100 * std::max({std::fabs(a - mean), std::fabs(b - mean), std::fabs(c - mean)}) / mean;
    }
    EXPECT_EQ(study.phases->unbalance.counted, counted);
    EXPECT_NEAR(*study.phases->unbalance.mean, sum / static_cast<double>(counted), 1e-6);
}

INSTANTIATE_TEST_SUITE_P(Random, StudyAgainstPlain, ::testing::Range(1U, 41U));

} // namespace
} // namespace tally::study
