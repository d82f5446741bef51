// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Services.h"
#include "view/forms/Paper.h"

#include <string>

namespace tally {

class Screen;

// The way to the printer: reports with the user's name and the date, and what is shown.
class Printing {
public:
    Printing(const Services& services, Screen& screen, QWidget* window)
        : services_(services), screen_(screen), window_(window) {}

    // `remark` stands below the title.
    void print(const std::string& title, const std::string& heading, const std::string& text,
               const std::string& remark = {});
    void preview(const std::string& title, const std::string& text);
    // The chart or the text on the screen.
    void printShown();
    void previewShown();

private:
    TextReport report(const std::string& title, const std::string& heading, const std::string& text) const;
    TextReport shownText() const;
    ChartReport shownChart() const;
    std::string remark() const;
    std::string user() const;
    Paper paper() const { return {services_.prompt, services_.files, window_}; }

    const Services& services_;
    Screen& screen_;
    QWidget* window_;
};

} // namespace tally
