// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowTest.h"

#include "app/forms/ExportForm.h"

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace tally {
namespace {

using testing::dataFile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::WindowTest;

// Two files of four readings, downloaded at 10:00: the last interval before then is the one that ran, so that
// the newest
class ExportReadings : public WindowTest {
protected:
    void openBoth() {
        open("/d/a.dat", dataFile('a', {10, 20, 30, 40}));
        open("/d/b.dat", dataFile('a', {110, 210, 310, 410}));
    }
    // Chooses in the dialog and answers the file's name.
    void run(
        const std::string& path, const std::function<void(ExportForm&)>& choose = [](ExportForm&) {}) {
        prompt.files = {path};
        whenOpen<ExportForm>([choose](ExportForm& form) {
            choose(form);
            form.findChild<QPushButton*>(QStringLiteral("Command1"))->click();
        });
        click("mnuItemExportReadings");
    }
    static void pick(ExportForm& form, const char* box, int index) {
        auto* combo = form.findChild<QComboBox*>(QString::fromLatin1(box));
        combo->setCurrentIndex(index);
        Q_EMIT combo->activated(index);
    }
    static QListWidgetItem* column(const ExportForm& form, int row) {
        return form.findChild<QListWidget*>(QStringLiteral("columns"))->item(row);
    }
};

TEST_F(ExportReadings, EverythingGoesIntoACsvFileUnlessOtherwiseChosen) {
    openBoth();
    run("/out/a.csv");
    EXPECT_EQ(prompt.filesAsked.back().name, "a.csv");
    EXPECT_EQ(files.contents["/out/a.csv"],
              "Time,a.dat,b.dat\r\n2024-03-15 08:45,1.0,11.0\r\n2024-03-15 09:00,2.0,21.0\r\n"
              "2024-03-15 09:15,3.0,31.0\r\n2024-03-15 09:30,4.0,41.0\r\n");
    EXPECT_THAT(prompt.texts(), ElementsAre("/out/a.csv saved OK"));
}

TEST_F(ExportReadings, ColumnsSignsAndTimesAreThoseThatWereChosen) {
    openBoth();
    run("/out/b.csv", [](ExportForm& form) {
        column(form, 0)->setCheckState(Qt::Unchecked);
        pick(form, "decimal", 1);
        pick(form, "time", 1);
    });
    EXPECT_EQ(files.contents["/out/b.csv"],
              "Time;b.dat\r\n08:45  Mar 15, 24;11,0\r\n09:00  Mar 15, 24;21,0\r\n"
              "09:15  Mar 15, 24;31,0\r\n09:30  Mar 15, 24;41,0\r\n");
}

TEST_F(ExportReadings, WhatIsShownIsOfferedWhileAPartIsShown) {
    open("/d/a.dat", dataFile('a', {10, 20, 30, 40}));
    click("mnuItemViewPlot");
    mark(1, 2);
    click("mnuZoom");
    run("/out/a.csv", [](ExportForm& form) {
        const auto* part = form.findChild<QRadioButton*>(QStringLiteral("rangePart"));
        EXPECT_TRUE(part->isChecked());
        EXPECT_EQ(part->text().toStdString(),
                  "What is shown: 2 readings, 09:00  Mar 15, 24 to 09:15  Mar 15, 24");
    });
    EXPECT_EQ(files.contents["/out/a.csv"], "Time,a.dat\r\n2024-03-15 09:00,2.0\r\n2024-03-15 09:15,3.0\r\n");
}

// b.dat starts half an hour, two readings, after a.dat.
TEST_F(ExportReadings, EverythingIsWhatTheFilesShare) {
    open("/d/a.dat", dataFile('a', {10, 20, 30, 40}));
    open("/d/b.dat", dataFile('a', {110, 210, 310, 410}, 'X', false, "03-15-24 10:30"));
    run("/out/a.csv", [](ExportForm& form) {
        EXPECT_EQ(form.findChild<QRadioButton*>(QStringLiteral("rangeWhole"))->text().toStdString(),
                  "Everything: 2 readings, 09:15  Mar 15, 24 to 09:30  Mar 15, 24");
    });
    EXPECT_EQ(files.contents["/out/a.csv"],
              "Time,a.dat,b.dat\r\n2024-03-15 09:15,3.0,11.0\r\n2024-03-15 09:30,4.0,21.0\r\n");
}

TEST_F(ExportReadings, AWorkbookNeedsNoSigns) {
    openBoth();
    run("/out/a.xlsx", [](ExportForm& form) {
        form.findChild<QRadioButton*>(QStringLiteral("kindWorkbook"))->click();
        for (const char* box : {"separator", "decimal", "time"})
            EXPECT_FALSE(form.findChild<QComboBox*>(QString::fromLatin1(box))->isEnabled()) << box;
    });
    EXPECT_EQ(prompt.filesAsked.back().name, "a.xlsx");
    EXPECT_EQ(files.contents["/out/a.xlsx"].substr(0, 4), "PK\x03\x04"); // a zip archive, as workbooks are
}

TEST_F(ExportReadings, WithoutAColumnNothingCanBeSaved) {
    openBoth();
    whenOpen<ExportForm>([](ExportForm& form) {
        column(form, 0)->setCheckState(Qt::Unchecked);
        column(form, 1)->setCheckState(Qt::Unchecked);
        EXPECT_FALSE(form.findChild<QPushButton*>(QStringLiteral("Command1"))->isEnabled());
        form.reject();
    });
    const std::size_t asked = prompt.filesAsked.size();
    click("mnuItemExportReadings");
    EXPECT_EQ(prompt.filesAsked.size(), asked);
}

TEST_F(ExportReadings, AnOpenDataFileIsNeverReplaced) {
    openBoth();
    const std::string before = files.contents["/d/b.dat"];
    run("/d/b.dat");
    EXPECT_EQ(files.contents["/d/b.dat"], before);
    EXPECT_THAT(prompt.texts(), ElementsAre(HasSubstr("would replace an open data file")));
}

TEST_F(ExportReadings, AReplacedFileIsTold) {
    openBoth();
    files.contents["/out/a.csv"] = "old";
    run("/out/a.csv");
    EXPECT_THAT(prompt.texts(), ElementsAre("/out/a.csv saved OK\r\nIt took the place of an earlier file."));
}

} // namespace
} // namespace tally
