// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/LineVoltage.h"

#include "core/Fault.h"
#include "core/Numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tally {

namespace {

constexpr const char* section = "Settings";
constexpr const char* key = "Vline";
// No feeder is metered at less than a low-voltage circuit has.
constexpr double lowestVolts = 100;

double singleRange(double value) {
    if (std::fabs(value) > static_cast<double>(std::numeric_limits<float>::max()))
        throw fault::overflow();
    return value;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// Whether the comma at a place stands between a digit and exactly three digits.
bool groupsThousands(std::string_view text, std::size_t comma) {
    if (comma == 0 || !isDigit(text[comma - 1]) || text.size() < comma + 4)
        return false;
    for (std::size_t i = comma + 1; i < comma + 4; ++i)
        if (!isDigit(text[i]))
            return false;
    return text.size() == comma + 4 || !isDigit(text[comma + 4]);
}

std::string ungrouped(std::string_view text) {
    std::string number;
    // Behind the decimal point a comma groups nothing.
    const auto point = std::min(text.find('.'), text.size());
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] != ',' || i > point || !groupsThousands(text, i))
            number += text[i];
    return number;
}

} // namespace

double PowerBasis::volts() const {
    return voltsOf(vline);
}

PowerScale PowerBasis::scale() const {
    return {static_cast<float>(volts() / 1000), factor};
}

bool hasVline(const Settings& settings) {
    return Val(ungrouped(settings.get(section, key))) != 0;
}

std::string vlineOf(const Settings& settings) {
    return hasVline(settings) ? settings.get(section, key) : std::string(defaultVline);
}

std::string storeVline(Settings& settings) {
    if (!hasVline(settings))
        settings.set(section, key, std::string(defaultVline));
    return settings.get(section, key);
}

void keepVline(Settings& settings, const std::string& answer) {
    if (answer != settings.get(section, key))
        settings.set(section, key, answer);
}

double voltsOf(std::string_view vline) {
    return singleRange(Val(ungrouped(vline)));
}

std::optional<double> plainVolts(std::string_view entry) {
    return plainNumber(ungrouped(entry));
}

std::string voltageHint(std::string_view entry) {
    const double volts = voltsOf(entry);
    if (volts == 0)
        return "Line voltage taken as " + std::string(defaultVline) + " volts; 0 counts as none.";
    const std::string taken = "Line voltage taken as " + plain(volts) + " volts";
    if (volts < lowestVolts) {
        std::string hint = taken + "; the entry must be volts, not KV";
        if (volts > 0)
            hint += " (" + plain(volts * 1000) + " for " + plain(volts) + " KV)";
        return hint + ".";
    }
    return plainVolts(entry) ? std::string() : taken + "; the entry is not wholly a number.";
}

float powerFactorOf(std::string_view answer) {
    const auto factor = static_cast<float>(singleRange(Val(answer)));
    return factor == 0.0F ? 1.0F : factor;
}

std::string powerFactorHint(std::string_view answer) {
    if (const auto number = plainNumber(answer); number && *number != 0)
        return {};
    return "Power factor taken as " + plain(powerFactorOf(answer)) + ".";
}

} // namespace tally
