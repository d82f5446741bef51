// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/TextBlocks.h"

#include <gtest/gtest.h>

#include <string>

namespace tally {
namespace {

TEST(TextBlocksTest, EveryCharacterIsWhatItIs) {
    for (int c = 0; c < 256; ++c) {
        std::string text(TextBlock::looksAt, ' ');
        text[5] = static_cast<char>(c);
        text[63] = static_cast<char>(c);
        const std::uint64_t both = 1ULL << 5 | 1ULL << 63;
        const TextBlock block = classify(text.data());
        EXPECT_EQ(block.digits, c >= '0' && c <= '9' ? both : 0) << c;
        EXPECT_EQ(block.lineFeeds, c == '\n' ? both : 0) << c;
        EXPECT_EQ(block.plain, (c >= '0' && c <= '9') || c == '\n' || c == ' ' || c == '\r') << c;
    }
}

TEST(TextBlocksTest, ThreeNinesAreNotPlainWhereverTheyBegin) {
    for (std::size_t at = 0; at < TextBlock::size; ++at) {
        std::string text(TextBlock::looksAt, ' ');
        text.replace(at, 3, "999");
        EXPECT_FALSE(classify(text.data()).plain) << at;
        text[at + 1] = '8';
        EXPECT_TRUE(classify(text.data()).plain) << at;
    }
}

TEST(TextBlocksTest, ThePlainStepsGiveTheSame) {
    std::uint32_t seed = 7;
    const std::string characters = "0123456789999 \r\n  99x\x1a";
    for (int round = 0; round < 2000; ++round) {
        std::string text;
        while (text.size() < TextBlock::looksAt) {
            seed = seed * 1664525U + 1013904223U;
            // Most rounds hold no bad character, so that both answers occur.
            const std::size_t kinds = characters.size() - (round % 4 == 0 ? 0 : 2);
            text += characters[(seed >> 8) % kinds];
        }
        const TextBlock fast = classify(text.data());
        const TextBlock plain = classifyPlainly(text.data());
        EXPECT_EQ(fast.digits, plain.digits);
        EXPECT_EQ(fast.lineFeeds, plain.lineFeeds);
        EXPECT_EQ(fast.plain, plain.plain) << text;
    }
}

TEST(TextBlocksTest, BitsAreCountedUpToEachByte) {
    const std::uint64_t counts = bitsUpToByte(0x80000000000100ffULL);
    // Byte 0 holds 8 bits, byte 2 one, byte 7 one.
    EXPECT_EQ(counts & 0xff, 8U);
    EXPECT_EQ(counts >> 8 & 0xff, 8U);
    EXPECT_EQ(counts >> 16 & 0xff, 9U);
    EXPECT_EQ(counts >> 48 & 0xff, 9U);
    EXPECT_EQ(counts >> 56, 10U);
    EXPECT_EQ(bitsUpToByte(~0ULL) >> 56, 64U);
}

} // namespace
} // namespace tally
