// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/SearchFields.h"

#include "archive/Day.h"

#include <gtest/gtest.h>

namespace tally::archive {
namespace {

TEST(SearchFields, PartWordsAtBlanks) {
    const auto selection = selectionOf({"  maple   red ", {}, "", ""});
    ASSERT_TRUE(selection);
    EXPECT_EQ(selection->words, (std::vector<std::string>{"maple", "red"}));
    EXPECT_FALSE(selection->unit || selection->from || selection->to);
}

TEST(SearchFields, TakeADayAMonthOrAYear) {
    const auto selection = selectionOf({"", 'V', " 2009 ", "2008-02"});
    EXPECT_FALSE(selection); // turned round
    const auto other = selectionOf({"", 'V', "2008-02", "2008-02"});
    ASSERT_TRUE(other);
    EXPECT_EQ(dayText(*other->from), "2008-02-01");
    EXPECT_EQ(dayText(*other->to), "2008-02-29");
    EXPECT_EQ(other->unit, 'V');
    EXPECT_EQ(dayText(daysOf("2009")->last), "2009-12-31");
    EXPECT_EQ(dayText(daysOf("2009-12")->last), "2009-12-31");
    EXPECT_EQ(dayText(daysOf("2009-03-15")->first), "2009-03-15");
}

TEST(SearchFields, RefuseWhatIsNoDate) {
    for (const char* text : {"9", "200", "2009-", "2009-13", "2009-2", "2009-02-30", "yesterday"}) {
        const auto selection = selectionOf({"", {}, text, ""});
        ASSERT_FALSE(selection) << text;
        EXPECT_EQ(selection.error().text, "'" + std::string(text) + "' is no date");
        EXPECT_FALSE(selectionOf({"", {}, "", text})) << text;
    }
}

} // namespace
} // namespace tally::archive
