// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sim/Instrument.h"
#include "sim/Pty.h"
#include "sim/Wire.h"

#include <memory>
#include <optional>
#include <thread>

namespace tally::testing {

// A peer that lives on a pseudo-terminal of its own, in a thread, until the test is over or its adapter is
// pulled out.
class LivePeer {
public:
    // `dtr` is the reading end of a pipe that says how DTR stands; -1 for none.
    explicit LivePeer(sim::Peer& peer, int dtr = -1) : peer_(peer), path_(pty_->path()), wire_(peer_, *pty_) {
        wire_.dtr = dtr;
        thread_ = std::thread([this] {
            if (wire_.run() != sim::Wire::End::stopped)
                pty_.reset();
        });
    }
    ~LivePeer() { stop(); }
    // Its life is over; what it holds can be looked into.
    void stop() {
        wire_.stop();
        if (thread_.joinable())
            thread_.join();
    }
    LivePeer(const LivePeer&) = delete;
    LivePeer& operator=(const LivePeer&) = delete;

    const std::string& path() const { return path_; }

private:
    sim::Peer& peer_;
    std::optional<sim::Pty> pty_{std::in_place};
    std::string path_;
    sim::Wire wire_;
    std::thread thread_;
};

// An instrument that lives that way. Stop it before you look into it.
struct LiveInstrument {
    explicit LiveInstrument(sim::InstrumentSetup setup, int dtr = -1)
        : instrument(std::move(setup)), live(instrument, dtr) {}

    sim::Instrument instrument;
    LivePeer live;
};

} // namespace tally::testing
