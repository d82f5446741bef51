// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/Session.h"

#include "core/Fault.h"
#include "link/PromptTexts.h"

namespace tally {

namespace {

// Little enough to look at timers and cancel often.
constexpr std::size_t maximumKept = 1024;
constexpr std::size_t clockEvery = 64; // kept characters

} // namespace

void Session::openPort() {
    line.CommPort(instrument.gCommPort);
    line.Settings(instrument.portSettings);
    line.InputLen(1);
    // The sessions look for the end mark themselves: what follows it must not go unseen.
    line.EOFEnable(false);
    line.onArrival({.keep = [&sink = journal](std::string_view characters) { sink.append(characters); },
                    .room = [&sink = journal] { return sink.room(); }});
    line.PortOpen(true);
}

SessionResult<void> Session::tryPort(const std::function<void()>& open, bool quiet) const {
    try {
        open();
    } catch (const Fault&) {
        const Refusal why = {.text = badPortText, .subject = line.problem()};
        return quiet ? tl::make_unexpected(SessionEnd{EndKind::badPort, why}) : end(EndKind::badPort, why);
    }
    return {};
}

SessionResult<void> Session::open(bool quiet) {
    return tryPort([this] { openPort(); }, quiet);
}

SessionResult<void> Session::probe() {
    return tryPort([this] { probePort(line, instrument.gCommPort); }, false);
}

void Session::closePort() {
    if (line.isOpen())
        line.PortOpen(false);
    kept_.clear();
    used_ = 0;
}

void Session::drain(std::size_t maximum) {
    line.inputAll(kept_, maximum);
}

std::string Session::Input() {
    if (unused() == 0) {
        kept_.clear();
        used_ = 0;
        looked_ = waiter.now();
        drain(maximumKept);
    }
    return unused() > 0 ? std::string(1, kept_[used_++]) : std::string();
}

Wake Session::until(std::int64_t deadline) {
    if (unused() == 0)
        return waiter.until(deadline);
    // Looking at the clock takes longer than a character does, and some dozen of them take no time.
    if (used_ % clockEvery == 0)
        looked_ = waiter.now();
    if (looked_ >= deadline && looked_ - deadline < Waiter::stoodStill)
        return Wake::due;
    return waiter.cancelRequested() ? Wake::cancelled : Wake::data;
}

Wake Session::pause(std::int64_t deadline) {
    for (;;) {
        const Wake wake = waiter.until(deadline);
        if (wake != Wake::data)
            return wake;
        drain(kept_.size() + maximumKept);
        if (!line.isOpen())
            return Wake::due;
    }
}

tl::unexpected<SessionEnd> Session::end(EndKind kind, const Refusal& why) const {
    prompt.tell(why.message());
    return tl::make_unexpected(SessionEnd{kind, why});
}

JournalHeader journalHeader(const Session& session, const std::string& command) {
    const InstrumentState& instrument = session.instrument;
    return {.commPort = instrument.gCommPort,
            .device = instrument.devicePath,
            .instrumentType = instrument.instSelection,
            .maxSamples = instrument.maxSamples,
            .settings = instrument.portSettings,
            .pcTime = session.waiter.localTime(),
            .command = command};
}

} // namespace tally
