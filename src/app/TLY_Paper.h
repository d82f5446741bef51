// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/forms/Paper.h"

namespace tally {

class TLY;

// Everything that goes to a printer.
class TLY_Paper {
public:
    explicit TLY_Paper(TLY& window);

    void mnuItemPrintSum_Click();
    void mnuItemPrintTable_Click();
    void mnuItemPrintpwrSum_Click();
    void mnuItemPrintPwrTable_Click();

    // A text that needs no heading.
    void print(const std::string& title, const std::string& text);
    void preview(const std::string& title, const std::string& text);
    // What is shown: the chart or the text.
    void printShown();
    void previewShown();

private:
    TextReport report(const std::string& title, const std::string& heading, const std::string& text) const;
    TextReport shownText() const;
    Paper paper() const;

    TLY& window_;
};

} // namespace tally
