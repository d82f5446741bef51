// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sim/Faults.h"
#include "sim/Peer.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tally::sim {

// Characters that go over a line one after the other, each ten bits long.
class Transmission {
public:
    // Begins at a time (milliseconds). `baud` 0 takes no time at all; `repeatFrom` is where the text goes on
    // at its end, npos to stop there.
    void start(std::int64_t time, std::string text, double baud, std::vector<Stall> stalls = {},
               std::size_t repeatFrom = std::string::npos);
    void stop() { *this = Transmission(); }
    // Nothing is sent from this character number on.
    void cutAt(std::int64_t count) { cut_ = count; }

    // Nothing is sent after the line break that comes next.
    void cutAtLineEnd();

    // The characters that were complete at this time.
    std::string take(std::int64_t time);
    // When the next one is complete; never at the end.
    std::int64_t nextAt() const;
    // How many have gone.
    std::int64_t count() const { return count_; }
    bool active() const { return !text_.empty(); }

private:
    bool atEnd() const { return position_ >= text_.size() || (cut_ >= 0 && count_ >= cut_); }
    void schedule();

    std::string text_;
    std::vector<Stall> stalls_;
    std::size_t position_ = 0;
    std::size_t repeatFrom_ = std::string::npos;
    std::int64_t count_ = 0;
    std::int64_t cut_ = -1;
    std::int64_t perCharacter_ = 0; // nanoseconds, as all below
    std::int64_t last_ = 0;         // when the last character was complete
    std::int64_t next_ = 0;
};

} // namespace tally::sim
