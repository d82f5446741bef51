// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DataText.h"

#include "support/DataTexts.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::dataFile;
using testing::headerLine;
using Readings = std::vector<std::int16_t>;

Recording good(const std::string& bytes) {
    auto recording = readDataText(bytes);
    if (recording)
        return *std::move(recording);
    ADD_FAILURE() << "refused: " << static_cast<int>(recording.error());
    return {};
}

void expectRefused(const std::string& bytes, DataRefusal why) {
    const auto result = readDataText(bytes);
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error(), why);
}

TEST(DataText, FactsOfTheHeader) {
    const Recording recording = good(dataFile({'E', "03-15-99 10:30", 'V', "A-17"}, "  12  30   7"));
    const FileFacts& facts = recording.facts;
    EXPECT_EQ(facts.modeLetter, 'e') << "upper case when the instrument has stopped";
    EXPECT_EQ(facts.typeLetter, 'V');
    EXPECT_EQ(facts.unit(), 'V');
    EXPECT_EQ(facts.serial, "A-17");
    EXPECT_EQ(facts.count, 3);
    EXPECT_EQ(facts.largest, 300);
    EXPECT_EQ(facts.smallest, 70);
    EXPECT_EQ(screenTime(facts.headerTime), "10:30  Mar 15, 99");
    EXPECT_EQ(facts.header, headerLine({'E', "03-15-99 10:30", 'V', "A-17"}));
    EXPECT_EQ(facts.form, ' ');
    EXPECT_EQ(facts.unreadable, 0);
    EXPECT_FALSE(facts.forced);
    EXPECT_TRUE(facts.path.empty());
    EXPECT_EQ(recording.readings, (Readings{70, 300, 120})) << "oldest first";
}

TEST(DataText, ABlankModeLetterIsModeA) {
    const FileFacts facts = good(dataFile({' '}, "   1")).facts;
    EXPECT_EQ(facts.modeLetter, 'a');
    EXPECT_EQ(facts.header[3], ' ') << "the header stays as it is";
}

TEST(DataText, ALetterOfTheThirdColumnOtherThanVIsAmps) {
    const FileFacts facts = good("KWT" + headerLine().substr(3) + "\r   1\x1a").facts;
    EXPECT_EQ(facts.typeLetter, 'T');
    EXPECT_EQ(facts.unit(), 'A');
}

TEST(DataText, NoiseBeforeTheHeaderIsSkipped) {
    for (const char* noise : {"", "\"\r\n\n\n", "\x1a noise 12.5\r\n", "T:\r"})
        EXPECT_EQ(good(noise + headerLine() + "\r   1\x1a").readings, (Readings{10})) << noise;
    for (const char initial : {'H', 'P', 'K'})
        EXPECT_EQ(good(initial + headerLine().substr(1) + "\r   1\x1a").facts.header[0], initial);
}

TEST(DataText, TheHeaderLineEndsWithCrOrCrLf) {
    EXPECT_EQ(good(headerLine() + "\r   1   2\x1a").readings, (Readings{20, 10}));
    const Recording both = good(headerLine() + "\r\n   1   2\x1a");
    EXPECT_EQ(both.readings, (Readings{20, 10}));
    EXPECT_EQ(both.facts.form, ' ');
    expectRefused(headerLine() + "\n   1   2\x1a", DataRefusal::noHeader);
}

TEST(DataText, APointInTheFirstLineMakesTheFileLow) {
    EXPECT_FALSE(good(dataFile({}, "  12  30")).facts.low);
    EXPECT_TRUE(good(dataFile({}, " 12.0 30.5")).facts.low);
    EXPECT_STREQ(good(dataFile({}, " 12.0 30.5")).facts.rangeWord(), "LOW");
    const Recording later = good(dataFile({}, "  12  30\n\r 1.5"));
    EXPECT_FALSE(later.facts.low) << "only the first line decides";
    EXPECT_EQ(later.readings, (Readings{15, 300, 120}));
}

TEST(DataText, OnlyTheFormTokenIsThrownAway) {
    const Recording recording = good(dataFile({}, "T:   12  30"));
    EXPECT_EQ(recording.facts.form, 'T');
    EXPECT_EQ(recording.readings, (Readings{300, 120}));
    EXPECT_EQ(good(dataFile({}, "T:1230  30")).readings, (Readings{300, 12300}));
    EXPECT_TRUE(good(dataFile({}, "T: 12.5 30.0")).facts.low);
}

