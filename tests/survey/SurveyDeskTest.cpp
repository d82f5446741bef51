// SPDX-License-Identifier: GPL-3.0-or-later
#include "survey/SurveyDesk.h"

#include "SurveySample.h"
#include "core/Fault.h"
#include "support/MemoryFiles.h"
#include "support/QueuedPrompt.h"
#include "survey/SurveyReport.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::dataFile;
using testing::Tenths;

constexpr const char* unknownFile = "Unknown File Error; Check";

class Desk : public ::testing::Test {
protected:
    SurveyData survey;
    testing::MemoryFiles files;
    testing::QueuedPrompt prompt;
    SurveyDesk desk{survey};

    Desk() {
        files.contents["/d/r.dat"] = dataFile({10, 50, 20});
        files.contents["/d/w.dat"] = dataFile({11, 21, 61});
        files.contents["/d/b.dat"] = dataFile({72, 32, 12});
    }
    // What refused the file, as it is told; empty when it was taken.
    std::string load(int phase, const std::string& path) {
        const auto loaded = desk.load(phase, path, files);
        return loaded ? "" : loaded.error().message();
    }
    void loadAll() {
        EXPECT_EQ(load(0, "/d/r.dat"), "");
        EXPECT_EQ(load(1, "/d/w.dat"), "");
        EXPECT_EQ(load(2, "/d/b.dat"), "");
    }
    // Which controls can be used: options, PROCEED, phases, result, station, both print buttons.
    std::string usable() const {
        const SurveyControls c = desk.controls();
        std::string all;
        for (const bool option : c.options)
            all += option ? 'o' : '-';
        all += c.proceed ? " P " : " - ";
        for (const bool phase : c.phases)
            all += phase ? 'p' : '-';
        return all + (c.showResult ? " R" : " -") + (c.showStationPeak ? " S" : " -") +
               (c.printFeeders ? " F" : " -") + (c.printStation ? " T" : " -");
    }
};

TEST_F(Desk, TheStationNameIsAskedAndKeptInUpperCase) {
    prompt.inputs = {"North end 2"};
    EXPECT_TRUE(startSurvey(survey, prompt));
    EXPECT_EQ(prompt.asked[0].text, "\rEnter Station Name");
    EXPECT_EQ(survey.stationName, "NORTH END 2");
    prompt.inputs = {"Zürich-Süd ÷ßéé"};
    EXPECT_TRUE(startSurvey(survey, prompt));
    EXPECT_EQ(survey.stationName, "ZÜRICH-SÜD ÷ßÉÉ");
}

TEST_F(Desk, AnEmptyNameIsAskedForAgain) {
    prompt.inputs = {"", "  ", "north"};
    EXPECT_TRUE(startSurvey(survey, prompt));
    EXPECT_EQ(survey.stationName, "NORTH");
    EXPECT_EQ(prompt.asked.size(), 3U);
    prompt.inputs = {"", std::nullopt};
    EXPECT_FALSE(startSurvey(survey, prompt));
    EXPECT_EQ(survey.stationName, "NORTH");
}

TEST_F(Desk, ACancelledNameChangesNothing) {
    survey.stationName = "OLD";
    prompt.inputs = {std::nullopt};
    EXPECT_FALSE(startSurvey(survey, prompt));
    EXPECT_EQ(survey.stationName, "OLD");
}

TEST_F(Desk, ANewSurveyBeginsEmpty) {
    desk.proceed(0, "");
    loadAll();
    desk.showResult();
    prompt.inputs = {"n"};
    EXPECT_TRUE(startSurvey(survey, prompt));
    EXPECT_FALSE(survey.isLoaded(0));
    EXPECT_FALSE(survey.feederPeaks[0]);
}

TEST_F(Desk, TheControlsFollowTheStepsOfAFeeder) {
    EXPECT_EQ(usable(), "oooo P --- - - - -");
    desk.proceed(0, "");
    EXPECT_EQ(usable(), "-ooo P ppp - - - -");
    load(1, "/d/w.dat");
    EXPECT_EQ(usable(), "-ooo - p-p - - - -");
    load(0, "/d/r.dat");
    EXPECT_EQ(usable(), "-ooo - --p - - - -");
    load(2, "/d/b.dat");
    EXPECT_EQ(usable(), "-ooo - --- R - - -");
    desk.showResult();
    EXPECT_EQ(usable(), "-ooo P --- - S F -");
    desk.showStationPeak();
    EXPECT_EQ(usable(), "-ooo P --- - S F T");
    desk.proceed(1, "");
    EXPECT_EQ(usable(), "--oo P ppp - S F -");
}

