// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Dispatcher.h"
#include "app/Services.h"

class QWidget;

namespace tally {

class Menus;
class Views;

// The data views: plot, table, summary, and what is done to the plot.
class TLY_View {
public:
    TLY_View(const Services& services, Views& views, Menus& menus, QWidget* window)
        : services_(services), views_(views), menus_(menus), window_(window) {}

    Done mnuItemViewPlot_Click();
    Done mnuItemViewTable_Click();
    Done mnuItemViewsummary_Click();
    Done mnuItemRefresh_Click();
    Done mnuZoom_Click();
    Done mnuItemScale_Click();
    Done mnuItemOnepgPlot_Click();

private:
    const Services& services_;
    Views& views_;
    Menus& menus_;
    QWidget* window_; // for the dialog
};

} // namespace tally
