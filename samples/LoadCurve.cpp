// SPDX-License-Identifier: GPL-3.0-or-later
#include "LoadCurve.h"

namespace tally::samples {

namespace {

constexpr DayCurve homesWorking = {.38, .34, .32, .31, .32, .37, .52, .66, .60, .50, .46, .47,
                                   .52, .49, .46, .48, .58, .76, .93, 1.0, .97, .86, .66, .48};
constexpr DayCurve homesWeekend = {.44, .39, .36, .34, .33, .34, .38, .47, .62, .76, .85, .92,
                                   .95, .84, .74, .70, .72, .80, .90, .94, .90, .80, .66, .52};
constexpr DayCurve shopsWorking = {.18, .17, .17, .17, .18, .22, .38, .66, .88, .97, 1.0, .98,
                                   .84, .93, .97, .94, .86, .70, .52, .36, .28, .24, .21, .19};
constexpr DayCurve shopsSaturday = {.17, .17, .16, .16, .17, .18, .22, .36, .56, .66, .66, .60,
                                    .44, .32, .26, .24, .23, .22, .22, .21, .20, .19, .18, .17};
constexpr DayCurve shopsSunday = {.16, .16, .16, .15, .15, .16, .16, .17, .18, .19, .19, .19,
                                  .19, .19, .18, .18, .18, .19, .20, .20, .19, .18, .17, .16};

constexpr std::int64_t minutesPerDay = 24 * 60;

// 0 is Monday; the count of days began on a Thursday.
int weekday(ReadingTime time) {
    return static_cast<int>((time.minutes / minutesPerDay + 3) % 7);
}

double at(const DayCurve& curve, ReadingTime time) {
    const auto minute = time.minutes % minutesPerDay;
    const auto hour = static_cast<std::size_t>(minute / 60);
    const double part = static_cast<double>(minute % 60) / 60;
    return curve[hour] + (curve[(hour + 1) % 24] - curve[hour]) * part;
}

} // namespace

double Noise::one() {
    state_ = state_ * 1664525U + 1013904223U;
    return static_cast<double>(state_ >> 8) / 8388608.0 - 1;
}

double steadyLoad(const Feeder& feeder, ReadingTime time) {
    const int day = weekday(time);
    const double homes = at(day < 5 ? homesWorking : homesWeekend, time);
    const double shops = at(day < 5 ? shopsWorking : day == 5 ? shopsSaturday : shopsSunday, time);
    return feeder.amps * (feeder.homes * homes + (1 - feeder.homes) * shops);
}

} // namespace tally::samples
