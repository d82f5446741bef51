// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/PortChoice.h"

#include "core/Fault.h"
#include "core/Refusal.h"

namespace tally {

namespace {

const char* const section = "Comm";
const char* const portKey = "TLY.MSComm1.CommPort";

std::string deviceKey(int commPort) {
    return "COM" + std::to_string(commPort);
}

void check(int commPort) {
    if (commPort < 1 || commPort > portCount)
        throw fault::subscript();
}

} // namespace

std::string defaultDevice(int commPort) {
    check(commPort);
#ifdef _WIN32
    return "COM" + std::to_string(commPort);
#else
    return "/dev/ttyS" + std::to_string(commPort - 1);
#endif
}

std::string devicePath(int commPort, const Settings& settings) {
    const std::string standard = defaultDevice(commPort);
    const std::string assigned = settings.get(section, deviceKey(commPort));
    return assigned.empty() ? standard : assigned;
}

void assignDevice(int commPort, const std::string& path, Settings& settings) {
    settings.set(section, deviceKey(commPort), path == defaultDevice(commPort) ? std::string() : path);
}

int takePort(const std::string& path, const PortCatalogue& catalogue, Settings& settings) {
    int port = 1;
    while (port <= portCount && devicePath(port, settings) != path)
        ++port;
    if (port > portCount) {
        for (port = 1; port < portCount; ++port)
            if (catalogue.presence(devicePath(port, settings)) == PortPresence::notThere)
                break;
        assignDevice(port, path, settings);
    }
    settings.set(section, portKey, std::to_string(port));
    return port;
}

std::string_view presenceText(PortPresence presence) {
    switch (presence) {
    case PortPresence::free:
        return "free";
    case PortPresence::inUse:
        return "in use by another program";
    case PortPresence::noPermission:
        return "no permission: add yourself to group dialout and log in again";
    case PortPresence::notThere:
        break;
    }
    return "not there";
}

std::string PortDevice::text() const {
    if (byName)
        return description;
    return description.empty() ? path : path + " (" + description + ")";
}

std::string PortState::text() const {
    return PortDevice{device, adapter, byName}.text() + ": " + std::string(presenceText(presence));
}

PortState portState(int commPort, const PortCatalogue& catalogue, const Settings& settings) {
    PortState state;
    state.commPort = commPort;
    state.device = devicePath(commPort, settings);
    state.assigned = state.device != defaultDevice(commPort);
    state.presence = catalogue.presence(state.device);
    for (const PortDevice& device : catalogue.devices())
        if (device.path == state.device) {
            state.adapter = device.description;
            state.byName = device.byName;
        }
    return state;
}

int storedCommPort(const Settings& settings) {
    const std::string stored = settings.get(section, portKey);
    const bool number = stored.size() == 1 && stored[0] >= '1' && stored[0] < '1' + portCount;
    return number ? stored[0] - '0' : 1;
}

bool choosePort(std::optional<int> checked, InstrumentState& instrument, Line& line, Settings& settings,
                Prompt& prompt) {
    instrument.gCommPort = checked.value_or(instrument.gCommPort);
    try {
        probePort(line, instrument.gCommPort);
    } catch (const Fault&) {
        prompt.tell(Refusal{.text = "Invalid Port", .subject = line.problem()}.message());
        instrument.gCommPort = storedCommPort(settings);
        return false;
    }
    settings.set(section, portKey, std::to_string(instrument.gCommPort));
    return true;
}

} // namespace tally
