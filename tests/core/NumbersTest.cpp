// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Numbers.h"

#include "core/Fault.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace tally {
namespace {

TEST(Numbers, WholeNumbersRoundHalvesToEven) {
    EXPECT_EQ(toInt16(0.5), 0);
    EXPECT_EQ(toInt16(1.5), 2);
    EXPECT_EQ(toInt16(2.5), 2);
    EXPECT_EQ(toInt16(-0.5), 0);
    EXPECT_EQ(toInt16(-1.5), -2);
    EXPECT_EQ(toInt16(2.4999), 2);
    EXPECT_EQ(toInt16(32767.4), 32767);
    EXPECT_EQ(toInt16(-32768.5), -32768);
}

TEST(Numbers, WholeNumbersOverflow) {
    EXPECT_THROW(toInt16(32767.5), Fault);
    EXPECT_THROW(toInt16(-32768.6), Fault);
}

TEST(Numbers, IntRoundsDown) {
    EXPECT_EQ(Int(4.5), 4);
    EXPECT_EQ(Int(-4.5), -5);
}

TEST(Numbers, ValTakesTheLeadingNumber) {
    EXPECT_EQ(Val("12.5 volts"), 12.5);
    EXPECT_EQ(Val("  -3"), -3);
    EXPECT_EQ(Val("13,8"), 13);
    EXPECT_EQ(Val("abc"), 0);
    EXPECT_EQ(Val(""), 0);
    EXPECT_EQ(Val("1e3"), 1000);
    EXPECT_EQ(Val("+7"), 7);
    EXPECT_EQ(Val(".5"), 0.5);
    EXPECT_EQ(Val("1.2.3"), 1.2);
    EXPECT_EQ(Val("5e"), 5);
    EXPECT_EQ(Val("1 200 V"), 1200) << "blanks are passed over";
}

TEST(Numbers, ValOfANumberBeyondAllRangesIsNotZero) {
    const std::string digits(400, '9');
    EXPECT_EQ(Val("1e999"), HUGE_VAL);
    EXPECT_EQ(Val("-1e999"), -HUGE_VAL);
    EXPECT_EQ(Val(digits), HUGE_VAL);
    EXPECT_EQ(Val(digits + ".5"), HUGE_VAL);
    EXPECT_EQ(Val("1e-999"), 0);
    EXPECT_EQ(Val("0." + std::string(400, '0') + "1"), 0);
}

TEST(Numbers, TextToWholeNumberRefusesWhatIsNoNumber) {
    EXPECT_EQ(textToInt16("12"), 12);
    EXPECT_EQ(textToInt16(" 2.5 "), 2);
    EXPECT_EQ(textToInt16("-3."), -3);
    EXPECT_EQ(textToInt16("1e3"), 1000);
    for (const char* text : {"", "abc", "12a", "-", ".", "1 2", "1e", "1e+", "1,5", "- 3"}) {
        try {
            textToInt16(text);
            ADD_FAILURE() << text;
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number(), 13) << text;
        }
    }
    for (const char* text : {"40000", "1e999", "-1e999"}) {
        try {
            textToInt16(text);
            ADD_FAILURE() << text;
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number(), 6) << text;
        }
    }
}

TEST(Numbers, FormatPatterns) {
    EXPECT_EQ(Format(12.3, "  000.0"), "  012.3");
    EXPECT_EQ(Format(1234.0, "000.0"), "1234.0");
    EXPECT_EQ(Format(7.0, "    000 "), "    007 ");
    EXPECT_EQ(Format(1234567.5, "###,###,##0"), "1,234,568");
    EXPECT_EQ(Format(0.0, "###,###,##0"), "0");
    EXPECT_EQ(Format(3.806, ".000"), "3.806");
    EXPECT_EQ(Format(0.25, ".000"), ".250");
    EXPECT_EQ(Format(0.25, "###0.0"), "0.3");
    EXPECT_EQ(Format(-0.04, "##0.0"), "0.0");
    EXPECT_EQ(Format(-2.5, "0"), "-3");
    EXPECT_EQ(Format(120.4, "         0"), "         120");
    EXPECT_EQ(Format(999.95, "##0.0"), "1000.0");
}

TEST(Numbers, FormatRoundsTheDecimalTextOfSinglePrecision) {
    EXPECT_EQ(Format(1234.45F, "0.0"), "1234.5");
    EXPECT_EQ(Format(2390.16F, "000.0"), "2390.2");
}

TEST(Numbers, PlainTexts) {
    EXPECT_EQ(plain(12.0), "12");
    EXPECT_EQ(plain(12.5), "12.5");
    EXPECT_EQ(plain(13.8F), "13.8");
    EXPECT_EQ(plainTenths(125), "12.5");
    EXPECT_EQ(plainTenths(120), "12");
    EXPECT_EQ(plainTenths(-5), "-0.5");
    EXPECT_EQ(Str(2.5), " 2.5");
    EXPECT_EQ(Str(-2.5), "-2.5");
}

TEST(Numbers, AThingIsCountedInTheFormThatItsNumberAsksFor) {
    EXPECT_EQ(counted(0, "reading"), "0 readings");
    EXPECT_EQ(counted(1, "reading"), "1 reading");
    EXPECT_EQ(counted(21, "reading"), "21 readings");
}

} // namespace
} // namespace tally
