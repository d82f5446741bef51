// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/PowerValues.h"

#include "core/Fault.h"
#include "view/PlotSeries.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace tally {

namespace {

// The order of the operations is part of the result in single precision.
struct OneOrTwoFiles {
    static float combined(float sum) { return sum; }
    static float kilowatts(float sum, const PowerScale& scale) {
        return sum / 10.0F * scale.kilovolts * scale.factor;
    }
};
struct ThreeFiles {
    static float combined(float sum) { return sum / 3.0F * 1.732F; }
    static float kilowatts(float sum, const PowerScale& scale) {
        return combined(sum) / 10.0F * scale.kilovolts * scale.factor;
    }
};

double sumOf(const std::vector<float>& values) {
    // Four sums side by side, since one would wait for each addition.
    double parts[4] = {};
    std::size_t i = 0;
    for (; i + 4 <= values.size(); i += 4)
        for (std::size_t part = 0; part < 4; ++part)
            parts[part] += static_cast<double>(values[i + part]);
    for (; i < values.size(); ++i)
        parts[0] += static_cast<double>(values[i]);
    return parts[0] + parts[1] + parts[2] + parts[3];
}

template <typename Files>
PowerValues valuesOf(const std::vector<std::int32_t>& sums, const PowerScale& scale) {
    PowerValues values;
    if (sums.empty())
        return values;
    std::int32_t smallest = sums.front();
    std::int32_t largest = sums.front();
    values.kilowatts.resize(sums.size());
    for (std::size_t i = 0; i < sums.size(); ++i) {
        smallest = std::min(smallest, sums[i]);
        largest = std::max(largest, sums[i]);
        values.kilowatts[i] = Files::kilowatts(static_cast<float>(sums[i]), scale);
    }
    values.smallest = Files::combined(static_cast<float>(smallest));
    values.largest = static_cast<float>(largest);
    values.smallestSum = smallest;
    // The power goes up or down with the current throughout, so its ends stand for all values.
    for (const std::int32_t end : {smallest, largest})
        if (!std::isfinite(Files::kilowatts(static_cast<float>(end), scale)))
            throw fault::overflow();
    values.sumAfterFirst = sumOf(values.kilowatts) - static_cast<double>(values.kilowatts.front());
    return values;
}

} // namespace

std::vector<std::int32_t> summedCurrents(std::span<const std::span<const std::int16_t>> files,
                                         std::size_t count) {
    std::vector<std::int32_t> sums(count);
    // Only the sums of three files are 16-bit numbers, at every step.
    const bool narrow = files.size() == Recordings::slotCount;
    for (const std::span<const std::int16_t> readings : files) {
        std::uint32_t beyond = 0;
        for (std::size_t i = 0; i < readings.size(); ++i) {
            sums[i] += readings[i];
            beyond |= static_cast<std::uint32_t>(sums[i] + 0x8000);
        }
        if (narrow && beyond > 0xFFFF)
            throw fault::overflow();
    }
    return sums;
}

float kilowattsOf(std::int32_t sum, int files, const PowerScale& scale) {
    const auto current = static_cast<float>(sum);
    return files == Recordings::slotCount ? ThreeFiles::kilowatts(current, scale)
                                          : OneOrTwoFiles::kilowatts(current, scale);
}

PowerValues powerValues(const Recordings& recordings, const Range& range, const PowerScale& scale) {
    std::array<std::span<const std::int16_t>, Recordings::slotCount> files;
    const auto open = static_cast<std::size_t>(recordings.openCount());
    for (std::size_t slot = 0; slot < open; ++slot)
        files[slot] = present(recordings, static_cast<int>(slot), range);
    const auto sums = summedCurrents(std::span(files).first(open), static_cast<std::size_t>(range.entries()));
    return recordings.openCount() == Recordings::slotCount ? valuesOf<ThreeFiles>(sums, scale)
                                                           : valuesOf<OneOrTwoFiles>(sums, scale);
}

} // namespace tally
