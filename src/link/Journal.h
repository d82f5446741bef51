// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tally {

// What became of a reception.
enum class JournalState {
    receiving,   // a session of a running program writes to it
    interrupted, // ended before the text was complete: cancelled, cable pulled, program gone
    received,    // complete, but not judged or not accepted yet
    accepted,    // the user's: waits to be saved
    refused,     // the user said no to it
    saved,       // stands in a file
    dropped,     // the user gave it up
};

// Whether nobody has decided yet what becomes of it: such a reception is kept whatever its age.
constexpr bool isUnsaved(JournalState state) {
    return state == JournalState::interrupted || state == JournalState::received ||
           state == JournalState::accepted;
}

// Whether an earlier text that is accepted meanwhile changes nothing about it.
constexpr bool isFinal(JournalState state) {
    return state == JournalState::saved || state == JournalState::dropped;
}

// One word for a state, as the journal writes it down.
std::string_view stateName(JournalState state);

// What is known before the first character.
struct JournalHeader {
    int commPort = 1;
    std::string device = {}; // instead of a COM port, when it was given by its path
    int instrumentType = 0;
    std::int32_t maxSamples = 0; // that the memory of the instrument holds; 0 for unknown
    std::string settings = {};
    ReadingTime pcTime = {};
    std::string command = "download"; // or "recover"
};

// Where a session puts every character the moment it is read, before any judgement. Never throws: a place
// that cannot be written is told once by its owner, and the session goes on.
class JournalSink {
public:
    virtual ~JournalSink() = default;
    virtual void begin(const JournalHeader& header) = 0;
    virtual void append(std::string_view bytes) = 0;
    // Where the next characters may be put before they are appended, so that they are kept already then;
    // empty when that cannot be had, and outside a reception.
    virtual std::span<char> room() { return {}; }
    // What follows came after a change to other port settings; the recording can only be in that part.
    virtual void restart(const std::string& settings) = 0;
    // Minutes by which the instrument's clock is ahead of the computer's.
    virtual void clockDifference(std::int64_t minutes) = 0;
    virtual void end(JournalState state) = 0;
    // The reception is the user's, in this form: what is saved later.
    virtual void accepted(std::string_view text) = 0;
    // The reception begun last; empty when nothing of it is kept.
    virtual std::string id() const = 0;
};

// A reception that is kept.
struct JournalEntry {
    std::string id = {};
    JournalHeader header = {};
    JournalState state = JournalState::interrupted;
    std::uint64_t bytes = 0; // received at the last port settings
    std::string model = {};  // three letters; empty when no recording began
    std::string serial = {}; // bytes of the header
    std::optional<std::int64_t> clockDifference = {};
    bool hasAccepted = false; // an accepted text is kept
};

// The receptions that are kept: the last 20, and every unsaved one. Newest first.
class Journal : public JournalSink {
public:
    static constexpr std::size_t keep = 20;
    virtual std::vector<JournalEntry> list() const = 0;
    // The accepted text, else what was received at the last port settings as it came. Throws File not found
    // and file faults.
    virtual std::string text(const std::string& id) const = 0;
    // What was received at the last port settings as it came, also where an accepted text is kept. Throws the
    // same.
    virtual std::string received(const std::string& id) const = 0;
    // Writes down what became of a reception, without waiting for the disk. Throws file faults.
    virtual void mark(const std::string& id, JournalState state) = 0;
    // Keeps the text that the user accepted of a reception, without waiting for the disk; keeps() tells
    // whether it is there. Throws file faults.
    virtual void accept(const std::string& id, std::string_view text) = 0;
    // Whether the accepted text of a reception is on the disk; waits for the disk. What is not there is
    // nowhere but in memory.
    virtual bool keeps(const std::string& id) = 0;
    // Why receptions cannot be kept on disk, in words for the user; empty when they can.
    virtual std::string problem() const = 0;
};

} // namespace tally
