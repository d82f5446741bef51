// SPDX-License-Identifier: GPL-3.0-or-later
#include "Gallery.h"

#include "app/forms/About.h"
#include "app/forms/DataSelect.h"
#include "app/forms/EditNotes.h"
#include "app/forms/ExportForm.h"
#include "app/forms/ForceRdgs.h"
#include "app/forms/MessageBox.h"
#include "archive/forms/AssignForm.h"
#include "control/ModeLetter.h"
#include "control/forms/Abort.h"
#include "control/forms/InitInst.h"
#include "control/forms/Recover.h"
#include "core/Fileopen.h"
#include "link/forms/Dwnloaditem.h"
#include "link/forms/FindForm.h"
#include "link/forms/InstProperties.h"
#include "link/forms/InstSel.h"
#include "link/forms/PortSel.h"
#include "link/forms/Status.h"
#include "survey/Peaks.h"
#include "survey/forms/LoadSurv.h"
#include "survey/forms/Station.h"
#include "survey/forms/SurveyShow.h"
#include "view/PlotModel.h"
#include "view/forms/DisplaySel.h"

#include <QTest>

namespace tally::testing {

void Gallery::add(const char* form, std::function<std::unique_ptr<QDialog>()> make) {
    pieces_.push_back({form, std::move(make)});
}

void Gallery::SetUp() {
    for (const char* name : {"/d/north.dat", "/d/south.dat"}) {
        files.contents[name] = dataFile('a', {100, 200, 300, 400});
        Fileopen(two_, files, name);
    }
    instrument.instSelection = 7;
    addBoxes();
    addFileForms();
    addInstrumentForms();
    addSurveyForms();
}

void Gallery::addBoxes() {
    add("MessageBox", [] {
        return std::make_unique<MessageBox>(
            Message{.text = "Give this reception up? It cannot be shown or saved then.",
                    .buttons = Buttons::YesNo,
                    .exclamation = true});
    });
    add("InputBox", [] {
        return std::make_unique<InputBox>(InputQuestion{.text = "Enter user name below\r", .preset = {}});
    });
    add("About", [] { return std::make_unique<About>(QStringLiteral("Ann")); });
}

void Gallery::addFileForms() {
    add("DataSelect", [this] { return std::make_unique<DataSelect>(two_, prompt); });
    add("EditNotes", [] {
        return std::make_unique<EditNotes>("/d/north.dat", std::array<std::string, 4>{"a", "b", "c", "d"});
    });
    add("ExportForm", [] {
        return std::make_unique<ExportForm>(
            "Everything: 4 readings, 08:45  Mar 15, 24 to 09:30  Mar 15, 24",
            "What is shown: 2 readings, 09:00  Mar 15, 24 to 09:15  Mar 15, 24",
            std::vector<std::string>{"north.dat", "south.dat"});
    });
    add("ForceRdgs", [] { return std::make_unique<ForceRdgs>("/d/north.dat", "0", "4"); });
    add("DisplaySel", [] { return std::make_unique<DisplaySel>(Statistic::average); });
}

void Gallery::addInstrumentForms() {
    add("PortSel", [this] { return std::make_unique<PortSel>(1, ports, settings, nullptr); });
    add("InstSel", [this] { return std::make_unique<InstSel>(instrument, false, nullptr); });
    add("InstProperties", [this] { return std::make_unique<InstProperties>(instrument, nullptr); });
    add("InitInst", [] {
        const auto lasts = [](const ModeChoice&) {
            return std::string(
                "The memory lasts 5 days and 3 hours, until 12:00  Mar 20, 24; then the recording stops.");
        };
        return std::make_unique<InitInst>("No downloads are known on this computer.", lasts, nullptr);
    });
    add("FindForm", [this] { return std::make_unique<FindForm>(session, nullptr); });
    add("AssignForm", [] { return std::make_unique<archive::AssignForm>(std::vector<archive::Entry>(2)); });
    add("Dwnloaditem", [this] { return std::make_unique<Dwnloaditem>(session, nullptr); });
    add("Status", [this] { return std::make_unique<Status>(session, nullptr); });
    add("Recover", [this] { return std::make_unique<Recover>(session, nullptr); });
    add("Abort", [this] { return std::make_unique<Abort>(session, nullptr); });
}

void Gallery::addSurveyForms() {
    survey_.stationName = "NORTH";
    survey_.feederNames[0] = "Maple";
    survey_.feederPeaks[0] = FeederPeaks{};
    survey_.stationPeak = StationPeak{};
    add("LoadSurv", [this]() -> std::unique_ptr<QDialog> {
        const auto nothing = [](const SurveyPaper&) {};
        return std::make_unique<LoadSurv>(
            survey_, SurveyServices{files, prompt, clock, {}, nothing, nothing, [](const auto& step) {
                                        static_cast<void>(step());
                                    }});
    });
    add("SurveyShow", [this] { return std::make_unique<SurveyShow>(survey_, 0); });
    add("Station", [this] { return std::make_unique<Station>(survey_); });
}

void Gallery::walk(const std::function<void(QDialog&, const std::string&)>& look) {
    for (const Piece& piece : pieces_) {
        const auto dialog = piece.make();
        dialog->show();
        QCoreApplication::processEvents();
        look(*dialog, piece.form);
    }
}

void Gallery::walkPages(const std::function<void(const std::string&)>& look) {
    window.resize(1200, 760);
    window.show();
    QCoreApplication::processEvents();
    look("start");
    open("/d/one.dat", dataFile('a', std::vector<int>(400, 120)));
    const std::pair<const char*, const char*> views[] = {{"mnuItemViewPlot", "plot"},
                                                         {"mnuItemViewTable", "table"},
                                                         {"mnuItemViewsummary", "summary"},
                                                         {"mnuItemViewStudy", "study"}};
    for (const auto& [item, page] : views) {
        click(item);
        QCoreApplication::processEvents();
        look(page);
    }
}

} // namespace tally::testing
