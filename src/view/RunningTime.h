// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tally {

// A time as text that is moved on line by line: the date is worked out once a day, the clock is counted on.
class RunningTime {
public:
    // A pattern of formatTime with one %H and one %M.
    RunningTime(std::string_view pattern, ReadingTime start);

    ReadingTime time() const { return time_; }
    const std::string& text() const { return text_; }

    void set(ReadingTime time);
    // Any number of minutes from 0 on.
    void advance(int minutes);

private:
    static constexpr int minutesPerDay = 24 * 60;

    void setDate();
    void putPair(std::size_t at, int value) {
        text_[at] = static_cast<char>('0' + value / 10);
        text_[at + 1] = static_cast<char>('0' + value % 10);
    }

    std::string pattern_;
    std::string text_;
    ReadingTime time_;
    int minuteOfDay_ = 0;
    std::size_t hourAt_ = 0;
    std::size_t minuteAt_ = 0;
};

inline void RunningTime::advance(int minutes) {
    time_ = time_ + minutes;
    minuteOfDay_ += minutes;
    if (minuteOfDay_ >= minutesPerDay) {
        setDate();
        return;
    }
    putPair(hourAt_, minuteOfDay_ / 60);
    putPair(minuteAt_, minuteOfDay_ % 60);
}

} // namespace tally
