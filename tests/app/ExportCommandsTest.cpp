// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowTest.h"

namespace tally {
namespace {

using testing::dataFile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;
using testing::WindowTest;

const std::vector<int> sixteen(16, 1000);

TEST_F(WindowTest, DataPlotEnablesTheCsvExportOnly) {
    open("/d/a.dat", dataFile('a', sixteen));
    EXPECT_FALSE(enabled("MnuItemexpdatacsv"));
    click("mnuItemViewPlot");
    EXPECT_TRUE(enabled("MnuItemexpdatacsv"));
    EXPECT_FALSE(enabled("mnuItemexpdata1perLine"));
    click("MnuItemexpdatacsv");
    EXPECT_THAT(prompt.texts(), ElementsAre("/d/Lotusint.csv saved OK "));
    EXPECT_THAT(files.contents["/d/Lotusint.csv"], HasSubstr(", 0100 ,  "));
}

TEST_F(WindowTest, CsvExportAsksForTheFileWithItsOwnCode) {
    open("/d/a.dat", dataFile('a', sixteen));
    open("/d/b.dat", dataFile('a', std::vector<int>(16, 2000)));
    click("mnuItemViewPlot");
    chooser.answers = {1};
    click("MnuItemexpdatacsv");
    EXPECT_THAT(chooser.pendingCommands, ElementsAre(pending::csvExport));
    EXPECT_THAT(files.contents["/d/Lotusint.csv"], HasSubstr(" 0200 "));
}

TEST_F(WindowTest, TableEnablesBothDataExportsUntilOneIsDone) {
    open("/d/a.dat", dataFile('a', sixteen));
    click("mnuItemViewTable");
    EXPECT_TRUE(enabled("MnuItemexpdatacsv"));
    EXPECT_TRUE(enabled("mnuItemexpdata1perLine"));
    click("mnuItemexpdata1perLine");
    EXPECT_THAT(files.contents["/d/a.prn"], StartsWith("yy mm dd hh mm Reading\r\n"));
    EXPECT_EQ(display.viewKind, ViewKind::none);
    EXPECT_FALSE(enabled("MnuItemexpdatacsv"));
    EXPECT_FALSE(enabled("mnuItemexpdata1perLine"));
}

TEST_F(WindowTest, TextExportWritesTheTableShownWhateverWasChosenSince) {
    open("/d/a.dat", dataFile('a', sixteen));
    open("/d/b.dat", dataFile('a', std::vector<int>(16, 2000)));
    chooser.answers = {0, Recordings::cancelled};
    click("mnuItemViewTable");
    click("mnuItemNotes");
    click("MnuItemexpdatacsv");
    EXPECT_THAT(files.contents["/d/a.prn"],
                StartsWith(" Time     Date                            Eight readings of average\r\n"));
    EXPECT_THAT(files.contents["/d/a.prn"], HasSubstr("    100 "));
}

TEST_F(WindowTest, SummaryTakesTheDataExportsAway) {
    open("/d/a.dat", dataFile('a', sixteen));
    click("mnuItemViewTable");
    click("mnuItemViewsummary");
    EXPECT_FALSE(enabled("MnuItemexpdatacsv"));
    EXPECT_FALSE(enabled("mnuItemexpdata1perLine"));
}

TEST_F(WindowTest, PowerPlotEnablesTheMeteringReport) {
    // Two days from 04:00, so that a midnight is in it.
    open("/d/a.dat", dataFile('a', std::vector<int>(192, 1000)));
    EXPECT_FALSE(enabled("mnuitemexprep"));
    prompt.inputs = {"13800", "METER 1"};
    click("mnuItemViewPower");
    EXPECT_TRUE(enabled("mnuitemexprep"));
    click("mnuitemexprep");
    EXPECT_THAT(prompt.texts(), ElementsAre("/d/Lotusint.prn  saved OK  "));
    EXPECT_THAT(files.contents["/d/Lotusint.prn"], HasSubstr("\"METER 1       \","));
    EXPECT_THAT(files.contents["/d/Lotusint.prn"], HasSubstr("      1380,"));
}

TEST_F(WindowTest, MeteringReportOfAnotherRangeAsksForTheVoltageFirst) {
    open("/d/a.dat", dataFile('a', std::vector<int>(192, 1000)));
    prompt.inputs = {"13800"};
    click("mnuItemViewPower");
    mark(100, 120);
    click("mnuZoom");
    click("mnuItemViewPlot");
    const auto before = window.screen().chart().plot().title;
    prompt.inputs = {"4160", "METER 1"};
    click("mnuitemexprep");
    EXPECT_THAT(files.contents["/d/Lotusint.prn"], HasSubstr("       416,"));
    EXPECT_EQ(window.screen().chart().plot().title, before);
    prompt.inputs = {std::nullopt};
    files.contents.erase("/d/Lotusint.prn");
    click("mnuitemexprep");
    EXPECT_FALSE(files.contents.contains("/d/Lotusint.prn"));
}

TEST_F(WindowTest, ExportToAFolderThatIsGoneIsReported) {
    settings.set("Directory", "default", "/no/such/folder");
    open("/d/a.dat", dataFile('a', sixteen));
    click("mnuItemViewPlot");
    files.failWrite = fault::pathNotFound();
    click("MnuItemexpdatacsv");
    EXPECT_THAT(prompt.texts(), ElementsAre("Error number 76: Path not found"));
    EXPECT_EQ(display.viewKind, ViewKind::dataPlot);
}

} // namespace
} // namespace tally
