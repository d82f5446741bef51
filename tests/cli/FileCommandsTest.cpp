// SPDX-License-Identifier: GPL-3.0-or-later
// The commands on files, run as a user's script runs them. The small recordings are written here, so that
// every expected value can be worked out on paper.
#include "support/Process.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tally {
namespace {

using testing::runProgram;
using testing::TemporaryFolder;

// Columns 1-3 model, 4 mode, 8-11 serial, 31-44 time, 45-52 "   Vbatt".
std::string header(char mode, const std::string& time = "03-15-24 10:00", const std::string& model = "PQX") {
    return model + mode + "   " + "1234" + std::string(19, ' ') + time + "   Vbatt 3E8\r";
}

// Newest first: in a file that is not of the T form reading 0 lies count + 1 intervals before the header
// time.
const std::string fourHigh = header('a') + "  40  30  20  10\x1a";
const std::string fourLow = header('b') + " 40.5 30.5 20.5 10.5\x1a";

struct FileCommands : ::testing::Test {
    TemporaryFolder folder;
    std::string high = folder.write("high.dat", fourHigh);
    std::string low = folder.write("low.dat", fourLow);
};

TEST_F(FileCommands, InfoPrintsTheFactsAsJson) {
    folder.write("high.not", "North, 12kV\r\nFeeder 7\r\n\r\n");
    const auto run = runProgram("tallyline-cli", {"info", high, "--json"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.err, "");
    for (const char* fact :
         {R"("mode": "a")", R"("serial": "1234")", R"("start": "08:45  Mar 15, 24")", R"("count": 4)",
          R"("type": "X")", R"("max": 40.0)", R"("min": 10.0)", R"("range": "HIGH")",
          R"("headerTime": "10:00  Mar 15, 24")", R"("forced": 0)", R"("interval": 15)",
          R"("whenFull": "Cont")", R"("unreadable": 0)", R"("North")", R"("12kV")", R"("Feeder 7")"})
        EXPECT_NE(run.out.find(fact), std::string::npos) << fact << "\n" << run.out;
}

TEST_F(FileCommands, AFileIsKnownByItsFullPathFromWhereverItIsNamed) {
    const std::string near = std::filesystem::relative(high).string();
    ASSERT_NE(near, high);
    const auto run = runProgram("tallyline-cli", {"info", near, "--json"});
    EXPECT_NE(run.out.find("\"path\": \"" + high + "\""), std::string::npos) << run.out;
}

TEST_F(FileCommands, ReadingsPrintsIndexTimeAndValue) {
    const auto run = runProgram("tallyline-cli", {"readings", low, "--from", "1", "--to", "2"});
    EXPECT_EQ(run.status, 0) << run.err;
    // 10:00 less five intervals of 5 minutes is reading 0 at 09:35.
    EXPECT_EQ(run.out, "1,09:40  Mar 15, 24,20.5\n2,09:45  Mar 15, 24,30.5\n");
}

TEST_F(FileCommands, SaveWritesTheRangeWithTheTimeOfItsNewestReading) {
    const auto run =
        runProgram("tallyline-cli", {"save", low, "-o", folder.path("out.dat"), "--from", "0", "--to", "1"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(TemporaryFolder::read(folder.path("out.dat")),
              "\"\r\n\n\n" + header('b', "03-15-24 09:40") + " 20.5 10.5\x1a\"\r\n");
}

TEST_F(FileCommands, BadRangesAreWrongUsage) {
    for (const auto& range : std::vector<std::vector<std::string>>{{"--from", "x"},
                                                                   {"--from", ""},
                                                                   {"--from", "3", "--to", "1"},
                                                                   {"--to", "4"},
                                                                   {"--from", "-1"},
                                                                   {"--from", "1.5"}}) {
        std::vector<std::string> arguments = {"readings", high};
        arguments.insert(arguments.end(), range.begin(), range.end());
        const auto run = runProgram("tallyline-cli", arguments);
        EXPECT_EQ(run.status, 2) << range[1];
        EXPECT_EQ(run.out, "");
        EXPECT_NE(run.err.find("Usage: tallyline-cli readings"), std::string::npos) << run.err;
    }
}

TEST_F(FileCommands, RefusalsSayTheFixedWordsAndWriteNothing) {
    const auto missing = runProgram("tallyline-cli", {"info", folder.path("none.dat")});
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.err, "File not found\n" + folder.path("none.dat") +
                               "\nCheck its name and folder; it may have been moved or renamed.\n");
    EXPECT_EQ(missing.out, "");
    const auto damaged = runProgram("tallyline-cli", {"info", folder.write("bad.dat", "no recording")});
    EXPECT_EQ(damaged.status, 1);
    EXPECT_EQ(damaged.err,
              "Error in processing file\n" + folder.path("bad.dat") +
                  "\nIt has no header of an instrument. The file was not changed. Try another copy of "
                  "it, or download again.\n");
    const auto mixed = runProgram("tallyline-cli", {"plot", high, low, "--json"});
    EXPECT_EQ(mixed.status, 1);
    EXPECT_EQ(mixed.err.find("Mode mixing not allowed\n" + low + "\n"), 0U) << mixed.err;
    const auto nowhere = runProgram("tallyline-cli", {"save", high, "-o", folder.path("no/such/out.dat")});
    EXPECT_EQ(nowhere.status, 1);
    EXPECT_EQ(nowhere.err,
              "Path not found\n" + folder.path("no/such/out.dat") +
                  " was not written.\nIts folder is not there. Make it, or choose another one.\n");
}

// Five readings of a Min/Max/Avg file: the triple 2 to 4, and two that are left of an older one.
TEST_F(FileCommands, ARangeThatHoldsNoWholeTripleIsExplained) {
    const auto triples = folder.write("g.dat", header('g') + "  12  30  20  11  21\x1a");
    const auto run = runProgram("tallyline-cli", {"readings", triples, "--from", "0", "--to", "0"});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(
        run.err.find("the oldest 2 of this file are less than three. Take a range that reaches reading 2\n"),
        std::string::npos)
        << run.err;
}

TEST_F(FileCommands, AFileWithoutItsEndMarkIsSaidToBeIncomplete) {
    const auto cut = folder.write("cut.dat", fourHigh.substr(0, fourHigh.size() - 2));
    const auto run = runProgram("tallyline-cli", {"info", cut, "--json"});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("\"complete\": false"), std::string::npos) << run.out;
    EXPECT_EQ(run.err,
              cut + ": ends without its end mark; it may have been cut; 4 readings, the oldest number may "
                    "be incomplete\n");
    EXPECT_NE(runProgram("tallyline-cli", {"info", high, "--json"}).out.find("\"complete\": true"),
              std::string::npos);
    // Saved, it is whole.
    EXPECT_EQ(runProgram("tallyline-cli", {"save", cut, "-o", folder.path("whole.dat")}).status, 0);
    EXPECT_EQ(runProgram("tallyline-cli", {"info", folder.path("whole.dat")}).err, "");
}

// Latin-1 names: the bytes E4 and F6 alone are no UTF-8, and are shown as the same replacement character.
TEST_F(FileCommands, NamesThatAreNoUtf8AreTakenAsTheyStand) {
    const std::string one = folder.write("k\xE4.dat", fourHigh);
    const std::string other = folder.path("k\xF6.dat");
    const auto saved = runProgram("tallyline-cli", {"save", one, "-o", other, "--from", "0", "--to", "1"});
    EXPECT_EQ(saved.status, 0) << saved.err;
    EXPECT_EQ(TemporaryFolder::read(one), fourHigh);
    EXPECT_NE(TemporaryFolder::read(other).find("  20  10\x1a"), std::string::npos);
    EXPECT_EQ(runProgram("tallyline-cli", {"notes", one, "--location", "North"}).status, 0);
    EXPECT_EQ(TemporaryFolder::read(folder.path("k\xE4.not")), "North\r\n\r\n\r\n\r\n");
    EXPECT_NE(runProgram("tallyline-cli", {"info", one}).out.find("k\xE4.dat\n"), std::string::npos);
    EXPECT_NE(runProgram("tallyline-cli", {"info", one, "--json"}).out.find("k\xEF\xBF\xBD.dat"),
              std::string::npos);
}

TEST_F(FileCommands, WrongCallsEndWithTwoAndAUsageLine) {
    for (const auto& arguments :
         std::vector<std::vector<std::string>>{{},
                                               {"fly"},
                                               {"info"},
                                               {"info", high, "--colour"},
                                               {"plot", high},
                                               {"plot", high, "-o", "x.gif"},
                                               {"plot", high, "-o", "x.png", "--size", "huge"},
                                               {"plot", high, high, high, high, "--json"},
                                               {"info", high, "--at", "yesterday"}}) {
        const auto run = runProgram("tallyline-cli", arguments);
        EXPECT_EQ(run.status, 2) << run.err;
        EXPECT_NE(run.err.find("Usage: tallyline-cli"), std::string::npos) << run.err;
    }
}

TEST_F(FileCommands, AWordThatIsNoCommandIsNamed) {
    const auto word = runProgram("tallyline-cli", {"infos", high});
    EXPECT_EQ(word.status, 2);
    EXPECT_NE(word.err.find("infos"), std::string::npos) << word.err;
    const auto nothing = runProgram("tallyline-cli", {});
    EXPECT_EQ(nothing.status, 2);
    EXPECT_EQ(nothing.err.rfind("Name a command\nUsage: tallyline-cli COMMAND", 0), 0U) << nothing.err;
}

TEST_F(FileCommands, ItemsThatAreNoNumbersAreWarnedOf) {
    const auto file = folder.write("odd.dat", header('a') + "  40 A30  20  10\x1a");
    const auto run = runProgram("tallyline-cli", {"info", file, "--json"});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find(R"("unreadable": 1)"), std::string::npos);
    EXPECT_NE(run.err.find("1 item could"), std::string::npos) << run.err;
}

TEST_F(FileCommands, TableHasHeadingAndLines) {
    const auto run = runProgram("tallyline-cli", {"table", high});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, " Time     Date                            Eight readings of average\r\n"
                       "08:45  Mar 15, 24          010       020       030       040   \r\n");
}

