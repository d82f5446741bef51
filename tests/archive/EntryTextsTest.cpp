// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/EntryTexts.h"

#include <gtest/gtest.h>

namespace tally::archive {
namespace {

Entry entryOf(const std::string& name) {
    Entry entry;
    entry.sha = std::string("\x12\x34\x56\x78\x9a\xbc\xde\xf0", 8) + std::string(24, 'x');
    entry.serial = "4711";
    entry.belonging = {"North", "Maple", false};
    entry.notes = {"North", "Maple", "J. Turner", "near the mill"};
    entry.start = toReadingTime({2009, 3, 15, 8, 30});
    entry.end = toReadingTime({2009, 3, 16, 8, 30});
    // Block demands of 10 and 20 tenths on the mean 15 of the highest 20; the highest reading is 12.5 A.
    entry.figures.highest = 125;
    entry.figures.blocks = 2;
    entry.figures.blockTotal = 30;
    entry.figures.blockHighest = 20;
    if (!name.empty())
        entry.sources = {{"/data/old/" + name, {"old", name}}};
    return entry;
}

TEST(EntryTexts, SayWhatAListShows) {
    const EntryTexts texts = textsOf(entryOf("a.dat"));
    EXPECT_EQ(texts.circuit, "Maple");
    EXPECT_EQ(texts.station, "North");
    EXPECT_EQ(texts.from, "2009-03-15 08:30");
    EXPECT_EQ(texts.to, "2009-03-16 08:30");
    EXPECT_EQ(texts.peak, "12.5 A");
    EXPECT_EQ(texts.loadFactor, "0.750");
    EXPECT_EQ(texts.notes, "J. Turner, near the mill");
    Entry assigned = entryOf("a.dat");
    assigned.belonging = {"South", "Elm", true};
    EXPECT_EQ(textsOf(assigned).notes, "North, Maple, J. Turner, near the mill");
}

TEST(EntryTexts, PrintALineARecordingInColumns) {
    Entry entry = entryOf("a.dat");
    entry.belonging.circuit = "M\u00fchle"; // counted in characters, not bytes
    const PrintedList list = printedList({entry, entry});
    EXPECT_EQ(list.heading.find("Station"), 23U);
    EXPECT_EQ(list.text.find("North"), 24U);
    EXPECT_EQ(std::count(list.text.begin(), list.text.end(), '\n'), 2);
    EXPECT_EQ(list.heading.find('\n'), std::string::npos);
}

TEST(EntryTexts, NameACopyAfterTheFileThatWasAdded) {
    EXPECT_EQ(fileNameFor(entryOf("maple red.dat")), "maple red.dat");
    EXPECT_EQ(fileNameFor(entryOf("maple.txt")), "maple.txt.dat");
    EXPECT_EQ(fileNameFor(entryOf("a/b\\c:\n.dat")), "a_b_c__.dat");
    EXPECT_EQ(fileNameFor(entryOf(".dat")), ".dat.dat");
    EXPECT_EQ(fileNameFor(entryOf("")), "123456789abcdef0.dat");
}

TEST(EntryTexts, TellEqualNamesApart) {
    std::set<std::string> taken;
    EXPECT_EQ(fileNameFor(entryOf("a.dat"), taken), "a.dat");
    EXPECT_EQ(fileNameFor(entryOf("a.dat"), taken), "a (2).dat");
    EXPECT_EQ(fileNameFor(entryOf("a (2).dat"), taken), "a (2) (2).dat");
    EXPECT_EQ(fileNameFor(entryOf("a.dat"), taken), "a (3).dat");
}

} // namespace
} // namespace tally::archive
