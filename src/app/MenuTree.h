// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

namespace tally {

// One line of the menu tree, in the order in which it is shown.
struct MenuEntry {
    int level; // 0 stands in the menu bar
    std::string_view name;
    std::string_view caption; // "&" marks the access key
    bool submenu = false;
    std::string_view shortcut = {};
    bool lineAbove = false;
    std::string_view tip = {}; // status bar text, what the item does
};

// The entries of "mnuMRU" share their name; their captions are file paths.
constexpr int mruEntries = 4;
constexpr std::string_view mruName = "mnuMRU";

std::span<const MenuEntry> menuTree();

} // namespace tally
