// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DataRows.h"

#include "core/DataNumber.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>

namespace tally {
namespace {

using Values = std::array<std::int16_t, DataRow::fields>;

bool read(bool low, const std::string& row, Values& newestFirst) {
    Values downwards{};
    const std::string text = row + std::string(DataRow::reach, 'x');
    const bool good = low ? DataRow::readLow(text.data(), &downwards.back())
                          : DataRow::readHigh(text.data(), &downwards.back());
    std::reverse_copy(downwards.begin(), downwards.end(), newestFirst.begin());
    return good;
}

class DataRows : public ::testing::Test {
protected:
    void SetUp() override {
        if (!DataRow::available)
            GTEST_SKIP() << "this machine reads item by item";
    }
};

TEST_F(DataRows, HighFieldsAreWholeUnits) {
    Values values;
    ASSERT_TRUE(read(false, "   0   7  42 123 99912341007   1  103276", values));
    EXPECT_EQ(values, (Values{0, 70, 420, 1230, 9990, 12340, 10070, 10, 100, 32760}));
}

TEST_F(DataRows, ZerosBeforeOtherDigitsAreNoHarmWhereNothingTouches) {
    Values values;
    ASSERT_TRUE(read(false, " 000 007 042  01 123   0   1 999 010  09", values));
    EXPECT_EQ(values, (Values{0, 70, 420, 10, 1230, 0, 10, 9990, 100, 90}));
    EXPECT_FALSE(read(false, " 000 007 042  01 123   0   1 99910101009", values));
}

TEST_F(DataRows, LowFieldsHaveOneDecimal) {
    Values values;
    ASSERT_TRUE(read(true, "  0.0  0.7  4.2 12.3 99.9100.1000.1  1.0 10.5999.9", values));
    EXPECT_EQ(values, (Values{0, 7, 42, 123, 999, 1001, 1, 10, 105, 9999}));
}

TEST_F(DataRows, ValuesBeyondTenthsAreNoRow) {
    Values values;
    EXPECT_FALSE(read(false, "   1   1   1   1   1   1   1   1   13277", values));
    EXPECT_FALSE(read(false, "9999   1   1   1   1   1   1   1   1   1", values));
}

// Zeros before other digits in a row with a field that has no blank are left to the reader of items: no save
// writes them where fields touch.
bool hasZerosThatMayTouch(const std::string& highRow) {
    bool padded = false;
    bool filled = false;
    for (std::size_t at = 0; at < highRow.size(); at += 4) {
        const std::string field = highRow.substr(at, 4);
        const std::size_t zero = field.find_first_not_of(' ');
        padded = padded || (zero < 3 && field[zero] == '0');
        filled = filled || field[0] != ' ';
    }
    return padded && filled;
}

// Every byte value in every place of a field: a row is taken only when all its fields are blanks followed by
// a number to the end, and then it says what that number says.
void everyByteInEveryPlace(bool low, const std::string& row, std::size_t width) {
    for (std::size_t place = 0; place < row.size(); ++place)
        for (int byte = 0; byte < 256; ++byte) {
            std::string changed = row;
            changed[place] = static_cast<char>(byte);
            const std::size_t field = place / width;
            std::string item = changed.substr(field * width, width);
            item.erase(0, std::min(item.find_first_not_of(' '), item.size()));
            const bool pattern = item.find_first_not_of(low ? "0123456789." : "0123456789") == item.npos &&
                                 !item.empty() &&
                                 (!low || (item.size() >= 3 && item.find('.') == item.size() - 2 &&
                                           item.rfind('.') == item.size() - 2));
            const DataNumber number = readDataNumber(item);
            const bool padded = !low && hasZerosThatMayTouch(changed);
            Values values;
            const bool good = read(low, changed, values);
            ASSERT_EQ(good, pattern && number.fits && !padded) << "byte " << byte << " at " << place;
            if (good) {
                ASSERT_EQ(values[field], number.tenths) << changed;
            }
        }
}

TEST_F(DataRows, AnyOtherByteInAHighRowIsSeen) {
    everyByteInEveryPlace(false, "   0   7  42 123 99912341007   1  103276", 4);
}

TEST_F(DataRows, AnyOtherByteInALowRowIsSeen) {
    everyByteInEveryPlace(true, "  0.0  0.7  4.2 12.3 99.9100.1000.1  1.0 10.5999.9", 5);
}

} // namespace
} // namespace tally
