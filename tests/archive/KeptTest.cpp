// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Kept.h"
#include "archive/Day.h"
#include "archive/PlainTools.h"
#include "support/DataTexts.h"

#include <gtest/gtest.h>

namespace tally::archive {
namespace {

using tally::testing::dataFile;
using tally::testing::PlainTools;

TEST(Kept, HoldsTheFactsOfAFile) {
    const std::string bytes = dataFile({'a', "03-15-99 10:30", 'A', "4711"}, "  12  30  20");
    const auto kept =
        keptOf(bytes, "North\r\n Maple \r\nred\r\n\r\n", {"/data/n/a.dat", {"n", "a.dat"}}, PlainTools());
    ASSERT_TRUE(kept);
    const Entry& entry = kept->entry;
    EXPECT_EQ(entry.serial, "4711");
    EXPECT_EQ(entry.belonging.station, "North");
    EXPECT_EQ(entry.belonging.circuit, "Maple");
    EXPECT_EQ(entry.unit, 'A');
    EXPECT_EQ(entry.interval, 15);
    EXPECT_EQ(entry.count, 3);
    // Three readings and one interval more lie before the header time.
    EXPECT_EQ(timeText(entry.start), "1999-03-15T09:30");
    EXPECT_EQ(timeText(entry.end), "1999-03-15T10:15");
    EXPECT_EQ(entry.lowest, 120);
    EXPECT_EQ(entry.figures.highest, 300);
    EXPECT_EQ(timeText(entry.figures.highestAt), "1999-03-15T09:45");
    EXPECT_EQ(entry.figures.total, 620);
    EXPECT_EQ(entry.size, static_cast<std::int64_t>(bytes.size()));
    EXPECT_EQ(kept->bytes, "!" + bytes);
    EXPECT_EQ(readingsOf(kept->readings, 'a', PlainTools()), (std::vector<std::int16_t>{200, 300, 120}));
}

TEST(Kept, RefusesWhatIsNoRecording) {
    const auto kept = keptOf("nothing", std::nullopt, {"/x.dat", {}}, PlainTools());
    ASSERT_FALSE(kept);
    EXPECT_EQ(kept.error().text, "Error in processing file");
    EXPECT_EQ(kept.error().subject, "/x.dat");
}

TEST(Kept, RefusesATripleThatIsNotWhole) {
    EXPECT_FALSE(keptOf(dataFile({'g'}, "  12  30"), std::nullopt, {"/x.dat", {}}, PlainTools()));
}

TEST(Kept, SearchesEachTextByItself) {
    Entry entry;
    entry.serial = "4711";
    entry.belonging = {"North", "Maple", false};
    entry.notes = {"North", "Maple", "red", "100% of \"it\""};
    entry.sources = {{"/data/old/a.dat", {"old", "a.dat"}}};
    const std::string text = searchText(entry, PlainTools());
    for (const char* part : {"4711", "north", "maple", "100% of \"it\"", "old", "a.dat"})
        EXPECT_NE(text.find(part), std::string::npos) << part;
    // No word reaches from one text into the next.
    EXPECT_EQ(text.find("4711north"), std::string::npos);
    EXPECT_EQ(text.find("old/a.dat"), std::string::npos);
    EXPECT_EQ(text.find("data"), std::string::npos);
}

TEST(Kept, HoldsNoCharacterThatEndsATextInAStore) {
    const auto kept = keptOf(dataFile({'a', "03-15-99 10:30", 'A', std::string("4\0 1", 4)}, "  12"),
                             std::string("No\0rth\r\n\r\n\r\n\r\n", 14), {"/x.dat", {}}, PlainTools());
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->entry.serial, "4\xEF\xBF\xBD 1");
    EXPECT_EQ(kept->entry.belonging.station, "No\xEF\xBF\xBDrth");
    EXPECT_EQ(*kept->notesFile, std::string("No\0rth\r\n\r\n\r\n\r\n", 14));
}

TEST(Kept, GivesTheLoadBackFromThePackedReadings) {
    const auto kept =
        keptOf(dataFile({'g'}, "  10  30  20  11  31  21   9"), std::nullopt, {"/x.dat", {}}, PlainTools());
    ASSERT_TRUE(kept);
    const Load load = loadOf(kept->entry, kept->readings, PlainTools());
    EXPECT_EQ(load.average, (std::vector<std::int16_t>{210, 200}));
    EXPECT_EQ(load.maximum, (std::vector<std::int16_t>{310, 300}));
    EXPECT_EQ(load.start, kept->entry.start);
    EXPECT_THROW(loadOf(kept->entry, "!\x02", PlainTools()), std::exception);
}

} // namespace
} // namespace tally::archive
