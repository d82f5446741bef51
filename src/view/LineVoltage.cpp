// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/LineVoltage.h"

#include "core/Fault.h"
#include "core/Numbers.h"

#include <cmath>
#include <limits>

namespace tally {

namespace {

constexpr const char* section = "Settings";
constexpr const char* key = "Vline";
// No feeder is metered at less than a low-voltage circuit has.
constexpr double leastVolts = 100;

double singleRange(double value) {
    if (std::fabs(value) > static_cast<double>(std::numeric_limits<float>::max()))
        throw fault::overflow();
    return value;
}

} // namespace

std::string vlineOf(const Settings& settings) {
    const std::string stored = settings.get(section, key);
    return stored.empty() ? std::string(defaultVline) : stored;
}

std::string storeVline(Settings& settings) {
    const std::string stored = settings.get(section, key);
    if (stored.empty())
        settings.set(section, key, std::string(defaultVline));
    return stored.empty() ? std::string(defaultVline) : stored;
}

void keepVline(Settings& settings, const std::string& answer) {
    if (answer != settings.get(section, key))
        settings.set(section, key, answer);
}

double voltsOf(std::string_view vline) {
    return singleRange(Val(vline));
}

std::string voltageHint(std::string_view vline) {
    const double volts = Val(vline);
    if (volts >= leastVolts)
        return {};
    std::string hint = "Line voltage taken as " + plain(volts) + " volts; the entry must be volts, not KV";
    if (volts > 0)
        hint += " (" + plain(volts * 1000) + " for " + plain(volts) + " KV)";
    return hint + ".";
}

std::string powerFactorPreset(Recordings& recordings) {
    recordings.powerFactor = powerFactorOf(recordings);
    return plain(recordings.powerFactor);
}

void setPowerFactor(Recordings& recordings, std::string_view answer) {
    if (!answer.empty())
        recordings.powerFactor = static_cast<float>(singleRange(Val(answer)));
}

float powerFactorOf(const Recordings& recordings) {
    return recordings.powerFactor == 0.0F ? 1.0F : recordings.powerFactor;
}

} // namespace tally