TEST_F(FileCommands, PowerOfOneFile) {
    const auto run = runProgram("tallyline-cli", {"power", high, "--volts", "10000", "--json"});
    EXPECT_EQ(run.status, 0) << run.err;
    // 10, 20, 30, 40 A at 10 kV; the energy leaves out the first reading: 900 kW x 15 / 60.
    EXPECT_NE(run.out.find(R"("energy": "225 KWHR")"), std::string::npos) << run.out;
    for (const char* value : {"100.0,", "200.0,", "300.0,", "400.0"})
        EXPECT_NE(run.out.find(value), std::string::npos) << value;
    const auto volts = runProgram(
        "tallyline-cli",
        {"power", folder.write("v.dat", header('a', "03-15-24 10:00", "HVV") + "  40  30\x1a"), "--json"});
    EXPECT_EQ(volts.status, 1);
    EXPECT_EQ(volts.err, "Files must all be amps for power to plot\n");
}

TEST_F(FileCommands, PlotWritesPictures) {
    for (const char* name : {"p.png", "p.pdf", "p.svg"}) {
        const auto run = runProgram("tallyline-cli", {"plot", high, "-o", folder.path(name)});
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_GT(TemporaryFolder::read(folder.path(name)).size(), 1000U) << name;
    }
    EXPECT_EQ(TemporaryFolder::read(folder.path("p.png")).substr(1, 3), "PNG");
    EXPECT_EQ(TemporaryFolder::read(folder.path("p.pdf")).substr(0, 5), "%PDF-");
    const auto json = runProgram("tallyline-cli", {"plot", high, "--json", "--at", "03-20-24 09:00"});
    EXPECT_NE(json.out.find(R"("ytitle": "AMPS")"), std::string::npos) << json.out;
    EXPECT_NE(json.out.find("Date printed   Mar-20-24"), std::string::npos) << json.out;
}

