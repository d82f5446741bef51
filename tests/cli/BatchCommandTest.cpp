// SPDX-License-Identifier: GPL-3.0-or-later
// Commands over many files, run as a user's script runs them.
#include "Started.h"
#include "support/Process.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace tally {
namespace {

namespace fs = std::filesystem;
using testing::runProgram;
using testing::Started;
using testing::TemporaryFolder;

std::string dataFile(int first) {
    std::string text = "PQXa   1234" + std::string(19, ' ') + "03-15-24 01:30   Vbatt 3E8\r";
    for (int i = 4; i >= 0; --i)
        text += " " + std::to_string(first + 10 * i);
    return text + "\x1a";
}

class Batch : public ::testing::Test {
protected:
    TemporaryFolder folder;
    std::string in = folder.path("in");
    std::string out = folder.path("out");

    void SetUp() override {
        fs::create_directories(in + "/north");
        folder.write("in/b.dat", dataFile(100));
        folder.write("in/a.dat", dataFile(10));
        folder.write("in/north/c.dat", dataFile(200));
    }
    testing::Finished batch(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), "batch");
        return runProgram("tallyline-cli", arguments);
    }
    std::vector<std::string> results() const {
        std::vector<std::string> names;
        if (fs::exists(out))
            for (const auto& entry : fs::directory_iterator(out))
                names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
};

using Names = std::vector<std::string>;

