// SPDX-License-Identifier: GPL-3.0-or-later
#include "survey/Peaks.h"

#include "SurveySample.h"
#include "core/Fault.h"

#include <gtest/gtest.h>

#include <random>

namespace tally {
namespace {

using testing::fillFeeder;
using testing::Tenths;

class SurveyPeaks : public ::testing::Test {
protected:
    SurveyData survey;

    FeederPeaks peaksOf(int feeder) const {
        return feederPeaksOf(survey.feeders.at(static_cast<std::size_t>(feeder)));
    }
    void expectOverflow() {
        try {
            findStationPeak(survey);
            FAIL() << "no overflow";
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number(), 6);
        }
        EXPECT_FALSE(survey.stationPeak);
        EXPECT_TRUE(survey.stationTotals.empty());
    }
};

Tenths at(int count, int index, std::int16_t value, std::int16_t others = 0) {
    Tenths all(static_cast<std::size_t>(count), others);
    all.at(static_cast<std::size_t>(index)) = value;
    return all;
}

TEST_F(SurveyPeaks, EachPhaseHasItsOwnPeakWithTheCurrentsOfAllThree) {
    fillFeeder(survey, 0, {10, 50, 20}, {11, 21, 61}, {72, 32, 12});
    const FeederPeaks peaks = peaksOf(0);
    EXPECT_EQ(peaks[0].index, 1);
    EXPECT_EQ(peaks[0].currents, (PhaseCurrents{50, 21, 32}));
    EXPECT_EQ(peaks[0].sum, 103.0F);
    EXPECT_EQ(screenTime(peaks[0].time), "14:15  Mar 15, 24");
    EXPECT_EQ(peaks[1].index, 2);
    EXPECT_EQ(peaks[1].currents, (PhaseCurrents{20, 61, 12}));
    EXPECT_EQ(screenTime(peaks[1].time), "14:30  Mar 15, 24");
    EXPECT_EQ(peaks[2].index, 0);
    EXPECT_EQ(peaks[2].currents, (PhaseCurrents{10, 11, 72}));
    EXPECT_EQ(screenTime(peaks[2].time), "14:00  Mar 15, 24");
}

TEST_F(SurveyPeaks, OfTwoEqualHighestReadingsTheEarlierIsThePeak) {
    Tenths red = at(10, 3, 400);
    red[7] = 400;
    fillFeeder(survey, 0, red, at(10, 9, 1), at(10, 0, 1));
    EXPECT_EQ(peaksOf(0)[0].index, 3);
}

TEST_F(SurveyPeaks, APhaseThatIsNeverAboveZeroHasItsPeakAtTheFirstReading) {
    fillFeeder(survey, 0, {0, 0, 0}, {-5, -1, -3}, {0, 0, 7});
    EXPECT_EQ(peaksOf(0)[0].index, 0);
    EXPECT_EQ(peaksOf(0)[1].index, 0);
    EXPECT_EQ(peaksOf(0)[2].index, 2);
}

TEST_F(SurveyPeaks, TheSumOfAPeakIsNoSixteenBitNumber) {
    fillFeeder(survey, 0, {32767}, {32767}, {32767});
    EXPECT_EQ(peaksOf(0)[0].sum, 98301.0F);
}

TEST_F(SurveyPeaks, TheShortestPhaseIsScanned) {
    fillFeeder(survey, 0, {1, 2, 90}, {5, 4}, {1, 1, 1, 99});
    const FeederPeaks peaks = peaksOf(0);
    EXPECT_EQ(peaks[0].index, 1);
    EXPECT_EQ(peaks[1].index, 0);
    EXPECT_EQ(peaks[2].index, 0);
}

TEST_F(SurveyPeaks, TripleReadingsShareTheTimeOfTheirInterval) {
    fillFeeder(survey, 0, at(9, 7, 10), at(9, 2, 10), at(9, 3, 10));
    for (PhaseFile& file : survey.feeders[0])
        file.facts.modeLetter = 'g';
    EXPECT_EQ(screenTime(peaksOf(0)[0].time), "14:30  Mar 15, 24");
    EXPECT_EQ(screenTime(peaksOf(0)[1].time), "14:00  Mar 15, 24");
    EXPECT_EQ(screenTime(peaksOf(0)[2].time), "14:15  Mar 15, 24");
}

TEST_F(SurveyPeaks, AStationOfOneFeeder) {
    fillFeeder(survey, 0, {10, 50, 20}, {11, 21, 61}, {72, 32, 12});
    findStationPeak(survey);
    ASSERT_TRUE(survey.stationPeak);
    // 93, 103, 93
    EXPECT_EQ(survey.stationTotals, (std::vector<float>{93, 103, 93}));
    EXPECT_EQ(survey.stationPeak->index, 1);
    EXPECT_EQ(survey.stationPeak->total, 103);
    EXPECT_EQ(screenTime(survey.stationPeak->time), "14:15  Mar 15, 24");
    EXPECT_EQ(survey.stationPeak->feeders[0], (PhaseCurrents{50, 21, 32}));
    EXPECT_FALSE(survey.stationPeak->feeders[1]);
}

TEST_F(SurveyPeaks, OfEqualStationTotalsAtFiveAndNineFiveIsThePeak) {
    Tenths red(12, 10);
    red[5] = 300;
    Tenths white(12, 10);
    white[9] = 300;
    fillFeeder(survey, 0, red, white, Tenths(12, 10));
    findStationPeak(survey);
    EXPECT_EQ(survey.stationPeak->index, 5);
    EXPECT_EQ(survey.stationTotals[5], survey.stationTotals[9]);
}

TEST_F(SurveyPeaks, FourFeedersWithEqualPeaks) {
    for (int feeder = 0; feeder < 4; ++feeder)
        fillFeeder(survey, feeder, at(50, 10 + feeder, 700), at(50, 10 + feeder, 600),
                   at(50, 10 + feeder, 500));
    for (int feeder = 0; feeder < 4; ++feeder)
        for (const PhasePeak& peak : peaksOf(feeder)) {
            EXPECT_EQ(peak.index, 10 + feeder);
            EXPECT_EQ(peak.currents, (PhaseCurrents{700, 600, 500}));
        }
    findStationPeak(survey);
    EXPECT_EQ(survey.stationPeak->index, 10);
    EXPECT_EQ(survey.stationPeak->total, 1800);
    EXPECT_EQ(survey.stationPeak->feeders[0], (PhaseCurrents{700, 600, 500}));
    EXPECT_EQ(survey.stationPeak->feeders[3], (PhaseCurrents{0, 0, 0}));
}

TEST_F(SurveyPeaks, AfterFeederTwoTheTotalsIncludeFeedersOneAndTwoOnly) {
    for (const int feeder : {0, 2, 3, 1})
        fillFeeder(survey, feeder, {1}, {10}, {static_cast<std::int16_t>(100 * (feeder + 1))});
    ASSERT_EQ(survey.currentFeeder, 1);
    findStationPeak(survey);
    EXPECT_EQ(survey.stationPeak->total, 111 + 211);
    EXPECT_TRUE(survey.stationPeak->feeders[0] && survey.stationPeak->feeders[1]);
    EXPECT_FALSE(survey.stationPeak->feeders[2] || survey.stationPeak->feeders[3]);
}

TEST_F(SurveyPeaks, AfterOnlyFeederTwoWasProcessedFeederOneAddsNothing) {
    fillFeeder(survey, 1, {1, 5}, {2, 2}, {3, 3});
    findStationPeak(survey);
    EXPECT_EQ(survey.stationPeak->total, 10);
    EXPECT_EQ(survey.stationPeak->index, 1);
    EXPECT_EQ(screenTime(survey.stationPeak->time), "14:15  Mar 15, 24");
    EXPECT_FALSE(survey.stationPeak->feeders[0]);
}

TEST_F(SurveyPeaks, TheTimeOfTheStationPeakIsThatOfFeederOne) {
    fillFeeder(survey, 0, {1, 5}, {2, 2}, {3, 3}, toReadingTime({2024, 2, 29, 23, 45}));
    fillFeeder(survey, 1, {1, 5}, {2, 2}, {3, 3});
    findStationPeak(survey);
    EXPECT_EQ(screenTime(survey.stationPeak->time), "00:00  Mar 01, 24");
}

TEST_F(SurveyPeaks, AFeederWithOnlyTwoPhasesIsNotCovered) {
    fillFeeder(survey, 0, {1}, {2}, {3});
    fillFeeder(survey, 1, {1}, {2}, {3});
    survey.feeders[1][2] = {};
    EXPECT_TRUE(coversFeeder(survey, 0));
    EXPECT_FALSE(coversFeeder(survey, 1));
    findStationPeak(survey);
    EXPECT_EQ(survey.stationPeak->total, 6);
    survey.feeders[0][0] = {};
    EXPECT_FALSE(coversAnyFeeder(survey));
}

TEST_F(SurveyPeaks, FeedersOfDifferentLengthAreScannedOverTheShortest) {
    fillFeeder(survey, 0, {1, 2, 3, 500}, {1, 1, 1, 1}, {1, 1, 1, 1});
    fillFeeder(survey, 1, {1, 2, 3}, {1, 1, 1}, {1, 1, 1, 1, 900});
    findStationPeak(survey);
    EXPECT_EQ(survey.stationTotals.size(), 3U);
    EXPECT_EQ(survey.stationPeak->index, 2);
    EXPECT_EQ(survey.stationPeak->total, 10);
}

TEST_F(SurveyPeaks, AFeederTotalBeyondSixteenBitsIsAnOverflow) {
    fillFeeder(survey, 0, {0, 20000, 0}, {0, 10000, 0}, {0, 2767, 0});
    findStationPeak(survey);
    EXPECT_EQ(survey.stationPeak->total, 32767);
    survey.stationPeak.reset();
    survey.stationTotals.clear();
    survey.feeders[0][2].readings[1] = 2768;
    expectOverflow();
}

TEST_F(SurveyPeaks, TheSumOfTwoPhasesOverflowsAlsoWhenTheThirdTakesItBack) {
    fillFeeder(survey, 0, {20000}, {20000}, {-30000});
    expectOverflow();
    fillFeeder(survey, 0, {-20000}, {-20000}, {30000});
    expectOverflow();
}

TEST_F(SurveyPeaks, AStationTotalOf32768IsAnOverflow) {
    fillFeeder(survey, 0, {16000}, {384}, {0});
    fillFeeder(survey, 1, {16000}, {383}, {0});
    findStationPeak(survey);
    EXPECT_EQ(survey.stationPeak->total, 32767);
    survey.stationPeak.reset();
    survey.stationTotals.clear();
    survey.feeders[1][2].readings[0] = 1;
    expectOverflow();
}

TEST_F(SurveyPeaks, OverflowBehindTheShortestFileDoesNotMatter) {
    fillFeeder(survey, 0, {1, 30000}, {1, 30000}, {1});
    findStationPeak(survey);
    EXPECT_EQ(survey.stationPeak->total, 3);
}

TEST_F(SurveyPeaks, ALoneLowTotalNeverOverflowsTheMaximum) {
    fillFeeder(survey, 0, {-30000, 5}, {0, 0}, {0, 0});
    fillFeeder(survey, 1, {-30000, 5}, {0, 0}, {0, 0});
    findStationPeak(survey);
    EXPECT_EQ(survey.stationTotals[0], -60000.0F);
    EXPECT_EQ(survey.stationPeak->index, 1);
}

// The survey by the plainest loops over 16-bit numbers.
struct Plain {
    bool overflow = false;
    int index = 0;
    int total = 0;
    std::array<std::array<int, 3>, 4> feederIndexes{};
};

Plain plainly(const SurveyData& survey, int feeders) {
    Plain plain;
    std::size_t shortest = survey.feeders[0][0].readings.size();
    for (int f = 0; f < feeders; ++f) {
        const FeederFiles& files = survey.feeders[static_cast<std::size_t>(f)];
        std::size_t own = files[0].readings.size();
        for (const PhaseFile& file : files)
            own = std::min(own, file.readings.size());
        shortest = std::min(shortest, own);
        for (std::size_t p = 0; p < 3; ++p) {
            int highest = 0;
            for (std::size_t i = 0; i < own; ++i)
                if (files[p].readings[i] > highest) {
                    highest = files[p].readings[i];
                    plain.feederIndexes[static_cast<std::size_t>(f)][p] = static_cast<int>(i);
                }
        }
    }
    for (std::size_t i = 0; i < shortest; ++i) {
        int station = 0;
        for (int f = 0; f < feeders; ++f) {
            int feeder = 0;
            for (const PhaseFile& file : survey.feeders[static_cast<std::size_t>(f)]) {
                feeder += file.readings[i];
                plain.overflow = plain.overflow || feeder > 32767 || feeder < -32768;
            }
            station += feeder;
        }
        if (station > plain.total) {
            plain.total = station;
            plain.index = static_cast<int>(i);
            plain.overflow = plain.overflow || station > 32767;
        }
    }
    return plain;
}

TEST_F(SurveyPeaks, RandomStationsAgreeWithAPlainRecomputation) {
    std::mt19937 random(6109);
    int overflows = 0;
    for (int round = 0; round < 300; ++round) {
        survey = {};
        const int feeders = 1 + static_cast<int>(random() % 4);
        const auto length = 1 + random() % (round % 10 == 0 ? 9000 : 60);
        const auto range = round % 4 == 0 ? 5U : round % 4 == 1 ? 2700U : round % 4 == 2 ? 2760U : 12000U;
        for (int feeder = 0; feeder < feeders; ++feeder) {
            std::array<Tenths, 3> phases;
            for (Tenths& phase : phases) {
                phase.resize(length + random() % 4);
                for (auto& value : phase)
                    value = static_cast<std::int16_t>(static_cast<int>(random() % range) -
                                                      (round % 7 == 0 ? 3 : 0));
            }
            fillFeeder(survey, feeder, phases[0], phases[1], phases[2]);
        }
        const Plain plain = plainly(survey, feeders);
        for (int feeder = 0; feeder < feeders; ++feeder)
            for (std::size_t phase = 0; phase < 3; ++phase)
                ASSERT_EQ(peaksOf(feeder)[phase].index,
                          plain.feederIndexes[static_cast<std::size_t>(feeder)][phase]);
        if (plain.overflow) {
            ++overflows;
            ASSERT_THROW(findStationPeak(survey), Fault) << round;
            continue;
        }
        findStationPeak(survey);
        ASSERT_EQ(survey.stationPeak->index, plain.index) << round;
        ASSERT_EQ(survey.stationPeak->total, plain.total) << round;
    }
    EXPECT_GT(overflows, 20);
    EXPECT_LT(overflows, 200);
}

} // namespace
} // namespace tally
