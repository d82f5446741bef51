// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace tally {

// The ranges that were shown one after the other, to go back and forward through; nothing is the whole file.
class ZoomTrail {
public:
    using Place = std::optional<Range>;

    // A range is shown that was not gone back or forward to.
    void visit(const Place& place);
    bool canGoBack() const { return at_ > 0; }
    bool canGoForward() const { return at_ + 1 < places_.size(); }
    // The range shown before or after this one; only when there is one.
    const Place& back() { return places_.at(--at_); }
    const Place& forward() { return places_.at(++at_); }

private:
    std::vector<Place> places_{Place()};
    std::size_t at_ = 0;
};

} // namespace tally
