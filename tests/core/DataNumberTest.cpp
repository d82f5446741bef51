// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DataNumber.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

struct Case {
    const char* item;
    int tenths;
    bool whole;
};

class DataNumbers : public ::testing::TestWithParam<Case> {};

TEST_P(DataNumbers, AreTenths) {
    const DataNumber number = readDataNumber(GetParam().item);
    EXPECT_TRUE(number.fits);
    EXPECT_EQ(number.tenths, GetParam().tenths);
    EXPECT_EQ(number.whole, GetParam().whole);
}

INSTANTIATE_TEST_SUITE_P(Numbers, DataNumbers,
                         ::testing::Values(Case{"0", 0, true}, Case{"12", 120, true}, Case{"12.5", 125, true},
                                           Case{"+7", 70, true}, Case{"-7.5", -75, true}, Case{".5", 5, true},
                                           Case{"5.", 50, true}, Case{"0007", 70, true},
                                           Case{"3276.7", 32767, true}, Case{"-3276.8", -32768, true}));
INSTANTIATE_TEST_SUITE_P(HalvesGoToEven, DataNumbers,
                         ::testing::Values(Case{"0.05", 0, true}, Case{"0.15", 2, true},
                                           Case{"0.25", 2, true}, Case{"0.051", 1, true},
                                           Case{"0.055", 1, true},
                                           Case{"0.0500000000000000000000000001", 1, true},
                                           Case{"0.0499999999999999999999999999", 0, true},
                                           Case{"-0.15", -2, true}, Case{"99.95", 1000, true}));
INSTANTIATE_TEST_SUITE_P(LeadingNumberOrZero, DataNumbers,
                         ::testing::Values(Case{"12x4", 120, false}, Case{"x", 0, false}, Case{"", 0, false},
                                           Case{"-", 0, false}, Case{".", 0, false}, Case{"1-2", 10, false},
                                           Case{"12E4", 120, false}, Case{"1.2.3", 12, false},
                                           Case{"--5", 0, false}));

TEST(DataNumber, WhatDoesNotFitTenthsIsSaid) {
    EXPECT_FALSE(readDataNumber("3276.8").fits);
    EXPECT_FALSE(readDataNumber("3276.75").fits) << "half to even is 3276.8";
    EXPECT_TRUE(readDataNumber("3276.74").fits);
    EXPECT_FALSE(readDataNumber("9999").fits);
    EXPECT_FALSE(readDataNumber("-3276.9").fits);
    EXPECT_FALSE(readDataNumber(std::string(1000000, '9')).fits);
    EXPECT_TRUE(readDataNumber(std::string(1000000, '0') + "12").fits);
}

} // namespace
} // namespace tally
