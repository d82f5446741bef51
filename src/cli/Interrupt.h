// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tally::cli {

// While it lives, Ctrl+C and a request to end let the work come to a whole end instead of killing the
// program. Only one at a time.
class Interrupt {
public:
    Interrupt();
    ~Interrupt();
    Interrupt(const Interrupt&) = delete;
    Interrupt& operator=(const Interrupt&) = delete;

    bool asked() const;
    // Sleeps for a second; false, at once, when asked to end.
    bool pause() const;
};

} // namespace tally::cli
