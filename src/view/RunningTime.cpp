// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/RunningTime.h"

namespace tally {

namespace {

constexpr int minutesPerDay = 24 * 60;

void putPair(char* to, int value) {
    to[0] = static_cast<char>('0' + value / 10);
    to[1] = static_cast<char>('0' + value % 10);
}

// Where a field of the pattern begins in its text; the text before it has the same length for every time.
std::size_t placeOf(std::string_view pattern, std::string_view field) {
    return formatTime({}, pattern.substr(0, pattern.find(field))).size();
}

} // namespace

RunningTime::RunningTime(std::string_view pattern, ReadingTime start)
    : pattern_(pattern), hourAt_(placeOf(pattern, "%H")), minuteAt_(placeOf(pattern, "%M")) {
    set(start);
}

void RunningTime::set(ReadingTime time) {
    if (time == time_ && !text_.empty())
        return;
    time_ = time;
    setDate();
}

void RunningTime::advance(int minutes) {
    time_ = time_ + minutes;
    minuteOfDay_ += minutes;
    if (minuteOfDay_ >= minutesPerDay)
        setDate();
    else
        setClock();
}

void RunningTime::setDate() {
    text_ = formatTime(time_, pattern_);
    const CivilTime civil = toCivil(time_);
    minuteOfDay_ = civil.hour * 60 + civil.minute;
}

void RunningTime::setClock() {
    putPair(text_.data() + hourAt_, minuteOfDay_ / 60);
    putPair(text_.data() + minuteAt_, minuteOfDay_ % 60);
}

} // namespace tally
