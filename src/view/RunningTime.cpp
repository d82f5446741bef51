// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/RunningTime.h"

namespace tally {

namespace {

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

void RunningTime::setDate() {
    text_ = formatTime(time_, pattern_);
    const CivilTime civil = toCivil(time_);
    minuteOfDay_ = civil.hour * 60 + civil.minute;
}

} // namespace tally
