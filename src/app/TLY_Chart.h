// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Dispatcher.h"
#include "app/Services.h"

#include <string>
#include <string_view>

class QAction;

namespace tally {

class DefaultFolder;
class Printing;
class Screen;
class StatusPanels;
class Views;

inline constexpr std::string_view importFilter = "data files (*.chd) | *.chd";
inline constexpr std::string_view chartFilter = "chart files (*.chd) | *.chd";
inline constexpr std::string_view pictureFilter =
    "PNG picture (*.png)|*.png|PDF (*.pdf)|*.pdf|SVG (*.svg)|*.svg";

// What is done on the chart and with it: marking a span, the read-out, notes, chart files, pictures, the
// clipboard.
class TLY_Chart {
public:
    TLY_Chart(const Services& services, Dispatcher& dispatcher, Views& views, Screen& screen,
              StatusPanels& status, DefaultFolder& folder, Printing& printing);

    Done mnuItemImport_Click();
    Done mnuItemadd_Click();
    Done mnuItemClearNote_Click();
    void saveChart();
    Done savePicture();
    void previewShown();
    // The chart's picture or the text on the screen, to the clipboard.
    void copyShown();

private:
    void chartMade();
    void connectButtons();
    void connectMarks();
    template <class Command>
    void on(QAction* action, Command command);
    Done spanEnded(int point);
    void pointerMoved(int point, int series);
    std::string labelAt(int point) const;
    std::string timeAt(int point) const;
    // Draws the plot of the open files when no chart is shown.
    Done needChart();

    const Services& services_;
    Dispatcher& dispatcher_;
    Views& views_;
    Screen& screen_;
    StatusPanels& status_;
    DefaultFolder& folder_;
    Printing& printing_;
};

} // namespace tally
