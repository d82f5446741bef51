// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/ViewRollback.h"

#include <utility>

namespace tally {

ViewRollback::ViewRollback(Recordings& recordings, DisplayState& state)
    : recordings_(recordings),
      state_(state),
      before_(state),
      start_(recordings.gDatastart),
      end_(recordings.gdataend),
      zoomed_(recordings.gZoomFlag) {}

ViewRollback::~ViewRollback() {
    if (kept_)
        return;
    recordings_.gDatastart = start_;
    recordings_.gdataend = end_;
    recordings_.gZoomFlag = zoomed_;
    state_ = std::move(before_);
}

} // namespace tally
