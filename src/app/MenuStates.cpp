// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MenuStates.h"

#include <array>

namespace tally {

namespace {

// clang-format off
constexpr std::array rows = {
    //                        start-up, close
    //                        |  opened, voltage, third opened
    //                        |  |   text kept, forced, saved
    //                        |  |   |   table, text shown
    //                        |  |   |   |  plotted, power plotted, span marked, zoomed, one-page
    MenuStateRow{"mnuItemOpen",           "++ ..- ... .. ....."},
    MenuStateRow{"mnuItemClose",          "+- +.. ... .. ....."},
    MenuStateRow{"mnuItemSave",           "-- +.. ++- .. ...+."},
    MenuStateRow{"mnuItemExportType",     "-- +.. ... .. ....."},
    MenuStateRow{"mnuitemexprep",         "-. ... ... .. .+..."},
    MenuStateRow{"MnuItemexpdatacsv",     "-. ... ... +- +-..."},
    MenuStateRow{"mnuItemexpdata1perLine", "-. ... ... +- --..."},
    MenuStateRow{"mnuView",               "-- +.. ... .. ....."},
    MenuStateRow{"mnuItemViewPlot",       "+- +.. ... .. ....."},
    MenuStateRow{"mnuItemViewTable",      "-- +.. ... .. ....."},
    MenuStateRow{"mnuItemPrintTable",     "-- +.. ... .. ....."},
    MenuStateRow{"mnuItemViewsummary",    "+. +.. ... .. ....."},
    MenuStateRow{"mnuItemRefresh",        "-. ... ... .. ++..."},
    MenuStateRow{"mnuZoom",               "-- ... ... .. --+.-"},
    MenuStateRow{"mnuItemScale",          "-. ... ... .. ++..."},
    MenuStateRow{"mnuItemAnnot",          "-. ... ... .. ++..."},
    MenuStateRow{"pwrview",               "+- +-. ... .. ....."},
    MenuStateRow{"mnuItemViewPower",      "+- +-. ... .. ....."},
    MenuStateRow{"mnuItemViewpwrsummry",  "+- +.. ... .. ....."},
    MenuStateRow{"mnuItemPrintpwrSum",    "+. +-. ... .. ....."},
    MenuStateRow{"mnuItemViewPwrTable",   "-- ... ... .. .+..."},
    MenuStateRow{"mnuItemPrintPwrTable",  "-. .-. ... .. .+..."},
    MenuStateRow{"mnuItemInitialize",     "+. ... ... .. ....."},
    MenuStateRow{"mnuItemViewStudy",      "-- +.. ... .. ....."},
    MenuStateRow{"mnuItemOnepgPlot",      "+- ... ... .. ++..."},
};
// clang-format on

} // namespace

Switch MenuStateRow::at(MenuEvent event) const {
    auto left = static_cast<int>(event);
    for (const char c : switches)
        if (c != ' ' && left-- == 0)
            return static_cast<Switch>(c);
    return Switch::keep;
}

std::span<const MenuStateRow> menuStates() {
    return rows;
}

} // namespace tally
