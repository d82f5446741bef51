// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/MemoryLasts.h"

#include "core/ModeTable.h"

namespace tally {

namespace {

constexpr std::int64_t minutesPerHour = 60;
constexpr std::int64_t minutesPerDay = 24 * minutesPerHour;

std::string count(std::int64_t number, const char* unit) {
    return std::to_string(number) + " " + unit + (number == 1 ? "" : "s");
}

// The two largest units that say something.
std::string duration(std::int64_t minutes) {
    const std::int64_t days = minutes / minutesPerDay;
    const std::int64_t hours = minutes % minutesPerDay / minutesPerHour;
    if (days > 0)
        return count(days, "day") + " and " + count(hours, "hour");
    return count(hours, "hour") + " and " + count(minutes % minutesPerHour, "minute");
}

} // namespace

std::string memoryLasts(const ModeChoice& choice, std::int32_t samples, ReadingTime now) {
    const std::int64_t minutes =
        static_cast<std::int64_t>(choice.minutes) * samples / valuesPerInterval(modeLetter(choice));
    return "The memory lasts " + duration(minutes) + ", until " + screenTime(now + minutes) +
           (choice.stopWhenFull ? "; then the recording stops."
                                : "; then the oldest readings are overwritten.");
}

} // namespace tally
