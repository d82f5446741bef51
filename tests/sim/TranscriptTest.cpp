// SPDX-License-Identifier: GPL-3.0-or-later
// The simulated instrument against conversations written by hand.
#include "support/Transcript.h"

#include "sim/Instrument.h"
#include "support/Places.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

namespace tally {
namespace {

using testing::readTranscripts;
using testing::Transcript;

constexpr std::int64_t tolerance = 3; // milliseconds
constexpr std::int64_t longAfter = 3000;

sim::InstrumentSetup setupFrom(const Transcript& transcript) {
    const int type =
        std::stoi(transcript.fact(transcript.has("instrument-type") ? "instrument-type" : "type"));
    sim::InstrumentSetup setup = sim::setupOf(type, *parseHeaderTime(transcript.fact("clock")), 0);
    if (transcript.has("mode"))
        setup.memory.mode = transcript.fact("mode").at(0);
    if (transcript.has("battery"))
        setup.battery = std::stoi(transcript.fact("battery"), nullptr, 16);
    std::istringstream readings(transcript.fact("readings"));
    for (int reading = 0; readings >> reading;)
        setup.memory.readings.insert(setup.memory.readings.begin(), reading);
    setup.memory.stopped = transcript.has("stopped");
    setup.memory.stoppedAt = setup.clock;
    setup.low = transcript.has("tenths");
    setup.faults.lowBattery = transcript.has("low-battery");
    setup.faults.headerOnly = transcript.has("header-only");
    setup.strict = transcript.has("strict");
    if (transcript.fact("reset") == "restarts")
        setup.reset = sim::Reset::restarts;
    if (transcript.has("begun")) {
        setup.batteryFailed = true;
        setup.layout = sim::Layout::brief;
        setup.memory.begin = *parseHeaderTime(transcript.fact("begun"));
    }
    return setup;
}

// What an instrument sends to the computer of a transcript, and when each character was complete.
struct Sent {
    std::string text;
    std::vector<std::int64_t> times;

    Sent(const Transcript& transcript, sim::Instrument& instrument) {
        for (const Transcript::Event& event : transcript.events) {
            if (event.who == "instrument")
                continue;
            advance(instrument, event.time);
            if (event.who == "open")
                open(instrument, event);
            else if (event.who == "dtr")
                instrument.dtr(event.time, event.text == "high");
            else
                instrument.received(event.time, event.text);
        }
        advance(instrument, transcript.events.back().time + longAfter);
    }

private:
    void advance(sim::Instrument& instrument, std::int64_t until) {
        for (; now_ <= until; ++now_) {
            const std::string characters = instrument.sent(now_);
            text += characters;
            times.insert(times.end(), characters.size(), now_);
        }
    }
    void open(sim::Instrument& instrument, const Transcript::Event& event) {
        if (open_)
            instrument.closed(event.time);
        instrument.opened(event.time);
        instrument.rate(event.time, std::stoi(event.text));
        open_ = true;
    }

    std::int64_t now_ = 0;
    bool open_ = false;
};

void expectAt(std::int64_t time, std::int64_t wanted, const std::string& what) {
    EXPECT_LE(std::abs(time - wanted), tolerance) << what << " at " << time << ", not " << wanted;
}

class InstrumentTranscript : public ::testing::TestWithParam<Transcript> {};

TEST_P(InstrumentTranscript, GoesAsItIsWritten) {
    const Transcript& transcript = GetParam();
    sim::Instrument instrument(setupFrom(transcript));
    const Sent sent(transcript, instrument);
    ASSERT_EQ(sent.text, transcript.sent());
    std::size_t at = 0;
    for (std::size_t i = 0; i < transcript.events.size(); ++i) {
        const Transcript::Event& event = transcript.events[i];
        if (event.who != "instrument")
            continue;
        const auto bits = static_cast<std::int64_t>(10 * event.text.size());
        expectAt(sent.times[at], event.time, "first character of " + event.text);
        at += event.text.size();
        expectAt(sent.times[at - 1], event.time + bits * 1000 / transcript.baudAt(i),
                 "last character of " + event.text);
    }
    EXPECT_EQ(instrument.erasures(), transcript.fact("session") == "initialise" ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(All, InstrumentTranscript,
                         ::testing::ValuesIn(readTranscripts(::testing::sourceDir() +
                                                             "/tests/data/transcripts")),
                         [](const auto& test) {
                             std::string name = test.param.name;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

} // namespace
} // namespace tally
