// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LanguageMenu.h"

#include "app/Menus.h"
#include "app/language/Speech.h"

#include <QAction>
#include <vector>

namespace tally {

namespace {

std::string itemOf(const std::string& code) {
    return code.empty() ? "language" : "language_" + code;
}

// What the menu offers: the system's language first.
std::vector<std::string> choices() {
    std::vector<std::string> codes = {""};
    for (const Language& language : languages())
        codes.emplace_back(language.code);
    return codes;
}

} // namespace

LanguageMenu::LanguageMenu(const Services& services, Menus& menus) : services_(services), menus_(menus) {
    for (const std::string& code : choices()) {
        QAction& item = menus_.item(itemOf(code));
        item.setCheckable(true);
        // A language calls itself by its own name everywhere.
        item.setProperty("asWritten", !code.empty());
        menus_.handle(itemOf(code), [this, code] { choose(code); });
    }
    mark();
}

void LanguageMenu::mark() {
    const std::string chosen = chosenLanguage(services_.settings);
    for (const std::string& code : choices())
        menus_.item(itemOf(code)).setChecked(code == chosen);
}

void LanguageMenu::choose(const std::string& code) {
    const bool another = chosenLanguage(services_.settings) != code;
    chooseLanguage(services_.settings, code);
    mark();
    if (another)
        services_.prompt.tell(
            "The window speaks the chosen language when Tallyline is started the next time.");
}

} // namespace tally
