// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <vector>

namespace tally {

class TLY;

// The Edit menu, and the notes on the chart.
class TLY_Edit {
public:
    explicit TLY_Edit(TLY& window) : window_(window) {}

    void mnuItemNotes_Click();
    void mnuItemForceRdg_Click();
    void mnuItemadd_Click();
    void mnuItemClearNote_Click();

    // Takes the last forcing back.
    void undo();
    // Readings of a slot were saved: forced ones among them are safe.
    void saved(int slot, int first, int last);
    // The notice of forced readings as it now is.
    void showForced();
    // Whether the open files may be closed: asks when forced readings were not saved.
    bool mayLeave();

private:
    bool hasChart() const;

    TLY& window_;
    std::array<bool, 3> unsaved_{}; // forced readings of the slot stand in no file
    std::vector<int> forcings_;     // slots, newest last
    float lastValue_ = 0;           // entered last
};

} // namespace tally
