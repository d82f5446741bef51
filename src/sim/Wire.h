// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sim/Peer.h"
#include "sim/Pty.h"
#include "sim/Record.h"

#include <chrono>
#include <functional>

namespace tally::sim {

// Joins a peer to a pseudo-terminal, in real time, and sleeps in between.
class Wire {
public:
    enum class End { stopped, gone, finished };

    Wire(Peer& peer, Pty& pty);
    ~Wire();
    Wire(const Wire&) = delete;
    Wire& operator=(const Wire&) = delete;

    // Every event is told to this one as well.
    std::function<void(const Event&)> onEvent = [](const Event&) {};
    // A descriptor whose lines are the trainer's Enter key; -1 for none.
    int keyboard = -1;
    // A descriptor that says how DTR stands, which a pseudo-terminal cannot: "1" high, "0" low; -1 for none.
    int dtr = -1;
    // Looked at after each event: true ends the run.
    std::function<bool()> done = [] { return false; };

    // Runs until stop(), until the adapter is pulled out or the peer has no more to say.
    End run();
    // Ends run(); may be called from another thread or a signal handler.
    void stop();

private:
    std::int64_t now() const;
    void sleep();
    void openings();
    void characters();
    void rate();
    void send();
    void cleanUp();
    bool readKeyboard();
    void readDtr();
    void letDrain();

    Peer& peer_;
    Pty& pty_;
    std::chrono::steady_clock::time_point start_;
    std::string unsent_; // the other side does not read fast enough
    std::int64_t tidyAt_ = never;
    int stop_[2] = {-1, -1};
    int baud_ = 0;
    bool open_ = false;
    bool stopped_ = false;
    bool dtrStirred_ = false;
};

} // namespace tally::sim
