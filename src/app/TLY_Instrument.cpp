// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Instrument.h"

#include "app/Menus.h"
#include "app/StatusPanels.h"
#include "app/TLY.h"
#include "app/TLY_Downloads.h"
#include "app/forms/Words.h"
#include "control/forms/Abort.h"
#include "control/forms/Recover.h"
#include "link/forms/Dwnloaditem.h"
#include "link/forms/InstSel.h"
#include "link/forms/PortSel.h"
#include "link/forms/Status.h"

#include <QMenuBar>

namespace tally {

namespace {

class MenusOff {
public:
    explicit MenusOff(TLY& window) : window_(window) { window_.menuBar()->setEnabled(false); }
    ~MenusOff() {
        window_.menuBar()->setEnabled(true);
        window_.menus().refreshAll();
    }
    MenusOff(const MenusOff&) = delete;
    MenusOff& operator=(const MenusOff&) = delete;

private:
    TLY& window_;
};

} // namespace

TLY_Instrument::TLY_Instrument(TLY& window)
    : window_(window),
      context_{window.services().link.line,
               window.services().link.waiter,
               window.services().prompt,
               window.services().link.instrument,
               window.services().link.journal,
               window.dispatcher().gErrorCallPoint,
               window.services().link.requestCancel,
               [&window](const std::string& text) { window.status().remark(lines(text)); }} {
    InstrumentState& instrument = window.services().link.instrument;
    instrument.gCommPort = storedCommPort(window.services().settings);
}

void TLY_Instrument::session(const std::function<void()>& run) {
    InstrumentState& instrument = window_.services().link.instrument;
    if (instrument.instSelection == 0)
        runInstSel(&window_, instrument, true);
    if (instrument.instSelection == 0)
        return;
    const MenusOff off(window_);
    run();
    sayProblem();
    window_.activateWindow();
}

// What made a port invalid; the message boxes of the commands do not name it.
void TLY_Instrument::sayProblem() {
    const std::string problem = window_.services().link.line.problem();
    if (!problem.empty())
        window_.status().remark(lines(problem));
}

void TLY_Instrument::mnuItemDownload_Click() {
    const Services& s = window_.services();
    session(
        [&] { window_.downloads().take(runDownload(&window_, context_, s.files, s.link.workingDirectory)); });
    window_.downloads().showNotices();
}

void TLY_Instrument::mnuItemInitialize_Click() {
    session([&] { runInitialize(&window_, context_, window_.services().link.journal); });
}

void TLY_Instrument::mnuItemRecover_Click() {
    const Services& s = window_.services();
    session([&] { window_.downloads().take(runRecover(&window_, context_, s.files, s.link.temporary)); });
    window_.downloads().showNotices();
}

void TLY_Instrument::mnuItemStatusCheck_Click() {
    session([&] { runStatusCheck(&window_, context_); });
}

void TLY_Instrument::mnuItemPortSelect_Click() {
    const Services& s = window_.services();
    runPortSel(&window_, s.link.instrument, s.link.line, s.settings, s.prompt, s.link.ports);
    sayProblem();
    window_.activateWindow();
}

void TLY_Instrument::mnuItemInstSelect_Click() {
    runInstSel(&window_, window_.services().link.instrument);
    window_.activateWindow();
}

} // namespace tally
