// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sim/Peer.h"
#include "sim/Record.h"

#include <cstddef>
#include <vector>

namespace tally::sim {

// Sends again what a record says was sent. The record is played opening by opening: when the computer opens
// the port, the next opening of the record at that rate is played with its pauses; where the record says
// that something was received, as many characters are waited for first.
class Replay : public Peer {
public:
    // `speed` shortens the pauses; 0 leaves them out.
    explicit Replay(std::vector<Event> events, double speed = 1);

    void opened(std::int64_t time) override;
    void rate(std::int64_t time, int baud) override;
    void received(std::int64_t time, std::string_view characters) override;
    void closed(std::int64_t time) override;
    void pressed(std::int64_t) override {}
    std::string sent(std::int64_t time) override;
    std::int64_t nextAt() const override;
    bool gone() const override { return false; }
    // Every opening of the record was played and the port is closed.
    bool finished() const override { return !playing_ && !open_ && next_ == openings_.size(); }
    int ownRate() const override;

private:
    struct Opening {
        int baud = 0; // 0: any
        std::int64_t time = 0;
        std::vector<Event> events; // sent and received
    };

    bool choose();
    // When the next event is played; never while characters are waited for.
    std::int64_t dueAt() const;

    std::vector<Opening> openings_;
    std::size_t next_ = 0;    // opening to be played next
    std::size_t current_ = 0; // the one being played ...
    std::size_t event_ = 0;   // ... and where in it
    std::int64_t chooseAt_ = never;
    std::int64_t base_ = 0;       // when baseEvent_ happened now
    std::int64_t baseEvent_ = 0;  // ... and in the record
    std::int64_t unanswered_ = 0; // characters received and not yet waited for
    double speed_;
    int baud_ = 0;
    bool open_ = false;
    bool playing_ = false;
};

} // namespace tally::sim
