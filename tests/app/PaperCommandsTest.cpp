// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowTest.h"

#include "survey/forms/LoadSurv.h"

#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

namespace tally {
namespace {

using testing::dataFile;
using ::testing::HasSubstr;
using testing::WindowTest;

class PaperCommandsTest : public WindowTest {
protected:
    // Chooses a PDF file as the printer of the next print dialog.
    void printTo(const QString& file) {
        whenOpen<QPrintDialog>([file](QPrintDialog& dialog) {
            dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
            dialog.printer()->setOutputFileName(file);
            dialog.QDialog::done(QDialog::Accepted);
        });
    }
    bool printed(const char* name) {
        const auto found = files.contents.find(name);
        return found != files.contents.end() && found->second.starts_with("%PDF");
    }
};

TEST_F(PaperCommandsTest, EveryPrintItemAsksForThePrinterAndPrints) {
    open("/d/a.dat", dataFile('a', std::vector<int>(20, 1000)));
    printTo(QStringLiteral("/d/summary.pdf"));
    click("mnuItemPrintSum");
    EXPECT_TRUE(printed("/d/summary.pdf"));
    printTo(QStringLiteral("/d/table.pdf"));
    click("mnuItemPrintTable");
    EXPECT_TRUE(printed("/d/table.pdf"));
    prompt.inputs.push_back("13800");
    printTo(QStringLiteral("/d/power.pdf"));
    click("mnuItemPrintpwrSum");
    EXPECT_TRUE(printed("/d/power.pdf"));
    printTo(QStringLiteral("/d/powertable.pdf"));
    click("mnuItemPrintPwrTable");
    EXPECT_TRUE(printed("/d/powertable.pdf"));
}

TEST_F(PaperCommandsTest, ControlPPrintsTheChartThatIsShown) {
    open("/d/a.dat", dataFile('a', std::vector<int>(20, 1000)));
    click("mnuItemViewPlot");
    printTo(QStringLiteral("/d/chart.pdf"));
    window.findChild<QAction*>(QStringLiteral("printShown"))->trigger();
    EXPECT_TRUE(printed("/d/chart.pdf"));
}

TEST_F(PaperCommandsTest, PrintingToAFullDiskIsSaid) {
    open("/d/a.dat", dataFile('a', std::vector<int>(20, 1000)));
    files.failWrite = fault::diskFull();
    printTo(QStringLiteral("/d/summary.pdf"));
    click("mnuItemPrintSum");
    ASSERT_EQ(prompt.shown.size(), 1U);
    EXPECT_THAT(prompt.shown[0].text, HasSubstr("Disk full"));
    EXPECT_FALSE(printed("/d/summary.pdf"));
}

TEST_F(PaperCommandsTest, PrintingAnotherFileLeavesTheTableShownToTheExport) {
    open("/d/a.dat", dataFile('a', std::vector<int>(20, 1000)));
    open("/d/b.dat", dataFile('a', std::vector<int>(20, 2000)));
    chooser.answers = {0, 1};
    click("mnuItemViewTable");
    const std::string table = display.gTable();
    printTo(QStringLiteral("/d/b.pdf"));
    click("mnuItemPrintTable");
    EXPECT_EQ(display.gTable(), table);
    click("MnuItemexpdatacsv");
    EXPECT_THAT(files.contents["/d/a.prn"], HasSubstr(table));
    EXPECT_FALSE(files.contents.contains("/d/b.prn"));
}

TEST_F(PaperCommandsTest, TextCanBePreviewed) {
    open("/d/a.dat", dataFile('a', std::vector<int>(20, 1000)));
    bool shown = false;
    whenOpen<QPrintPreviewDialog>([&shown](QPrintPreviewDialog& dialog) {
        shown = true;
        dialog.reject();
    });
    window.findChild<QAction*>(QStringLiteral("textPreview"))->trigger();
    EXPECT_TRUE(shown);
}

TEST_F(PaperCommandsTest, LoadSurveyAsksForTheStationAndOpensItsDialog) {
    prompt.inputs.push_back("north");
    bool shown = false;
    whenOpen<LoadSurv>([&shown](LoadSurv& dialog) {
        shown = true;
        dialog.reject();
    });
    click("mnuitemsurvfil");
    EXPECT_EQ(prompt.asked.back().text, "\rEnter Station Name");
    EXPECT_TRUE(shown);
}

} // namespace
} // namespace tally
