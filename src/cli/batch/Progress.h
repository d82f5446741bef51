// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>

namespace tally::cli {

// One line on standard error that says how far the work is, only where that is a terminal; ten times a second
// at most.
class Progress {
public:
    explicit Progress(std::size_t all);

    void show(std::size_t done);
    // Takes the line away, before anything else is written.
    void clear();

private:
    std::size_t all_;
    bool terminal_;
    bool shown_ = false;
    std::chrono::steady_clock::time_point last_;
};

} // namespace tally::cli
