// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/FieldWriter.h"

#include "core/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace tally {
namespace {

constexpr const char* patterns[] = {"  000.0",      "     000.0  ", "000.0",  "     000.0 ", "    000 ",
                                    "       000  ", "   000",       " 0000 ", "      000  ", " 0000"};

template <typename Value>
std::string written(const char* pattern, Value value) {
    char buffer[FieldWriter::maximumChars];
    return std::string(buffer, FieldWriter(pattern).write(buffer, value));
}

// "" when the field is what Format gives, else both texts.
std::string difference(const FieldWriter& field, const char* pattern, float value) {
    char buffer[FieldWriter::maximumChars];
    const std::string text(buffer, field.write(buffer, value));
    const std::string expected = Format(value, pattern) + "  ";
    return text == expected ? "" : "'" + text + "' for '" + expected + "'";
}

TEST(FieldWriter, FieldsByHand) {
    EXPECT_EQ(written("  000.0", std::int16_t{1234}), "  123.4  ");
    EXPECT_EQ(written("  000.0", std::int16_t{5}), "  000.5  ");
    EXPECT_EQ(written("  000.0", std::int16_t{-12}), "  -001.2  ");
    EXPECT_EQ(written("  000.0", std::int16_t{32767}), "  3276.7  ");
    EXPECT_EQ(written("   000", std::int16_t{1234}), "   123  ");
    EXPECT_EQ(written("   000", std::int16_t{1235}), "   124  "); // halves away from zero
    EXPECT_EQ(written("   000", std::int16_t{-4}), "   000  ");
    EXPECT_EQ(written(" 0000 ", 12.0F), " 0012   ");
    EXPECT_EQ(written("  000.0", 12345.6F), "  12345.6  ");
    EXPECT_EQ(written(" 0000 ", 12345.6F), " 12346   ");
    EXPECT_EQ(written("  000.0", 1234.45F), "  1234.5  "); // the decimal text decides, not the binary value
    EXPECT_EQ(written("  000.0", -0.04F), "  000.0  ");
    EXPECT_EQ(written("  000.0", -0.0F), "  000.0  ");
    EXPECT_EQ(written("  000.0", 9999.96F), "  10000.0  ");
    EXPECT_EQ(written(" 0000", 9998.5F), " 9999  ");
}

TEST(FieldWriter, EveryReadingAsFormatGivesIt) {
    for (const char* pattern : patterns) {
        const FieldWriter field(pattern);
        char buffer[FieldWriter::maximumChars];
        for (int tenths = std::numeric_limits<std::int16_t>::min();
             tenths <= std::numeric_limits<std::int16_t>::max(); ++tenths) {
            const std::string text(buffer, field.write(buffer, static_cast<std::int16_t>(tenths)));
            ASSERT_EQ(text, Format(tenths / 10.0, pattern) + "  ") << tenths << " in '" << pattern << "'";
        }
    }
}

TEST(FieldWriter, SinglePrecisionAsFormatGivesIt) {
    std::mt19937 random(7);
    std::uniform_real_distribution<float> exponent(-3.0F, 7.0F);
    for (const char* pattern : patterns) {
        const FieldWriter field(pattern);
        for (int i = 0; i < 20000; ++i) {
            const float value = std::pow(10.0F, exponent(random)) * (i % 2 == 0 ? 1.0F : -1.0F);
            ASSERT_EQ(difference(field, pattern, value), "");
        }
    }
}

TEST(FieldWriter, HalvesAndTheirNeighboursAsFormatGivesThem) {
    for (const char* pattern : patterns) {
        const FieldWriter field(pattern);
        for (int i = 0; i < 20000; ++i) {
            const float half = static_cast<float>(i * 97) / 100.0F + 0.05F;
            for (const float value : {half, std::nextafterf(half, 0.0F), std::nextafterf(half, 1e9F),
                                      static_cast<float>(i) + 0.5F})
                ASSERT_EQ(difference(field, pattern, value), "");
        }
    }
}

TEST(FieldWriter, AnyBitsOfAFloatAsFormatGivesThem) {
    std::mt19937 random(11);
    const FieldWriter field("  000.0");
    for (int i = 0; i < 50000; ++i) {
        const auto bits = static_cast<std::uint32_t>(random());
        float value = 0;
        std::memcpy(&value, &bits, sizeof value);
        if (std::isfinite(value)) {
            ASSERT_EQ(difference(field, "  000.0", value), "");
        }
    }
}

} // namespace
} // namespace tally
