// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <string>

namespace tally {

// The simulated instrument, run beside this program for as long as it is wanted.
class SimulatedInstrument {
public:
    // `device` is the path at which it is found while it runs.
    explicit SimulatedInstrument(std::string device);
    SimulatedInstrument();
    ~SimulatedInstrument();

    const std::string& device() const { return device_; }

    // Whether the program "tallyline-sim" stands beside this one.
    static bool available();

    // Starts it and waits until it is ready; does nothing when it runs as this type
    // already. `type` is an instrument type code 1 to 10. False when it does not come up.
    bool start(int type);

private:
    std::string device_;
    QProcess process_;
    int type_ = 0;
};

} // namespace tally
