// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/QtWaiter.h"
#include "platform/SerialLine.h"
#include "sim/Pty.h"

#include <optional>
#include <string>
#include <utility>

namespace tally::testing {

constexpr std::int64_t patience = 5000; // milliseconds

// A serial line on a pseudo-terminal whose far end is the test's.
struct OpenLine {
    std::optional<sim::Pty> pty{std::in_place}; // may go away
    SerialLine line{[this](int) { return pty->path(); }};
    QtWaiter waiter{line};

    OpenLine() {
        line.CommPort(3);
        line.Settings("9600,N,8,1");
    }
    void open() { line.PortOpen(true); }
    // Reads until so many characters have come; fewer when that takes too long.
    std::string read(std::size_t count) {
        std::string all;
        const std::int64_t deadline = waiter.now() + patience;
        while (all.size() < count && waiter.until(deadline) == Wake::data) {
            const std::string next = line.Input();
            if (next.empty() && !line.isOpen())
                break;
            all += next;
        }
        return all;
    }
};

} // namespace tally::testing
