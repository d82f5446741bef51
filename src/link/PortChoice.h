// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"
#include "core/Settings.h"
#include "link/InstrumentState.h"
#include "link/Line.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tally {

constexpr int portCount = 8;

// A serial device that the system (or a simulated instrument) offers.
struct PortDevice {
    std::string path;        // by its lasting name where it has one (UTF-8)
    std::string description; // of the adapter; may be empty
    bool byName = false;     // the description is all that a person needs
    bool simulated = false;  // the instrument that comes with the program
    bool adapter = false;    // one that instruments are plugged into, not a line of the machine itself

    // What it is called, UTF-8.
    std::string text() const;
};

enum class PortPresence { free, notThere, inUse, noPermission };

// The devices of this machine, as the choice of a port sees them.
class PortCatalogue {
public:
    virtual ~PortCatalogue() = default;
    virtual std::vector<PortDevice> devices() const = 0;
    virtual PortPresence presence(const std::string& path) const = 0;
};

// What stands behind COM port 1 to 8 when nothing was assigned to it.
std::string defaultDevice(int commPort);
// What stands behind it: the device assigned in the settings, else the default. Throws Subscript outside 1
// to 8.
std::string devicePath(int commPort, const Settings& settings);
// Assigns a device to a COM port; the empty path, or the default one, takes an assignment back.
void assignDevice(int commPort, const std::string& path, Settings& settings);

// The COM port for a device: the one that it stands behind, else the first whose own device is not there
// (the last when all are), to which it is assigned. It is stored as the port in force.
int takePort(const std::string& path, const PortCatalogue& catalogue, Settings& settings);

// What one of the eight ports is, for a person: the device, its adapter, whether it can be used.
struct PortState {
    int commPort = 1;
    std::string device;
    std::string adapter; // empty when unknown
    bool byName = false; // of the device
    PortPresence presence = PortPresence::notThere;
    bool assigned = false; // not the default device

    // One line, UTF-8.
    std::string text() const;
};
PortState portState(int commPort, const PortCatalogue& catalogue, const Settings& settings);

// "free", "not there", "in use by another program", or what to do about a missing permission.
std::string_view presenceText(PortPresence presence);

// The stored port number; 1 when none was stored, or no number 1 to 8.
int storedCommPort(const Settings& settings);

// The OK of the port selection: takes the checked port (or, with none checked, the one in force), tries it
// and stores it. A port that cannot be opened is refused with a message, and the stored one comes into force
// again.
bool choosePort(std::optional<int> checked, InstrumentState& instrument, Line& line, Settings& settings,
                Prompt& prompt);

} // namespace tally
