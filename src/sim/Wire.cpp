// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Wire.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace tally::sim {

namespace {

// Characters go in pieces of so many milliseconds, as they do through an adapter.
constexpr std::int64_t pieceTime = 10;
// Somebody who opens the port anew this soon was not killed.
constexpr std::int64_t tidyAfter = 50;
// How long a computer may take to read what was sent before the adapter goes.
constexpr int drainSteps = 200;
constexpr int drainedSteps = 3;
constexpr std::chrono::milliseconds drainStep(5);

} // namespace

Wire::Wire(Peer& peer, Pty& pty) : peer_(peer), pty_(pty), start_(std::chrono::steady_clock::now()) {
    if (pipe2(stop_, O_CLOEXEC | O_NONBLOCK) != 0)
        throw std::system_error(errno, std::generic_category(), "no pipe can be had");
    pty_.release(peer_.ownRate());
}

Wire::~Wire() {
    close(stop_[0]);
    close(stop_[1]);
}

void Wire::stop() {
    const char mark = 0;
    [[maybe_unused]] const auto written = write(stop_[1], &mark, 1);
}

std::int64_t Wire::now() const {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now() - start_).count();
}

Wire::End Wire::run() {
    for (;;) {
        sleep();
        if (stopped_)
            return End::stopped;
        openings();
        if (dtrStirred_)
            readDtr();
        characters();
        rate();
        send();
        cleanUp();
        if (peer_.gone()) {
            letDrain();
            return End::gone;
        }
        if (peer_.finished())
            return End::finished;
        if (done())
            return End::stopped;
    }
}

void Wire::sleep() {
    const std::int64_t next = std::min(peer_.nextAt(), tidyAt_);
    int timeout = -1;
    if (next != never)
        timeout = static_cast<int>(std::clamp<std::int64_t>(next - now(), pieceTime, 60'000));
    if (next <= now() && peer_.nextAt() <= now() && unsent_.empty())
        timeout = 0;
    std::array<pollfd, 5> watched = {{{stop_[0], POLLIN, 0},
                                      {pty_.openingsReady(), POLLIN, 0},
                                      {pty_.charactersReady(), POLLIN, 0},
                                      {keyboard, POLLIN, 0},
                                      {dtr, POLLIN, 0}}};
    if (!unsent_.empty())
        watched[2].events |= POLLOUT;
    poll(watched.data(), watched.size(), timeout);
    stopped_ = watched[0].revents != 0;
    if (watched[3].revents != 0 && !readKeyboard())
        keyboard = -1;
    dtrStirred_ = watched[4].revents != 0;
}

// False at the end of the keyboard's input.
bool Wire::readKeyboard() {
    std::array<char, 256> typed = {};
    const ssize_t count = read(keyboard, typed.data(), typed.size());
    if (count > 0 && std::find(typed.begin(), typed.begin() + count, '\n') != typed.begin() + count)
        peer_.pressed(now());
    return count > 0;
}

void Wire::readDtr() {
    std::array<char, 256> states = {};
    const ssize_t count = read(dtr, states.data(), states.size());
    if (count <= 0) {
        dtr = -1;
        return;
    }
    for (const char state : std::string_view(states.data(), static_cast<std::size_t>(count)))
        if (state == '0' || state == '1')
            peer_.dtr(now(), state == '1');
}

void Wire::openings() {
    for (auto opening = pty_.nextOpening(); opening != Pty::Opening::none; opening = pty_.nextOpening()) {
        if (opening == Pty::Opening::opened) {
            open_ = true;
            tidyAt_ = never;
            peer_.opened(now());
            onEvent({.kind = Event::Kind::opened, .time = now()});
            continue;
        }
        characters();
        open_ = false;
        baud_ = 0;
        unsent_.clear();
        pty_.dropUnread();
        tidyAt_ = now() + tidyAfter;
        peer_.closed(now());
        onEvent({.kind = Event::Kind::closed, .time = now()});
    }
}

void Wire::characters() {
    const std::string received = pty_.read();
    if (received.empty())
        return;
    rate();
    peer_.received(now(), received);
    onEvent({.kind = Event::Kind::received, .time = now(), .characters = received});
}

void Wire::rate() {
    const int baud = pty_.baud();
    if (!open_ || baud == baud_)
        return;
    baud_ = baud;
    peer_.rate(now(), baud);
    onEvent({.kind = Event::Kind::rate, .time = now(), .baud = baud});
}

void Wire::send() {
    if (unsent_.empty()) {
        unsent_ = peer_.sent(now());
        if (!open_)
            unsent_.clear();
        if (!unsent_.empty())
            onEvent({.kind = Event::Kind::sent, .time = now(), .characters = unsent_});
    }
    if (!unsent_.empty())
        unsent_.erase(0, pty_.write(unsent_));
}

void Wire::cleanUp() {
    if (now() < tidyAt_)
        return;
    tidyAt_ = never;
    if (pty_.isLocked())
        pty_.release(peer_.ownRate());
}

void Wire::letDrain() {
    // The system hands characters on in several steps; only a lasting emptiness means that all were read.
    int empty = 0;
    for (int i = 0; i < drainSteps && open_ && empty < drainedSteps; ++i) {
        unsent_.erase(0, pty_.write(unsent_));
        std::this_thread::sleep_for(drainStep);
        empty = unsent_.empty() && pty_.drained() ? empty + 1 : 0;
        openings();
    }
}

} // namespace tally::sim
