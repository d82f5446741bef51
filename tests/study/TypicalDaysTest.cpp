// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/TypicalDays.h"

#include "Some.h"

#include <gtest/gtest.h>

namespace tally::study {
namespace {

using testing::amps;
using testing::axis;
using testing::on;

const TypicalDay& of(const TypicalDays& days, DayKind kind) {
    return days[static_cast<std::size_t>(kind)];
}

TEST(StudyTypicalDays, TheKindFollowsTheCalendar) {
    EXPECT_EQ(dayKindOf(dayOf(on(2024, 3, 4)), {}), DayKind::weekday); // a Monday
    EXPECT_EQ(dayKindOf(dayOf(on(2024, 3, 8)), {}), DayKind::weekday);
    EXPECT_EQ(dayKindOf(dayOf(on(2024, 3, 9)), {}), DayKind::saturday);
    EXPECT_EQ(dayKindOf(dayOf(on(2024, 3, 10)), {}), DayKind::sunday);
    EXPECT_EQ(dayKindOf(dayOf(on(1969, 12, 28)), {}), DayKind::sunday);
    EXPECT_EQ(dayKindOf(dayOf(on(1969, 12, 29)), {}), DayKind::weekday);
}

TEST(StudyTypicalDays, AHolidayCountsOnlyAsASunday) {
    const Holidays holidays = {dayOf(on(2024, 3, 5)), dayOf(on(2024, 3, 9))};
    EXPECT_EQ(dayKindOf(dayOf(on(2024, 3, 5)), holidays), DayKind::sunday);
    EXPECT_EQ(dayKindOf(dayOf(on(2024, 3, 9)), holidays), DayKind::sunday);
    EXPECT_EQ(dayKindOf(dayOf(on(2024, 3, 6)), holidays), DayKind::weekday);
}

TEST(StudyTypicalDays, AHolidayIsARealDate) {
    EXPECT_EQ(holidayOf("2024-02-29"), dayOf(on(2024, 2, 29)));
    EXPECT_EQ(holidayOf("1999-12-31"), dayOf(on(1999, 12, 31)));
    for (const char* text : {"", "2023-02-29", "2024-04-31", "2024-13-01", "2024-00-10", "2024-01-00",
                             "24-01-01", "2024-1-1", "2024/01/01", "2024-01-01 ", "20a4-01-01", "2024-01--1"})
        EXPECT_FALSE(holidayOf(text)) << text;
}

TEST(StudyTypicalDays, SlotsGatherTheDaysOfAKind) {
    // Fri 23:45, then Sat 00:00 to 23:45 all 5.0 A, Sun 00:00.
    std::vector<std::int32_t> loads(98, 50);
    loads[0] = 400;
    loads[97] = 90;
    const TypicalDays days = typicalDaysOf(amps(loads), axis(on(2024, 3, 8, 23, 45), 15, 98), {});
    EXPECT_EQ(of(days, DayKind::weekday).days, 1);
    EXPECT_EQ(of(days, DayKind::saturday).days, 1);
    EXPECT_EQ(of(days, DayKind::sunday).days, 1);
    ASSERT_EQ(of(days, DayKind::weekday).slots.size(), 96U);
    EXPECT_EQ(of(days, DayKind::weekday).slots[0].readings, 0U);
    EXPECT_EQ(of(days, DayKind::weekday).slots[95].readings, 1U);
    EXPECT_DOUBLE_EQ(of(days, DayKind::weekday).slots[95].mean, 40.0);
    EXPECT_DOUBLE_EQ(of(days, DayKind::sunday).slots[0].max, 9.0);
    EXPECT_EQ(of(days, DayKind::sunday).slots[1].readings, 0U);
    EXPECT_EQ(of(days, DayKind::saturday).slots[95].readings, 1U);
}

TEST(StudyTypicalDays, MeanExtremesAndPercentilesOfASlotByHand) {
    // Ten weekdays whose reading at 00:00 is 1 to 10 A; all others are 0.
    std::vector<std::int32_t> loads(14 * 96);
    const int order[] = {3, 7, 1, 10, 5, 0, 0, 2, 9, 4, 8, 6, 0, 0}; // Monday to Sunday, twice
    for (std::size_t day = 0; day < 14; ++day)
        loads[day * 96] = order[day] * 10;
    const DaySlot slot =
        of(typicalDaysOf(amps(loads), axis(on(2024, 3, 4), 15, loads.size()), {}), DayKind::weekday).slots[0];
    EXPECT_EQ(slot.readings, 10U);
    EXPECT_DOUBLE_EQ(slot.mean, 5.5);
    EXPECT_DOUBLE_EQ(slot.min, 1.0);
    EXPECT_DOUBLE_EQ(slot.max, 10.0);
    EXPECT_DOUBLE_EQ(slot.p10, 1.0); // element 1
    EXPECT_DOUBLE_EQ(slot.p90, 9.0); // element 9
}

TEST(StudyTypicalDays, ReadingsOffTheClockLieInTheSlotThatHoldsTheirTime) {
    const TypicalDays days = typicalDaysOf(amps({10, 20}), axis(on(2024, 3, 4, 23, 52), 15, 2), {});
    const TypicalDay& weekday = of(days, DayKind::weekday);
    EXPECT_EQ(weekday.days, 2);
    EXPECT_DOUBLE_EQ(weekday.slots[95].mean, 1.0);
    EXPECT_DOUBLE_EQ(weekday.slots[0].mean, 2.0); // 00:07
}

TEST(StudyTypicalDays, TheNightOfTheClockChangeHasAllItsHours) {
    // 31 March 2024: a recorder's clock runs through two o'clock.
    const std::vector<std::int32_t> loads(96, 10);
    const TypicalDays days = typicalDaysOf(amps(loads), axis(on(2024, 3, 31), 15, 96), {});
    for (const DaySlot& slot : of(days, DayKind::sunday).slots)
        EXPECT_EQ(slot.readings, 1U);
}

} // namespace
} // namespace tally::study
