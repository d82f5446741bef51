// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Voltages.h"

#include "core/Numbers.h"
#include "view/Power.h"

#include <algorithm>
#include <sstream>

namespace tally {

namespace {

constexpr std::size_t maximumVoltages = 5;
constexpr const char* section = "Settings";
constexpr const char* key = "LastVoltages"; // parted by blanks

} // namespace

std::vector<std::string> lastVoltages(const Settings& settings) {
    std::istringstream text(settings.get(section, key));
    std::vector<std::string> list;
    for (std::string word; list.size() < maximumVoltages && text >> word;)
        if (Val(word) > 0)
            list.push_back(word);
    if (list.empty())
        list.emplace_back(defaultVline);
    return list;
}

void rememberVoltage(Settings& settings, const std::string& entry) {
    const double volts = Val(entry);
    if (!(volts > 0))
        return;
    const std::string word = plain(volts);
    std::string text = word;
    std::size_t kept = 1;
    for (const std::string& old : lastVoltages(settings))
        if (old != word && kept++ < maximumVoltages)
            text += " " + old;
    settings.set(section, key, text);
}

} // namespace tally
