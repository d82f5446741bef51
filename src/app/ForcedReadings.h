// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Dispatcher.h"
#include "app/Services.h"

#include <functional>
#include <vector>

namespace tally {

class NoticeBar;

// Forced readings that no file holds yet: their notice, taking them back, the question before they are left.
class ForcedReadings {
public:
    ForcedReadings(const Services& services, Dispatcher& dispatcher, NoticeBar& notices)
        : services_(services), dispatcher_(dispatcher), notices_(notices) {}

    // What the notice's "Save As..." does for a slot; to be set before files are opened.
    std::function<Done(int slot)> saveWhole;
    // Called when readings were taken back.
    std::function<void()> changed;

    // Readings of a slot were forced.
    void forced(int slot);
    // Takes the last forcing back.
    void undo();
    // A range of a slot was written to a file.
    void saved(int slot, const Range& range);
    // The notice as it now is.
    void show();
    // Whether the open files may be closed: asks when a file does not hold what the window does.
    bool mayLeave();

private:
    const Services& services_;
    Dispatcher& dispatcher_;
    NoticeBar& notices_;
    std::vector<int> forcings_; // slots, newest last
};

} // namespace tally
