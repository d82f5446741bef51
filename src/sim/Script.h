// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sim/Instrument.h"

#include <string>
#include <string_view>
#include <vector>

namespace tally::sim {

// One line of a script.
struct Step {
    enum class Kind {
        wait,
        untilOpen,
        untilClosed,
        untilReceived,
        untilSent,
        plug,
        unplug,
        gone,
        fault,
        noFaults,
        send,
        repeat
    };

    Kind kind = Kind::wait;
    std::int64_t number = 0; // milliseconds of a wait, characters to be received
    std::string text = {};   // of a fault or to be sent
};

// Reads a script: one step a line, "#" begins a remark. Throws std::invalid_argument with the line number.
std::vector<Step> parseScript(std::string_view text);

// The steps and what they mean, one a line.
std::string scriptHelp();

// An instrument whose cable and faults follow a script, step by step.
class ScriptedInstrument : public Peer {
public:
    ScriptedInstrument(InstrumentSetup setup, std::vector<Step> steps);

    void opened(std::int64_t time) override;
    void rate(std::int64_t time, int baud) override { instrument.rate(time, baud); }
    void received(std::int64_t time, std::string_view characters) override;
    void closed(std::int64_t time) override;
    void dtr(std::int64_t time, bool on) override { instrument.dtr(time, on); }
    void pressed(std::int64_t time) override { instrument.pressed(time); }
    std::string sent(std::int64_t time) override;
    std::int64_t nextAt() const override;
    bool gone() const override { return instrument.gone(); }
    bool finished() const override { return at_ == steps_.size() && !open_; }
    int ownRate() const override { return instrument.ownRate(); }

    Instrument instrument;

private:
    // Goes through the steps that can be done at this time.
    void advance(std::int64_t time);
    bool ready(const Step& step, std::int64_t time) const;
    void act(const Step& step, std::int64_t time);

    std::vector<Step> steps_;
    std::size_t at_ = 0;
    std::int64_t stepTime_ = 0; // when the last step was done
    std::int64_t receivedBefore_ = 0;
    int completedBefore_ = 0;
    bool open_ = false;
};

} // namespace tally::sim
