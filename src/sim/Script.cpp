// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Script.h"

#include "sim/Quoted.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace tally::sim {

namespace {

using Kind = Step::Kind;

struct Entry {
    std::string_view name;
    std::string_view argument;
    Kind kind;
    std::string_view meaning;
};

const Entry entries[] = {
    {"wait", "SECONDS", Kind::wait, "does nothing for so long"},
    {"until-open", "", Kind::untilOpen, "waits until the computer has the port open"},
    {"until-closed", "", Kind::untilClosed, "waits until the computer has the port closed"},
    {"until-received", "N", Kind::untilReceived, "waits until N more characters have come from the computer"},
    {"until-sent", "", Kind::untilSent, "waits until a text was sent to its end"},
    {"plug", "", Kind::plug, "puts the cable into the instrument: it sends its memory"},
    {"unplug", "", Kind::unplug, "pulls the cable out of the instrument: silence"},
    {"gone", "", Kind::gone, "pulls the adapter out of the computer: the port disappears"},
    {"fault", "FAULT", Kind::fault, "adds a fault for the texts to come"},
    {"no-faults", "", Kind::noFaults, "takes all faults away"},
    {"send", "\"TEXT\"", Kind::send, "sends a text of your own (\\r \\n \\\" \\\\ \\xNN)"},
    {"repeat", "", Kind::repeat, "begins again with the first step"},
};

// A number from 0 to `maximum`, taken so many times.
bool readNumber(std::string_view text, double maximum, int times, std::int64_t& result) {
    double value = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value);
    if (parsed.ec != std::errc() || parsed.ptr != text.data() + text.size() ||
        !(value >= 0 && value <= maximum))
        return false;
    result = static_cast<std::int64_t>(value * times);
    return true;
}

bool readArgument(std::string_view argument, Step& step) {
    switch (step.kind) {
    case Kind::wait:
        return readNumber(argument, 1e6, 1000, step.number);
    case Kind::untilReceived:
        return readNumber(argument, 1e9, 1, step.number);
    case Kind::fault: {
        Faults scratch;
        addFault(scratch, argument);
        step.text = argument;
        return true;
    }
    case Kind::send: {
        const auto characters = unquoted(argument);
        step.text = characters.value_or("");
        return characters.has_value();
    }
    default:
        return argument.empty();
    }
}

std::string_view trimmed(std::string_view line) {
    const std::size_t first = line.find_first_not_of(" \t\r");
    if (first == std::string_view::npos)
        return {};
    return line.substr(first, line.find_last_not_of(" \t\r") - first + 1);
}

Step parseStep(std::string_view line) {
    const std::size_t blank = std::min(line.find(' '), line.size());
    const auto entry = std::find_if(std::begin(entries), std::end(entries), [&](const Entry& candidate) {
        return candidate.name == line.substr(0, blank);
    });
    if (entry == std::end(entries))
        throw std::invalid_argument("there is no step \"" + std::string(line.substr(0, blank)) + "\"");
    Step step;
    step.kind = entry->kind;
    if (!readArgument(trimmed(line.substr(blank)), step))
        throw std::invalid_argument("expected " + std::string(entry->name) + " " +
                                    std::string(entry->argument));
    return step;
}

// A script that repeats itself without ever waiting would never end.
bool waits(const Step& step) {
    return step.kind == Kind::untilOpen || step.kind == Kind::untilClosed || step.kind == Kind::untilSent ||
           ((step.kind == Kind::wait || step.kind == Kind::untilReceived) && step.number > 0);
}

} // namespace

std::vector<Step> parseScript(std::string_view text) {
    std::vector<Step> steps;
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.empty() || line.front() == '#')
            continue;
        try {
            steps.push_back(parseStep(line));
        } catch (const std::invalid_argument& problem) {
            throw std::invalid_argument("line " + std::to_string(number) +
                                        " of the script: " + problem.what());
        }
        if (steps.back().kind == Kind::repeat && std::none_of(steps.begin(), steps.end(), waits))
            throw std::invalid_argument("line " + std::to_string(number) +
                                        " of the script: nothing before it ever waits");
    }
    return steps;
}

std::string scriptHelp() {
    constexpr std::size_t column = 20;
    std::string text;
    for (const Entry& entry : entries) {
        std::string left = "  " + std::string(entry.name) + " " + std::string(entry.argument);
        left.resize(std::max(column + 2, left.size() + 1), ' ');
        text += left + std::string(entry.meaning) + "\n";
    }
    return text;
}

ScriptedInstrument::ScriptedInstrument(InstrumentSetup setup, std::vector<Step> steps)
    : instrument(std::move(setup)), steps_(std::move(steps)) {
    instrument.setup().plugOnOpen = false;
}

void ScriptedInstrument::opened(std::int64_t time) {
    open_ = true;
    instrument.opened(time);
    advance(time);
}

void ScriptedInstrument::received(std::int64_t time, std::string_view characters) {
    instrument.received(time, characters);
    advance(time);
}

void ScriptedInstrument::closed(std::int64_t time) {
    open_ = false;
    instrument.closed(time);
    advance(time);
}

bool ScriptedInstrument::ready(const Step& step, std::int64_t time) const {
    switch (step.kind) {
    case Kind::wait:
        return time >= stepTime_ + step.number;
    case Kind::untilOpen:
        return open_;
    case Kind::untilClosed:
        return !open_;
    case Kind::untilReceived:
        return instrument.receivedCount() >= receivedBefore_ + step.number;
    case Kind::untilSent:
        return instrument.completed() > completedBefore_;
    default:
        return true;
    }
}

void ScriptedInstrument::act(const Step& step, std::int64_t time) {
    switch (step.kind) {
    case Kind::plug:
        instrument.plug(time);
        break;
    case Kind::unplug:
        instrument.unplug();
        break;
    case Kind::gone:
        instrument.pullAdapter();
        break;
    case Kind::fault:
        addFault(instrument.setup().faults, step.text);
        break;
    case Kind::noFaults:
        instrument.setup().faults = {};
        break;
    case Kind::send:
        instrument.send(time, step.text);
        break;
    default:
        break;
    }
}

void ScriptedInstrument::advance(std::int64_t time) {
    while (at_ < steps_.size() && ready(steps_[at_], time)) {
        const Step& step = steps_[at_];
        stepTime_ = step.kind == Kind::wait ? stepTime_ + step.number : time;
        act(step, stepTime_);
        if (step.kind == Kind::untilReceived || step.kind == Kind::untilOpen)
            receivedBefore_ = instrument.receivedCount();
        completedBefore_ = step.kind == Kind::plug ? instrument.completed() : completedBefore_;
        at_ = step.kind == Kind::repeat ? 0 : at_ + 1;
        if (step.kind == Kind::repeat)
            break;
    }
}

std::string ScriptedInstrument::sent(std::int64_t time) {
    std::string all = instrument.sent(time);
    advance(time);
    return all + instrument.sent(time);
}

std::int64_t ScriptedInstrument::nextAt() const {
    std::int64_t next = instrument.nextAt();
    if (at_ < steps_.size()) {
        const Step& step = steps_[at_];
        if (step.kind == Kind::wait)
            next = std::min(next, stepTime_ + step.number);
        else if (ready(step, stepTime_))
            next = std::min(next, stepTime_);
    }
    return next;
}

} // namespace tally::sim
