// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Record.h"

#include "sim/Quoted.h"

#include <charconv>
#include <ostream>
#include <stdexcept>

namespace tally::sim {

namespace {

std::string_view word(std::string_view& rest) {
    const std::size_t end = std::min(rest.find(' '), rest.size());
    const std::string_view first = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return first;
}

template <typename T>
bool readNumber(std::string_view text, T& value) {
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    return result.ec == std::errc() && result.ptr == text.data() + text.size() && value >= 0;
}

bool parseLine(std::string_view line, Event& event) {
    constexpr std::int64_t longest = 1'000'000'000'000; // some thirty years
    if (!readNumber(word(line), event.time) || event.time > longest)
        return false;
    const std::string_view kind = word(line);
    if (kind == "open" || kind == "close") {
        event.kind = kind == "open" ? Event::Kind::opened : Event::Kind::closed;
        return line.empty();
    }
    if (kind == "rate") {
        event.kind = Event::Kind::rate;
        return readNumber(line, event.baud);
    }
    if (kind != "sent" && kind != "received")
        return false;
    event.kind = kind == "sent" ? Event::Kind::sent : Event::Kind::received;
    const auto characters = unquoted(line);
    event.characters = characters.value_or("");
    return characters.has_value();
}

} // namespace

Recorder::Recorder(std::ostream& out) : out_(out) {
    out_ << "# What happened on a serial line, seen from the instrument: milliseconds, event.\n"
         << std::flush;
}

void Recorder::write(const Event& event) {
    out_ << event.time;
    switch (event.kind) {
    case Event::Kind::opened:
        out_ << " open";
        break;
    case Event::Kind::closed:
        out_ << " close";
        break;
    case Event::Kind::rate:
        out_ << " rate " << event.baud;
        break;
    case Event::Kind::sent:
        out_ << " sent " << quoted(event.characters);
        break;
    case Event::Kind::received:
        out_ << " received " << quoted(event.characters);
        break;
    }
    out_ << '\n' << std::flush;
}

std::vector<Event> parseRecord(std::string_view text) {
    std::vector<Event> events;
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        if (line.empty() || line.front() == '#')
            continue;
        Event event;
        if (!parseLine(line, event))
            throw std::invalid_argument("line " + std::to_string(number) + " of the record is no event");
        if (!events.empty() && event.time < events.back().time)
            throw std::invalid_argument("line " + std::to_string(number) +
                                        " of the record goes back in time");
        events.push_back(std::move(event));
    }
    return events;
}

} // namespace tally::sim