TEST(DataText, AFormTokenAloneOnItsLineLeavesTheRangeToTheFirstReadings) {
    const Recording low = good(dataFile({}, "T:\n\r 12.5100.0"));
    EXPECT_TRUE(low.facts.low);
    EXPECT_EQ(low.readings, (Readings{1000, 125}));
    EXPECT_FALSE(good(dataFile({}, "T:\r\n  12  13\n\r 1.5")).facts.low);
}

TEST(DataText, ADamagedFormTokenIsThrownAwayToo) {
    const Recording recording = good(dataFile({}, "T;   12  30"));
    EXPECT_EQ(recording.facts.form, 'T');
    EXPECT_EQ(recording.readings, (Readings{300, 120}));
    EXPECT_EQ(recording.facts.unreadable, 0);
}

TEST(DataText, TheOlderLayoutHasItsTimeFurtherRight) {
    std::string header = headerLine({'a', "99-99-99 99:99"}).substr(0, 44) + "  03-15-99 10:30 6.12 rest";
    const Recording recording = good(header + "\r   1\x1a");
    header.replace(30, 14, "03-15-99 10:30");
    EXPECT_EQ(recording.facts.header, header) << "the repaired header is kept";
    EXPECT_EQ(screenTime(recording.facts.headerTime), "10:30  Mar 15, 99");
}

TEST(DataText, AHeaderOfFiftyOneColumnsIsNotOfTheOlderLayout) {
    const std::string header = headerLine().substr(0, 44) + "1234567";
    ASSERT_EQ(header.size(), 51U);
    EXPECT_EQ(good(header + "\r   1\x1a").facts.header, header);
    EXPECT_EQ(good(headerLine().substr(0, 44) + "\r   1\x1a").facts.header.size(), 44U);
}

TEST(DataText, AnOlderLayoutCutBeforeItsTimeEndsIsRefused) {
    const std::string header = headerLine().substr(0, 44) + "  03-15-99 10:3";
    ASSERT_EQ(header.size(), 59U);
    expectRefused(header + "\r   1\x1a", DataRefusal::badTime);
}

TEST(DataText, AMinMaxAvgTripleInOrderIsKeptAsItIs) {
    // Smallest, largest, middle, newest first: oldest first that is middle, largest, smallest.
    EXPECT_EQ(good(dataFile({'g'}, "  12  30  20")).readings, (Readings{200, 300, 120}));
}

TEST(DataText, AMinMaxAvgTripleOutOfOrderIsPutInOrder) {
    for (const char* triple :
         {"  30  20  12", "  20  12  30", "  12  20  30", "  30  12  20", "  20  30  12"})
        EXPECT_EQ(good(dataFile({'g'}, triple)).readings, (Readings{200, 300, 120})) << triple;
}

TEST(DataText, EntriesOfATripleAreAverageMaximumMinimum) {
    const Recording recording = good(dataFile({'l'}, "   5   9   7   1   3   2"));
    EXPECT_EQ(recording.readings, (Readings{20, 30, 10, 70, 90, 50}));
}

TEST(DataText, TriplesAreCountedFromTheNewestEnd) {
    const Recording recording = good(dataFile({'g'}, "  30  20  12   9   1"));
    EXPECT_EQ(recording.readings, (Readings{10, 90, 200, 300, 120})) << "the odd oldest two stay as they are";
}

TEST(DataText, AFormTFileIsNotPutInOrder) {
    EXPECT_EQ(good(dataFile({'g'}, "T:  30  20  12")).readings, (Readings{120, 200, 300}));
}

TEST(DataText, AveragesAreNotPutInOrder) {
    EXPECT_EQ(good(dataFile({'f'}, "  30  20  12")).readings, (Readings{120, 200, 300}));
}

std::string startOf(const testing::TestHeader& header, const std::string& readings) {
    return screenTime(good(dataFile(header, readings)).facts.start);
}

TEST(DataText, AHeaderTimeWithinAnIntervalMovesToTheNextBoundary) {
    // 10:07 becomes 10:15; three readings: four intervals before it.
    EXPECT_EQ(startOf({'a', "03-15-99 10:07"}, "   1   2   3"), "09:15  Mar 15, 99");
    EXPECT_EQ(screenTime(good(dataFile({'a', "03-15-99 10:07"}, "   1")).facts.headerTime),
              "10:07  Mar 15, 99");
    EXPECT_EQ(startOf({'b', "03-15-99 23:58"}, "   1   2   3"), "23:40  Mar 15, 99");
    EXPECT_EQ(startOf({'a', "12-31-99 23:50"}, "   1"), "23:30  Dec 31, 99");
}

