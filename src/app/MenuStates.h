// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

namespace tally {

// What happens in the window that switches menu items; one column of the table each.
enum class MenuEvent {
    startUp,
    close,        // the reset that Close runs
    opened,       // a current recording was opened ...
    voltage,      // ... or a voltage recording: applied after `opened`
    thirdOpened,  // the last slot was filled
    textKept,     // a download or a recovered text waits to be saved
    forced,       // readings were forced
    saved,        // after each save
    tableShown,   // data table or power table
    textShown,    // a summary
    plotted,      // a data plot was drawn
    powerPlotted, // a power plot was drawn
    spanMarked,
    zoomed, // applied after the plot
    onePage,
};
constexpr int menuEvents = 15;

enum class Switch : char { keep = '.', on = '+', off = '-' };

// One row: an item and what each event does to it, in the order of MenuEvent.
struct MenuStateRow {
    std::string_view item;
    std::string_view switches; // menuEvents characters of Switch, in groups parted by blanks

    Switch at(MenuEvent event) const;
};

// Items without a row are always enabled. The entries of recent files are shown and hidden, not switched.
std::span<const MenuStateRow> menuStates();

} // namespace tally
