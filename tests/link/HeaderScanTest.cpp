// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/HeaderScan.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

HeaderScan fed(const std::string& text) {
    HeaderScan scan;
    for (const char c : text)
        scan.feed(c);
    return scan;
}

TEST(HeaderScanTest, TheRecordingStartsAtTheFirstFamilyInitial) {
    for (const char initial : {'P', 'H', 'K'}) {
        const HeaderScan scan = fed(std::string("x?\r ") + initial + "QX");
        EXPECT_TRUE(scan.started());
        EXPECT_EQ(scan.startIndex(), 4U);
        EXPECT_FALSE(scan.lowBattery());
        EXPECT_EQ(scan.line(), std::string(1, initial) + "QX");
    }
    EXPECT_FALSE(fed("QRSTabcXYZ 0123").started());
}

TEST(HeaderScanTest, ALowerCaseInitialIsStoredInUpperCaseAndMeansALowBattery) {
    HeaderScan scan;
    EXPECT_EQ(scan.feed('k'), 'K');
    EXPECT_TRUE(scan.lowBattery());
    EXPECT_EQ(scan.feed('w'), 'w');
    EXPECT_EQ(scan.line(), "Kw");
}

TEST(HeaderScanTest, OnlyTheFirstInitialIsChanged) {
    HeaderScan scan;
    EXPECT_EQ(scan.feed('K'), 'K');
    EXPECT_EQ(scan.feed('p'), 'p');
    EXPECT_FALSE(scan.lowBattery());
}

TEST(HeaderScanTest, TheTokenIsKwtInAnyCase) {
    EXPECT_EQ(fed("KWT").token(), HeaderScan::Token::valid);
    EXPECT_EQ(fed("kwt").token(), HeaderScan::Token::valid);
    EXPECT_EQ(fed("noise kWt").token(), HeaderScan::Token::valid);
    EXPECT_EQ(fed("KW").token(), HeaderScan::Token::pending);
    EXPECT_EQ(fed("noise").token(), HeaderScan::Token::pending);
    EXPECT_EQ(fed("PQX").token(), HeaderScan::Token::wrong);
    EXPECT_EQ(fed("KWX").token(), HeaderScan::Token::wrong);
    EXPECT_EQ(fed("HWT").token(), HeaderScan::Token::wrong);
    EXPECT_EQ(fed("KW\r").token(), HeaderScan::Token::wrong);
}

TEST(HeaderScanTest, TheLineEndsAtTheCarriageReturnAfterTheStart) {
    const HeaderScan scan = fed("\r\rPQXa\rT: 1 2");
    EXPECT_TRUE(scan.lineComplete());
    EXPECT_EQ(scan.line(), "PQXa");
    EXPECT_EQ(scan.count(), 13U);
    EXPECT_FALSE(fed("\r\rPQXa").lineComplete());
}

TEST(HeaderScanTest, RestartForgetsEverything) {
    HeaderScan scan = fed("xkwt\r");
    scan.restart();
    EXPECT_FALSE(scan.started());
    EXPECT_FALSE(scan.lowBattery());
    EXPECT_FALSE(scan.lineComplete());
    EXPECT_EQ(scan.count(), 0U);
    EXPECT_EQ(scan.line(), "");
}

TEST(HeaderScanTest, ALineThatNeverEndsStopsGrowing) {
    HeaderScan scan;
    scan.feed('P');
    for (std::size_t i = 0; i < HeaderScan::longest + 50; ++i)
        scan.feed('x');
    EXPECT_EQ(scan.line().size(), HeaderScan::longest);
}

} // namespace
} // namespace tally
