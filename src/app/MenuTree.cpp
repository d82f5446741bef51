// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MenuTree.h"

#include <array>

namespace tally {

namespace {

constexpr bool menu = true;
constexpr bool line = true;

constexpr std::array tree = {
    MenuEntry{0, "mnuFile", "&File", menu},
    MenuEntry{1, "mnuItemOpen", "&Open", false, "Ctrl+O", false, "Open a data file"},
    MenuEntry{1, "mnuItemClose", "&Close", false, "", false, "Close all open files"},
    MenuEntry{1, "mnuItemSave", "Save &As...", false, "Ctrl+S", false, "Save readings as a data file"},
    MenuEntry{1, "mnuItemPrint", "&Print", menu},
    MenuEntry{2, "mnuItemPrintSum", "Data&Summary", false, "", false, "Print the summary of a file"},
    MenuEntry{2, "mnuItemPrintpwrSum", "Power Summary", false, "", false,
              "Print the summary of the power plot"},
    MenuEntry{2, "mnuItemPrintTable", "Data&Table", false, "", false, "Print the readings of a file"},
    MenuEntry{2, "mnuItemPrintPwrTable", "Power Table", false, "", false,
              "Print the values of the power plot"},
    MenuEntry{1, "mnuItemImport", "Import", false, "", false, "Show a chart file (.chd)"},
    MenuEntry{1, "mnuItemExportType", "&Export", menu},
    MenuEntry{2, "mnuitemexprep", "Metering Data Report", false, "", false,
              "Write the hourly metering report"},
    MenuEntry{2, "MnuItemexpdatacsv", "Data: Table", false, "", false,
              "Write the readings shown for a spreadsheet"},
    MenuEntry{2, "mnuItemexpdata1perLine", "Data: 1 Rdg per Line", false, "", false,
              "Write the table with one interval a line"},
    MenuEntry{1, mruName, "", false, "", line, "Open this file again"},
    MenuEntry{1, mruName, "", false, "", false, "Open this file again"},
    MenuEntry{1, mruName, "", false, "", false, "Open this file again"},
    MenuEntry{1, mruName, "", false, "", false, "Open this file again"},
    MenuEntry{1, "mnuItemExit", "E&xit", false, "", line, "End the program"},
    MenuEntry{1, "mnuItemArchive", "&Archive...", false, "", line,
              "Search all recordings that were ever kept"},
    MenuEntry{0, "mnusurvey", "Load Survey", menu},
    MenuEntry{1, "mnuitemsurvfil", "Open File", false, "", false, "Peaks of a station and its feeders"},
    MenuEntry{0, "mnuEdit", "E&dit", menu},
    MenuEntry{1, "mnuItemNotes", "&Notes", false, "", false, "Edit the notes of a file"},
    MenuEntry{1, "mnuItemForceRdg", "&Force Zoomed Readings", false, "", false,
              "Replace the readings of the displayed range by one value"},
    MenuEntry{0, "mnuView", "Data &View", menu},
    MenuEntry{1, "mnuItemViewPlot", "&Plot", false, "", false, "Plot all readings of the open files"},
    MenuEntry{1, "mnuItemViewTable", "&Table", false, "", false, "Show the readings of a file"},
    MenuEntry{1, "mnuItemRefresh", "&Refresh Graph", false, "F5", false, "Draw the displayed range again"},
    MenuEntry{1, "mnuItemViewsummary", "&Summary", false, "", false, "Show the summary of a file"},
    MenuEntry{1, "pwrview", "Power View", menu},
    MenuEntry{2, "mnuItemViewPower", "Power Plot", false, "", false,
              "Plot kilowatts and work out the energy"},
    MenuEntry{2, "mnuItemViewPwrTable", "Power Table", false, "", false, "Show the values of the power plot"},
    MenuEntry{2, "mnuItemViewpwrsummry", "Power Summary", false, "", false,
              "Show the summary of the power plot"},
    MenuEntry{1, "mnuItemViewStudy", "Load Stud&y", false, "", line,
              "Demand, duration, phases and capacity of the open files"},
    MenuEntry{0, "mnuZoom", "&Zoom", false, "", false, "Narrow the displayed range to the marked span"},
    MenuEntry{0, "mnuInstrument", "&Instrument", menu},
    MenuEntry{1, "mnuItemDownload", "&DownLoad", false, "", false, "Fetch the recording of an instrument"},
    MenuEntry{1, "mnuItemInitialize", "&Initialize", false, "", false,
              "Set an instrument up for a new recording"},
    MenuEntry{1, "mnuItemRecover", "&Recover", false, "", false, "Fetch a recording after a battery failure"},
    MenuEntry{1, "mnuItemStatusCheck", "&Status Check", false, "", false, "Ask an instrument how it is"},
    MenuEntry{1, "mnuItemFind", "&Find Instrument", false, "", line,
              "Listen on all adapters for an instrument"},
    MenuEntry{0, "mnuOptions", "&Options", menu},
    MenuEntry{1, "SpecialTest", "Special Test", false, "", false, "Show the program's state, for support"},
    MenuEntry{1, "mnuItemDefaultDir", "&Default Dir", false, "", false, "Choose where file dialogs start"},
    MenuEntry{1, "mnuItemPortSelect", "&Com Port Selection", false, "", false, "Choose the serial port"},
    MenuEntry{1, "mnuItemInstSelect", "&Instrument Selection", false, "", false,
              "Choose the instrument type"},
    MenuEntry{1, "mnuItemUserID", "&User Name", false, "", false, "The name that reports carry"},
    MenuEntry{1, "mnuItemScale", "&Scale", false, "", false,
              "Set the lowest value of the y axis for one plot"},
    MenuEntry{1, "mnuItemAnnot", "&Annotate", menu},
    MenuEntry{2, "mnuItemadd", "Add &Note", false, "", false, "Place a text on the chart"},
    MenuEntry{2, "mnuItemClearNote", "&Clear Notes", false, "", false, "Take all texts off the chart"},
    MenuEntry{1, "mnuItemPF", "&Power Factor", false, "", false, "The power factor of power views"},
    MenuEntry{1, "mnuItemOnepgPlot", "&One-page Plot", false, "", false,
              "Plot everything for one printed page"},
    MenuEntry{0, "mnuHelp", "&Help", menu},
    MenuEntry{1, "mnuItemHelp", "&Help", false, "F1", false, "Open the help"},
    MenuEntry{1, "mnuItemAbout", "&About", false, "", false, "About this program"},
};

} // namespace

std::span<const MenuEntry> menuTree() {
    return tree;
}

} // namespace tally
