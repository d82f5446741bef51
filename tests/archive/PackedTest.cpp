// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Packed.h"

#include <gtest/gtest.h>

#include <limits>

namespace tally::archive {
namespace {

constexpr auto lowest = std::numeric_limits<std::int16_t>::min();
constexpr auto highest = std::numeric_limits<std::int16_t>::max();

TEST(Packed, PutsSmallNumbersOfEitherSignIntoOneByte) {
    std::string bytes;
    putNumber(bytes, 0);
    putNumber(bytes, -1);
    putNumber(bytes, 1);
    putNumber(bytes, 63);
    EXPECT_EQ(bytes, std::string("\x00\x01\x02\x7E", 4));
    putNumber(bytes, 64); // 128: the lower seven bits with the sign that more follow, then 1
    EXPECT_EQ(bytes.substr(4), "\x80\x01");
}

TEST(Packed, GivesBackEveryNumber) {
    const std::vector<std::int64_t> numbers = {0,
                                               -1,
                                               1,
                                               127,
                                               -128,
                                               1 << 20,
                                               std::numeric_limits<std::int64_t>::max(),
                                               std::numeric_limits<std::int64_t>::min()};
    std::string bytes;
    for (const auto number : numbers)
        putNumber(bytes, number);
    NumberReader reader(bytes);
    for (const auto number : numbers)
        EXPECT_EQ(reader.next(), number);
    EXPECT_TRUE(reader.atEnd());
    EXPECT_FALSE(reader.damaged());
}

TEST(Packed, SaysThatANumberIsCut) {
    NumberReader reader("\x80");
    EXPECT_EQ(reader.next(), 0);
    EXPECT_TRUE(reader.damaged());
}

TEST(Packed, GivesBackEveryReading) {
    const std::vector<std::int16_t> readings = {0, highest, lowest, highest, 5, 5, 5, -7, lowest};
    for (const std::size_t stride : {std::size_t{1}, std::size_t{3}})
        EXPECT_EQ(unpackReadings(packReadings(readings, stride), stride), readings);
    EXPECT_EQ(unpackReadings("", 1), std::vector<std::int16_t>());
}

TEST(Packed, KeepsTheDifferenceToTheReadingOfTheSameKind) {
    // Triples: 10 20 30 then 11 19 30 differ by 1, -1, 0.
    EXPECT_EQ(packReadings({10, 20, 30, 11, 19, 30}, 3), std::string("\x14\x28\x3C\x02\x01\x00", 6));
}

TEST(Packed, RefusesBytesThatAreNoReadings) {
    EXPECT_EQ(unpackReadings("\x80", 1), std::nullopt);
    std::string tooHigh;
    putNumber(tooHigh, highest + 1);
    EXPECT_EQ(unpackReadings(tooHigh, 1), std::nullopt);
}

} // namespace
} // namespace tally::archive
