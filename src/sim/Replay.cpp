// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Replay.h"

#include <algorithm>

namespace tally::sim {

namespace {

// A computer sets its rate only after it has opened the port.
constexpr std::int64_t settling = 20; // milliseconds
constexpr double slowest = 0.001;

} // namespace

Replay::Replay(std::vector<Event> events, double speed) : speed_(speed > 0 ? std::max(speed, slowest) : 0) {
    int baud = 0;
    for (Event& event : events) {
        if (event.kind == Event::Kind::rate)
            baud = event.baud;
        if (event.kind == Event::Kind::opened || (openings_.empty() && event.kind == Event::Kind::sent))
            openings_.push_back({baud, event.time, {}});
        if (event.kind == Event::Kind::sent || event.kind == Event::Kind::received) {
            if (openings_.empty())
                continue;
            // The rate in force when the first characters went is the one that matters.
            if (openings_.back().events.empty())
                openings_.back().baud = baud;
            openings_.back().events.push_back(std::move(event));
        }
    }
    std::erase_if(openings_, [](const Opening& opening) { return opening.events.empty(); });
}

int Replay::ownRate() const {
    const auto known =
        std::find_if(openings_.begin(), openings_.end(), [](const Opening& o) { return o.baud > 0; });
    return known == openings_.end() ? 9600 : known->baud;
}

void Replay::opened(std::int64_t time) {
    open_ = true;
    chooseAt_ = time + settling;
    base_ = time;
    unanswered_ = 0;
}

void Replay::rate(std::int64_t, int baud) {
    baud_ = baud;
}

void Replay::received(std::int64_t, std::string_view characters) {
    unanswered_ += static_cast<std::int64_t>(characters.size());
}

void Replay::closed(std::int64_t) {
    open_ = false;
    playing_ = false;
    chooseAt_ = never;
}

bool Replay::choose() {
    for (std::size_t i = next_; i < openings_.size(); ++i)
        if (openings_[i].baud == 0 || openings_[i].baud == baud_) {
            current_ = i;
            next_ = i + 1;
            event_ = 0;
            baseEvent_ = openings_[i].time;
            return true;
        }
    return false;
}

std::int64_t Replay::dueAt() const {
    const Event& event = openings_[current_].events[event_];
    if (event.kind == Event::Kind::received)
        return unanswered_ < static_cast<std::int64_t>(event.characters.size()) ? never : base_;
    const auto pause = static_cast<double>(event.time - baseEvent_);
    return base_ + (speed_ > 0 ? static_cast<std::int64_t>(pause / speed_) : 0);
}

std::string Replay::sent(std::int64_t time) {
    if (chooseAt_ <= time) {
        chooseAt_ = never;
        playing_ = choose();
    }
    std::string all;
    while (playing_ && dueAt() <= time) {
        const Event& event = openings_[current_].events[event_];
        if (event.kind == Event::Kind::sent) {
            all += event.characters;
        } else {
            unanswered_ -= static_cast<std::int64_t>(event.characters.size());
            base_ = time;
            baseEvent_ = event.time;
        }
        ++event_;
        playing_ = event_ < openings_[current_].events.size();
    }
    return all;
}

std::int64_t Replay::nextAt() const {
    return std::min(chooseAt_, playing_ ? dueAt() : never);
}

} // namespace tally::sim
