// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Dispatcher.h"
#include "app/Services.h"
#include "export/ExportPlace.h"

#include <string>

class QWidget;

namespace tally {

class DefaultFolder;
class Menus;
class Views;
class VoltageQuestion;
struct ExportChoice;

// File > Export.
class TLY_Export {
public:
    TLY_Export(const Services& services, Views& views, VoltageQuestion& voltage, DefaultFolder& folder,
               Menus& menus, QWidget* window)
        : services_(services),
          views_(views),
          voltage_(voltage),
          folder_(folder),
          menus_(menus),
          window_(window) {}

    Done mnuitemexprep_Click();
    Done MnuItemexpdatacsv_Click();
    Done mnuItemexpdata1perLine_Click();
    Done mnuItemExportReadings_Click();

private:
    Done exportCsv();
    Done exportTable(bool onePerLine);
    Done writeReadings(const ExportChoice& choice);
    void exported(const Exported& done);

    const Services& services_;
    Views& views_;
    VoltageQuestion& voltage_;
    DefaultFolder& folder_;
    Menus& menus_;
    QWidget* window_;
    std::string recorderId_; // of the last report
};

} // namespace tally
