// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/StudyWorkbook.h"

#include "Some.h"
#include "support/SampleFile.h"

#include <gtest/gtest.h>

namespace tally::study {
namespace {

using tally::testing::addFile;
using tally::testing::constant;
using testing::on;

class StudyBook : public ::testing::Test {
protected:
    Recordings recordings;
    StudyOptions options;

    Workbook book() const { return workbookOf(*studyOf(recordings, {}, options), {}); }
    static std::string text(const Cell& cell) {
        const auto* held = std::get_if<std::string>(&cell);
        return held ? *held : "no text";
    }
    static double number(const Cell& cell) {
        const auto* held = std::get_if<NumberCell>(&cell);
        return held ? held->value : -1;
    }
};

TEST_F(StudyBook, AllSheetsAreThereWithHeadings) {
    addFile(recordings, "red.dat", constant(4, 100));
    const Workbook workbook = book();
    std::vector<std::string> names;
    for (const Sheet& sheet : workbook.sheets) {
        names.push_back(sheet.name);
        EXPECT_FALSE(sheet.rows.empty());
        EXPECT_NE(text(sheet.rows.at(0).at(0)), "no text");
    }
    EXPECT_EQ(names, (std::vector<std::string>{"Summary", "Readings", "Demand", "Duration", "Days", "Limits",
                                               "Phases", "Flags"}));
}

TEST_F(StudyBook, TheSummaryHasAColumnAChannel) {
    addFile(recordings, "red.dat", {100, 200, 0, 100}, {.start = on(2024, 3, 4)});
    addFile(recordings, "white.dat", constant(4, 50), {.start = on(2024, 3, 4)});
    const Workbook workbook = book();
    const auto& rows = workbook.sheets[0].rows;
    const char* const figures[] = {"Mean",       "Maximum",        "Maximum at",       "Minimum",
                                   "Minimum at", "Load factor",    "Loss factor",      "Demand",
                                   "Demand at",  "Rolling demand", "Rolling demand at"};
    ASSERT_EQ(rows.size(), 12U);
    for (std::size_t i = 0; i < 11; ++i)
        EXPECT_EQ(text(rows[i + 1][0]), figures[i]);
    EXPECT_EQ(text(rows[0][1]), "red.dat");
    EXPECT_EQ(text(rows[0][2]), "white.dat");
    EXPECT_DOUBLE_EQ(number(rows[1][1]), 10.0);
    EXPECT_DOUBLE_EQ(number(rows[2][1]), 20.0);
    EXPECT_EQ(std::get<ReadingTime>(rows[3][1]), on(2024, 3, 4, 0, 15));
    EXPECT_DOUBLE_EQ(number(rows[6][2]), 1.0);
}

TEST_F(StudyBook, SheetsHoldARowEach) {
    addFile(recordings, "red.dat", constant(8, 100), {.start = on(2024, 3, 4)});
    options.window = 30;
    options.high = decimalOf("5");
    const Workbook workbook = book();
    EXPECT_EQ(workbook.sheets[1].rows.size(), 9U);   // readings
    EXPECT_EQ(workbook.sheets[2].rows.size(), 5U);   // windows
    EXPECT_EQ(workbook.sheets[3].rows.size(), 102U); // 0 to 100 %
    EXPECT_EQ(workbook.sheets[4].rows.size(), 97U);  // quarters of an hour
    EXPECT_EQ(workbook.sheets[5].rows.size(), 2U);
    EXPECT_EQ(text(workbook.sheets[5].rows[1][1]), "above");
    EXPECT_EQ(workbook.sheets[6].rows.size(), 1U); // one file has no phases
    EXPECT_TRUE(
        std::holds_alternative<std::monostate>(workbook.sheets[4].rows[20][1])); // no reading at 05:00
}

TEST_F(StudyBook, AnUnbalanceThatDoesNotCountIsEmpty) {
    addFile(recordings, "r.dat", {100, 1}, {.start = on(2024, 3, 4)});
    addFile(recordings, "w.dat", {100, 1}, {.start = on(2024, 3, 4)});
    addFile(recordings, "b.dat", {100, 2}, {.start = on(2024, 3, 4)});
    const auto rows = book().sheets[6].rows;
    EXPECT_DOUBLE_EQ(number(rows[1][1]), 0);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(rows[2][1]));
    EXPECT_NEAR(number(rows[2][2]), 0.1, 1e-12);
}

TEST_F(StudyBook, FlagsStandUnderTheirHeadings) {
    addFile(recordings, "red.dat", {100, 0, 0, 100}, {.start = on(2024, 3, 4)});
    const auto rows = book().sheets[7].rows;
    const char* const headings[] = {"Channel", "Kind", "Start", "End", "Readings", "Value"};
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_EQ(text(rows[0][i]), headings[i]);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(text(rows[1][1]), "zero");
    EXPECT_EQ(std::get<ReadingTime>(rows[1][3]), on(2024, 3, 4, 0, 45));
    EXPECT_DOUBLE_EQ(number(rows[1][4]), 2);
}

} // namespace
} // namespace tally::study
