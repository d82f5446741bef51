// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Channel.h"

#include <numeric>

namespace tally::study {

std::string_view unitName(Unit unit) {
    switch (unit) {
    case Unit::volts:
        return "V";
    case Unit::kilowatts:
        return "kW";
    case Unit::amps:
        break;
    }
    return "A";
}

double Channel::value(std::int32_t load) const {
    return isPower() ? static_cast<double>(kilowattsOf(load, files, scale)) : load / 10.0;
}

double Channel::mean(std::span<const std::int32_t> some) const {
    if (some.empty())
        return 0;
    const auto count = static_cast<double>(some.size());
    if (!isPower())
        return static_cast<double>(std::accumulate(some.begin(), some.end(), std::int64_t{0})) / (10 * count);
    double sum = 0;
    for (const std::int32_t load : some)
        sum += value(load);
    return sum / count;
}

} // namespace tally::study
