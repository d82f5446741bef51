// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Transmission.h"

#include <algorithm>

namespace tally::sim {

namespace {

constexpr std::int64_t nanoseconds = 1'000'000; // in a millisecond
constexpr double bitsPerCharacter = 10;
// At no time at all an endless text would never end.
constexpr std::size_t maximumAtOnce = 65536;

} // namespace

void Transmission::start(std::int64_t time, std::string text, double baud, std::vector<Stall> stalls,
                         std::size_t repeatFrom) {
    *this = Transmission();
    text_ = std::move(text);
    stalls_ = std::move(stalls);
    repeatFrom_ = repeatFrom;
    perCharacter_ = baud > 0 ? static_cast<std::int64_t>(bitsPerCharacter * 1e9 / baud) : 0;
    last_ = time * nanoseconds;
    schedule();
}

// When the character at the current position is complete.
void Transmission::schedule() {
    next_ = last_ + perCharacter_;
    for (const Stall& stall : stalls_)
        if (stall.at == count_)
            next_ += stall.milliseconds * nanoseconds;
}

void Transmission::cutAtLineEnd() {
    const std::size_t end = text_.find("\n\r", position_ > 0 ? position_ - 1 : 0);
    if (end == std::string::npos)
        return;
    const std::int64_t count = count_ + static_cast<std::int64_t>(end + 2 - position_);
    cut_ = cut_ < 0 ? count : std::min(cut_, count);
}

std::string Transmission::take(std::int64_t time) {
    std::string taken;
    while (!atEnd() && next_ <= time * nanoseconds && taken.size() < maximumAtOnce) {
        taken += text_[position_++];
        ++count_;
        last_ = next_;
        if (position_ == text_.size() && repeatFrom_ < text_.size())
            position_ = repeatFrom_;
        schedule();
    }
    return taken;
}

std::int64_t Transmission::nextAt() const {
    return atEnd() ? never : (next_ + nanoseconds - 1) / nanoseconds;
}

} // namespace tally::sim
