// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/forms/Adder.h"

#include <exception>
#include <utility>

namespace tally::archive {

Adder::Adder(const Archives& archives, const Files& files, QObject* parent)
    : QObject(parent), archives_(archives), files_(files) {}

Adder::~Adder() {
    stop();
    if (thread_.joinable())
        thread_.join();
}

void Adder::add(const Place& place, std::vector<std::string> paths, bool quiet) {
    orders_.push_back({place, std::move(paths), quiet});
    if (!running_)
        next();
}

void Adder::stop() {
    orders_.clear();
    stop_ = true;
}

void Adder::next() {
    if (thread_.joinable())
        thread_.join();
    running_ = !orders_.empty();
    if (!running_)
        return;
    stop_ = false;
    thread_ = std::thread([this, order = std::move(orders_.front())] {
        AddOutcome outcome;
        const auto tell = [this](const AddProgress& progress) {
            QMetaObject::invokeMethod(
                this, [this, progress] { Q_EMIT progressed(progress); }, Qt::QueuedConnection);
        };
        try {
            outcome = addPaths(
                archives_, order.place, files_, order.paths, [this] { return stop_.load(); }, tell);
        } catch (const std::exception& error) {
            outcome.fault = error.what();
        }
        QMetaObject::invokeMethod(
            this,
            [this, outcome, quiet = order.quiet] {
                next();
                Q_EMIT ended(outcome, quiet);
            },
            Qt::QueuedConnection);
    });
    orders_.pop_front();
}

} // namespace tally::archive
