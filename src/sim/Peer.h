// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace tally::sim {

constexpr std::int64_t never = std::numeric_limits<std::int64_t>::max();

// What lives at the far end of a line. It knows no clock: every call says the time in milliseconds, and time
// never goes back.
class Peer {
public:
    virtual ~Peer() = default;

    // The computer opens the port, sets its rate (also while it is open), sends, closes.
    virtual void opened(std::int64_t time) = 0;
    virtual void rate(std::int64_t time, int baud) = 0;
    virtual void received(std::int64_t time, std::string_view characters) = 0;
    virtual void closed(std::int64_t time) = 0;
    // The computer drops or raises the DTR line.
    virtual void dtr(std::int64_t, bool) {}
    // The trainer presses Enter.
    virtual void pressed(std::int64_t time) = 0;

    // What has gone over the line up to this time and was not given before.
    virtual std::string sent(std::int64_t time) = 0;
    // When sent() has something to do next; never when only the computer can bring that about.
    virtual std::int64_t nextAt() const = 0;
    // The adapter was pulled out of the computer.
    virtual bool gone() const = 0;
    // Nothing will come any more, whatever the computer does.
    virtual bool finished() const = 0;
    // The rate that a computer finds when it sets none.
    virtual int ownRate() const = 0;
};

} // namespace tally::sim
