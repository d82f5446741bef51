// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/AddRun.h"

#include <QObject>

#include <atomic>
#include <deque>
#include <string>
#include <thread>
#include <vector>

namespace tally::archive {

// Adds files to an archive beside the window, one order after the other.
class Adder : public QObject {
    Q_OBJECT

public:
    Adder(const Archives& archives, const Files& files, QObject* parent = nullptr);
    // Stops at the next batch.
    ~Adder() override;

    // `quiet`: only what went wrong is of interest.
    void add(const Place& place, std::vector<std::string> paths, bool quiet = false);
    bool running() const { return running_; }
    // Ends the adding in hand at the next batch and forgets what waits.
    void stop();

Q_SIGNALS:
    void progressed(const tally::archive::AddProgress& progress);
    void ended(const tally::archive::AddOutcome& outcome, bool quiet);

private:
    struct Order {
        Place place;
        std::vector<std::string> paths;
        bool quiet = false;
    };

    void next();

    const Archives& archives_;
    const Files& files_;
    std::deque<Order> orders_;
    bool running_ = false;
    std::atomic<bool> stop_ = false;
    std::thread thread_;
};

} // namespace tally::archive
