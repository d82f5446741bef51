// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Fault.h"
#include "link/Line.h"
#include "support/VirtualWaiter.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tally::testing {

// A serial line in virtual time. What is sent while the port is closed is lost, as on a real one.
class VirtualLine : public Line {
public:
    struct Call {
        std::int64_t at;
        std::string what; // "Settings 9600,N,8,1", "PortOpen true", "DTREnable false", ...
    };

    explicit VirtualLine(VirtualWaiter& waiter) : waiter_(waiter) {
        waiter_.dataWaiting = [this] { return unread() > 0 || lost_; };
    }

    std::vector<Call> calls;
    std::string written;                                         // all that was sent to the instrument
    std::optional<Fault> failOpen;                               // thrown by openings ...
    std::string openProblem;                                     // why it could not be opened
    int goodOpenings = 0;                                        // ... after so many good ones
    std::function<void(const std::string& settings)> onOpen;     // the cable's other end sees the port open
    std::function<void(const std::string& characters)> onOutput; // ... or receives
    std::function<void(bool on)> onDtr;                          // ... or sees DTR change

    // The instrument sends at a time (milliseconds), all at once or with so many milliseconds a character.
    void sendAt(std::int64_t time, const std::string& characters) {
        waiter_.at(time, [this, characters] { send(characters); });
    }
    void sendPaced(std::int64_t time, const std::string& characters, std::int64_t perCharacter) {
        for (const char c : characters) {
            sendAt(time, std::string(1, c));
            time += perCharacter;
        }
    }
    void send(const std::string& characters) {
        if (!open_)
            return;
        if (keep_)
            keep_(characters);
        for (const char c : characters)
            if (!ended_) {
                arrived_ += c;
                ended_ = eofEnable_ && c == '\x1a';
            }
    }
    // The line goes away; what had arrived can still be read.
    void loseAt(std::int64_t time) {
        waiter_.at(time, [this] { lose(); });
    }
    void lose() {
        if (open_)
            lost_ = true;
        open_ = false;
    }
    int count(const std::string& what) const {
        int n = 0;
        for (const auto& call : calls)
            n += call.what == what ? 1 : 0;
        return n;
    }
    // When something was called first; -1 for never.
    std::int64_t firstTime(const std::string& what) const {
        for (const auto& call : calls)
            if (call.what == what)
                return call.at;
        return -1;
    }
    std::size_t unread() const { return arrived_.size() - read_; }

    void CommPort(int number) override { note("CommPort " + std::to_string(number)); }
    void Settings(const std::string& settings) override {
        settings_ = settings;
        note("Settings " + settings);
    }
    void InputLen(int length) override { note("InputLen " + std::to_string(length)); }
    void EOFEnable(bool on) override {
        eofEnable_ = on;
        note(std::string("EOFEnable ") + (on ? "true" : "false"));
    }
    void DTREnable(bool on) override {
        note(std::string("DTREnable ") + (on ? "true" : "false"));
        if (onDtr)
            onDtr(on);
    }
    void PortOpen(bool open) override {
        note(std::string("PortOpen ") + (open ? "true" : "false"));
        if (open && failOpen && goodOpenings-- <= 0)
            throw *failOpen;
        open_ = open;
        lost_ = false;
        ended_ = false;
        arrived_.clear();
        read_ = 0;
        if (open && onOpen)
            onOpen(settings_);
    }
    bool isOpen() const override { return open_; }
    void onArrival(Keeper keeper) override { keep_ = std::move(keeper.keep); }
    std::string Input() override {
        if (unread() == 0)
            return {};
        return std::string(1, arrived_[read_++]);
    }
    void Output(std::string_view characters) override {
        note("Output");
        written += characters;
        if (onOutput)
            onOutput(std::string(characters));
    }
    std::string problem() const override { return lost_ ? "COM1: the line went away" : openProblem; }

private:
    void note(const std::string& what) { calls.push_back({waiter_.now(), what}); }

    VirtualWaiter& waiter_;
    std::function<void(std::string_view)> keep_;
    std::string settings_;
    std::string arrived_;
    std::size_t read_ = 0;
    bool open_ = false;
    bool lost_ = false;
    bool ended_ = false;
    bool eofEnable_ = false;
};

} // namespace tally::testing
