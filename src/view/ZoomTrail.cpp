// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/ZoomTrail.h"

namespace tally {

namespace {

constexpr std::size_t maximumPlaces = 100;

} // namespace

void ZoomTrail::visit(const Place& place) {
    if (places_[at_] == place)
        return;
    places_.resize(at_ + 1);
    places_.push_back(place);
    if (places_.size() > maximumPlaces)
        places_.erase(places_.begin());
    at_ = places_.size() - 1;
}

} // namespace tally