TEST_F(Desk, AfterTheFourthFeederThereIsNothingToProceedWith) {
    for (int feeder = 0; feeder < 4; ++feeder) {
        desk.proceed(feeder, "");
        loadAll();
        desk.showResult();
    }
    EXPECT_EQ(usable(), "---- - --- - S F -");
}

TEST_F(Desk, ProceedAgainBeforeTheFirstFileRenamesOrChoosesAnother) {
    desk.proceed(0, "one");
    desk.proceed(0, "uno");
    EXPECT_EQ(survey.feederNames[0], "uno");
    desk.proceed(2, "three");
    EXPECT_EQ(usable(), "-o-o P ppp - - - -");
    EXPECT_EQ(survey.currentFeeder, 2);
}

TEST_F(Desk, WithoutATypedNameTheFeederHasItsDefaultName) {
    for (int feeder = 0; feeder < 4; ++feeder)
        desk.proceed(feeder, "");
    EXPECT_EQ(survey.feederNames, (std::array<std::string, 4>{"Feeder1", "Feeder2", "Feeder3", "Feeder4"}));
    desk.proceed(3, "Mill Lane");
    EXPECT_EQ(survey.feederNames[3], "Mill Lane");
}

TEST_F(Desk, TheStationPeakCannotBeShownWhileNoFeederUpToTheCurrentOneIsLoaded) {
    desk.proceed(1, "");
    loadAll();
    desk.showResult();
    EXPECT_TRUE(desk.controls().showStationPeak);
    desk.proceed(0, "");
    EXPECT_FALSE(desk.controls().showStationPeak);
    EXPECT_TRUE(desk.controls().printFeeders);
}

TEST_F(Desk, AFileThatWasReadFillsTheStores) {
    desk.proceed(2, "");
    EXPECT_EQ(load(1, "/d/w.dat"), "");
    EXPECT_EQ(survey.feeders[2][1].readings, (Tenths{11, 21, 61}));
    EXPECT_EQ(survey.feeders[2][1].facts.path, "/d/w.dat");
    EXPECT_EQ(survey.phasesLoaded, 1);
    EXPECT_EQ(desk.shownFiles()[1], "/d/w.dat");
    EXPECT_TRUE(survey.notices.empty());
}

TEST_F(Desk, TheResultClearsTheShownFiles) {
    desk.proceed(0, "");
    loadAll();
    desk.showResult();
    EXPECT_EQ(desk.shownFiles(), (std::array<std::string, 3>{}));
    ASSERT_TRUE(survey.feederPeaks[0]);
    EXPECT_EQ((*survey.feederPeaks[0])[0].index, 1);
    EXPECT_EQ((*survey.feederPeaks[0])[1].index, 2);
    EXPECT_EQ((*survey.feederPeaks[0])[2].index, 0);
}

TEST_F(Desk, AMissingOrDamagedFileIsRefusedAndChangesNothing) {
    files.contents["/d/bad.dat"] = "no recording";
    files.contents["/d/cut.dat"] = dataFile({1, 2, 3}).substr(0, 40);
    files.contents["/d/mode.dat"] = dataFile({1, 2, 3}, 'x');
    files.contents["/d/empty.dat"] = "";
    desk.proceed(0, "");
    for (const char* path : {"/d/none.dat", "/d/bad.dat", "/d/cut.dat", "/d/mode.dat", "/d/empty.dat"}) {
        EXPECT_EQ(load(0, path).find(unknownFile + ("\r\n" + std::string(path))), 0U) << path;
    }
    EXPECT_EQ(desk.refusal(), "empty.dat: It has no header of an instrument. The file was not "
                              "changed. Try another copy of it, or download again.");
    EXPECT_EQ(usable(), "-ooo P ppp - - - -");
    EXPECT_EQ(survey.phasesLoaded, 0);
    EXPECT_FALSE(survey.feeders[0][0].loaded());
    load(0, "/d/r.dat");
    EXPECT_EQ(desk.refusal(), "");
}

