// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowTest.h"

#include "app/forms/ForceRdgs.h"

#include <QLineEdit>

namespace tally {
namespace {

using testing::dataFile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;
using testing::WindowTest;

const std::vector<int> sixteen(16, 1000);

class ExportCommands : public WindowTest {};

TEST_F(ExportCommands, DataPlotEnablesTheCsvExportOnly) {
    open("/d/a.dat", dataFile('a', sixteen));
    EXPECT_FALSE(enabled("MnuItemexpdatacsv"));
    click("mnuItemViewPlot");
    EXPECT_TRUE(enabled("MnuItemexpdatacsv"));
    EXPECT_FALSE(enabled("mnuItemexpdata1perLine"));
    click("MnuItemexpdatacsv");
    EXPECT_THAT(prompt.texts(), ElementsAre("/d/Lotusint.csv saved OK "));
    EXPECT_THAT(files.contents["/d/Lotusint.csv"], HasSubstr(", 0100 ,  "));
}

TEST_F(ExportCommands, CsvExportAsksForTheFileWithItsOwnCode) {
    open("/d/a.dat", dataFile('a', sixteen));
    open("/d/b.dat", dataFile('a', std::vector<int>(16, 2000)));
    click("mnuItemViewPlot");
    chooser.answers = {1};
    click("MnuItemexpdatacsv");
    EXPECT_THAT(chooser.pendingCommands, ElementsAre(pending::csvExport));
    EXPECT_THAT(files.contents["/d/Lotusint.csv"], HasSubstr(" 0200 "));
}

TEST_F(ExportCommands, TableEnablesBothDataExportsUntilOneIsDone) {
    open("/d/a.dat", dataFile('a', sixteen));
    click("mnuItemViewTable");
    EXPECT_TRUE(enabled("MnuItemexpdatacsv"));
    EXPECT_TRUE(enabled("mnuItemexpdata1perLine"));
    click("mnuItemexpdata1perLine");
    EXPECT_THAT(files.contents["/d/a.prn"], StartsWith("yy mm dd hh mm Reading\r\n"));
    EXPECT_EQ(display.exportable(), View::none);
    EXPECT_EQ(display.view(), View::table);
    EXPECT_FALSE(enabled("MnuItemexpdatacsv"));
    EXPECT_FALSE(enabled("mnuItemexpdata1perLine"));
}

TEST_F(ExportCommands, TextExportWritesTheTableShownWhateverWasChosenSince) {
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

TEST_F(ExportCommands, SummaryTakesTheDataExportsAway) {
    open("/d/a.dat", dataFile('a', sixteen));
    click("mnuItemViewTable");
    click("mnuItemViewsummary");
    EXPECT_FALSE(enabled("MnuItemexpdatacsv"));
    EXPECT_FALSE(enabled("mnuItemexpdata1perLine"));
}

TEST_F(ExportCommands, PowerPlotEnablesTheMeteringReport) {
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

TEST_F(ExportCommands, MeteringReportIsOfTheReadingsTheVoltageAndTheFactorInForce) {
    open("/d/a.dat", dataFile('a', std::vector<int>(192, 1000)));
    prompt.inputs = {"13800", "4160", "0.5", "METER 1"};
    click("mnuItemViewPower");
    click("mnuItemViewPower");
    click("mnuItemPF");
    for (auto& reading : recordings.gReadings[0])
        reading = 2000;
    click("mnuitemexprep");
    // 200 A at 4.16 kV and 0.5.
    EXPECT_THAT(files.contents["/d/Lotusint.prn"], HasSubstr("       416,"));
    EXPECT_EQ(prompt.asked.size(), 4U) << "the voltage is known";
}

TEST_F(ExportCommands, MeteringReportAsksForTheVoltageWhenNoneWasEntered) {
    open("/d/a.dat", dataFile('a', std::vector<int>(192, 1000)));
    prompt.inputs = {"13800", "4160", "METER 1"};
    click("mnuItemViewPower");
    mark(100, 120);
    click("mnuZoom");
    open("/d/b.dat", dataFile('a', std::vector<int>(192, 0)));
    click("mnuItemViewPlot");
    const auto before = window.screen().chart().plot().title;
    click("mnuitemexprep");
    EXPECT_THAT(files.contents["/d/Lotusint.prn"], HasSubstr("       416,"));
    EXPECT_EQ(window.screen().chart().plot().title, before);
}

TEST_F(ExportCommands, MeteringReportLeavesTheMarkedSpanAlone) {
    open("/d/a.dat", dataFile('a', std::vector<int>(192, 1000)));
    prompt.inputs = {"13800", "METER 1"};
    click("mnuItemViewPlot");
    mark(100, 120);
    click("mnuitemexprep");
    EXPECT_FALSE(files.contents.contains("/d/Lotusint.prn")) << "a data plot enables no report";
    click("mnuItemViewPower");
    mark(100, 120);
    click("mnuitemexprep");
    EXPECT_TRUE(files.contents.contains("/d/Lotusint.prn"));
    EXPECT_TRUE(enabled("mnuZoom"));
    click("mnuZoom");
    EXPECT_EQ(display.displayed(recordings), (Range{100, 120}));
}

TEST_F(ExportCommands, EveryExportTellsWhenItTookThePlaceOfAnEarlierFile) {
    open("/d/a.dat", dataFile('a', std::vector<int>(192, 1000)));
    const std::string earlier = "\r\nIt took the place of an earlier file.";
    for (const std::string& more : {std::string(), earlier}) {
        prompt.shown.clear();
        prompt.inputs = {"13800", "METER 1"};
        click("mnuItemViewPower");
        click("mnuitemexprep");
        click("mnuItemViewPlot");
        click("MnuItemexpdatacsv");
        click("mnuItemViewTable");
        click("mnuItemexpdata1perLine");
        EXPECT_THAT(prompt.texts(),
                    ElementsAre("/d/Lotusint.prn  saved OK  " + more, "/d/Lotusint.csv saved OK " + more,
                                "/d/a.prn saved OK" + more));
    }
}

TEST_F(ExportCommands, CancelledVoltageOrIdentifierWritesNoReport) {
    open("/d/a.dat", dataFile('a', std::vector<int>(192, 1000)));
    prompt.inputs = {"13800", std::nullopt};
    click("mnuItemViewPower");
    click("mnuitemexprep");
    EXPECT_FALSE(files.contents.contains("/d/Lotusint.prn"));
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(ExportCommands, TableOnTheScreenIsRenewedAfterItWasExported) {
    open("/d/a.dat", dataFile('a', sixteen));
    click("mnuItemViewTable");
    click("mnuItemexpdata1perLine");
    whenOpen<ForceRdgs>([](ForceRdgs& form) {
        form.findChild<QLineEdit*>(QStringLiteral("Text1"))->setText(QStringLiteral("7"));
        form.accept();
    });
    click("mnuItemForceRdg");
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("    007 "));
    EXPECT_EQ(window.screen().text().text().toStdString().find("100"), std::string::npos);
}

TEST_F(ExportCommands, CsvOfASelectionThatTheFileDoesNotReachIsRefused) {
    open("/d/a.dat", dataFile('a', sixteen));
    open("/d/b.dat", dataFile('a', {1000, 1000}));
    click("mnuItemViewPlot");
    mark(5, 9);
    click("mnuZoom");
    files.contents["/d/Lotusint.csv"] = "old";
    chooser.answers = {1};
    click("MnuItemexpdatacsv");
    ASSERT_EQ(prompt.shown.size(), 1U);
    EXPECT_THAT(
        prompt.shown[0].text,
        StartsWith("The zoomed range holds no reading of this file. Nothing was done.\r\n/d/b.dat\r\n"));
    EXPECT_EQ(files.contents["/d/Lotusint.csv"], "old");
}

TEST_F(ExportCommands, ExportToAFolderThatIsGoneIsReported) {
    settings.set("Directory", "default", "/no/such/folder");
    open("/d/a.dat", dataFile('a', sixteen));
    click("mnuItemViewPlot");
    files.failWrite = fault::pathNotFound();
    click("MnuItemexpdatacsv");
    EXPECT_THAT(prompt.texts(), ElementsAre("Error number 76: Path not found"));
    EXPECT_EQ(display.exportable(), View::dataPlot);
}

} // namespace
} // namespace tally
