// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Memory.h"

#include "core/ModeTable.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace tally::sim {

namespace {

constexpr int minutesPerDay = 1440;

char modeOrDefault(char mode) {
    return mode == ' ' ? 'a' : lowerCase(mode);
}

// A number that looks random and is the same in every run.
unsigned scatter(std::int64_t minute, unsigned salt) {
    auto x = static_cast<std::uint64_t>(minute) * 0x9E3779B97F4A7C15U + salt;
    x ^= x >> 31;
    x *= 0xBF58476D1CE4E5B9U;
    return static_cast<unsigned>((x ^ (x >> 29)) & 0xFFFFU);
}

// The load of a feeder: lowest at six in the morning, highest at six in the evening.
int load(std::int64_t minute) {
    const int ofDay = static_cast<int>(((minute % minutesPerDay) + minutesPerDay) % minutesPerDay);
    const int fromPeak = std::abs(ofDay - 18 * 60);
    const int distance = std::min(fromPeak, minutesPerDay - fromPeak);
    return 400 - distance * 300 / (minutesPerDay / 2) + static_cast<int>(scatter(minute, 1) % 21) - 10;
}

std::array<int, 3> interval(std::int64_t minute) {
    const int average = load(minute);
    return {average - 15 - static_cast<int>(scatter(minute, 2) % 10),
            average + 20 + static_cast<int>(scatter(minute, 3) % 30), average};
}

} // namespace

int Memory::minutes() const {
    return modeRow(modeOrDefault(mode)).minutes;
}

int Memory::valuesPerInterval() const {
    return tally::valuesPerInterval(modeOrDefault(mode));
}

bool Memory::stopsWhenFull() const {
    return modeRow(modeOrDefault(mode)).whenFull == "Stop";
}

ReadingTime Memory::recordedUntil(ReadingTime now) const {
    ReadingTime end = stopped ? std::min(now, stoppedAt) : now;
    if (stopsWhenFull())
        end = std::min(end, begin + std::int64_t{samples / valuesPerInterval()} * minutes());
    return std::max(begin, end);
}

bool Memory::isRunning(ReadingTime now) const {
    return !stopped && (!stopsWhenFull() || recordedUntil(now + minutes()) > recordedUntil(now));
}

std::vector<int> Memory::newestFirst(ReadingTime now) const {
    if (!readings.empty())
        return {readings.rbegin(), readings.rend()};
    const std::int64_t intervals = (recordedUntil(now).minutes - begin.minutes) / minutes();
    const std::int64_t kept = std::min<std::int64_t>(intervals, samples / valuesPerInterval());
    std::vector<int> values;
    values.reserve(static_cast<std::size_t>(kept * valuesPerInterval()));
    for (std::int64_t i = intervals; i > intervals - kept; --i) {
        const std::int64_t minute = begin.minutes + i * minutes();
        if (valuesPerInterval() == 1) {
            values.push_back(load(minute));
            continue;
        }
        for (const int value : interval(minute))
            values.push_back(value);
    }
    return values;
}

Memory filledMemory(char mode, int samples, int count, ReadingTime now) {
    Memory memory;
    memory.mode = mode;
    memory.samples = samples;
    memory.begin = now - std::int64_t{count / memory.valuesPerInterval()} * memory.minutes();
    return memory;
}

} // namespace tally::sim
