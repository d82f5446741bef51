// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/FindInstrument.h"

#include "link/Instruments.h"
#include "link/StatusCheck.h"

namespace tally {

namespace {

const char* const slow = "9600,N,8,1";
const char* const fast = "115200,N,8,1";

// Nobody is asked or told while ports are tried.
class Silence : public Prompt {
public:
    Answer show(const Message& message) override { return message.defaultAnswer; }
    std::optional<std::string> input(const InputQuestion&) override { return {}; }
    std::optional<std::string> chooseFile(const FileQuestion&) override { return {}; }
};

// Puts the instrument in force back, however the search ends.
class Restored {
public:
    explicit Restored(InstrumentState& instrument) : instrument_(instrument), before_(instrument) {}
    ~Restored() { instrument_ = before_; }
    Restored(const Restored&) = delete;
    Restored& operator=(const Restored&) = delete;

private:
    InstrumentState& instrument_;
    InstrumentState before_;
};

WaitPolicy headerPolicy() {
    WaitPolicy policy;
    policy.waitFor = ResponseTimer::interval;
    policy.readable = [](const Received& received) {
        return readableHeader(asSent(received), false, false).has_value();
    };
    return policy;
}

std::string nameOf(int type) {
    const std::string name = InstrumentName(type);
    return name.empty() ? std::string(optionCaption(type)) : name;
}

} // namespace

std::string FoundInstrument::text() const {
    std::string words = port.text() + ": " + nameOf(type) + ", serial number " + status.serial;
    if (status.vbatt)
        words += ", " + batteryText(*status.vbatt);
    return words + (status.lowBattery ? ", LOW BATTERY" : "");
}

std::vector<PortDevice> portsToTry(const PortCatalogue& catalogue, bool adapters) {
    std::vector<PortDevice> ports;
    for (PortDevice& device : catalogue.devices())
        if (device.adapter == adapters && catalogue.presence(device.path) == PortPresence::free)
            ports.push_back(std::move(device));
    return ports;
}

int typeOfModel(const std::string& model, const std::string& settings) {
    const char family = model.empty() ? ' ' : model[0];
    const char kind = model.size() < 3 ? ' ' : model[2];
    if (settings == fast)
        return 8;
    switch (kind) {
    case ' ':
        return 1;
    case 'V':
        return family == 'H' ? 3 : 6;
    case 'D':
        return 5;
    case 'X':
        return 10;
    case 'T':
        return 7;
    default:
        return family == 'H' ? 2 : 4;
    }
}

SessionResult<std::vector<FoundInstrument>> FindInstrument::find(const std::vector<PortDevice>& ports) {
    const Restored restored(services_.instrument);
    Silence silence;
    const SessionServices quiet{services_.line,       services_.waiter,  silence,
                                services_.instrument, services_.journal, services_.gErrorCallPoint};
    Session session(quiet, panel_);
    const PortGuard guard(session);
    services_.waiter.resetCancel();
    std::vector<FoundInstrument> all;
    for (const PortDevice& port : ports) {
        auto found = listen(session, port);
        if (!found)
            return tl::make_unexpected(found.error());
        if (*found)
            all.push_back(std::move(**found));
    }
    return all;
}

SessionResult<std::optional<FoundInstrument>> FindInstrument::listen(Session& session,
                                                                     const PortDevice& port) {
    InstrumentState& instrument = session.instrument;
    instrument.instSelection = 0;
    instrument.gCommPort = 0;
    instrument.devicePath = port.path;
    for (const bool first : {true, false}) {
        instrument.portSettings = first ? slow : fast;
        auto found = listenAt(session, port, first);
        session.closePort();
        if (!found || *found)
            return found;
    }
    return std::optional<FoundInstrument>();
}

SessionResult<std::optional<FoundInstrument>> FindInstrument::listenAt(Session& session,
                                                                       const PortDevice& port, bool first) {
    if (const auto opened = session.open(true); !opened) {
        panel_.appendLog(session.line.problem() + "\r\n");
        return std::optional<FoundInstrument>();
    }
    if (!first) {
        panel_.status(port.text() + ":  Resetting the interface. (Takes about 5 seconds)...");
        session.line.DTREnable(false);
        const Wake wake = session.pause(session.waiter.now() + ResponseTimer::resetTime);
        session.line.DTREnable(true);
        if (wake == Wake::cancelled)
            return Session::cancelled();
    }
    panel_.status(port.text() + ":  Listening at " + (first ? "9,600" : "115,200") + " baud...");
    const auto received = InstrumentWait(session, headerPolicy()).run();
    if (!received) {
        if (received.error().kind == EndKind::cancelled)
            return Session::cancelled();
        return std::optional<FoundInstrument>();
    }
    const auto header = readableHeader(asSent(*received), false, true);
    if (!header)
        return std::optional<FoundInstrument>();
    const StatusFields status = readStatusHeader(header->line(), header->lowBattery());
    const std::string settings = session.instrument.portSettings;
    return std::optional(FoundInstrument{port, typeOfModel(status.type, settings), settings, status});
}

} // namespace tally
