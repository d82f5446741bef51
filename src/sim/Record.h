// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace tally::sim {

// One thing that happened on a line, as the instrument's end saw it.
struct Event {
    enum class Kind { opened, closed, rate, sent, received };

    Kind kind = Kind::opened;
    std::int64_t time = 0;       // milliseconds
    int baud = 0;                // of a rate
    std::string characters = {}; // sent or received
    bool operator==(const Event&) const = default;
};

// Writes down what happens on a line, a line of text for each event:
//   1200 open | 1201 rate 9600 | 1700 sent "KWTa\r" | 1900 received "\t" | 2500 close
// Characters outside printable ASCII stand as \r, \n or \xNN.
class Recorder {
public:
    // Writes the heading; `out` must outlive the recorder.
    explicit Recorder(std::ostream& out);
    void write(const Event& event);

private:
    std::ostream& out_;
};

// Reads a record back. Lines that begin with "#" and blank lines say nothing. Throws std::invalid_argument
// with the number of the line that is none, or where time goes back.
std::vector<Event> parseRecord(std::string_view text);

} // namespace tally::sim
