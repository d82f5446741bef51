// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/VoltageQuestion.h"

#include "app/forms/StatusPanels.h"
#include "core/Numbers.h"
#include "core/forms/Words.h"
#include "view/LineVoltage.h"

#include <sstream>
#include <string>
#include <vector>

namespace tally {

namespace {

constexpr std::size_t maximumVoltages = 5;
constexpr const char* section = "Settings";
constexpr const char* key = "LastVoltages"; // parted by blanks

// The line voltages entered last, newest first; the default when there are none.
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

// Puts an entry first and keeps the newest five. Entries that are no positive number are not kept.
void rememberVoltage(Settings& settings, const std::string& entry) {
    const double volts = voltsOf(entry);
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

} // namespace

bool VoltageQuestion::ask() {
    const std::string stored = storeVline(services_.settings);
    const auto answer = services_.prompt.input(
        {.text = std::string(voltagePrompt), .preset = stored, .choices = lastVoltages(services_.settings)});
    if (!answer || answer->empty())
        return false;
    status_.say(words(voltageHint(*answer)));
    keepVline(services_.settings, *answer);
    rememberVoltage(services_.settings, *answer);
    services_.display.setPowerKnown();
    return true;
}

} // namespace tally
