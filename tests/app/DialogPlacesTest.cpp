// SPDX-License-Identifier: GPL-3.0-or-later
// Every dialog on the smallest screen that a field computer has.
#include "WindowTest.h"

#include "app/forms/About.h"
#include "app/forms/DataSelect.h"
#include "app/forms/EditNotes.h"
#include "app/forms/ForceRdgs.h"
#include "app/forms/MessageBox.h"
#include "control/forms/Abort.h"
#include "control/forms/InitInst.h"
#include "control/forms/Recover.h"
#include "link/forms/Dwnloaditem.h"
#include "link/forms/InstProperties.h"
#include "link/forms/InstSel.h"
#include "link/forms/PortSel.h"
#include "link/forms/Status.h"
#include "survey/SurveyDesk.h"
#include "survey/forms/LoadSurv.h"
#include "survey/forms/Station.h"
#include "survey/forms/SurveyShow.h"
#include "view/forms/DisplaySel.h"

#include <QApplication>
#include <QPushButton>

namespace tally {
namespace {

using testing::dataFile;
using testing::WindowTest;

// A screen of 1366 x 768 less a title bar and a task bar.
constexpr int width = 1366;
constexpr int height = 768 - 30 - 40;
constexpr int between = 3; // pixels, at least

class DialogPlaces : public WindowTest {
protected:
    const std::string longPath = "/home/technician/recordings of the northern district/substations/mill road/"
                                 "feeder 12, red phase, winter of 2024.dat";

    static void check(QDialog& dialog) {
        SCOPED_TRACE(dialog.objectName().toStdString());
        dialog.show();
        QApplication::processEvents();
        EXPECT_LE(dialog.width(), width);
        EXPECT_LE(dialog.height(), height);
        EXPECT_LE(dialog.minimumSizeHint().width(), width);
        EXPECT_LE(dialog.minimumSizeHint().height(), height);
        const auto buttons = dialog.findChildren<QPushButton*>();
        for (const QPushButton* one : buttons)
            for (const QPushButton* other : buttons) {
                if (one == other || !one->isVisible() || !other->isVisible())
                    continue;
                const QRect around(one->mapTo(&dialog, QPoint()) - QPoint(between, between),
                                   one->size() + QSize(2 * between, 2 * between));
                EXPECT_FALSE(around.intersects(QRect(other->mapTo(&dialog, QPoint()), other->size())))
                    << one->text().toStdString() << " and " << other->text().toStdString();
            }
    }
};

TEST_F(DialogPlaces, DialogsAboutFilesFitTheScreenAndTheirButtonsStandApart) {
    for (const char* end : {"a", "b", "c"})
        open(longPath + end, dataFile('a', std::vector<int>(16, 1000)));
    About about(QStringLiteral("Jane Turner, Northern District"));
    DataSelect select(recordings, prompt);
    EditNotes notes(longPath, {"Mill Road substation", "Feeder 12", "Turner", "Outage on 21 March"});
    ForceRdgs force(longPath, "0", "42966");
    DisplaySel statistic(Statistic::average);
    MessageBox box(
        {.text = "File not found\r\n" + longPath + longPath + longPath, .buttons = Buttons::YesNo});
    InputBox input({.text = "Enter line voltage", .preset = "13800", .choices = {"13800", "4160"}});
    for (QDialog* dialog :
         std::initializer_list<QDialog*>{&about, &select, &notes, &force, &statistic, &box, &input})
        check(*dialog);
}

TEST_F(DialogPlaces, DialogsOfInstrumentsFitTheScreenAndTheirButtonsStandApart) {
    std::string known = "No downloads are known";
    for (int i = 0; i < 8; ++i)
        known += "\r\n  " + longPath;
    instrument.instSelection = 9;
    Abort abort(session, nullptr);
    InitInst init(
        known, [](const ModeChoice&) { return std::string(30, 'W'); }, nullptr);
    Recover recover(session, nullptr);
    Dwnloaditem download(session, nullptr);
    Status status(session, nullptr);
    InstProperties properties(instrument, nullptr);
    InstSel types(instrument, false, nullptr);
    PortSel port(1, ports, settings, nullptr);
    for (QDialog* dialog : std::initializer_list<QDialog*>{&abort, &init, &recover, &download, &status,
                                                           &properties, &types, &port})
        check(*dialog);
}

TEST_F(DialogPlaces, DialogsOfTheSurveyFitTheScreenAndTheirButtonsStandApart) {
    files.contents[longPath] = dataFile('a', std::vector<int>(16, 1000));
    SurveyData survey;
    beginSurvey(survey, "Northern District, Mill Road substation");
    SurveyDesk desk(survey);
    for (int feeder = 0; feeder < feederCount; ++feeder) {
        desk.proceed(feeder, "Feeder " + std::to_string(feeder) + " of the northern district");
        for (int phase = 0; phase < phaseCount; ++phase)
            ASSERT_TRUE(desk.load(phase, longPath, files));
        desk.showResult();
    }
    desk.showStationPeak();
    const auto print = [](const SurveyPaper&) {};
    const auto attempt = [](const std::function<Expected<void>()>&) {};
    LoadSurv form(survey, SurveyServices{files, prompt, clock, "/d", print, print, attempt});
    SurveyShow result(survey, 3);
    Station station(survey);
    for (QDialog* dialog : std::initializer_list<QDialog*>{&form, &result, &station})
        check(*dialog);
}

} // namespace
} // namespace tally