TEST(DataText, AHeaderTimeOnABoundaryIsUsedAsItIs) {
    EXPECT_EQ(startOf({'a', "03-15-99 10:30"}, "   1   2   3"), "09:30  Mar 15, 99");
    EXPECT_EQ(startOf({'c', "03-15-99 10:07"}, "   1   2   3"), "10:03  Mar 15, 99");
    EXPECT_EQ(startOf({'a', "01-01-00 00:00"}, "   1"), "23:30  Dec 31, 99");
}

TEST(DataText, MinMaxAvgCountsIntervals) {
    // Six readings are two intervals, and one more before them.
    EXPECT_EQ(startOf({'g', "03-15-99 10:30"}, "   1   2   3   4   5   6"), "09:45  Mar 15, 99");
}

TEST(DataText, ReadingsOverAtTheOldestEndAreAnIntervalBeforeTheFirstTriple) {
    // Two whole triples end at 10:00 as six readings do; they begin at 09:45, what is over at 09:30.
    for (const char* readings : {"   1   2   3   4   5   6   7", "   1   2   3   4   5   6   7   8"}) {
        const FileFacts facts = good(dataFile({'g', "03-15-99 10:30"}, readings)).facts;
        EXPECT_EQ(screenTime(facts.start), "09:30  Mar 15, 99");
        const int newest = facts.count - 1;
        for (const int back : {0, 1, 2})
            EXPECT_EQ(screenTime(timeOf(facts, newest - back)), "10:00  Mar 15, 99") << back;
        for (const int back : {3, 4, 5})
            EXPECT_EQ(screenTime(timeOf(facts, newest - back)), "09:45  Mar 15, 99") << back;
        for (int i = 0; i < newest - 5; ++i)
            EXPECT_EQ(screenTime(timeOf(facts, i)), "09:30  Mar 15, 99") << i;
    }
    EXPECT_EQ(startOf({'g', "03-15-99 10:30"}, "T:   1   2   3   4   5   6   7"), "09:45  Mar 15, 99");
}

TEST(DataText, AFormTFileStartsOneIntervalLaterAndIsNotMoved) {
    EXPECT_EQ(startOf({'a', "03-15-99 10:07"}, "T:   1   2   3"), "09:22  Mar 15, 99");
    EXPECT_EQ(startOf({'g', "03-15-99 10:30"}, "T:   1   2   3   4   5   6"), "10:00  Mar 15, 99");
}

TEST(DataText, ExtremesAreThoseOfTheReadings) {
    const FileFacts negative = good(dataFile({}, "  -3  -7")).facts;
    EXPECT_EQ(negative.largest, -30) << "no 0 that is not in the file";
    const FileFacts positive = good(dataFile({}, "   3   7")).facts;
    EXPECT_EQ(positive.smallest, 30);
}

TEST(DataText, MoreThanTheMostReadingsKeepTheNewest) {
    std::vector<std::string> values(43000, "1");
    values.front() = "5";  // the newest
    values[42965] = "7";   // the last one that is kept
    values[42966] = "999"; // dropped
    const Recording recording = good(dataFile({'c'}, testing::fieldLines(values, 4)));
    EXPECT_EQ(recording.facts.count, 42966);
    EXPECT_EQ(recording.readings.back(), 50);
    EXPECT_EQ(recording.readings.front(), 70);
    EXPECT_EQ(recording.facts.largest, 70);
}

TEST(DataText, BadCharactersOpenAndAreCounted) {
    const Recording recording = good(dataFile({}, "  12 1x0 ???  30"));
    EXPECT_EQ(recording.readings, (Readings{300, 0, 10, 120}));
    EXPECT_EQ(recording.facts.unreadable, 2);
}

TEST(DataText, ATerminatorInTheMiddleEndsTheReading) {
    const Recording recording = good(dataFile({}, "  12  13\x1a  14"));
    EXPECT_EQ(recording.readings, (Readings{130, 120}));
    EXPECT_EQ(recording.facts.unreadable, 1);
}

TEST(DataText, AnEmptyTextHasNoHeader) {
    expectRefused("", DataRefusal::noHeader);
    expectRefused("no such letter in here\r 1 2 3\x1a", DataRefusal::noHeader);
}

