// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Capacity.h"

#include "study/Demand.h"

namespace tally::study {

namespace {

constexpr int demandMinutes = 15;
constexpr int daysNeeded = 30;
constexpr double forgiven = 1e-9;

} // namespace

std::optional<Capacity> capacityOf(std::span<const Channel> files, const Axis& axis,
                                   const CapacityCheck& check) {
    const auto readings = static_cast<std::size_t>(demandMinutes / axis.interval);
    if (axis.points < readings)
        return std::nullopt;
    Capacity capacity;
    Stretch highest;
    for (std::size_t file = 0; file < files.size(); ++file) {
        const Stretch found = *highestStretch(files[file].loads, readings);
        if (file == 0 || found.sum > highest.sum) {
            highest = found;
            capacity.file = file;
        }
    }
    capacity.demand = {static_cast<double>(highest.sum) / (10 * static_cast<double>(readings)),
                       axis.at(highest.first)};
    capacity.required = check.factor * capacity.demand.value + check.add;
    capacity.rating = check.rating;
    capacity.spare = check.rating - capacity.required;
    capacity.ok = capacity.required <= check.rating * (1 + forgiven);
    const std::int64_t minutes = axis.minutes(axis.points);
    capacity.days = static_cast<double>(minutes) / minutesPerDay;
    capacity.enoughDays = minutes >= daysNeeded * minutesPerDay;
    return capacity;
}

} // namespace tally::study
