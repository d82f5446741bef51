// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Services.h"

#include <string>

namespace tally {

class Menus;

// Options > Language: what is chosen is kept, marked, and holds from the next start on.
class LanguageMenu {
public:
    LanguageMenu(const Services& services, Menus& menus);

    // A code of a language; empty for the system's.
    void choose(const std::string& code);

private:
    void mark();

    const Services& services_;
    Menus& menus_;
};

} // namespace tally
