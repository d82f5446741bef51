// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/Plot.h"

namespace tally {

class Chart;
class ChartToolBar;
class TLY;

// The data views: plot, table, summary, and what is done to the plot.
class TLY_View {
public:
    explicit TLY_View(TLY& window);

    void mnuItemViewPlot_Click();
    void mnuItemViewTable_Click();
    void mnuItemViewsummary_Click();
    void mnuItemRefresh_Click();
    void mnuZoom_Click();
    void mnuItemScale_Click();
    void mnuItemOnepgPlot_Click();

    // Draws the displayed range as the view that is on: data plot or power plot.
    void redraw();
    // Shows a plot that was worked out; `remark` goes to the status line.
    void show(const Plot& plot, const std::string& remark);
    // Shows again what is on, after readings or notes have changed.
    void refresh();
    // Shows the summary of the current file without asking which.
    void showSummary();
    // The file whose table is shown becomes the current one again.
    void makeTableCurrent();
    // A plot that does not belong to the open recordings: no range, no read-out.
    void showImported(const Plot& plot);
    bool noFile() const; // tells it

private:
    void connectChart(Chart& chart);
    void showTable();
    void spanEnded(int point);
    void pointerMoved(int point);
    std::string labelAt(int point) const;

    TLY& window_;
    bool imported_ = false;
    int shownSlot_ = 0; // of the table or summary that is shown
};

} // namespace tally
