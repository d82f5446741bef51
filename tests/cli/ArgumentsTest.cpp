// SPDX-License-Identifier: GPL-3.0-or-later
// What is typed on the command line, and what it cannot mean.
#include "support/Places.h"
#include "support/Process.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace tally {
namespace {

using testing::Finished;
using ::testing::HasSubstr;
using testing::runProgram;
using ::testing::StartsWith;
using testing::TemporaryFolder;

struct Arguments : ::testing::Test {
    TemporaryFolder folder;
    std::string bytes = "PQXa   1234" + std::string(19, ' ') + "03-15-24 10:00   Vbatt 3E8\r  30  20  10\x1a";
    std::string file = folder.write("a.dat", bytes);

    static Finished run(const std::vector<std::string>& arguments) {
        return runProgram("tallyline-cli", arguments);
    }
};

TEST_F(Arguments, AnEmptyValueAfterTheEqualsSignIsNotTheNextArgument) {
    const std::string to = folder.path("f.dat");
    // No leading number is 0, and the range is the one that was typed: the oldest reading alone.
    EXPECT_EQ(run({"force", file, "-o", to, "--value=", "--from", "0", "--to", "0"}).status, 0);
    EXPECT_THAT(TemporaryFolder::read(to), HasSubstr("\r  30  20   0\x1a"));
    EXPECT_EQ(run({"notes", file, "--location=East", "--circuit=12"}).status, 0);
    EXPECT_EQ(run({"notes", file, "--location=", "--name", "J"}).status, 0);
    EXPECT_EQ(run({"notes", file}).out, "Location: \nCircuit: 12\nName: J\nOther: \n");
}

TEST_F(Arguments, AnEmptyNameOfAFileFolderOrTimeIsWrongUsage) {
    const std::vector<std::vector<std::string>> calls = {
        {"info", file, "--at", ""},
        {"save", file, "-o", ""},
        {"force", file, "--value", "1", "-o", ""},
        {"check", file, "-o", ""},
        {"check", file, "--runspec", ""},
        {"plot", file, "--json", "-o", ""},
        {"study", file, "-o", ""},
        {"export", "csv", file, "--dir", ""},
        {"export", "table", file, "-o", ""},
        {"batch", "study", file, "-o", ""},
        {"survey", "--station", "N", "--feeder", "A:" + file + "," + file + "," + file, "--print", ""}};
    for (const auto& call : calls) {
        const Finished done = run(call);
        EXPECT_EQ(done.status, 2) << call[0] << " " << call[1];
        EXPECT_EQ(done.out, "") << call[0] << " " << call[1];
        EXPECT_THAT(done.err, HasSubstr("'' names nothing")) << call[0] << " " << call[1];
    }
}

TEST_F(Arguments, AnEmptyScaleIsNoNumber) {
    const Finished done = run({"plot", file, "--json", "--ymin", ""});
    EXPECT_EQ(done.status, 1);
    EXPECT_THAT(done.err, StartsWith("Type mismatch"));
}

TEST_F(Arguments, WordsThatNoCommandTakesAreNamedAsTheyWereTyped) {
    const Finished more = run({"export", "gridlabd", file, "-o", "x.player", "--from", "1", "--to", "2"});
    EXPECT_EQ(more.status, 2);
    EXPECT_THAT(more.err, StartsWith("Not expected: '--from', '1', '--to', '2'\n"));
    EXPECT_THAT(run({"bogus", file}).err, StartsWith("There is no such command of tallyline-cli: 'bogus'"));
    EXPECT_THAT(run({"batch", "loading", file}).err,
                StartsWith("There is no such command of batch: 'loading'"));
}

TEST_F(Arguments, HelpThatCannotBeWrittenIsAFailure) {
    const std::string program = ::testing::binDir() + "/tallyline-cli";
    for (const char* asked : {" --help", " --version", " info --help"})
        EXPECT_EQ(WEXITSTATUS(std::system((program + asked + " >/dev/full 2>/dev/null").c_str())), 1)
            << asked;
}

TEST_F(Arguments, APrintedSurveyNeverReplacesADataFile) {
    const Finished done =
        run({"survey", "--station", "N", "--feeder", "A:" + file + "," + file + "," + file, "--print", file});
    EXPECT_EQ(done.status, 2);
    EXPECT_THAT(done.err, HasSubstr("must end in .pdf"));
    EXPECT_EQ(TemporaryFolder::read(file), bytes);
}

TEST_F(Arguments, ARangeOfAFileWithoutAnyTripleIsNotSentToAReadingThatItLacks) {
    std::string mma = bytes;
    mma[3] = 'g';
    const std::string two = folder.write("g.dat", mma.substr(0, mma.find('\r') + 1) + "  30  20\x1a");
    const Finished done = run({"readings", two, "--from", "0", "--to", "1"});
    EXPECT_EQ(done.status, 2);
    EXPECT_THAT(done.err, HasSubstr("the oldest 2 of this file are less than three. It has no others; leave "
                                    "the range out\n"));
}

} // namespace
} // namespace tally
