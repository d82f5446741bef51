// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ForceReadings.h"

#include "core/Fault.h"
#include "support/SampleFile.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using Readings = std::vector<std::int16_t>;

class Forcing : public ::testing::Test {
protected:
    void open(bool low) {
        slot = testing::addFile(recordings, "/d/a.dat", {10, 20, 30, 40, 50}, {.low = low});
        range(1, 3);
    }
    void range(int first, int last) { wanted = {first, last}; }
    Expected<int> force(const char* text, ForceWhich which = ForceWhich::all) {
        return forceReadings(recordings, slot, wanted, text, which, lastValue);
    }
    void expectRefused(const char* text, const char* limit) {
        const auto result = force(text);
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().text, std::string("Error - New reading is outside the allowable range.\r\n"
                                                   "  - Must be between 0 and ") +
                                           limit);
        expectUnchanged();
    }
    void expectUnchanged() {
        EXPECT_EQ(recordings.gReadings[0], (Readings{10, 20, 30, 40, 50}));
        EXPECT_FALSE(recordings.gInfo[0].forced);
        EXPECT_TRUE(recordings.forcedEdits[0].empty());
    }

    Recordings recordings;
    int slot = -1;
    Range wanted;
    float lastValue = 0;
};

TEST_F(Forcing, AllReadingsOfTheRange) {
    open(false);
    EXPECT_EQ(force("12.5"), 3);
    EXPECT_EQ(recordings.gReadings[0], (Readings{10, 125, 125, 125, 50}));
    EXPECT_TRUE(recordings.gInfo[0].forced);
    EXPECT_EQ(lastValue, 12.5F);
}

TEST_F(Forcing, LeftmostChangesOnlyTheRangesFirst) {
    open(false);
    EXPECT_EQ(force("7", ForceWhich::leftmost), 1);
    EXPECT_EQ(recordings.gReadings[0], (Readings{10, 70, 30, 40, 50}));
}

TEST_F(Forcing, RightmostChangesOnlyTheRangesLast) {
    open(false);
    EXPECT_EQ(force("7", ForceWhich::rightmost), 1);
    EXPECT_EQ(recordings.gReadings[0], (Readings{10, 20, 30, 70, 50}));
}

TEST_F(Forcing, ZeroIsAllowed) {
    open(false);
    EXPECT_TRUE(force("0").has_value());
    EXPECT_EQ(recordings.gReadings[0], (Readings{10, 0, 0, 0, 50}));
}

TEST_F(Forcing, TextThatIsNoNumberIsZero) {
    open(false);
    for (const char* text : {"", "abc", " "}) {
        EXPECT_TRUE(force(text).has_value()) << text;
        EXPECT_EQ(recordings.gReadings[0][2], 0) << text;
    }
    EXPECT_TRUE(force("12 amps").has_value());
    EXPECT_EQ(recordings.gReadings[0][2], 120) << "the leading number";
}

TEST_F(Forcing, ExactlyTheLimitOfAHighFileIsAllowed) {
    open(false);
    EXPECT_TRUE(force("999").has_value());
    EXPECT_EQ(recordings.gReadings[0][2], 9990);
}

TEST_F(Forcing, BeyondTheLimitOfAHighFileIsRefused) {
    open(false);
    expectRefused("999.1", "999");
    EXPECT_EQ(lastValue, 999.1F) << "it is remembered all the same";
    expectRefused("1e300", "999");
    expectRefused("1e999", "999");
}

TEST_F(Forcing, ExactlyTheLimitOfALowFileIsAllowed) {
    open(true);
    EXPECT_TRUE(force("99.9").has_value());
    EXPECT_EQ(recordings.gReadings[0][2], 999);
}

TEST_F(Forcing, BeyondTheLimitOfALowFileIsRefused) {
    open(true);
    expectRefused("100", "99.9");
}

TEST_F(Forcing, BelowZeroIsRefused) {
    open(false);
    expectRefused("-0.1", "999");
    expectRefused("-1e300", "999");
}

