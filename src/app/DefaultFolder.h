// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Settings.h"

#include <string>

namespace tally {

class NoticeBar;

// Where file dialogs start.
class DefaultFolder {
public:
    DefaultFolder(Settings& settings, NoticeBar& notices) : settings_(settings), notices_(notices) {}

    // The default directory as it is stored.
    std::string stored() const;
    // The same for a dialog: empty (the current directory) when none is set or it is not there, which a
    // notice says.
    std::string forDialog();
    void choose(const std::string& folder);

private:
    Settings& settings_;
    NoticeBar& notices_;
};

} // namespace tally
