// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/TransformerLoading.h"

#include "Some.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tally::study {
namespace {

using testing::axis;
using testing::on;

const ReadingTime start = on(2024, 3, 4);

Transformer rated100(Cooling cooling, double ambient = 20) {
    Transformer transformer = usualTransformer(cooling);
    transformer.rated = 100;
    transformer.ambient = ambient;
    return transformer;
}

TransformerLoading constantLoad(const Transformer& transformer, std::int32_t tenths) {
    const std::vector<std::int32_t> loads(8, tenths);
    return transformerLoadingOf(loads, axis(start, 15, loads.size()), transformer);
}

// A kind of cooling and one of paper by their names.
TEST(StudyTransformerLoading, KnowsItsKindsByName) {
    EXPECT_EQ(coolingOf("onaf"), Cooling::onaf);
    EXPECT_EQ(coolingOf("distribution"), Cooling::distribution);
    EXPECT_FALSE(coolingOf("ONAF"));
    EXPECT_FALSE(coolingOf(""));
    EXPECT_EQ(paperOf("upgraded"), Paper::upgraded);
    EXPECT_FALSE(paperOf("paper"));
}

// The normal condition of the standard: rated load at 20 °C gives a hot spot of 98 °C and ageing 1.
TEST(StudyTransformerLoading, RatedLoadAtTwentyDegreesAgesNormally) {
    for (const Cooling cooling :
         {Cooling::distribution, Cooling::onan, Cooling::onaf, Cooling::of, Cooling::od}) {
        const TransformerLoading loading = constantLoad(rated100(cooling), 1000);
        EXPECT_NEAR(loading.hotSpotMax.value, 98.0, 1e-9);
        EXPECT_NEAR(loading.ageing, 1.0, 1e-9);
        EXPECT_NEAR(loading.lossOfLifeHours, 2.0, 1e-9);
        EXPECT_DOUBLE_EQ(loading.hours, 2.0);
        EXPECT_DOUBLE_EQ(loading.kMax, 1.0);
        EXPECT_EQ(loading.hotSpotMax.at, start);
        EXPECT_EQ(loading.topOilMax.at, start);
    }
}

// Table of relative ageing rates of IEC 60076-7: hot spot, rate of ordinary and of upgraded paper, as
// printed.
TEST(StudyTransformerLoading, AgesAsThePublishedTableSays) {
    struct Printed {
        double hotSpot, normal, upgraded;
    };
    const Printed table[] = {{80, 0.125, 0.036}, {86, 0.25, 0.073}, {92, 0.5, 0.145},  {98, 1.0, 0.282},
                             {104, 2.0, 0.536},  {110, 4.0, 1.0},   {116, 8.0, 1.83},  {122, 16.0, 3.29},
                             {128, 32.0, 5.8},   {134, 64.0, 10.1}, {140, 128.0, 17.2}};
    for (const Printed& printed : table) {
        // At rated load the hot spot of every kind is 78 K above ambient.
        Transformer transformer = rated100(Cooling::onan, printed.hotSpot - 78);
        EXPECT_NEAR(constantLoad(transformer, 1000).ageing, printed.normal, 1e-9);
        transformer.paper = Paper::upgraded;
        const double digits = printed.upgraded < 1.5 ? 0.0005 : printed.upgraded < 5 ? 0.005 : 0.05;
        EXPECT_NEAR(constantLoad(transformer, 1000).ageing, printed.upgraded, digits) << printed.hotSpot;
    }
}

// Start of the worked example of IEC 60076-7: K 0.81 at 30.3 °C, rises 45 and 35 K, R 8: top oil 63.9 °C.
TEST(StudyTransformerLoading, StartsInTheSteadyStateOfTheFirstLoad) {
    Transformer transformer = rated100(Cooling::onaf, 30.3);
    transformer.topOilRise = 45;
    transformer.lossRatio = 8;
    transformer.hotSpotFactor = 1;
    transformer.gradient = 35;
    const TransformerLoading loading = constantLoad(transformer, 810);
    EXPECT_NEAR(loading.topOilMax.value, 63.9, 0.05);
    EXPECT_NEAR(loading.hotSpotMax.value - loading.topOilMax.value, 35 * std::pow(0.81, 1.3), 1e-9);
}

// What the difference equations tend to after n steps from a steady state: a geometric series each.
struct Settling {
    double oil, h1, h2;
    double hotSpot() const { return oil + h1 - h2; }
};
Settling after(const Transformer& t, double oilFrom, double oilTo, double windingFrom, double windingTo,
               int n) {
    const auto towards = [n](double from, double to, double share) {
        return to + (from - to) * std::pow(1 - share, n);
    };
    return {towards(oilFrom, oilTo, 1 / (t.k11 * t.tauOil)),
            towards(t.k21 * windingFrom, t.k21 * windingTo, 1 / (t.k22 * t.tauWinding)),
            towards((t.k21 - 1) * windingFrom, (t.k21 - 1) * windingTo, t.k22 / t.tauOil)};
}

TEST(StudyTransformerLoading, AStepOfTheLoadSettlesAsTheGeometricSeries) {
    for (const Cooling cooling :
         {Cooling::distribution, Cooling::onan, Cooling::onaf, Cooling::of, Cooling::od}) {
        const Transformer t = rated100(cooling);
        const double idle = 20 + t.topOilRise * std::pow(1 / (1 + t.lossRatio), t.x);
        const double full = 20 + t.topOilRise * std::pow((1 + 2.25 * t.lossRatio) / (1 + t.lossRatio), t.x);
        const double winding = t.hotSpotRise() * std::pow(1.5, t.y);
        const std::vector<std::int32_t> loads = {0, 1500, 1500, 1500};
        const TransformerLoading loading = transformerLoadingOf(loads, axis(start, 5, 4), t);
        double hottest = idle;
        double aged = 5 * std::exp2((idle - 98) / 6);
        int at = 0;
        for (int n = 1; n <= 15; ++n) {
            const double hotSpot = after(t, idle, full, 0, winding, n).hotSpot();
            aged += std::exp2((hotSpot - 98) / 6);
            if (hotSpot > hottest) {
                hottest = hotSpot;
                at = 5 + n;
            }
        }
        EXPECT_NEAR(loading.hotSpotMax.value, hottest, 1e-9);
        EXPECT_EQ(loading.hotSpotMax.at, start + at);
        EXPECT_NEAR(loading.topOilMax.value, after(t, idle, full, 0, winding, 15).oil, 1e-9);
        EXPECT_EQ(loading.topOilMax.at, start + 20);
        EXPECT_NEAR(loading.ageing, aged / 20, 1e-9 * aged);
        EXPECT_DOUBLE_EQ(loading.kMax, 1.5);
    }
}

TEST(StudyTransformerLoading, ValuesWithinAMillionthOfAKelvinAreATie) {
    // The oil creeps up to its final value for ever: after n minutes 75 − (55 − 55·(1/6)^0.8)·(1 − 1/180)^n.
    // It is within 10⁻⁶ K of the last value long before the end.
    std::vector<std::int32_t> loads(2000, 1000);
    loads[0] = 0;
    const TransformerLoading loading =
        transformerLoadingOf(loads, axis(start, 15, loads.size()), rated100(Cooling::distribution));
    const double missing = 55 - 55 * std::pow(1.0 / 6, 0.8);
    const double minutes = std::ceil(std::log(1e-6 / missing) / std::log(1 - 1.0 / 180));
    EXPECT_NEAR(static_cast<double>(loading.topOilMax.at.minutes - start.minutes), 15 + minutes, 1);
}

TEST(StudyTransformerLoading, ANegativeReadingLoadsAsItsAmount) {
    EXPECT_DOUBLE_EQ(constantLoad(rated100(Cooling::onan), -1000).hotSpotMax.value,
                     constantLoad(rated100(Cooling::onan), 1000).hotSpotMax.value);
}

} // namespace
} // namespace tally::study
