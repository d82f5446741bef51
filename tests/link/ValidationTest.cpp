// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/Validation.h"

#include "LinkBench.h"
#include "core/Fault.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace tally {
namespace {

using testing::lines;

ValidationCounts counted(std::string text) {
    return validate(text, true);
}

// The same rules, one character after the other in the plainest way.
ValidationCounts plainly(std::string& text, bool change) {
    int badLines = 0, over = 0, nines = 0, ctrlZ = 0, bad = 0, inLine = 0;
    std::optional<unsigned char> first;
    std::string reading;
    bool open = false;
    const auto close = [&](std::size_t end) {
        if (!open)
            return;
        open = false;
        while (reading.back() == '\x1a') {
            reading.pop_back();
            --end;
        }
        if (reading == "999") {
            ++nines;
            if (change)
                text.replace(end - 3, 3, "000");
        }
        long value = 0;
        for (const char c : reading) {
            if (c < '0' || c > '9')
                break;
            value = std::min(100000L, value * 10 + (c - '0'));
        }
        over += value > 999 ? 1 : 0;
    };
    std::size_t at = text.find("T:");
    at = at == std::string::npos ? text.size() : at + 2;
    for (; at < text.size(); ++at) {
        const char c = text[at];
        const bool isDigit = c >= '0' && c <= '9';
        if (isDigit && !open) {
            open = true;
            ++inLine;
            reading.clear();
        }
        if (c == '\n' || c == '\r' || c == ' ')
            close(at);
        if (c == '\n') {
            badLines += inLine == 10 ? 0 : 1;
            inLine = 0;
        }
        if (c == '\x1a')
            ++ctrlZ;
        if (!isDigit && c != '\n' && c != '\r' && c != ' ' && (c != '\x1a' || ctrlZ > 1)) {
            ++bad;
            if (!first)
                first = static_cast<unsigned char>(c);
        }
        if (open)
            reading += c;
    }
    close(text.size());
    const auto small = [](int n) { return static_cast<std::int16_t>(n); };
    return {small(badLines), small(over), small(nines), small(ctrlZ), small(bad), first};
}

TEST(ValidationTest, ACleanTextHasNothingToReport) {
    for (const int n : {1, 2, 3, 50, 1000}) {
        const ValidationCounts counts = counted(testing::memory(n));
        EXPECT_EQ(counts, (ValidationCounts{.ctrlZ = 1})) << n;
        EXPECT_TRUE(counts.clean());
        EXPECT_EQ(counts.result(), "");
    }
}

TEST(ValidationTest, AShortLastLineIsBadOnlyWhenLfEndsIt) {
    EXPECT_EQ(counted("T:" + lines(2) + " 1 2 3\n\x1a").badLines, 1);
    EXPECT_EQ(counted("T:" + lines(2) + " 1 2 3\x1a").badLines, 0);
}

TEST(ValidationTest, TheRestOfTheLineOfTheMarkIsTheFirstLine) {
    EXPECT_EQ(counted("T: 1 2 3 4 5 6 7 8 9 10\n\x1a").badLines, 0);
    EXPECT_EQ(counted("T:\n 1 2 3 4 5 6 7 8 9 10\n\x1a").badLines, 1);
    EXPECT_EQ(counted("T: 1 2 3 4 5 6 7 8 9\n\x1a").badLines, 1);
    EXPECT_EQ(counted("T: 1 2 3 4 5 6 7 8 9 10 11\n\x1a").badLines, 1);
}

TEST(ValidationTest, ATNotFollowedByAColonStartsNothing) {
    EXPECT_EQ(counted("T 1 2\nTT\n xyz"), ValidationCounts());
    EXPECT_EQ(counted("TT:1 x\x1a"), (ValidationCounts{.ctrlZ = 1, .badChars = 1, .firstBadChar = 'x'}));
}

TEST(ValidationTest, TheHeaderIsNotLookedAt) {
    EXPECT_TRUE(counted("KWT?!\x1a\x1a 1234 999\n\nT:\x1a").clean());
}

TEST(ValidationTest, ATextWithoutTheMarkHasNoTerminator) {
    const ValidationCounts counts = counted(testing::header() + "\r" + lines(3) + "\x1a");
    EXPECT_EQ(counts, ValidationCounts());
    EXPECT_EQ(counts.result(), "0 0 0 0 0");
}

TEST(ValidationTest, ReadingsAround999) {
    EXPECT_EQ(counted("T: 0999 \x1a"), (ValidationCounts{.ctrlZ = 1}));
    EXPECT_EQ(counted("T: 1000 \x1a"), (ValidationCounts{.over999 = 1, .ctrlZ = 1}));
    EXPECT_EQ(counted("T: 999 \x1a"), (ValidationCounts{.count999 = 1, .ctrlZ = 1}));
    EXPECT_EQ(counted("T: 9999 \x1a"), (ValidationCounts{.over999 = 1, .ctrlZ = 1}));
    EXPECT_EQ(counted("T: 0000000000000000000000999 \x1a"), (ValidationCounts{.ctrlZ = 1}));
    EXPECT_EQ(counted("T: 99999999999999999999999999 \x1a"), (ValidationCounts{.over999 = 1, .ctrlZ = 1}));
}

TEST(ValidationTest, ATerminatorWithinAReadingDoesNotEndIt) {
    EXPECT_EQ(counted("T: 12\x1a"
                      "3 2 3 4 5 6 7 8 9 10\n"),
              (ValidationCounts{.ctrlZ = 1}));
    EXPECT_EQ(counted("T: 99\x1a"
                      "9 \n")
                  .count999,
              0);
}

TEST(ValidationTest, WhatStandsBetweenHeaderAndMarkCountsAsBadLines) {
    const std::string head = testing::header() + "\r";
    const std::string data = "T:" + lines(3) + "\x1a";
    EXPECT_EQ(counted(head + "\n" + data).badLines, 0);
    EXPECT_EQ(counted(head + head + data).badLines, 1);
    EXPECT_EQ(counted(head + "\n" + head + "\n" + head + "\n" + data).badLines, 2);
    EXPECT_EQ(counted(head + "??" + data).badLines, 1);
    EXPECT_EQ(counted(head + " " + data).badLines, 1);
    EXPECT_EQ(counted("x\r\n" + head + data).badLines, 0); // noise before the header is passed over
}

TEST(ValidationTest, AReadingEndsWithTheText) {
    EXPECT_EQ(counted("T: 999\x1a"), (ValidationCounts{.count999 = 1, .ctrlZ = 1}));
    EXPECT_EQ(counted("T: 999"), (ValidationCounts{.count999 = 1}));
}

TEST(ValidationTest, NineHundredNinetyNineIsRewrittenInPlaceWhenAsked) {
    std::string text = "T: 999 0999 1999 999\r 999\n9999\x1a";
    const std::string before = text;
    EXPECT_EQ(validate(text, false).count999, 3);
    EXPECT_EQ(text, before);
    validate(text, true);
    EXPECT_EQ(text, "T: 000 0999 1999 000\r 000\n9999\x1a");
}

TEST(ValidationTest, TwoTerminatorsGiveOneBadCharacterOfCode26) {
    EXPECT_EQ(counted("T: 1\x1a\x1a"), (ValidationCounts{.ctrlZ = 2, .badChars = 1, .firstBadChar = 26}));
}

TEST(ValidationTest, TheFirstBadCharacterIsRemembered) {
    EXPECT_EQ(counted("T: 1. \xff x\x1a"),
              (ValidationCounts{.ctrlZ = 1, .badChars = 3, .firstBadChar = '.'}));
    EXPECT_EQ(counted(std::string("T:\xff\0", 4)), (ValidationCounts{.badChars = 2, .firstBadChar = 255}));
}

TEST(ValidationTest, ABadCharacterDoesNotEndAReading) {
    EXPECT_EQ(counted("T: 1x2 3 4 5 6 7 8 9 10 11\n\x1a"),
              (ValidationCounts{.ctrlZ = 1, .badChars = 1, .firstBadChar = 'x'}));
    EXPECT_EQ(counted("T: 9x99 \x1a").count999, 0);
}

TEST(ValidationTest, TheResultJoinsTheCounters) {
    EXPECT_EQ(counted("T: 1 999 1000 x\n\x1a\x1a").result(), "1 1 1 2 2");
    EXPECT_EQ(counted("T: 999 \x1a").result(), "");
}

TEST(ValidationTest, ACounterThatLeaves16BitsIsAnOverflowAndTheTextStays) {
    std::string text = "T:" + std::string(32767, 'x') + " 999 ";
    EXPECT_EQ(counted(text).badChars, 32767);
    text += "x";
    const std::string before = text;
    try {
        validate(text, true);
        FAIL() << "no fault";
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.number(), 6);
    }
    EXPECT_EQ(text, before);
}

TEST(ValidationTest, BlocksAndSingleCharactersCountAlike) {
    std::uint32_t seed = 1;
    const auto random = [&seed](std::uint32_t below) {
        seed = seed * 1664525U + 1013904223U;
        return (seed >> 8) % below;
    };
    const std::vector<std::string> pieces = {
        " ",     " 1", " 12",  " 123", "9",     "99",    "999 ",
        " 999",  "0",  "\n",   "\n\r", "\r\n",  "1234",  "000",
        "     ", "A",  "\x1a", ".5",   " 7777", "5 5 5", " 100 200 300 400"};
    for (int round = 0; round < 3000; ++round) {
        // Some rounds hold clean pieces only, so that whole blocks are plain.
        const std::uint32_t kinds = round % 3 == 0 ? 4 : static_cast<std::uint32_t>(pieces.size());
        std::string text = "T:";
        const std::uint32_t length = random(120);
        for (std::uint32_t i = 0; i < length; ++i)
            text += random(9) == 0 ? "\n" : pieces[random(kinds)];
        std::string other = text;
        const bool change = random(2) == 0;
        EXPECT_EQ(validate(text, change), plainly(other, change)) << other;
        EXPECT_EQ(text, other);
    }
}

} // namespace
} // namespace tally
