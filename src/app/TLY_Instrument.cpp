// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Instrument.h"

#include "app/Dispatcher.h"
#include "app/Menus.h"
#include "app/TLY_Downloads.h"
#include "app/forms/StatusPanels.h"
#include "app/forms/Words.h"
#include "control/forms/Abort.h"
#include "control/forms/Recover.h"
#include "link/forms/Dwnloaditem.h"
#include "link/forms/InstSel.h"
#include "link/forms/PortSel.h"
#include "link/forms/Status.h"

#include <QMainWindow>
#include <QMenuBar>

namespace tally {

namespace {

class MenusOff {
public:
    MenusOff(QMenuBar& bar, Menus& menus) : bar_(bar), menus_(menus) { bar_.setEnabled(false); }
    ~MenusOff() {
        bar_.setEnabled(true);
        menus_.refreshAll();
    }
    MenusOff(const MenusOff&) = delete;
    MenusOff& operator=(const MenusOff&) = delete;

private:
    QMenuBar& bar_;
    Menus& menus_;
};

} // namespace

TLY_Instrument::TLY_Instrument(const Services& services, Dispatcher& dispatcher, TLY_Downloads& downloads,
                               Menus& menus, StatusPanels& status, QMainWindow* window)
    : services_(services),
      downloads_(downloads),
      menus_(menus),
      status_(status),
      window_(window),
      context_{services.link.line,
               services.link.waiter,
               services.prompt,
               services.link.instrument,
               services.link.journal,
               dispatcher.gErrorCallPoint,
               services.link.requestCancel,
               [&status](const std::string& text) { status.remark(lines(text)); }} {
    services.link.instrument.gCommPort = storedCommPort(services.settings);
}

void TLY_Instrument::session(const std::function<void()>& run) {
    InstrumentState& instrument = services_.link.instrument;
    if (instrument.instSelection == 0)
        runInstSel(window_, instrument, true);
    if (instrument.instSelection == 0)
        return;
    const MenusOff off(*window_->menuBar(), menus_);
    run();
    sayProblem();
    window_->activateWindow();
}

// What made a port invalid; the message boxes of the commands do not name it.
void TLY_Instrument::sayProblem() {
    const std::string problem = services_.link.line.problem();
    if (!problem.empty())
        status_.remark(lines(problem));
}

void TLY_Instrument::mnuItemDownload_Click() {
    const Services& s = services_;
    if (!downloads_.mayGo())
        return;
    session([&] { downloads_.take(runDownload(window_, context_, s.files, s.link.workingDirectory)); });
    downloads_.showNotices();
}

// The instrument may hold the only other copy of what waits in memory alone.
void TLY_Instrument::mnuItemInitialize_Click() {
    if (!downloads_.mayGo())
        return;
    session([&] { runInitialize(window_, context_); });
}

void TLY_Instrument::mnuItemRecover_Click() {
    const Services& s = services_;
    if (!downloads_.mayGo())
        return;
    session([&] { downloads_.take(runRecover(window_, context_, s.files, s.link.temporary)); });
    downloads_.showNotices();
}

void TLY_Instrument::mnuItemStatusCheck_Click() {
    session([&] { runStatusCheck(window_, context_); });
}

void TLY_Instrument::mnuItemPortSelect_Click() {
    const Services& s = services_;
    runPortSel(window_, s.link.instrument, s.link.line, s.settings, s.prompt, s.link.ports);
    sayProblem();
    window_->activateWindow();
}

void TLY_Instrument::mnuItemInstSelect_Click() {
    runInstSel(window_, services_.link.instrument);
    window_->activateWindow();
}

} // namespace tally
