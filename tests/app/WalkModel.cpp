// SPDX-License-Identifier: GPL-3.0-or-later
#include "WalkModel.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>

namespace tally::testing {

int DiskFile::minutes() const {
    const int each[] = {15, 5, 1};
    return each[(mode - 'a') % 3];
}

int OpenFile::at(int interval, int part) const {
    return interval < now.intervals() ? now.tenths[std::size_t(indexOf(interval) + part)] : 0;
}

ReadingTime OpenFile::time(int interval) const {
    return now.newest - std::int64_t{now.minutes()} * (now.intervals() - 1 - interval);
}

int OpenFile::unsaved() const {
    int others = 0;
    for (std::size_t i = 0; i < written.size(); ++i)
        others += written[i] != now.tenths[i] ? 1 : 0;
    return others;
}

double WalkModel::volts() const {
    const double stored = std::atof(vline.c_str());
    return stored == 0 ? 13800 : stored;
}

int WalkModel::offset(int which) const {
    if (!byTime)
        return 0;
    return int((open[std::size_t(which)].time(0).minutes - open[0].time(0).minutes) / open[0].now.minutes());
}

Span WalkModel::reach() const {
    Span common{0, open[0].now.intervals() - 1};
    for (int which = 1; byTime && which < int(open.size()); ++which) {
        common.first = std::max(common.first, offset(which));
        common.last = std::min(common.last, offset(which) + open[std::size_t(which)].now.intervals() - 1);
    }
    return common;
}

Span WalkModel::displayed() const {
    const Span all = reach();
    return zoom ? Span{std::max(zoom->first, all.first), std::min(zoom->last, all.last)} : all;
}

std::optional<Span> WalkModel::part(int which) const {
    const int last = open[std::size_t(which)].now.intervals() - 1;
    if (!zoom)
        return Span{0, last};
    const Span range = displayed();
    const Span cut{range.first - offset(which), std::min(range.last - offset(which), last)};
    return cut.last < cut.first ? std::nullopt : std::optional(cut);
}

void WalkModel::visit(const std::optional<Span>& wanted) {
    if (trail[place] == wanted)
        return;
    trail.resize(place + 1);
    trail.push_back(wanted);
    ++place;
}

std::optional<Span> WalkModel::dayBeside(int direction) const {
    const auto dayOf = [&](int interval) { return open[0].time(interval).minutes / (24 * 60); };
    const Span range = displayed();
    const auto first = dayOf(range.first);
    const auto last = dayOf(range.last);
    const auto wanted = first == last ? first + direction : direction > 0 ? first : last;
    std::optional<Span> day;
    const Span all = reach();
    for (int interval = all.first; interval <= all.last; ++interval)
        if (dayOf(interval) == wanted)
            day = Span{day ? day->first : interval, interval};
    return day;
}

bool WalkModel::canAlign() const {
    WalkModel other = *this;
    other.byTime = true;
    const Span common = other.displayed();
    return common.first <= common.last && std::all_of(open.begin(), open.end(), [&](const OpenFile& file) {
               return file.now.volts == open[0].now.volts;
           });
}

bool WalkModel::powerAllowed() const {
    return std::all_of(open.begin(), open.end(),
                       [](const OpenFile& file) { return !file.now.volts && file.now.stride() == 1; });
}

double WalkModel::kilowatts(int interval) const {
    double sum = 0;
    for (std::size_t which = 0; which < open.size(); ++which)
        sum += open[which].at(interval - offset(int(which)));
    if (open.size() == 3)
        sum = sum / 3 * 1.732;
    return sum / 10 * volts() / 1000 * factor;
}

double WalkModel::kilowattHours(const Span& range) const {
    double sum = 0;
    for (int i = range.first + 1; i <= range.last; ++i)
        sum += kilowatts(i);
    return sum * open[0].now.minutes() / 60;
}

double WalkModel::smallestAmps(const Span& range) const {
    double smallest = 1e9;
    for (int i = range.first; i <= range.last; ++i) {
        double sum = 0;
        for (std::size_t which = 0; which < open.size(); ++which)
            sum += open[which].at(i - offset(int(which)));
        smallest = std::min(smallest, open.size() == 3 ? sum / 3 * 1.732 : sum);
    }
    return std::nearbyint(smallest) / 10;
}

double WalkModel::largestAmps(const Span& range) const {
    double largest = -1e9;
    for (int i = range.first; i <= range.last; ++i) {
        double sum = 0;
        for (std::size_t which = 0; which < open.size(); ++which)
            sum += open[which].at(i - offset(int(which)));
        largest = std::max(largest, sum);
    }
    return largest / 10;
}

std::pair<int, int> WalkModel::extremes(const Span& range) const {
    int smallest = 99999;
    int largest = -99999;
    for (std::size_t which = 0; which < open.size(); ++which)
        for (int i = range.first; i <= range.last; ++i)
            for (int part = 0; part < open[which].now.stride(); ++part) {
                const int value = open[which].at(i - offset(int(which)), part);
                smallest = std::min(smallest, value);
                largest = std::max(largest, value);
            }
    return {smallest, largest};
}

void WalkModel::wholeRange() {
    zoom.reset();
    span = {0, open[0].now.intervals() - 1};
    visit(std::nullopt);
}

void orderTriples(DiskFile& file) {
    if (file.stride() == 3)
        for (std::size_t end = file.tenths.size(); end >= 3; end -= 3) {
            const auto triple = file.tenths.begin() + std::ptrdiff_t(end) - 3;
            std::sort(triple, triple + 3);
            std::rotate(triple, triple + 1, triple + 3);
        }
}

void WalkModel::opened(const std::string& path) {
    DiskFile file = disk.at(path);
    orderTriples(file);
    open.push_back({path, file, file.tenths, {}});
    current = slot = int(open.size()) - 1;
    trail = {std::nullopt};
    place = 0;
    byTime = false;
    wholeRange();
    powerKnown = powerView = false;
    shown = Shown::summary;
}

void WalkModel::force(int which, int tenths, int ends) {
    OpenFile& file = open[std::size_t(which)];
    int first = 0;
    int last = int(file.now.tenths.size()) - 1;
    if (zoom) {
        const Span reached = *part(which);
        first = file.indexOf(reached.first);
        last = file.indexOf(reached.last) + file.now.stride() - 1;
    }
    if (ends == 1)
        last = first;
    if (ends == 2)
        first = last;
    const auto begin = file.now.tenths.begin();
    file.edits.emplace_back(first, std::vector<int>(begin + first, begin + last + 1));
    std::fill(begin + first, begin + last + 1, tenths);
    forcings.push_back(which);
}

void WalkModel::undo() {
    OpenFile& file = open[std::size_t(forcings.back())];
    forcings.pop_back();
    const auto& [first, before] = file.edits.back();
    std::copy(before.begin(), before.end(), file.now.tenths.begin() + first);
    file.edits.pop_back();
}

void WalkModel::save(int which, const std::string& path, bool whole) {
    OpenFile& file = open[std::size_t(which)];
    int first = 0;
    int last = int(file.now.tenths.size()) - 1;
    ReadingTime newest = file.now.newest;
    if (zoom && !whole) {
        const Span reached = *part(which);
        first = file.indexOf(reached.first);
        last = file.indexOf(reached.last) + file.now.stride() - 1;
        newest = file.time(reached.last);
    }
    DiskFile saved = file.now;
    const auto begin = file.now.tenths.begin();
    saved.tenths.assign(begin + first, begin + last + 1);
    // The header carries the newest reading's time; opened again, it lies two intervals before it.
    saved.newest = newest - 2 * saved.minutes();
    disk[path] = saved;
    std::copy(begin + first, begin + last + 1, file.written.begin() + first);
}

} // namespace tally::testing
