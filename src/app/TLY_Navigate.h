// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Dispatcher.h"
#include "app/Services.h"
#include "view/Calendar.h"

#include <QtGlobal>

#include <map>
#include <string_view>

namespace tally {

class Chart;
class Menus;
class Screen;
class SpanPanel;
class StatusPanels;
class TLY_Chart;
class Views;

// The Chart menu: through ranges and days, closer looks, lines, figures of a span, axes; and files side by
// side by time.
class TLY_Navigate {
public:
    // Runs a command of the window.
    using Run = std::function<void(const std::function<Done()>&)>;

    TLY_Navigate(const Services& services, Dispatcher& dispatcher, Views& views, TLY_Chart& chart,
                 Screen& screen, Menus& menus, StatusPanels& status);

    void connectMenus(const Run& run);
    // Switches items and marks by what is shown now.
    void refresh();

private:
    void connectRanges(const Run& run);
    void connectPictures();
    void chartMade(const Run& run);
    Done goBack();
    Done goForward();
    Done showAll();
    Done step(Period period, int direction);
    Done shownAgain();
    Done align();
    Done fixedAxis();
    Done limits();
    AxisUnit unitShown() const;
    void setSwitches();
    void unmark();
    void showFigures(bool on);
    void renewFigures();
    bool onChart() const;
    // A plot of the open files is on the screen.
    bool onPlot() const;

    const Services& services_;
    Dispatcher& dispatcher_;
    Views& views_;
    TLY_Chart& chartCommands_;
    Screen& screen_;
    Menus& menus_;
    StatusPanels& status_;
};

} // namespace tally
