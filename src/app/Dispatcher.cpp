// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Dispatcher.h"

#include "core/Fault.h"

#include <new>
#include <string>

namespace tally {

namespace {

class Flag {
public:
    explicit Flag(bool& flag) : flag_(flag) { flag_ = true; }
    ~Flag() { flag_ = false; }
    Flag(const Flag&) = delete;
    Flag& operator=(const Flag&) = delete;

private:
    bool& flag_;
};

} // namespace

bool Dispatcher::runDone(const std::function<Done()>& command) {
    if (running_)
        return false;
    const bool done = [&] {
        const Flag flag(running_);
        gErrorCallPoint_ = 0;
        return attemptDone(command);
    }();
    after();
    return done;
}

bool Dispatcher::attemptDone(const std::function<Done()>& step) {
    const Display display = display_;
    const int ginx = recordings_.ginx;
    const int gDateX = recordings_.gDateX;
    std::string told;
    try {
        const Done done = step();
        if (done)
            return true;
        told = done.error().message();
    } catch (const Fault& fault) {
        told = faultReport(fault, gErrorCallPoint_);
    } catch (const std::bad_alloc&) {
        told = faultReport(Fault(7, "Out of memory"), gErrorCallPoint_);
    }
    recordings_.ginx = ginx;
    recordings_.gDateX = gDateX;
    display_ = display;
    prompt_.tell(told);
    return false;
}

} // namespace tally