TEST_F(Batch, TextHasALineWithThePathBeforeEachResult) {
    const auto run = batch({"table", in, "--to", "0"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.err, "3 done, 0 failed\n");
    std::string expected;
    for (const std::string& path : Names{in + "/a.dat", in + "/b.dat", in + "/north/c.dat"})
        expected += "== " + path + "\n" + runProgram("tallyline-cli", {"table", path, "--to", "0"}).out;
    EXPECT_EQ(run.out, expected);
}

TEST_F(Batch, JsonIsOneDocumentALineWithItsPath) {
    const auto info = batch({"info", "--json", in});
    EXPECT_EQ(std::count(info.out.begin(), info.out.end(), '\n'), 3);
    EXPECT_NE(info.out.find("\"path\":\"" + in + "/north/c.dat\""), std::string::npos) << info.out;
    const auto check = batch({"check", "--json", in + "/a.dat"});
    EXPECT_EQ(check.out.find("{\"path\":\"" + in + "/a.dat\",\"badLines\":"), 0U) << check.out;
}

TEST_F(Batch, TheNumberOfWorkersChangesNothing) {
    const auto one = batch({"summary", in, in, "-j", "1", "--at", "03-16-24 10:00"});
    const auto four = batch({"summary", in, in, "-j", "4", "--at", "03-16-24 10:00"});
    EXPECT_EQ(one.out, four.out);
    EXPECT_EQ(one.err, "6 done, 0 failed\n");
}

TEST_F(Batch, ABadFileIsToldAndSkipped) {
    const std::string bad = folder.write("in/bad.dat", "nothing");
    const auto run = batch({"info", "--json", in, folder.path("none.dat")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 3);
    EXPECT_EQ(run.err, bad + ": Error in processing file\n" + folder.path("none.dat") +
                           ": File not found\n3 done, 2 failed\n");
}

TEST_F(Batch, ATextWithErrorsCountsAsFailed) {
    const auto run = batch({"check", "--json", folder.write("in/bad.dat", "?" + dataFile(1)), in + "/a.dat"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 2);
    EXPECT_NE(run.err.find("failed\n"), std::string::npos);
}

TEST_F(Batch, ARangeOutsideOneFileFailsThatFileOnly) {
    const std::string shorter = folder.write("short.dat", "PQXa   1234" + std::string(19, ' ') +
                                                              "03-15-24 01:30   Vbatt 3E8\r 10 20\x1a");
    const auto run = batch({"table", shorter, in + "/a.dat", "--from", "3"});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("1 done, 1 failed\n"), std::string::npos) << run.err;
}

TEST_F(Batch, AnEmptyFolderIsDone) {
    fs::create_directory(folder.path("empty"));
    const auto run = batch({"info", folder.path("empty")});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "0 done, 0 failed\n");
}

TEST_F(Batch, ResultsGoIntoAFolderUnderTheNameOfTheirFile) {
    const auto run = batch({"export", "table", in, "-o", out, "--decimal", "comma"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(results(), (Names{"a.csv", "b.csv", "north-c.csv"}));
    EXPECT_EQ(TemporaryFolder::read(out + "/a.csv").substr(0, 45),
              "Time;a.dat\r\n2024-03-15 00:00;10,0\r\n2024-03-15");
    EXPECT_EQ(run.out.find("== " + in + "/a.dat\n" + out + "/a.csv saved OK\n"), 0U) << run.out;
}

TEST_F(Batch, EveryExportHasAFileOfItsOwn) {
    EXPECT_EQ(batch({"export", "csv", in, "-o", out}).status, 0);
    EXPECT_EQ(batch({"export", "text", in, "-o", out}).status, 0);
    EXPECT_EQ(batch({"export", "opendss", in + "/a.dat", "-o", out}).status, 0);
    EXPECT_EQ(batch({"export", "gridlabd", in, "-o", out}).status, 0);
    EXPECT_EQ(batch({"export", "table", in + "/a.dat", "-o", out, "--format", "xlsx"}).status, 0);
    EXPECT_EQ(results(), (Names{"a-a.csv", "a.csv", "a.dss", "a.player", "a.prn", "a.xlsx", "b.csv",
                                "b.player", "b.prn", "north-c.csv", "north-c.player", "north-c.prn"}));
    EXPECT_FALSE(fs::exists(in + "/a.prn"));
}

TEST_F(Batch, PicturesAreThoseOfThePlotCommand) {
    const auto run = batch({"plot", in, "-o", out, "-j", "2", "--at", "03-16-24 10:00"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(results(), (Names{"a.png", "b.png", "north-c.png"}));
    runProgram("tallyline-cli",
               {"plot", in + "/b.dat", "-o", folder.path("one.png"), "--at", "03-16-24 10:00"});
    EXPECT_EQ(TemporaryFolder::read(out + "/b.png"), TemporaryFolder::read(folder.path("one.png")));
    EXPECT_EQ(batch({"plot", in + "/a.dat", "-o", out, "--format", "svg"}).status, 0);
    EXPECT_TRUE(fs::exists(out + "/a.svg"));
}

TEST_F(Batch, AResultNeverReplacesAFileOfTheList) {
    const std::string before = TemporaryFolder::read(in + "/a.dat");
    const auto run = batch({"check", in + "/a.dat", "-o", in});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("would replace a file of the list"), std::string::npos) << run.err;
    EXPECT_EQ(TemporaryFolder::read(in + "/a.dat"), before);
}

TEST_F(Batch, WrongArgumentsAreWrongUsage) {
    for (const auto& arguments :
         std::vector<std::vector<std::string>>{{},
                                               {"info"},
                                               {"nothing", in},
                                               {"info", in, "-j", "0"},
                                               {"info", in, "--volts", "3"},
                                               {"export", in},
                                               {"export", "csv", in},
                                               {"export", "table", in, "-o", out, "--format", "png"},
                                               {"plot", in},
                                               {"plot", in, "-o", out, "--size", "5"},
                                               {"table", in, "--from", "x"},
                                               {"table", in, "--from", "3", "--to", "1"},
                                               {"info", in, "--at", "noon"}}) {
        const auto run = batch(arguments);
        EXPECT_EQ(run.status, 2) << (arguments.empty() ? "" : arguments.front() + " " + arguments.back())
                                 << run.err;
        EXPECT_EQ(run.out, "");
        EXPECT_NE(run.err.find("Usage: tallyline-cli batch"), std::string::npos) << run.err;
    }
}

TEST_F(Batch, AnInterruptLeavesOnlyWholeFiles) {
    for (int i = 0; i < 400; ++i)
        fs::copy_file(in + "/a.dat", in + "/x" + std::to_string(i) + ".dat");
    Started run("tallyline-cli", {"batch", "plot", in, "-o", out, "-j", "1"});
    ASSERT_TRUE(run.says("== " + in + "/a.dat\n"));
    run.interrupt();
    EXPECT_EQ(run.end(), 130);
    EXPECT_LT(results().size(), 403U);
    for (const std::string& name : results()) {
        ASSERT_TRUE(name.ends_with(".png")) << name;
        EXPECT_EQ(TemporaryFolder::read(out + "/" + name).substr(1, 3), "PNG");
    }
}

} // namespace
} // namespace tally
