// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Dispatcher.h"
#include "app/Services.h"

class QWidget;

namespace tally {

class ForcedReadings;
class Menus;
class Views;

// The Edit menu.
class TLY_Edit {
public:
    TLY_Edit(const Services& services, Dispatcher& dispatcher, Views& views, ForcedReadings& forced,
             Menus& menus, QWidget* window)
        : services_(services),
          dispatcher_(dispatcher),
          views_(views),
          forced_(forced),
          menus_(menus),
          window_(window) {}

    Done mnuItemNotes_Click();
    Done mnuItemForceRdg_Click();

private:
    const Services& services_;
    Dispatcher& dispatcher_;
    Views& views_;
    ForcedReadings& forced_;
    Menus& menus_;
    QWidget* window_;     // for the dialogs
    float lastValue_ = 0; // entered last
};

} // namespace tally
