// SPDX-License-Identifier: GPL-3.0-or-later
#include "FormDesk.h"

#include "archive/forms/CalendarView.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QTabWidget>
#include <QTableWidget>

namespace tally {
namespace {

using archive::RecordingModel;
using testing::constant;
using testing::FormDesk;
using testing::Sample;

struct ArchiveForm : FormDesk {
    ArchiveForm() {
        maple.other = "near the mill";
        oak.start = {2021, 3, 1, 8, 0};
        oak.values = {100, 50};
        oak.serial = "77";
        oak.station = "South";
        oak.circuit = "Oak";
        volts.type = 'V';
        volts.start = {2022, 7, 1, 0, 0};
        volts.serial = "88";
        volts.circuit = "Bus";
    }
    void openWithThree() {
        keep({maple, oak, volts});
        openForm();
        ASSERT_TRUE(comes([this] { return rows() == 3; }));
    }

    Sample maple; // North, Maple, 4711, 2020-01-06 00:00, readings 10 20 30
    Sample oak;
    Sample volts;
};

TEST_F(ArchiveForm, ShowsTheFactsOfEveryRecording) {
    openWithThree();
    EXPECT_EQ(state(), "3 recording(s)");
    // By station, circuit and time: North Bus, North Maple, South Oak.
    EXPECT_EQ(cell(1, RecordingModel::circuit), "Maple");
    EXPECT_EQ(cell(1, RecordingModel::station), "North");
    EXPECT_EQ(cell(1, RecordingModel::serial), "4711");
    EXPECT_EQ(cell(1, RecordingModel::from), "2020-01-06 00:00");
    EXPECT_EQ(cell(1, RecordingModel::to), "2020-01-06 00:45");
    EXPECT_EQ(cell(1, RecordingModel::peak), "30 A");
    EXPECT_EQ(cell(1, RecordingModel::loadFactor), "0.667"); // 20 of 30
    EXPECT_EQ(cell(1, RecordingModel::notes), "near the mill");
    EXPECT_EQ(cell(0, RecordingModel::loadFactor), "-");
    EXPECT_TRUE(comes([this] {
        return find<QLabel>("archiveSum").text() ==
               QStringLiteral("3 recording(s), 3 circuit(s), 2020-01-06 to 2022-07-01");
    })) << find<QLabel>("archiveSum").text().toStdString();
}

TEST_F(ArchiveForm, AnswersWhileSomebodyTypes) {
    openWithThree();
    type("searchWords", "MILL");
    EXPECT_TRUE(comes([this] { return rows() == 1; }));
    type("searchWords", "north maple");
    EXPECT_TRUE(comes([this] { return rows() == 1 && cell(0, 0) == "Maple"; }));
    type("searchWords", "nowhere");
    EXPECT_TRUE(comes([this] { return state() == "No recording is found"; }));
    type("searchWords", "");
    EXPECT_TRUE(comes([this] { return rows() == 3; }));
}

TEST_F(ArchiveForm, NarrowsByUnitAndDate) {
    openWithThree();
    find<QComboBox>("searchUnit").setCurrentIndex(2);
    EXPECT_TRUE(comes([this] { return rows() == 1 && cell(0, 0) == "Bus"; }));
    find<QComboBox>("searchUnit").setCurrentIndex(0);
    type("searchFrom", "2021");
    EXPECT_TRUE(comes([this] { return rows() == 2; }));
    type("searchTo", "2021-03");
    EXPECT_TRUE(comes([this] { return rows() == 1 && cell(0, 0) == "Oak"; }));
    type("searchTo", "2020");
    EXPECT_EQ(state(), "The dates are turned round");
    type("searchTo", "20");
    EXPECT_EQ(state(), "'20' is no date. Write 2009, 2009-03 or 2009-03-15.");
    EXPECT_EQ(rows(), 1);
}

TEST_F(ArchiveForm, DrawsAPictureOfEveryRecordingThatIsSeen) {
    openWithThree();
    auto& model = table().recordings();
    ASSERT_TRUE(comes([&] { return model.spark(0) && model.spark(1) && model.spark(2); }));
    const archive::Spark& spark = *model.spark(1);
    ASSERT_EQ(spark.columns.size(), 3U);
    EXPECT_EQ(spark.columns[0].high, 100); // tenths
    EXPECT_EQ(spark.columns[2].low, 300);
    EXPECT_EQ(spark.highest, 300);
    EXPECT_EQ(spark.lowest, 0);
}

TEST_F(ArchiveForm, ShowsTheFirstRowsOfMany) {
    std::vector<Sample> many;
    for (int number = 0; number < 501; ++number) {
        maple.values = {1, number};
        many.push_back(maple);
    }
    keep(many);
    openForm();
    ASSERT_TRUE(comes([this] { return rows() == 500; }));
    EXPECT_EQ(state(), "More than 500 recordings; the first 500 are shown. Narrow the search.");
}

TEST_F(ArchiveForm, HandsUpToThreeRecordingsOver) {
    openWithThree();
    EXPECT_FALSE(find<QPushButton>("archiveOpen").isEnabled());
    select({1, 2});
    click("archiveOpen");
    ASSERT_TRUE(comes([this] { return opened.size() == 2; }));
    EXPECT_FALSE(studied);
    EXPECT_EQ(opened[0].given.bytes, testing::bytesOf(maple));
    EXPECT_EQ(opened[0].given.notesFile, testing::notesOf(maple));
    EXPECT_EQ(opened[0].entry.sources.at(0).path, "/data/4711.dat");
    opened.clear();
    select({0});
    click("archiveStudy");
    ASSERT_TRUE(comes([this] { return opened.size() == 1; }));
    EXPECT_TRUE(studied);
}

TEST_F(ArchiveForm, SaysThatFourAreTooMany) {
    Sample fourth = maple;
    fourth.values = {5};
    keep({maple, oak, volts, fourth});
    openForm();
    ASSERT_TRUE(comes([this] { return rows() == 4; }));
    select({0, 1, 2, 3});
    click("archiveOpen");
    EXPECT_EQ(notices(), "Three recordings can be open at a time; 4 are chosen.\n");
    EXPECT_TRUE(opened.empty());
}

TEST_F(ArchiveForm, WritesRecordingsIntoAFolderAndReplacesNothing) {
    openWithThree();
    folder.write("4711.dat", "somebody's own");
    chosenFolder = folder.path("");
    chosenFolder->pop_back();
    select({1, 2});
    click("archiveExport");
    ASSERT_TRUE(comes([this] { return notices().starts_with("2 recording(s) written into"); }));
    EXPECT_EQ(folder.read(folder.path("4711.dat")), "somebody's own");
    EXPECT_EQ(folder.read(folder.path("4711 (2).dat")), testing::bytesOf(maple));
    EXPECT_EQ(folder.read(folder.path("4711 (2).not")), testing::notesOf(maple));
    EXPECT_EQ(folder.read(folder.path("77.dat")), testing::bytesOf(oak));
}

TEST_F(ArchiveForm, PrintsWhatIsChosenOrAllThatIsShown) {
    openWithThree();
    click("archivePrint");
    ASSERT_TRUE(printed);
    EXPECT_EQ(std::count(printed->text.begin(), printed->text.end(), '\n'), 3);
    select({1});
    click("archivePrint");
    EXPECT_EQ(printed->text.substr(0, 5), "Maple");
    EXPECT_EQ(std::count(printed->text.begin(), printed->text.end(), '\n'), 1);
}

TEST_F(ArchiveForm, GivesRecordingsAnotherStationAndCircuit) {
    openWithThree();
    select({1, 2});
    QTimer::singleShot(0, form.get(), [this] {
        auto* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        // Their names differ, so that the fields begin empty.
        auto* station = dialog->findChild<QLineEdit*>(QStringLiteral("assignStation"));
        EXPECT_EQ(station->text(), QString());
        station->setText(QStringLiteral("West"));
        dialog->findChild<QLineEdit*>(QStringLiteral("assignCircuit"))->setText(QStringLiteral("Elm"));
        static_cast<QDialog*>(dialog)->accept();
    });
    click("archiveAssign");
    EXPECT_TRUE(comes([this] { return rows() == 3 && cell(1, 1) == "West" && cell(2, 0) == "Elm"; }));
}

TEST_F(ArchiveForm, ShowsACalendarOfTheDaysWithReadings) {
    openWithThree();
    find<QTabWidget>("archiveTabs").setCurrentIndex(1);
    auto& calendar = find<archive::CalendarView>("coverageCalendar");
    ASSERT_TRUE(comes([&] { return calendar.years().size() == 3; }));
    EXPECT_EQ(calendar.years()[0].year, 2020);
    EXPECT_EQ(calendar.years()[0].days.size(), 366U);
    EXPECT_TRUE(calendar.years()[0].days[5]); // January 6
    EXPECT_EQ(calendar.years()[0].covered, 1);
    EXPECT_EQ(calendar.wordsAt(calendar.dayBox(0, 5).center()), QStringLiteral("2020-01-06: readings"));
    EXPECT_EQ(calendar.wordsAt(calendar.dayBox(1, 0).center()), QStringLiteral("2021-01-01: no reading"));
    // The search narrows it.
    type("searchWords", "oak");
    EXPECT_TRUE(comes([&] { return calendar.years().size() == 1 && calendar.years()[0].year == 2021; }));
}

TEST_F(ArchiveForm, ShowsTheGrowthOfTheChosenCircuit) {
    Sample later = maple;
    later.start = {2021, 1, 4, 0, 0};
    later.values = {60, 30};
    keep({maple, later, oak});
    openForm();
    ASSERT_TRUE(comes([this] { return rows() == 3; }));
    select({0});
    find<QTabWidget>("archiveTabs").setCurrentIndex(2);
    auto& growth = find<QTableWidget>("growthTable");
    ASSERT_TRUE(comes([&] { return growth.rowCount() == 2; }));
    const auto at = [&](int row, int column) { return growth.item(row, column)->text().toStdString(); };
    EXPECT_EQ(at(0, 0), "2020");
    EXPECT_EQ(at(0, 1), "30.0");
    EXPECT_EQ(at(0, 2), "20.0");
    EXPECT_EQ(at(0, 3), "1");
    EXPECT_EQ(at(0, 4), "-");
    EXPECT_EQ(at(1, 1), "60.0");
    EXPECT_EQ(at(1, 4), "+100.0");
    EXPECT_EQ(find<QLabel>("growthTitle").text(), QStringLiteral("Maple, North: 2 recording(s)"));
}

TEST_F(ArchiveForm, KeepsWhetherDownloadsGoInByThemselves) {
    openWithThree();
    auto& automatic = find<QAbstractButton>("archiveAutomatic");
    EXPECT_FALSE(automatic.isChecked());
    automatic.click();
    EXPECT_EQ(choice->automatic(), archive::ArchiveChoice::Automatic::on);
    automatic.click();
    EXPECT_EQ(choice->automatic(), archive::ArchiveChoice::Automatic::off);
}

} // namespace
} // namespace tally