TEST_F(Forcing, HalvesOfATenthGoToEven) {
    open(false);
    force("0.25");
    EXPECT_EQ(recordings.gReadings[0][2], 2);
    force("0.75");
    EXPECT_EQ(recordings.gReadings[0][2], 8);
}

TEST_F(Forcing, WithoutACurrentSlotItIsASoftwareError) {
    open(false);
    for (const int none : {Recordings::noFile, Recordings::cancelled, 3}) {
        slot = none;
        const auto result = force("5");
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().text, "Software error in ForceRdgs - 'ginx' is out of range");
        expectUnchanged();
    }
    EXPECT_EQ(lastValue, 0.0F);
}

TEST_F(Forcing, ARangeBeyondSixteenBitsOverflows) {
    slot = testing::addFile(recordings, "/d/long.dat", testing::constant(40000, 10));
    for (const ForceWhich which : {ForceWhich::all, ForceWhich::leftmost, ForceWhich::rightmost}) {
        range(0, 32768);
        try {
            force("5", which);
            ADD_FAILURE() << "no fault";
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number(), 6);
        }
    }
    EXPECT_EQ(recordings.gReadings[0], testing::constant(40000, 10));
    EXPECT_FALSE(recordings.gInfo[0].forced);
    range(0, 32767);
    EXPECT_EQ(force("5"), 32768);
}

TEST_F(Forcing, ReadingsThatTheFileDoesNotHaveArePassedOver) {
    open(false);
    range(3, 9);
    EXPECT_EQ(force("6"), 2);
    EXPECT_EQ(recordings.gReadings[0], (Readings{10, 20, 30, 60, 60}));
}

TEST_F(Forcing, ARangeWithoutReadingsForcesNothing) {
    open(false);
    range(7, 9);
    EXPECT_EQ(force("5"), 0);
    expectUnchanged();
}

TEST_F(Forcing, UndoTakesBackTheLastForcing) {
    open(false);
    force("7");
    range(0, 1);
    force("9");
    EXPECT_EQ(recordings.gReadings[0], (Readings{90, 90, 70, 70, 50}));
    EXPECT_EQ(undoForcing(recordings, slot), 2);
    EXPECT_EQ(recordings.gReadings[0], (Readings{10, 70, 70, 70, 50}));
    EXPECT_TRUE(recordings.gInfo[0].forced);
    EXPECT_EQ(undoForcing(recordings, slot), 3);
    expectUnchanged();
    EXPECT_EQ(undoForcing(recordings, slot), 0);
}

TEST_F(Forcing, WhatIsUnsavedIsAComparisonWithWhatWasWritten) {
    open(false);
    EXPECT_EQ(unsavedReadings(recordings, slot), 0);
    force("7");
    EXPECT_EQ(unsavedReadings(recordings, slot), 3);
    readingsSaved(recordings, slot, {0, 4});
    EXPECT_EQ(unsavedReadings(recordings, slot), 0);
    undoForcing(recordings, slot);
    EXPECT_EQ(unsavedReadings(recordings, slot), 3) << "the file holds the forced ones";
    force("7");
    EXPECT_EQ(unsavedReadings(recordings, slot), 0) << "and now so does the window";
}

TEST_F(Forcing, AForcingThatChangesNothingIsNothingToSave) {
    open(false);
    range(1, 1);
    force("2");
    EXPECT_EQ(unsavedReadings(recordings, slot), 0);
}

TEST_F(Forcing, ReadingsSavedInPartsAreAllSavedInTheEnd) {
    open(false);
    force("7");
    readingsSaved(recordings, slot, {2, 2});
    EXPECT_EQ(unsavedReadings(recordings, slot), 2);
    readingsSaved(recordings, slot, {0, 1});
    readingsSaved(recordings, slot, {3, 99});
    EXPECT_EQ(unsavedReadings(recordings, slot), 0);
}

TEST_F(Forcing, EveryForcingIsKnown) {
    open(false);
    force("7");
    ASSERT_EQ(recordings.forcedEdits[0].size(), 1U);
    EXPECT_EQ(recordings.forcedEdits[0][0].first, 1);
    EXPECT_EQ(recordings.forcedEdits[0][0].before, (Readings{20, 30, 40}));
}

} // namespace
} // namespace tally
