// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/KnownDownloads.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

JournalEntry entry(const std::string& serial, JournalState state) {
    JournalEntry made{.id = serial, .state = state, .bytes = 100, .serial = serial};
    made.header.pcTime = toReadingTime({2024, 3, 15, 14, 5});
    return made;
}

TEST(KnownDownloads, AnEmptyJournalKnowsNone) {
    EXPECT_EQ(knownDownloads({}), "No downloads are known on this computer.");
}

TEST(KnownDownloads, NamesTheLastThreeWithTheirFate) {
    EXPECT_EQ(knownDownloads({entry("0417", JournalState::accepted), entry("0533", JournalState::saved),
                              entry("0600", JournalState::interrupted), entry("0700", JournalState::saved)}),
              "Last downloads:  0417 (03-15-24 14:05): NOT SAVED YET;  0533 (03-15-24 14:05): saved;  "
              "0600 (03-15-24 14:05): interrupted, NOT SAVED YET");
}

TEST(KnownDownloads, CountsTheOlderOnesThatAreNotSaved) {
    const std::string line =
        knownDownloads({entry("1", JournalState::saved), entry("2", JournalState::refused),
                        entry("3", JournalState::dropped), entry("4", JournalState::received),
                        entry("5", JournalState::saved), entry("6", JournalState::interrupted)});
    EXPECT_EQ(line, "Last downloads:  1 (03-15-24 14:05): saved;  2 (03-15-24 14:05): refused;  "
                    "3 (03-15-24 14:05): dropped;  2 more NOT SAVED YET");
}

TEST(KnownDownloads, SessionsInWhichNothingCameAreLeftOut) {
    JournalEntry empty = entry("0417", JournalState::interrupted);
    empty.bytes = 0;
    EXPECT_EQ(knownDownloads({empty}), "No downloads are known on this computer.");
}

TEST(KnownDownloads, AReceptionWithoutASerialNumberIsSaidToBe) {
    EXPECT_EQ(knownDownloads({entry("", JournalState::received)}),
              "Last downloads:  without number (03-15-24 14:05): NOT SAVED YET");
}

} // namespace
} // namespace tally
