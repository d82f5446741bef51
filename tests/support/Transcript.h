// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace tally::testing {

// A conversation between computer and instrument as it must go, written by hand. A text file; lines that
// begin with "#" say nothing.
//
//   session download            facts, a key and a value: the session, its type, what the instrument holds
//   0 open 9600                 the computer opens the port, at a time in milliseconds
//   500 instrument "KWTa\r"     the instrument begins to send, ten bits a character
//   + "T: 102\x1A"              more of the text above
//   760 computer "\t"           the computer sends
//   2500 dtr low                the computer drops DTR, or raises it ("high")
//   kept "KWTa\rT: 102\x1A"     the text that the program keeps
//   told "LOW"                  a message of the program holds this
//   field serial 1234           what a status check reads
struct Transcript {
    struct Event {
        std::int64_t time = 0; // milliseconds
        std::string who;       // open, dtr, computer, instrument
        std::string text;      // the rate, "low" or "high", the characters
    };

    std::string name; // of the file, for messages
    std::map<std::string, std::string> facts;
    std::vector<Event> events;
    std::string kept;
    std::vector<std::string> told;
    std::map<std::string, std::string> fields;

    std::string fact(const std::string& key) const {
        const auto found = facts.find(key);
        return found == facts.end() ? std::string() : found->second;
    }
    bool has(const std::string& key) const { return facts.contains(key); }
    // The rate of the opening before this event.
    int baudAt(std::size_t event) const;
    // Everything that the instrument sends.
    std::string sent() const;
};

inline void PrintTo(const Transcript& transcript, std::ostream* out) {
    *out << transcript.name;
}

// Reads one file. Throws std::runtime_error with the line that cannot be read.
Transcript readTranscript(const std::string& path);

// All of a folder, by name.
std::vector<Transcript> readTranscripts(const std::string& folder);

} // namespace tally::testing
