// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/StatusHeader.h"

#include "LinkBench.h"
#include "core/Fault.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::header;

StatusFields fieldsOf(const std::string& line1) {
    return readStatusHeader(line1, false);
}

TEST(StatusHeaderTest, ModeC) {
    const StatusFields fields = fieldsOf(header("KWT", 'c'));
    EXPECT_EQ(fields.state, "Running");
    EXPECT_EQ(fields.mode, "Average");
    EXPECT_EQ(fields.interval, 1);
    EXPECT_EQ(fields.whenFull, "Cont");
}

TEST(StatusHeaderTest, ModeUpperCaseH) {
    const StatusFields fields = fieldsOf(header("KWT", 'H'));
    EXPECT_EQ(fields.state, "Stopped");
    EXPECT_EQ(fields.mode, "Min/Max/Avg ");
    EXPECT_EQ(fields.interval, 5);
    EXPECT_EQ(fields.whenFull, "Cont");
}

TEST(StatusHeaderTest, ModeFIsNotAfterF) {
    const StatusFields fields = fieldsOf(header("KWT", 'f'));
    EXPECT_EQ(fields.state, "Running");
    EXPECT_EQ(fields.mode, "Average");
    EXPECT_EQ(fields.interval, 1);
    EXPECT_EQ(fields.whenFull, "Stop");
}

TEST(StatusHeaderTest, AModeCharacterThatIsNoLetterFails) {
    StatusFields fields = fieldsOf(header("KWT", '5'));
    EXPECT_EQ(fields.mode, "FAIL; value is 5 ;   invalid  ");
    EXPECT_EQ(fields.state, "");
    EXPECT_EQ(fields.interval, std::nullopt);
    EXPECT_EQ(fieldsOf(header("KWT", '\0')).mode, "FAIL; value is   0   ;   invalid  ");
    EXPECT_EQ(fieldsOf(header("KWT", '[')).mode, "FAIL; value is [ ;   invalid  ");
}

TEST(StatusHeaderTest, ALetterAfterMIsOutsideTheTable) {
    EXPECT_EQ(fieldsOf(header("KWT", 'm')).interval, std::nullopt);
    for (const char letter : {'n', 'N', 'z'})
        try {
            readStatusHeader(header("KWT", letter), false);
            ADD_FAILURE() << letter;
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number(), 9);
        }
}

TEST(StatusHeaderTest, BatteryDigits) {
    EXPECT_EQ(batteryText(fieldsOf(header()).vbatt.value()), "Vbatt = 3.806 volts");
    // 0x5dc is 1,500: 1500 * 0.003656 + 0.15 = 5.634
    EXPECT_EQ(batteryText(fieldsOf(header("KWT", 'a', "03-15-24 14:05", "5dc")).vbatt.value()),
              "Vbatt = 5.634 volts");
    EXPECT_EQ(batteryText(fieldsOf(header("KWT", 'a', "03-15-24 14:05", "000")).vbatt.value()),
              "Vbatt = .150 volts");
}

TEST(StatusHeaderTest, NoLabelOrNoDigitsGiveNoVoltage) {
    std::string line1 = header();
    line1[47] = 'v';
    EXPECT_EQ(fieldsOf(line1).vbatt, std::nullopt);
    EXPECT_EQ(fieldsOf(line1).text().find("Vbatt"), std::string::npos);
    EXPECT_EQ(fieldsOf(header("KWT", 'a', "03-15-24 14:05", "3X8")).vbatt, std::nullopt);
    EXPECT_EQ(fieldsOf(header("KWT", 'a', "03-15-24 14:05", "3E")).vbatt, std::nullopt);
    EXPECT_EQ(fieldsOf(header("KWT", 'a', "03-15-24 14:05", "-11")).vbatt, std::nullopt);
}

TEST(StatusHeaderTest, TheResultLabel) {
    EXPECT_EQ(fieldsOf(header("kwt", 'H')).text(),
              " Type: KWT    Serial Number 1234\r Mode setting:  Min/Max/Avg 5 min Cont"
              " Time On: 14:05  Mar 15, 24 (03-15-24 14:05)     Condition: Stopped\rVbatt = 3.806 volts");
    EXPECT_EQ(fieldsOf(header("PQX", 'd').substr(0, 44)).text(),
              " Type: PQX    Serial Number 1234\r Mode setting:  Average 15 min Stop"
              " Time On: 14:05  Mar 15, 24 (03-15-24 14:05)     Condition: Running");
}

TEST(StatusHeaderTest, AHeaderCanBeReadWhenItsTimeIsADateAndATime) {
    EXPECT_TRUE(hasStatusFields(header()));
    for (const char* line : {"", "KWT", "KWTa", "H\x06H"})
        EXPECT_FALSE(hasStatusFields(line)) << line;
    EXPECT_FALSE(hasStatusFields(header("KWT", 'a', "99-99-99 99:99")));
    EXPECT_FALSE(hasStatusFields(header("KWT", 'a', "              ")));
}

TEST(StatusHeaderTest, ABlankModeKeepsItsWordsAndIsExplainedUnderThem) {
    EXPECT_EQ(fieldsOf(header("HVN", ' ').substr(0, 44)).text(),
              " Type: HVN    Serial Number 1234\r Mode setting:  FAIL; value is   ;   invalid  "
              " Time On: 14:05  Mar 15, 24 (03-15-24 14:05)     Condition: "
              "\r HVN 40 and 80 have no mode letter; they record 15-minute averages in a continuous loop.");
}

TEST(StatusHeader, NoiseThatEndsWhereAHeaderBeginsIsNone) {
    const std::string header = "KWTH   1234                   03-15-24 12:00   Vbatt 3E8";
    EXPECT_TRUE(hasStatusFields(header));
    EXPECT_TRUE(hasStatusFields("HV     1234                   03-15-24 12:00   Vbatt 3E8"));
    std::string odd = header;
    odd[3] = '\0';
    EXPECT_TRUE(hasStatusFields(odd));
    std::string model = header;
    model[1] = '"';
    EXPECT_FALSE(hasStatusFields(model));
    std::string serial = header;
    serial[8] = '\xf5';
    EXPECT_FALSE(hasStatusFields(serial));
}

} // namespace
} // namespace tally
