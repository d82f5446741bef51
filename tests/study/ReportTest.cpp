// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Report.h"

#include "Some.h"
#include "core/ForceReadings.h"
#include "support/SampleFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tally::study {
namespace {

using tally::testing::addFile;
using tally::testing::constant;
using ::testing::ContainsRegex;
using ::testing::HasSubstr;
using ::testing::Not;
using testing::on;

class StudyReport : public ::testing::Test {
protected:
    Recordings recordings;
    StudyOptions options;

    std::string text() const { return textOf(reportOf(*studyOf(recordings, {}, options))); }
};

TEST_F(StudyReport, TheFirstPageSaysWhatTheFiguresRestOn) {
    addFile(recordings, "a/red.dat", constant(96, 100), {.start = on(2024, 3, 4)});
    addFile(recordings, "a/white.dat", constant(100, 100), {.start = on(2024, 3, 4)});
    recordings.gInfo[0].unreadable = 3;
    recordings.gInfo[1].forced = true;
    options.power = PowerBase{13800, 0.9};
    const std::string page = text();
    EXPECT_THAT(page, HasSubstr("2024-03-04 00:00 to 2024-03-05 00:00: 96 readings of 15 min on 1 day."));
    EXPECT_THAT(page, HasSubstr("red.dat: 3 items could not be read as numbers"));
    EXPECT_THAT(page,
                HasSubstr("white.dat: readings were forced; 0 readings before and 4 after the common span"));
    EXPECT_THAT(page, HasSubstr("Power at 13800 V and a power factor of 0.9; every kW rests on both."));
    EXPECT_THAT(page, HasSubstr("a season with a higher load may lie outside"));
}

TEST_F(StudyReport, TheFirstPageNamesTheForcedReadingsOfTheSpan) {
    addFile(recordings, "red.dat", constant(96, 100), {.start = on(2024, 3, 4)});
    float last = 0;
    ASSERT_TRUE(forceReadings(recordings, 0, {2, 3}, "5", ForceWhich::all, last));
    ASSERT_TRUE(forceReadings(recordings, 0, {3, 4}, "5", ForceWhich::all, last));
    ASSERT_TRUE(forceReadings(recordings, 0, {90, 90}, "5", ForceWhich::all, last));
    EXPECT_THAT(text(), HasSubstr("red.dat: 4 readings were forced, 2024-03-04 00:30 to 2024-03-04 22:30."));
    const auto part = [&](Range range) { return textOf(reportOf(*studyOf(recordings, range, options))); };
    EXPECT_THAT(part({80, 95}), HasSubstr("red.dat: 1 reading was forced, 2024-03-04 22:30; "));
    EXPECT_THAT(part({10, 80}), Not(HasSubstr("forced")));
}

TEST_F(StudyReport, ATripleWithAForcedValueIsOneReading) {
    addFile(recordings, "mma.dat", constant(96, 100), {.letter = 'g', .start = on(2024, 3, 4)});
    float last = 0;
    ASSERT_TRUE(forceReadings(recordings, 0, {4, 6}, "5", ForceWhich::all, last)); // of triples 1 and 2
    EXPECT_THAT(text(), HasSubstr("mma.dat: 2 readings were forced, "));
}

TEST_F(StudyReport, OneOfAThingIsNoPlural) {
    addFile(recordings, "red.dat", constant(96, 100), {.start = on(2024, 3, 9)}); // a Saturday
    EXPECT_THAT(text(), HasSubstr("The figures speak of this day; a season with a higher load may lie"));
    EXPECT_THAT(text(), HasSubstr("Days: 0 weekdays, 1 Saturday, 0 Sundays and holidays."));
    EXPECT_THAT(textOf(reportOf(*studyOf(recordings, Range{8, 95}, options))),
                HasSubstr("8 readings before and 0 after the chosen span are left out."));
}

TEST_F(StudyReport, TheFirstPageNamesAFileThatMayHaveBeenCut) {
    addFile(recordings, "red.dat", constant(96, 100), {.start = on(2024, 3, 4)});
    EXPECT_THAT(text(), Not(HasSubstr("end mark")));
    recordings.gInfo[0].complete = false;
    EXPECT_THAT(text(), HasSubstr("red.dat: the file ends without its end mark, it may have been cut."));
}

TEST_F(StudyReport, AFigureThatDoesNotExistIsADash) {
    addFile(recordings, "red.dat", constant(2, 0), {.start = on(2024, 3, 4)});
    EXPECT_THAT(text(), ContainsRegex("Load factor +–\n"));
}

TEST_F(StudyReport, LoadsHaveOneDecimalAndFactorsThree) {
    addFile(recordings, "red.dat", {100, 200, 0, 100}, {.start = on(2024, 3, 4)});
    const std::string page = text();
    EXPECT_THAT(page, ContainsRegex("Maximum +20\\.0\n"));
    EXPECT_THAT(page, HasSubstr("2024-03-04 00:15"));
    EXPECT_THAT(page, ContainsRegex("Load factor +0\\.500\n"));
    EXPECT_THAT(page, ContainsRegex("Loss factor +0\\.375\n")); // (1 + 4 + 0 + 1) / 4 / 4
}

TEST_F(StudyReport, RunsAndFlagsAreListed) {
    std::vector<std::int16_t> tenths = constant(60, 100);
    for (std::size_t i = 0; i < 60; i += 2)
        tenths[i] = 101;
    tenths[10] = 900;
    addFile(recordings, "red.dat", tenths, {.start = on(2024, 3, 4)});
    options.high = decimalOf("10");
    const std::string page = text();
    EXPECT_THAT(page, HasSubstr("red.dat: 450 min above 10 A in 30 runs, of which the first 20 are listed."));
    EXPECT_THAT(page, HasSubstr("2024-03-04 02:30"));
    EXPECT_THAT(page, HasSubstr("spike"));
}

TEST_F(StudyReport, WithoutLimitsAndRatingTheirPartsAreMissing) {
    addFile(recordings, "red.dat", constant(4, 100));
    EXPECT_THAT(text(), Not(HasSubstr("Limits")));
    EXPECT_THAT(text(), Not(HasSubstr("Capacity")));
    options.capacity = CapacityCheck{20, 0, 1.25};
    EXPECT_THAT(text(), HasSubstr("There is room"));
    EXPECT_THAT(text(), HasSubstr("The files cover 0.0 days; 30 are asked for."));
}

} // namespace
} // namespace tally::study
