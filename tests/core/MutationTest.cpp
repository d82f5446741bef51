// SPDX-License-Identifier: GPL-3.0-or-later
#include "PlainReader.h"
#include "core/DataText.h"
#include "support/DataTexts.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

// What a byte is changed into: each of its bits turned over, and every character that means something.
std::string changesOf(char byte) {
    std::string all = "059 .,\r\n\x1a\t\"-+:THPKxe\xFF";
    all += '\0';
    for (int bit = 0; bit < 8; ++bit)
        all += static_cast<char>(byte ^ (1 << bit));
    return all;
}

// Every byte of a file changed in turn: the reader refuses, or gives exactly what the text says.
void changeEveryByte(const std::string& file) {
    ASSERT_TRUE(testing::plainRead(file));
    int refused = 0;
    for (std::size_t at = 0; at < file.size(); ++at)
        for (const char byte : changesOf(file[at])) {
            std::string changed = file;
            changed[at] = byte;
            const auto expected = testing::plainRead(changed);
            const auto recording = readDataText(changed);
            ASSERT_EQ(recording.has_value(), expected.has_value()) << "byte " << byte << " at " << at;
            if (!recording) {
                ++refused;
                continue;
            }
            ASSERT_EQ(std::vector<int>(recording->readings.begin(), recording->readings.end()),
                      expected->tenths)
                << "byte " << byte << " at " << at;
            ASSERT_EQ(recording->facts.low, expected->low) << "byte " << byte << " at " << at;
            ASSERT_EQ(recording->facts.unreadable, expected->unreadable) << "byte " << byte << " at " << at;
        }
    EXPECT_GT(refused, 0);
}

std::vector<std::string> values(std::size_t count, bool low) {
    std::vector<std::string> all;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t value = (i * 389 + 995) % 1200;
        all.push_back(std::to_string(value) + (low ? "." + std::to_string(i % 10) : ""));
    }
    return all;
}

TEST(EveryByteChanged, HighFile) {
    changeEveryByte(testing::dataFile({}, testing::fieldLines(values(36, false), 4)));
}

TEST(EveryByteChanged, HighFileWithNegativeReadings) {
    const std::vector<std::string> fields = {"-100",  "1234", "-999", "5",     "-1000", "7",
                                             "-3276", "-1",   "0",    "3276",  "-50",   "-500",
                                             "2000",  "-10",  "12",   "-2000", "1000"};
    changeEveryByte(testing::dataFile({}, testing::fieldLines(fields, 4)));
}

TEST(EveryByteChanged, LowFile) {
    std::vector<std::string> low;
    for (int i = 0; i < 36; ++i)
        low.push_back(std::to_string(i * 37 % 200) + "." + std::to_string(i % 10));
    changeEveryByte(testing::dataFile({'b'}, testing::fieldLines(low, 5)));
}

TEST(EveryByteChanged, MinMaxAvgFileOfTheTForm) {
    changeEveryByte(testing::dataFile({'G'}, "T: " + testing::fieldLines(values(24, false), 4)));
}

TEST(EveryByteChanged, MinMaxAvgFile) {
    changeEveryByte(testing::dataFile({'i'}, testing::fieldLines(values(25, false), 4)));
}

TEST(EveryByteChanged, ReceivedTextWithCommasAndNoQuotes) {
    changeEveryByte("\r\n" + testing::headerLine({'F'}) + "\r\n 12, 13,,999,1234 7\r\n 8\t9\r\n\x1a");
}

} // namespace
} // namespace tally
