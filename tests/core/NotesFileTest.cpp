// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/NotesFile.h"

#include "core/Fault.h"
#include "support/MemoryFiles.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

TEST(NotesFile, ItsPathIsTheDataFilesWithOtherLastThreeCharacters) {
    EXPECT_EQ(notesPath("/data/feeder.dat"), "/data/feeder.not");
}

TEST(NotesFile, FourLinesAreFourNotes) {
    EXPECT_EQ(parseNotes("North\r\nCircuit 7\r\nJohn\r\nSpare\r\n"),
              (Notes{"North", "Circuit 7", "John", "Spare"}));
    EXPECT_EQ(parseNotes("North\nCircuit 7\rJohn\r\nSpare"), (Notes{"North", "Circuit 7", "John", "Spare"}));
}

TEST(NotesFile, CommasSeparateTooAndBlanksAfterThemAreDropped) {
    EXPECT_EQ(parseNotes("North,  Circuit 7,John\r\nSpare\r\n"),
              (Notes{"North", "Circuit 7", "John", "Spare"}));
    EXPECT_EQ(parseNotes("North,\r\nJohn\r\n"), (Notes{"North", "", "John", ""}));
}

TEST(NotesFile, ANoteWithACommaIsSplitAndTheFieldsAfterItShift) {
    EXPECT_EQ(parseNotes("North, gate 2\r\nCircuit 7\r\nJohn\r\nSpare\r\n"),
              (Notes{"North", "gate 2", "Circuit 7", "John"}));
}

TEST(NotesFile, QuotedItemsMayHoldCommas) {
    EXPECT_EQ(parseNotes("\"North, gate 2\",\"7\"\r\n \"John\" \r\nSpare"),
              (Notes{"North, gate 2", "7", "John", "Spare"}));
    EXPECT_EQ(parseNotes("\"\"\r\nB"), (Notes{"", "B", "", ""}));
}

TEST(NotesFile, AQuoteThatIsNotClosedBeforeASeparatorIsPlainText) {
    EXPECT_EQ(parseNotes("\"Main\" feeder\r\n\"open\r\n5\" pipe\r\n\"\r\n"),
              (Notes{"\"Main\" feeder", "\"open", "5\" pipe", "\""}));
}

TEST(NotesFile, AnEmptyLineIsAnEmptyNote) {
    EXPECT_EQ(parseNotes("\r\nB\r\n\r\nD\r\n"), (Notes{"", "B", "", "D"}));
}

TEST(NotesFile, WhatIsMissingIsEmptyAndWhatIsOverIsPassedOver) {
    EXPECT_EQ(parseNotes(""), Notes{});
    EXPECT_EQ(parseNotes("A\r\nB"), (Notes{"A", "B", "", ""}));
    EXPECT_EQ(parseNotes("A\r\nB\r\nC\r\nD\r\nE\r\n"), (Notes{"A", "B", "C", "D"}));
    EXPECT_EQ(parseNotes("A\x1aignored\r\nB"), (Notes{"A", "", "", ""}));
}

TEST(NotesFile, BytesAreWindows1252UnlessAByteOrderMarkSaysUtf8) {
    EXPECT_EQ(parseNotes("M\xFCller\r\n\x80")[0], "Müller");
    EXPECT_EQ(parseNotes("M\xFCller\r\n\x80")[1], "€");
    EXPECT_EQ(parseNotes("\xEF\xBB\xBFŁódź\r\nMüller\r\n"), (Notes{"Łódź", "Müller", "", ""}));
    EXPECT_EQ(parseNotes("\xEF\xBB\xBF\xFC")[0], "\xEF\xBF\xBD") << "never anything but UTF-8 inside";
}

TEST(NotesFile, IsWrittenAsFourPlainLines) {
    EXPECT_EQ(formatNotes({"North", "", "a \"b\"", "Müller"}), "North\r\n\r\na \"b\"\r\nM\xFCller\r\n");
}