TEST(DataText, AHeaderCutShortIsRefused) {
    const std::string whole = headerLine();
    for (std::size_t length = 1; length <= whole.size(); ++length) {
        const auto open = readDataText(whole.substr(0, length));
        ASSERT_FALSE(open) << length;
        const auto closed = readDataText(whole.substr(0, length) + "\r 1\x1a");
        ASSERT_EQ(closed.has_value(), length >= 44) << length;
    }
}

TEST(DataText, ATerminatorInTheHeaderIsRefused) {
    expectRefused("H1Aa \x1a" + headerLine() + "\r 1\x1a", DataRefusal::noHeader);
}

TEST(DataText, AModeLetterOutsideTheTableIsRefused) {
    for (const char mode : {'m', 'M', 'z', '0', '`', '\0', '\xE4'})
        expectRefused(dataFile({mode}, "   1"), DataRefusal::badMode);
}

TEST(DataText, AHeaderTimeThatIsNoDateIsRefused) {
    for (const char* time : {"13-15-99 10:30", "02-30-99 10:30", "03-15-99 24:00", "03-15-99 10:60",
                             "03/15/99 10:30", "              "})
        expectRefused(dataFile({'a', time}, "   1"), DataRefusal::badTime);
}

TEST(DataText, NoReadingIsRefused) {
    expectRefused(dataFile({}, ""), DataRefusal::noReadings);
    expectRefused(headerLine() + "\r", DataRefusal::noReadings);
    expectRefused(headerLine() + "\r\n\n\r \x1a", DataRefusal::noReadings);
    expectRefused(dataFile({}, "T:"), DataRefusal::noReadings);
}

TEST(DataText, AValueBeyondTenthsIsRefused) {
    expectRefused(dataFile({}, "   1327732763277"), DataRefusal::outOfRange);
    expectRefused(dataFile({}, "  1.0 3276.8"), DataRefusal::outOfRange);
}

TEST(DataText, BinaryRubbishIsRefused) {
    std::string rubbish;
    std::uint32_t state = 1;
    for (int i = 0; i < 100000; ++i) {
        state = state * 1664525U + 1013904223U;
        rubbish += static_cast<char>(state >> 24);
    }
    EXPECT_FALSE(readDataText(rubbish));
}

TEST(DataText, APartOfALongFileIsTakenOnlyWhenItHoldsAllReadings) {
    const std::string unfinished = headerLine() + "\r   1   2   3";
    const auto refused = readDataText(unfinished, true);
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error(), DataRefusal::tooLong);
    EXPECT_TRUE(readDataText(unfinished + "\x1a", true));
    std::string full = headerLine() + "\r";
    for (int i = 0; i < 43050; ++i)
        full += "   1";
    EXPECT_TRUE(readDataText(full, true));
}

TEST(DataText, AFileIsCompleteWhenItsEndMarkIsThere) {
    EXPECT_TRUE(good(dataFile({}, "  12  30   7")).facts.complete);
    EXPECT_TRUE(good(headerLine() + "\r  12  30\x1a").facts.complete);
    EXPECT_FALSE(good(headerLine() + "\r  12  30").facts.complete);
    EXPECT_FALSE(good("\"\r\n\n\n" + headerLine() + "\r  12  30\"\r\n").facts.complete);
    EXPECT_FALSE(good(headerLine() + "\rT:  12  30\r\n").facts.complete);
}

TEST(DataText, AFileWithMoreItemsThanAreReadIsCompleteAllTheSame) {
    std::string text = headerLine() + "\r";
    for (int i = 0; i < 43060; ++i)
        text += "   1";
    EXPECT_FALSE(good(text).facts.complete);
    EXPECT_TRUE(good(text + "\x1a").facts.complete);
}

// Cut at any byte, a file opens as incomplete or not at all.
TEST(DataText, AFileCutAnywhereIsNeverComplete) {
    const std::string whole = dataFile({}, "  12  30   7 104");
    const auto mark = whole.find('\x1a');
    for (std::size_t length = 0; length <= mark; ++length) {
        const auto cut = readDataText(whole.substr(0, length));
        EXPECT_FALSE(cut && cut->facts.complete) << length;
    }
    EXPECT_TRUE(good(whole.substr(0, mark + 1)).facts.complete);
}

TEST(DataText, NumbersThatTouchAsNoSaveWritesThemAreRefused) {
    expectRefused(dataFile({}, "   40000"), DataRefusal::touching);
    expectRefused(dataFile({}, "  1200001 5"), DataRefusal::touching);
}

} // namespace
} // namespace tally
