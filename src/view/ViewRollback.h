// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "view/DisplayState.h"

namespace tally {

// Puts the displayed range and the display state back as they were, unless the new view was drawn and is
// kept.
class ViewRollback {
public:
    ViewRollback(Recordings& recordings, DisplayState& state);
    ~ViewRollback();
    ViewRollback(const ViewRollback&) = delete;
    ViewRollback& operator=(const ViewRollback&) = delete;

    void keep() { kept_ = true; }

private:
    Recordings& recordings_;
    DisplayState& state_;
    DisplayState before_;
    int start_;
    int end_;
    bool zoomed_;
    bool kept_ = false;
};

} // namespace tally
