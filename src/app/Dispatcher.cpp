// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Dispatcher.h"

#include "core/Fault.h"

#include <new>
#include <optional>

namespace tally {

namespace {

struct Range {
    int ginx, gDateX, gDatastart, gdataend;
    bool gZoomFlag;

    explicit Range(const Recordings& r)
        : ginx(r.ginx),
          gDateX(r.gDateX),
          gDatastart(r.gDatastart),
          gdataend(r.gdataend),
          gZoomFlag(r.gZoomFlag) {}

    void restore(Recordings& r) const {
        r.ginx = ginx;
        r.gDateX = gDateX;
        r.gDatastart = gDatastart;
        r.gdataend = gdataend;
        r.gZoomFlag = gZoomFlag;
    }
};

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

bool Dispatcher::run(const std::function<void()>& command) {
    if (running_)
        return false;
    const Flag flag(running_);
    gErrorCallPoint = 0;
    return attempt(command);
}

bool Dispatcher::attempt(const std::function<void()>& step) {
    const Range range(recordings_);
    const DisplayState display = display_;
    std::optional<Fault> fault;
    try {
        step();
    } catch (const Fault& thrown) {
        fault = thrown;
    } catch (const std::bad_alloc&) {
        fault = Fault(7, "Out of memory");
    }
    if (!fault)
        return true;
    range.restore(recordings_);
    display_ = display;
    prompt_.tell(faultReport(*fault, gErrorCallPoint));
    return false;
}

} // namespace tally
