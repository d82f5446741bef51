// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/JournalText.h"

#include "core/Header.h"
#include "link/ReceivedText.h"

#include <array>
#include <charconv>

namespace tally {

namespace {

struct StateName {
    JournalState state;
    std::string_view name;
};

constexpr std::array<StateName, 7> stateNames = {{{JournalState::receiving, "receiving"},
                                                  {JournalState::interrupted, "interrupted"},
                                                  {JournalState::received, "received"},
                                                  {JournalState::accepted, "accepted"},
                                                  {JournalState::refused, "refused"},
                                                  {JournalState::saved, "saved"},
                                                  {JournalState::dropped, "dropped"}}};

std::string line(const std::string& key, const std::string& value) {
    return key + " " + value + "\n";
}

template <typename Number>
std::optional<Number> number(std::string_view text) {
    Number value = 0;
    const auto end = text.data() + text.size();
    const auto [at, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && at == end ? std::optional(value) : std::nullopt;
}

void readPart(std::string_view value, JournalRecord& record) {
    const std::size_t blank = value.find(' ');
    const auto start = number<std::uint64_t>(value.substr(0, blank));
    if (!start || blank == std::string_view::npos)
        return;
    record.partStart = *start;
    record.header.settings = value.substr(blank + 1);
}

// A text may reach the disk, and be noted as accepted, after it was saved or dropped.
void readState(std::string_view value, JournalRecord& record) {
    for (const StateName& known : stateNames)
        if (known.name == value && known.state != JournalState::receiving &&
            (isFinal(known.state) || !record.state || !isFinal(*record.state)))
            record.state = known.state;
}

void readLine(std::string_view key, std::string_view value, JournalRecord& record) {
    JournalHeader& header = record.header;
    if (key == "command")
        header.command = value;
    else if (key == "port")
        header.commPort = number<int>(value).value_or(header.commPort);
    else if (key == "type")
        header.instrumentType = number<int>(value).value_or(header.instrumentType);
    else if (key == "device")
        header.device = value;
    else if (key == "samples")
        header.maxSamples = number<std::int32_t>(value).value_or(0);
    else if (key == "time")
        header.pcTime = parseHeaderTime(value).value_or(header.pcTime);
    else if (key == "part")
        readPart(value, record);
    else if (key == "clock")
        record.clockDifference = number<std::int64_t>(value);
    else if (key == "state")
        readState(value, record);
}

} // namespace

std::string journalStart(const JournalHeader& header) {
    return line("command", header.command) + line("port", std::to_string(header.commPort)) +
           (header.device.empty() ? std::string() : line("device", header.device)) +
           line("samples", std::to_string(header.maxSamples)) +
           line("type", std::to_string(header.instrumentType)) + line("time", headerTime(header.pcTime)) +
           journalPart(0, header.settings);
}

std::string journalPart(std::uint64_t start, const std::string& settings) {
    return line("part", std::to_string(start) + " " + settings);
}

std::string journalClock(std::int64_t minutes) {
    return line("clock", std::to_string(minutes));
}

std::string_view stateName(JournalState state) {
    for (const StateName& known : stateNames)
        if (known.state == state)
            return known.name;
    return {};
}

std::string journalState(JournalState state) {
    return state == JournalState::receiving ? std::string() : line("state", std::string(stateName(state)));
}

JournalRecord readJournal(std::string_view lines) {
    JournalRecord record;
    for (std::size_t end; (end = lines.find('\n')) != std::string_view::npos; lines.remove_prefix(end + 1)) {
        const std::string_view text = lines.substr(0, end);
        const std::size_t blank = text.find(' ');
        if (blank != std::string_view::npos)
            readLine(text.substr(0, blank), text.substr(blank + 1), record);
    }
    return record;
}

void describe(JournalEntry& entry, std::string_view characters) {
    std::string text(characters);
    if (!upperCaseModel(text))
        return;
    const std::string header = headerOf(text);
    entry.model = headerField(header, column::model);
    entry.serial = headerField(header, column::serial);
}

} // namespace tally