TEST_F(Desk, AFileOfAnotherModeIsRefused) {
    files.contents["/d/other.dat"] = dataFile({1, 2, 3}, 'd');
    desk.proceed(0, "");
    load(0, "/d/r.dat");
    EXPECT_EQ(load(1, "/d/other.dat"),
              "Unknown File Error; Check\r\n/d/other.dat\r\nMode mixing not allowed. "
              "Choose a file of the mode of r.dat.");
    EXPECT_EQ(desk.refusal(), "other.dat: Mode mixing not allowed. Choose a file of the mode of r.dat.");
    EXPECT_EQ(survey.phasesLoaded, 1);
    EXPECT_EQ(usable(), "-ooo - -pp - - - -");
}

TEST_F(Desk, AVoltageFileIsNoPhase) {
    std::string volts = dataFile({1200, 1210, 1190});
    volts[volts.find("PQX") + 2] = 'V';
    files.contents["/d/volts.dat"] = volts;
    desk.proceed(0, "");
    load(0, "/d/r.dat");
    EXPECT_EQ(load(1, "/d/volts.dat"), "Not a current file\r\n/d/volts.dat\r\nIt is a recording of voltage. "
                                       "Choose the recording of the phase's current.");
    EXPECT_EQ(desk.refusal(),
              "volts.dat: It is a recording of voltage. Choose the recording of the phase's current.");
    EXPECT_EQ(survey.phasesLoaded, 1);
    EXPECT_EQ(usable(), "-ooo - -pp - - - -") << "the feeder stays as it was";
    EXPECT_EQ(load(1, "/d/w.dat"), "");
}

TEST_F(Desk, AFileWithoutItsEndMarkIsTakenWithANotice) {
    const std::string whole = dataFile({1, 2, 3});
    files.contents["/d/cut.dat"] = whole.substr(0, whole.find('\x1a'));
    desk.proceed(0, "");
    EXPECT_EQ(load(0, "/d/cut.dat"), "");
    EXPECT_EQ(survey.notices, std::vector<std::string>{
                                  "Feeder1, red phase: cut.dat ends without its end mark; it may have been "
                                  "cut; 3 readings, the oldest number may be incomplete"});
}

// The peak covers the feeders up to the current one: feeder 3, loaded before feeder 1, is not part of it.
TEST_F(Desk, AStationPeakNamesTheFeedersThatItLeavesOut) {
    for (const int feeder : {2, 0}) {
        desk.proceed(feeder, feeder == 2 ? "Mill" : "");
        loadAll();
        desk.showResult();
    }
    desk.showStationPeak();
    EXPECT_EQ(survey.stationPeak->leftOut, std::vector<int>{2});
    EXPECT_TRUE(stationReport(survey).ends_with(
        "Station: \r\n"
        "Left out: F3:  Mill. The peak covers the feeders up to the one that was loaded last.\r\n"));
    desk.proceed(3, "");
    loadAll();
    desk.showResult();
    desk.showStationPeak();
    EXPECT_TRUE(survey.stationPeak->leftOut.empty());
}

TEST_F(Desk, AFeederOfAnotherModeThanFeederOneIsRefused) {
    files.contents["/d/other.dat"] = dataFile({1, 2, 3}, 'b');
    desk.proceed(0, "");
    loadAll();
    desk.showResult();
    desk.proceed(1, "");
    EXPECT_EQ(load(0, "/d/other.dat").find("Unknown File Error; Check\r\n"), 0U);
}

TEST_F(Desk, TheModeMayBeWrittenInEitherCase) {
    files.contents["/d/upper.dat"] = dataFile({1, 2, 3}, 'A');
    desk.proceed(0, "");
    load(0, "/d/r.dat");
    EXPECT_EQ(load(1, "/d/upper.dat"), "");
}

TEST_F(Desk, AFileOfAnotherStartIsTakenWithANotice) {
    files.contents["/d/late.dat"] = dataFile({1, 2, 3}, 'a', "03-15-24 15:00");
    desk.proceed(0, "Mill");
    load(0, "/d/r.dat");
    EXPECT_EQ(load(1, "/d/late.dat"), "");
    // The header of the other says 14:00.
    EXPECT_EQ(survey.notices, std::vector<std::string>{
                                  "Mill, white phase: late.dat starts 1 h after r.dat; readings are combined "
                                  "by number, not by time"});
    for (int phase : {0, 2})
        load(phase, "/d/b.dat");
    desk.showResult();
    EXPECT_NE(feedersPaper(survey, {}).text.find("late.dat starts 1 h after r.dat"), std::string::npos);
}