TEST(NotesFile, IsWrittenInUtf8WhereACharacterDoesNotFit) {
    EXPECT_EQ(formatNotes({"Łódź", "Müller", "", ""}), "\xEF\xBB\xBFŁódź\r\nMüller\r\n\r\n\r\n");
}

TEST(NotesFile, ALineBreakInsideANoteBecomesABlank) {
    EXPECT_EQ(formatNotes({"a\r\nb\nc\rd", "\x1a", "", ""}), "a b c d\r\n \r\n\r\n\r\n");
}

TEST(NotesFile, WhatIsWrittenIsReadBack) {
    const Notes all[] = {{"", "", "", ""},
                         {" North ", "7", "a \"b\"", "Müller €"},
                         {"Łódź", "\"x", "ï»¿", "東京"},
                         {"ï»¿looks like a mark", "Müller", "", ""}};
    for (const Notes& notes : all)
        EXPECT_EQ(parseNotes(formatNotes(notes)), notes) << notes[0];
}

class NotesOfASlot : public ::testing::Test {
protected:
    NotesOfASlot() {
        recordings.gInfo[1].path = "/d/a.dat";
        recordings.gNotes[1] = {"old", "", "", ""};
    }
    Recordings recordings;
    testing::MemoryFiles files;
};

TEST_F(NotesOfASlot, AreWrittenAndKept) {
    saveNotes(recordings, files, 1, {"North", "7", "two\r\nlines", ""});
    EXPECT_EQ(files.contents.at("/d/a.not"), "North\r\n7\r\ntwo lines\r\n\r\n");
    EXPECT_EQ(recordings.gNotes[1], (Notes{"North", "7", "two lines", ""}));
    EXPECT_EQ(readNotes(files, "/d/a.dat"), recordings.gNotes[1]);
}

TEST_F(NotesOfASlot, StayAsTheyWereWhenTheFileCannotBeWritten) {
    files.contents["/d/a.not"] = "old\r\n";
    for (const Fault& why : {fault::permissionDenied(), fault::diskFull()}) {
        files.failWrite = why;
        EXPECT_THROW(saveNotes(recordings, files, 1, {"North", "", "", ""}), Fault);
    }
    EXPECT_EQ(recordings.gNotes[1][0], "old");
    EXPECT_EQ(files.contents.at("/d/a.not"), "old\r\n");
}

TEST_F(NotesOfASlot, NeverReplaceADataFileOfTheSameName) {
    recordings.gInfo[1].path = "/d/a.not";
    files.contents["/d/a.not"] = "the recording";
    EXPECT_THROW(saveNotes(recordings, files, 1, {"North", "", "", ""}), Fault);
    EXPECT_EQ(files.contents.at("/d/a.not"), "the recording");
    EXPECT_EQ(readNotes(files, "/d/a.not"), Notes{});
}

TEST_F(NotesOfASlot, NotesThatCouldNotBeReadAreNeverReplaced) {
    recordings.gInfo[1].notesUnreadable = true;
    files.contents["/d/a.not"] = "old\r\n";
    files.failRead = fault::permissionDenied();
    try {
        saveNotes(recordings, files, 1, {"North", "", "", ""});
        ADD_FAILURE() << "written";
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.number(), 70);
    }
    files.failRead.reset();
    EXPECT_THROW(saveNotes(recordings, files, 1, {"North", "", "", ""}), Fault)
        << "readable again, but not seen";
    EXPECT_EQ(files.contents.at("/d/a.not"), "old\r\n");
    EXPECT_EQ(recordings.gNotes[1][0], "old");
}

TEST_F(NotesOfASlot, AMissingFileIsNoError) {
    EXPECT_EQ(readNotes(files, "/d/none.dat"), Notes{});
    files.contents["/d/a.not"] = "x";
    files.failRead = fault::permissionDenied();
    EXPECT_THROW(readNotes(files, "/d/a.dat"), Fault);
}

} // namespace
} // namespace tally
