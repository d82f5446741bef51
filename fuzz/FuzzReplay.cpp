// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Replay.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <string_view>

// Any text is read as a record or refused with the number of a line. What was read is written and read again
// as the same events, and playing it sends no more than it says, and comes to an end.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tally::sim;
    std::vector<Event> events;
    try {
        events = parseRecord(std::string_view(reinterpret_cast<const char*>(data), size));
    } catch (const std::invalid_argument&) {
        return 0;
    }
    std::ostringstream out;
    Recorder recorder(out);
    for (const Event& event : events)
        recorder.write(event);
    if (parseRecord(out.str()) != events)
        std::abort();
    std::size_t inRecord = 0;
    std::size_t openings = 1;
    std::int64_t longest = 1000;
    for (const Event& event : events) {
        inRecord += event.kind == Event::Kind::sent ? event.characters.size() : 0;
        openings += event.kind == Event::Kind::opened ? 1 : 0;
        longest = std::max(longest, event.time + 1000);
    }
    Replay replay(events);
    std::size_t played = 0;
    std::int64_t time = 0;
    for (std::size_t i = 0; i < openings; ++i) {
        replay.opened(time);
        replay.rate(time, replay.ownRate());
        replay.received(time, std::string_view(reinterpret_cast<const char*>(data), size));
        time += longest;
        played += replay.sent(time).size();
        replay.closed(time);
    }
    if (played > inRecord)
        std::abort();
    return 0;
}
