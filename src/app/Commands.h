// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/DefaultFolder.h"
#include "app/ForcedReadings.h"
#include "app/LanguageMenu.h"
#include "app/Printing.h"
#include "app/TLY_Archive.h"
#include "app/TLY_Chart.h"
#include "app/TLY_Downloads.h"
#include "app/TLY_Edit.h"
#include "app/TLY_Export.h"
#include "app/TLY_File.h"
#include "app/TLY_Help.h"
#include "app/TLY_Instrument.h"
#include "app/TLY_Navigate.h"
#include "app/TLY_Options.h"
#include "app/TLY_Paper.h"
#include "app/TLY_Power.h"
#include "app/TLY_Start.h"
#include "app/TLY_Study.h"
#include "app/TLY_Survey.h"
#include "app/TLY_View.h"
#include "app/Views.h"
#include "app/VoltageQuestion.h"

class QMainWindow;

namespace tally {

class FolderChoice;

// The widgets of the window that commands show things in.
struct Panes {
    QMainWindow& window;
    Menus& menus;
    Screen& screen;
    NoticeBar& notices;
    StatusPanels& status;
    FolderChoice& folderChoice;
    std::function<void()> namesChanged; // of the open files
};

// The commands of the window: what several menus use comes first, then a class for each menu.
struct Commands {
    Commands(const Services& services, Dispatcher& dispatcher, const Panes& panes);

    DefaultFolder folder;
    Views views;
    VoltageQuestion voltage;
    ForcedReadings forced;
    Printing printing;
    TLY_Downloads downloads;

    TLY_File file;
    TLY_View view;
    TLY_Chart chart;
    TLY_Navigate navigate;
    TLY_Power power;
    TLY_Edit edit;
    TLY_Paper paper;
    TLY_Export exports;
    TLY_Instrument instrument;
    TLY_Options options;
    TLY_Survey survey;
    TLY_Study study;
    TLY_Archive archive;
    TLY_Help help;
    TLY_Start start;
    LanguageMenu language;
};

} // namespace tally
