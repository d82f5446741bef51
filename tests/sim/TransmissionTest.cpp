// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Transmission.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using namespace sim;

TEST(Transmission, TakesTenBitsACharacter) {
    Transmission sending;
    sending.start(1000, std::string(1000, 'x'), 1000); // 10 ms a character
    EXPECT_EQ(sending.take(1009), "");
    EXPECT_EQ(sending.take(1010), "x");
    EXPECT_EQ(sending.nextAt(), 1020);
    EXPECT_EQ(sending.take(1100).size(), 9U);
}

TEST(Transmission, NinetySixHundredBaudGives960CharactersASecond) {
    Transmission sending;
    sending.start(0, std::string(5000, 'x'), 9600);
    EXPECT_EQ(sending.take(1000).size(), 960U);
    EXPECT_EQ(sending.take(2000).size(), 960U);
}

TEST(Transmission, WithoutAPaceAllIsThereAtOnce) {
    Transmission sending;
    sending.start(5, "abc", 0);
    EXPECT_EQ(sending.take(5), "abc");
    EXPECT_EQ(sending.nextAt(), never);
}

TEST(Transmission, AStallDelaysItsCharacterAndAllAfterIt) {
    Transmission sending;
    sending.start(0, "abcd", 1000, {{2, 500}});
    EXPECT_EQ(sending.take(529), "ab");
    EXPECT_EQ(sending.take(530), "c");
    EXPECT_EQ(sending.take(540), "d");
}

TEST(Transmission, TwoStallsAtOnePlaceAddUp) {
    Transmission sending;
    sending.start(0, "a", 0, {{0, 100}, {0, 50}});
    EXPECT_EQ(sending.nextAt(), 150);
}

TEST(Transmission, ACutEndsIt) {
    Transmission sending;
    sending.start(0, "abcd", 0);
    sending.cutAt(3);
    EXPECT_EQ(sending.take(1), "abc");
    EXPECT_EQ(sending.nextAt(), never);
    EXPECT_EQ(sending.count(), 3);
}

TEST(Transmission, AnEndlessTextGoesOnFromItsMark) {
    Transmission sending;
    sending.start(0, "HEAD12", 1000, {}, 4);
    EXPECT_EQ(sending.take(110), "HEAD1212121");
}

TEST(Transmission, NeverGivesMoreAtOnceThanACallerCanHold) {
    Transmission sending;
    sending.start(0, "x", 0, {}, 0);
    EXPECT_EQ(sending.take(0).size(), 65536U);
}

} // namespace
} // namespace tally