TEST_F(Desk, AFileOfAnotherLengthIsTakenWithANotice) {
    // One reading more, and a header one interval later: the same start.
    files.contents["/d/long.dat"] = dataFile({1, 2, 3, 4}, 'a', "03-15-24 14:15");
    desk.proceed(0, "");
    load(0, "/d/r.dat");
    EXPECT_EQ(load(2, "/d/long.dat"), "");
    EXPECT_EQ(survey.notices, std::vector<std::string>{"Feeder1, blue phase: long.dat has 4 readings, r.dat "
                                                       "3; the shortest count is scanned"});
}

TEST_F(Desk, TheFirstFileOfAFeederIsComparedWithFeederOne) {
    files.contents["/d/late.dat"] = dataFile({1, 2, 3}, 'a', "03-15-24 15:00");
    desk.proceed(0, "");
    loadAll();
    desk.showResult();
    desk.proceed(1, "");
    load(2, "/d/late.dat");
    ASSERT_EQ(survey.notices.size(), 1U);
    EXPECT_EQ(survey.notices[0],
              "Feeder2, blue phase: late.dat starts 1 h after r.dat; readings are combined by "
              "number, not by time");
}

TEST_F(Desk, TheSameFileTwiceForAFeederIsTakenWithANotice) {
    desk.proceed(0, "");
    load(0, "/d/r.dat");
    files.contents["/d/../d/r.dat"] = files.contents["/d/r.dat"];
    EXPECT_EQ(load(1, "/d/../d/r.dat"), "");
    EXPECT_EQ(survey.notices,
              std::vector<std::string>{"Feeder1, white phase: r.dat is also taken for Feeder1, red phase"});
}

TEST_F(Desk, TheSameFileForTwoFeedersIsTakenWithANotice) {
    desk.proceed(0, "");
    loadAll();
    desk.showResult();
    desk.proceed(3, "");
    load(0, "/d/w.dat");
    EXPECT_EQ(survey.notices,
              std::vector<std::string>{"Feeder4, red phase: w.dat is also taken for Feeder1, white phase"});
}

TEST_F(Desk, ItemsThatAreNoNumbersAreNoticed) {
    std::string text = dataFile({1, 2, 3});
    text.insert(text.size() - 1, " 1x2 ");
    files.contents["/d/odd.dat"] = text;
    desk.proceed(0, "");
    EXPECT_EQ(load(0, "/d/odd.dat"), "");
    EXPECT_EQ(survey.notices,
              std::vector<std::string>{"Feeder1, red phase: odd.dat has 1 item that can be read as no "
                                       "number; each counts with its leading number, or 0"});
}

TEST_F(Desk, TheFileDialogStartsInTheDefaultDirectory) {
    desk.proceed(0, "");
    prompt.files = {std::nullopt, "/d/r.dat"};
    EXPECT_TRUE(desk.askAndLoad(0, "/d", files, prompt));
    EXPECT_EQ(survey.phasesLoaded, 0);
    EXPECT_TRUE(desk.askAndLoad(0, "/d", files, prompt));
    EXPECT_EQ(survey.phasesLoaded, 1);
    EXPECT_EQ(prompt.filesAsked[0].filter, "data files (*.dat) | *.dat");
    EXPECT_EQ(prompt.filesAsked[0].folder, "/d");
    EXPECT_FALSE(prompt.filesAsked[0].save);
}

TEST_F(Desk, AnOverflowLeavesTheDeskUsable) {
    files.contents["/d/big.dat"] = dataFile({9999, 9999, 9999});
    for (int feeder = 0; feeder < 2; ++feeder) {
        desk.proceed(feeder, "");
        for (int phase = 0; phase < 3; ++phase)
            load(phase, "/d/big.dat");
        desk.showResult();
        if (feeder == 0)
            desk.showStationPeak();
    }
    // 2 x 29,997 tenths.
    EXPECT_THROW(desk.showStationPeak(), Fault);
    EXPECT_EQ(usable(), "--oo P --- - S F -");
    desk.proceed(2, "");
    EXPECT_EQ(load(0, "/d/r.dat"), "");
}

} // namespace
} // namespace tally
