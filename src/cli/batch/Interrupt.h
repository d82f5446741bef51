// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tally::cli {

// While it lives, the first Ctrl+C (or the signal to end) is only noted, so that files being written become
// whole; a second one ends the program at once.
class Interrupt {
public:
    Interrupt();
    ~Interrupt();
    Interrupt(const Interrupt&) = delete;
    Interrupt& operator=(const Interrupt&) = delete;

    static bool happened();
    // Sleeps for a second; false, at once, when the end was asked for.
    bool pause() const;
};

} // namespace tally::cli
