// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tally {

class QtWaiter;

// While it lives, Ctrl+C (and a request to terminate) cancels the session of a waiter instead of ending the
// program. One at a time.
class QtWaiterInterrupt {
public:
    explicit QtWaiterInterrupt(QtWaiter& waiter);
    ~QtWaiterInterrupt();
    QtWaiterInterrupt(const QtWaiterInterrupt&) = delete;
    QtWaiterInterrupt& operator=(const QtWaiterInterrupt&) = delete;
};

} // namespace tally
