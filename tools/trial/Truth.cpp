// SPDX-License-Identifier: GPL-3.0-or-later
#include "Truth.h"

#include "sim/Instrument.h"

#include <algorithm>
#include <sstream>

namespace tally::trial {

namespace {

constexpr std::int64_t longAfter = 1'000'000; // milliseconds

std::string column(const std::string& header, std::size_t first, std::size_t length) {
    return first <= header.size() ? header.substr(first - 1, length) : std::string();
}

} // namespace

Facts factsOf(const std::string& text) {
    const std::size_t start = std::min(text.find_first_of("PHK"), text.size());
    const std::string header = text.substr(start, text.find('\r', start) - start);
    Facts facts;
    facts.serial = column(header, 8, 4);
    facts.time = column(header, 31, 14);
    const std::string mode = column(header, 4, 1);
    facts.mode = mode.empty() || mode == " " ? 'a' : static_cast<char>(mode[0] | 0x20);
    std::istringstream items(
        text.substr(start + header.size(), text.find('\x1a', start) - start - header.size()));
    for (std::string item; items >> item;) {
        if (facts.readings.empty() && item.starts_with("T:"))
            item.erase(0, 2);
        if (!item.empty())
            facts.readings.push_back(item);
    }
    return facts;
}

std::string soundText(const Plan& plan) {
    sim::InstrumentSetup setup = sim::setupOf(plan.type, *parseHeaderTime(instrumentClock), 0);
    const char mode = setup.memory.mode == ' ' ? ' ' : plan.mode;
    setup.memory = sim::filledMemory(mode, setup.memory.samples, plan.count, setup.clock);
    setup.memory.stopped = true;
    setup.memory.stoppedAt = setup.clock;
    setup.batteryFailed = plan.kind == Kind::recover;
    setup.layout = setup.batteryFailed ? sim::Layout::brief : sim::Layout::current;
    setup.speed = 0;
    sim::Instrument instrument(setup);
    instrument.opened(0);
    instrument.rate(0, setup.baud);
    return instrument.sent(longAfter);
}

Facts soundFacts(const Plan& plan) {
    Facts facts = factsOf(soundText(plan));
    // A recovered recording stopped where the clock stands.
    facts.time = instrumentClock;
    for (const std::string& fault : plan.faults)
        if (fault.starts_with("nines="))
            std::fill_n(facts.readings.begin(),
                        std::min<std::size_t>(facts.readings.size(), std::stoul(fault.substr(6))), "000");
    return facts;
}

} // namespace tally::trial
