// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bench.h"

#include "app/TLY_Edit.h"
#include "app/TLY_Paper.h"
#include "app/forms/Access.h"
#include "app/language/Speech.h"
#include "control/MemoryLasts.h"
#include "control/forms/InitInst.h"
#include "link/forms/Dwnloaditem.h"
#include "link/forms/InstSel.h"
#include "link/forms/PortSel.h"
#include "link/forms/Status.h"
#include "survey/SurveyDesk.h"
#include "survey/forms/LoadSurv.h"
#include "view/forms/Chart.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <cstdio>
#include <exception>

namespace tally::pictures {
namespace {

const std::vector<std::string> threePhases = {"station/maple-red.dat", "station/maple-white.dat",
                                              "station/maple-blue.dat"};

void press(QWidget& form, const char* button) {
    form.findChild<QAbstractButton*>(QString::fromLatin1(button))->click();
}

void plots(Bench& bench) {
    bench.grab(bench.window, "start");
    bench.open({"feeder-15min.dat"}, false);
    bench.grab(bench.window, "summary");
    bench.click("mnuItemViewPlot");
    bench.grab(bench.window, "plot");
    bench.click("mnuItemViewTable");
    bench.grab(bench.window, "table");
    bench.open({"workshop-1min-minmaxavg.dat"}, true);
    bench.grab(bench.window, "plot-min-max-avg");
    bench.open(threePhases, true);
    bench.grab(bench.window, "plot-three-phases");
}

void power(Bench& bench) {
    bench.open(threePhases, true);
    bench.prompt.inputs.push_back("13800");
    bench.click("mnuItemViewPower");
    bench.grab(bench.window, "power");
}

void forced(Bench& bench) {
    bench.open({"feeder-15min.dat"}, true);
    const auto& readings = bench.recordings.gReadings[0];
    const int spike = int(std::max_element(readings.begin(), readings.end()) - readings.begin());
    bench.zoomTo(spike - 2, spike + 2);
    bench.whenOpen([&bench](QWidget& form) {
        form.findChild<QLineEdit*>(QStringLiteral("Text1"))->setText(QStringLiteral("205"));
        bench.grab(form, "force");
        press(form, "Command1");
    });
    bench.click("mnuItemForceRdg");
    bench.click("mnuItemViewPlot");
    bench.zoomTo(spike - 48, spike + 48);
    bench.grab(bench.window, "plot-forced");
    bench.window.findChild<QAction*>(QStringLiteral("undoForced"))->trigger();
}

void paper(Bench& bench) {
    bench.open({"feeder-15min.dat"}, true);
    bench.whenOpen([&bench](QWidget& dialog) {
        dialog.resize(900, 700);
        bench.grab(dialog, "print-preview");
        static_cast<QDialog&>(dialog).reject();
    });
    bench.window.findChild<QAction*>(QStringLiteral("chartPreview"))->trigger();
}

void readings(Bench& bench) {
    bench.open(threePhases, false);
    bench.whenOpen([&bench](QWidget& form) {
        bench.grab(form, "export-readings");
        static_cast<QDialog&>(form).reject();
    });
    bench.click("mnuItemExportReadings");
    bench.click("mnuItemViewPlot");
    bench.click("mnuItemFigures");
    bench.window.screen().chart().markSpan(200, 400);
    bench.grab(bench.window, "plot-figures");
    bench.click("mnuItemViewStudy");
    bench.grab(bench.window, "study");
}

void survey(Bench& bench) {
    SurveyData data;
    bench.prompt.inputs.push_back("North");
    startSurvey(data, bench.prompt);
    const auto ignore = [](const SurveyPaper&) {};
    LoadSurv form(data,
                  {bench.files,
                   bench.prompt,
                   bench.clock,
                   {},
                   ignore,
                   ignore,
                   [](const std::function<void()>& step) { step(); }},
                  &bench.window);
    form.show();
    press(form, "Option1");
    form.findChild<QLineEdit*>(QStringLiteral("Text4"))->setText(QStringLiteral("Maple"));
    press(form, "Command1");
    for (const char* phase : {"red", "white", "blue"}) {
        bench.prompt.files.push_back(bench.sample(std::string("station/maple-") + phase + ".dat"));
        press(form, phase);
    }
    bench.grab(form, "survey");
    for (const auto& [button, name] :
         {std::pair("Command2", "survey-result"), {"Command3", "survey-station"}}) {
        bench.whenOpen([&bench, name = name](QWidget& dialog) {
            bench.grab(dialog, name);
            static_cast<QDialog&>(dialog).reject();
        });
        press(form, button);
    }
}

// The dialogs of the link; a download stops at its first prompt.
void link(Bench& bench) {
    PortSel ports(1, bench.ports, bench.settings, &bench.window);
    bench.grab(ports, "port-selection");
    ports.hide();
    bench.instrument.instSelection = 7;
    InstSel types(bench.instrument, false, &bench.window);
    bench.grab(types, "instrument-selection");
    types.hide();
    InitInst initialize(
        {},
        [](const ModeChoice& choice) {
            return memoryLasts(choice, 10710, toReadingTime({2024, 3, 15, 14, 5}));
        },
        &bench.window);
    bench.grab(initialize, "initialize");
    initialize.hide();
    bench.whenOpen([&bench](QWidget& dialog) {
        bench.grab(dialog, "download");
        static_cast<QDialog&>(dialog).reject();
    });
    runDownload(&bench.window, bench.session, bench.files, "/nowhere");
    Status status(bench.session, &bench.window);
    StatusFields fields;
    fields.type = "PQX";
    fields.serial = "1234";
    fields.state = "Running";
    fields.mode = "Average";
    fields.interval = 15;
    fields.whenFull = "Cont";
    fields.timeOn = "09:30  Mar 01, 24";
    fields.vbatt = 7.2;
    status.prompt(fields.text());
    bench.grab(status, "status");
}

} // namespace
} // namespace tally::pictures

// Draws the windows into a folder.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 3 && argc != 4) {
        std::fputs("usage: tally_pictures FOLDER SAMPLES [LANGUAGE]\n", stderr);
        return 2;
    }
    tally::easeAccess(application);
    const tally::Speech speech(application, argc == 4 ? argv[3] : "en");
    try {
        tally::pictures::Bench bench(argv[1], argv[2]);
        for (const auto& draw :
             {tally::pictures::plots, tally::pictures::forced, tally::pictures::readings,
              tally::pictures::power, tally::pictures::paper, tally::pictures::survey, tally::pictures::link})
            draw(bench);
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "tally_pictures: %s\n", problem.what());
        return 1;
    }
    return 0;
}