TEST_F(FileCommands, NotesAreSetAndComeBack) {
    const auto set =
        runProgram("tallyline-cli", {"notes", high, "--location", "North yard", "--other", "spare"});
    EXPECT_EQ(set.status, 0) << set.err;
    EXPECT_EQ(TemporaryFolder::read(folder.path("high.not")), "North yard\r\n\r\n\r\nspare\r\n");
    const auto shown = runProgram("tallyline-cli", {"notes", high});
    EXPECT_EQ(shown.out, "Location: North yard\nCircuit: \nName: \nOther: spare\n");
    const auto json = runProgram("tallyline-cli", {"notes", high, "--json"});
    EXPECT_EQ(json.out, "{\n  \"location\": \"North yard\",\n  \"circuit\": \"\",\n  \"name\": \"\",\n"
                        "  \"other\": \"spare\"\n}\n");
}

TEST_F(FileCommands, NotesThatCannotBeReadAreNotReplaced) {
    std::filesystem::create_directory(folder.path("high.not"));
    const auto set = runProgram("tallyline-cli", {"notes", high, "--name", "x"});
    EXPECT_EQ(set.status, 1);
    EXPECT_NE(set.err.find(folder.path("high.not") + " was not written."), std::string::npos) << set.err;
    EXPECT_TRUE(std::filesystem::is_directory(folder.path("high.not")));
}

TEST_F(FileCommands, ForceChangesTheRangeAndSavesTheWholeFile) {
    const auto run = runProgram("tallyline-cli", {"force", low, "-o", folder.path("f.dat"), "--value", "7.5",
                                                  "--from", "1", "--to", "2", "--which", "right"});
    EXPECT_EQ(run.status, 0) << run.err;
    const auto bytes = TemporaryFolder::read(folder.path("f.dat"));
    EXPECT_NE(bytes.find(" 40.5  7.5 20.5 10.5\x1a"), std::string::npos) << bytes;
    EXPECT_EQ(TemporaryFolder::read(low), fourLow);
    const auto refused =
        runProgram("tallyline-cli", {"force", low, "-o", folder.path("g.dat"), "--value", "100"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err,
              "Error - New reading is outside the allowable range.\r\n  - Must be between 0 and 99.9\n");
    EXPECT_EQ(TemporaryFolder::read(folder.path("g.dat")), "");
}

} // namespace
} // namespace tally
