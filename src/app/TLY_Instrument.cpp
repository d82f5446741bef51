// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Instrument.h"

#include "app/Menus.h"
#include "app/TLY_Downloads.h"
#include "app/forms/StatusPanels.h"
#include "control/forms/Abort.h"
#include "control/forms/Recover.h"
#include "core/forms/Words.h"
#include "link/Instruments.h"
#include "link/forms/Dwnloaditem.h"
#include "link/forms/FindForm.h"
#include "link/forms/InstSel.h"
#include "link/forms/PortSel.h"
#include "link/forms/Status.h"

#include <QMainWindow>
#include <QMenuBar>
#include <algorithm>

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

TLY_Instrument::TLY_Instrument(const Services& services, TLY_Downloads& downloads, Menus& menus,
                               StatusPanels& status, QMainWindow* window)
    : services_(services),
      downloads_(downloads),
      menus_(menus),
      status_(status),
      window_(window),
      context_(services.session) {
    context_.mainStatus = [&status](const std::string& text) { status.say(lines(text)); };
    context_.instrument.gCommPort = storedCommPort(services.settings);
}

void TLY_Instrument::session(const std::function<void()>& run) {
    InstrumentState& instrument = context_.instrument;
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
    const std::string problem = context_.line.problem();
    if (!problem.empty())
        status_.say(lines(problem));
}

void TLY_Instrument::mnuItemDownload_Click() {
    const Services& s = services_;
    if (!downloads_.mayGo())
        return;
    session([&] { downloads_.take(runDownload(window_, context_, s.files, s.places.workingDirectory)); });
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
    session([&] { downloads_.take(runRecover(window_, context_, s.files, s.places.temporary)); });
    downloads_.showNotices();
}

void TLY_Instrument::mnuItemStatusCheck_Click() {
    session([&] { runStatusCheck(window_, context_); });
}

void TLY_Instrument::use(const std::string& device, int type) {
    InstrumentState& instrument = context_.instrument;
    instrument.gCommPort = takePort(device, services_.places.ports, services_.settings);
    applySelection(instrument, type);
}

void TLY_Instrument::mnuItemFind_Click() {
    std::optional<FoundInstrument> found;
    {
        const MenusOff off(*window_->menuBar(), menus_);
        found = runFind(window_, context_, services_.places.ports);
        window_->activateWindow();
    }
    if (!found)
        return;
    use(found->port.path, found->type);
    mnuItemDownload_Click();
}

bool TLY_Instrument::hasSimulated() const {
    const auto devices = services_.places.ports.devices();
    return std::any_of(devices.begin(), devices.end(),
                       [](const PortDevice& device) { return device.simulated; });
}

void TLY_Instrument::trySimulated() {
    constexpr int usual = 7;
    for (const PortDevice& device : services_.places.ports.devices())
        if (device.simulated) {
            use(device.path, usual);
            mnuItemDownload_Click();
            return;
        }
}

void TLY_Instrument::mnuItemPortSelect_Click() {
    const Services& s = services_;
    runPortSel(window_, context_.instrument, context_.line, s.settings, s.prompt, s.places.ports);
    sayProblem();
    window_->activateWindow();
}

void TLY_Instrument::mnuItemInstSelect_Click() {
    runInstSel(window_, context_.instrument);
    window_->activateWindow();
}

} // namespace tally
