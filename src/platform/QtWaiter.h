// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// First, because moc cannot read the standard library's <compare> on its own.
#include <QObject>

#include "link/Waiter.h"
#include "platform/QtClock.h"

class QEventLoop;

namespace tally {

class SerialLine;

// Waits in a nested event loop that sleeps until there is something to do; with a window or without one. A
// loop that ends because the application ends counts as cancelled from then on.
class QtWaiter : public QObject, public Waiter {
    Q_OBJECT

public:
    // `line` must outlive the waiter.
    explicit QtWaiter(SerialLine& line);

    ReadingTime localTime() const override { return clock_.localTime(); }
    std::int64_t now() const override { return clock_.now(); }
    Wake until(std::int64_t deadline) override;
    bool cancelRequested() const override { return cancelled_ || quitting_; }
    // The end of the application stays a cancel.
    void resetCancel() override { cancelled_ = false; }

public Q_SLOTS:
    // What the Cancel button, the Escape key and Ctrl+C do; a wait in progress ends at once.
    void cancel();

private:
    void sleep(std::int64_t deadline);
    void wake();

    SerialLine& line_;
    QtClock clock_;
    QEventLoop* loop_ = nullptr; // while waiting
    std::int64_t lastBreath_ = 0;
    bool woken_ = false; // the loop was ended by us
    bool cancelled_ = false;
    bool quitting_ = false;
};

} // namespace tally
