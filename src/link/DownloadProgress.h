// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/Session.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace tally {

// What a download shows of its progress, and the silence that ends it: the progress timer of its dialog.
class DownloadProgress {
public:
    static constexpr std::int64_t interval = 250; // milliseconds between two ticks

    explicit DownloadProgress(Session& session) : session_(session) {}

    // When the next tick is due; never before the first character.
    std::int64_t deadline() const { return deadline_; }
    // The first character is there: shows the bar and starts the ticks. False after a change of the rate,
    // when they run already.
    bool first();
    // A character came; the first one of all starts at 1,000.
    void count(bool isFirst);
    // Shows how many have come. False when the line was silent for too long. Silent ticks are never reset by
    // characters: stalls add up over the whole download.
    bool tick(std::size_t received);
    void tokenSeen();
    void startOver();

private:
    Session& session_;
    // "43,396 of at most 55,754 characters, about 12 s left"
    std::string remainingText(std::size_t received) const;

    std::int64_t deadline_ = Waiter::never;
    std::int64_t begun_ = 0;  // when the first character of the rate in force came
    std::size_t counted_ = 0; // characters at the tick before
    int silentTicks_ = 0;
    int value_ = 0;
};

} // namespace tally
