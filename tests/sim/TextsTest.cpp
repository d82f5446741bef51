// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Texts.h"

#include <gtest/gtest.h>
#include <numeric>

namespace tally {
namespace {

using namespace sim;

Header example() {
    Header header;
    header.code = "KWT";
    header.mode = 'c';
    header.serial = "0042";
    header.time = "03-15-24 12:00";
    header.battery = 0x0A5;
    return header;
}

std::vector<int> counting(int count) {
    std::vector<int> values(static_cast<std::size_t>(count));
    std::iota(values.begin(), values.end(), 1);
    return values;
}

MemoryText made(Layout layout, const std::vector<int>& values, bool low, const Faults& faults = {}) {
    std::mt19937 random(1);
    return memoryText(example(), layout, values, low, faults, random);
}

std::string text(const std::vector<int>& values, const Faults& faults = {}) {
    return made(Layout::brief, values, false, faults).text;
}

const std::string head = "KWTc   0042" + std::string(19, ' ') + "03-15-24 12:00\r\nT:";
const std::string lineOne = "   1   2   3   4   5   6   7   8   9  10";

TEST(Texts, PlacesTheFieldsOfTheCurrentLayout) {
    const std::string text = headerText(example(), Layout::current);
    EXPECT_EQ(text.size(), 56U);
    EXPECT_EQ(text.substr(0, 3), "KWT");
    EXPECT_EQ(text[3], 'c');
    EXPECT_EQ(text.substr(7, 4), "0042");
    EXPECT_EQ(text.substr(30, 14), "03-15-24 12:00");
    EXPECT_EQ(text.substr(44, 8), "   Vbatt");
    EXPECT_EQ(text.substr(53, 3), "0A5");
}

TEST(Texts, PlacesTheTimeOfTheOlderLayoutAtColumn47) {
    const std::string text = headerText(example(), Layout::older);
    EXPECT_EQ(text.size(), 60U);
    EXPECT_EQ(text.substr(46, 14), "03-15-24 12:00");
    EXPECT_EQ(text.substr(30, 16), std::string(16, ' '));
}

TEST(Texts, BriefLayoutEndsAtColumn44SoThatTheTStandsAtOffset46) {
    EXPECT_EQ(headerText(example(), Layout::brief).size(), 44U);
    EXPECT_EQ(text({1})[46], 'T');
}

TEST(Texts, TenReadingsALineNewestFirstAndCtrlZ) {
    EXPECT_EQ(text(counting(12)), head + lineOne + "\n\r  11  12\x1a");
}

TEST(Texts, AFullLastLineIsNotEnded) {
    EXPECT_EQ(text(counting(10)), head + lineOne + "\x1a");
}

TEST(Texts, AnEmptyMemoryIsHeaderAndEnd) {
    EXPECT_EQ(text({}), head + "\x1a");
}

TEST(Texts, LowReadingsCarryOneDecimalInFiveColumns) {
    EXPECT_EQ(made(Layout::brief, {5, 1234}, true).text, head + "  0.5123.4\x1a");
}

TEST(Texts, CurrentLayoutEndsItsHeaderWithOneCarriageReturn) {
    EXPECT_EQ(made(Layout::current, {7}, false).text.substr(53), "0A5\rT:   7\x1a");
}

TEST(Texts, NoiseComesBeforeTheHeaderAndIsOfAnyValue) {
    Faults faults;
    faults.noise = 10000;
    const std::string all = text({1}, faults);
    EXPECT_EQ(all.substr(10000), head + "   1\x1a");
    for (int value = 0; value < 256; ++value)
        EXPECT_LT(all.find(static_cast<char>(value)), 10000U) << value;
    faults.noise = 3;
    EXPECT_EQ(text({1}, faults).size(), head.size() + 3 + 5);
}

TEST(Texts, AnotherSeedDrawsOtherNoise) {
    std::mt19937 one(1);
    std::mt19937 same(1);
    std::mt19937 two(2);
    const std::string noise = rubbish(40, one);
    EXPECT_EQ(rubbish(40, same), noise);
    EXPECT_NE(rubbish(40, two), noise);
    EXPECT_NE(rubbish(40, one), noise); // nor does it repeat itself
}

TEST(Texts, TheTailOfAnOldTransmissionComesFirst) {
    Faults faults;
    faults.tail = 7;
    EXPECT_EQ(text({11, 12}, faults), "11  12\x1a" + head + "  11  12\x1a");
    faults.tail = 500;
    EXPECT_EQ(text({11, 12}, faults), "  11  12\x1a" + head + "  11  12\x1a");
}

TEST(Texts, AHeaderOnly) {
    Faults faults;
    faults.headerOnly = true;
    EXPECT_EQ(made(Layout::current, {1}, false, faults).text, headerText(example(), Layout::current) + "\r");
}

TEST(Texts, HeaderCutKeepsTheFirstColumns) {
    Faults faults;
    faults.headerCut = 9;
    EXPECT_EQ(text({1}, faults), "KWTc   00\r\nT:   1\x1a");
}

TEST(Texts, MissingAndDoubleEnd) {
    Faults none;
    none.noCtrlZ = true;
    EXPECT_EQ(text({1}, none), head + "   1");
    Faults twice;
    twice.doubleCtrlZ = true;
    EXPECT_EQ(text(counting(11), twice), head + lineOne + "\x1a\n\r  11\x1a");
    Faults two;
    two.twoCtrlZ = true;
    EXPECT_EQ(text({1}, two), head + "   1\x1a\x1a");
    Faults early;
    early.earlyCtrlZ = 2;
    EXPECT_EQ(text({1}, early), "KW\x1a" + head.substr(2) + "   1\x1a");
    early.earlyCtrlZ = 1000;
    EXPECT_EQ(text({1}, early), head + "   1\x1a\x1a");
}

TEST(Texts, ReadingsOf999AndOver) {
    Faults faults;
    faults.over = 2;
    faults.nines = 1;
    EXPECT_EQ(text(counting(3), faults), head + " 999 1234   3\x1a");
}

TEST(Texts, LinesWithTooFewTooManyAndADamagedOne) {
    Faults faults;
    faults.shortLine = 1;
    faults.longLine = 2;
    faults.damagedLine = 3;
    EXPECT_EQ(text(counting(21), faults),
              head + lineOne.substr(0, 36) + "\n\r  11  12  13  14  15  16  17  18  19  20  11\n\r  21A\x1a");
}

TEST(Texts, EndlessGoesOnWithItsReadings) {
    Faults faults;
    faults.endless = true;
    const MemoryText endless = made(Layout::brief, {1}, false, faults);
    EXPECT_EQ(endless.text, head + "   1\n\r");
    EXPECT_EQ(endless.repeatFrom, head.size());
    faults.earlyCtrlZ = 0;
    EXPECT_EQ(made(Layout::brief, {1}, false, faults).repeatFrom, head.size() + 1);
}

TEST(Texts, BinaryHoldsEveryByteValue) {
    Faults faults;
    faults.binary = 256;
    std::string all = text({1}, faults);
    ASSERT_EQ(all.size(), 256U);
    for (int value = 0; value < 256; ++value)
        EXPECT_NE(all.find(static_cast<char>(value)), std::string::npos) << value;
}

} // namespace
} // namespace tally
