// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "export/ExportDesk.h"

#include <string>

namespace tally {

class TLY;

// File > Export.
class TLY_Export {
public:
    explicit TLY_Export(TLY& window) : window_(window) {}

    void mnuitemexprep_Click();
    void MnuItemexpdatacsv_Click();
    void mnuItemexpdata1perLine_Click();

private:
    ExportDesk desk() const;
    std::string title() const;
    bool makePower();
    void exported();

    TLY& window_;
    std::string recorderId_; // of the last report
};

} // namespace tally
