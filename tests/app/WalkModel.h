// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tally::testing {

// A plain model of what the window must show: files, range, voltage and factor, nothing worked out is kept.
// It counts in intervals (a reading, or a triple from the newest end), the program in readings.

// A data file as it stands on the disk.
struct DiskFile {
    char mode = 'a';
    bool volts = false;
    bool low = true;
    ReadingTime newest;      // of the newest reading
    std::vector<int> tenths; // oldest first
    int stride() const { return mode > 'f' ? 3 : 1; }
    int minutes() const;
    int intervals() const { return int(tenths.size()) / stride(); }
};

// Reading a file puts what a triple holds into the order average (the middle one), maximum, minimum.
void orderTriples(DiskFile& file);

struct OpenFile {
    std::string path;
    DiskFile now;
    std::vector<int> written; // what a file holds of it
    std::vector<std::pair<int, std::vector<int>>> edits;

    // Reading of an interval, 0 for one that the file does not have.
    int at(int interval, int part = 0) const;
    int indexOf(int interval) const {
        return int(now.tenths.size()) - (now.intervals() - interval) * now.stride();
    }
    ReadingTime time(int interval) const;
    int unsaved() const;
};

enum class Shown { start, summary, table, plot, powerPlot, powerTable, powerSummary };

// Intervals, both inclusive.
struct Span {
    int first = 0;
    int last = -1;
    bool operator==(const Span&) const = default;
};

struct WalkModel {
    std::map<std::string, DiskFile> disk;
    std::vector<OpenFile> open;
    std::vector<int> forcings; // slots, newest last
    Span span;                 // of the first file
    std::optional<Span> zoom;
    std::vector<std::optional<Span>> trail = {std::nullopt}; // ranges shown, the one shown now at `place`
    std::size_t place = 0;
    bool byTime = false;
    bool powerKnown = false;
    bool powerView = false;
    std::string vline;
    double factor = 1;
    int statistic = 1; // 1 average, 2 maximum, 3 minimum
    Shown shown = Shown::start;
    int slot = 0;     // of the table or summary
    int current = -1; // of the file chosen last
    bool exported = false;

    double volts() const;
    // Intervals of the first file before interval 0 of another stands beside one of its.
    int offset(int slot) const;
    Span reach() const;     // what can be shown of the first file
    Span displayed() const; // of the first file
    void visit(const std::optional<Span>& range);
    // The day beside what is shown, if there is one.
    std::optional<Span> dayBeside(int direction) const;
    bool canAlign() const;
    // What a file has of the displayed range; nothing when it does not reach it.
    std::optional<Span> part(int slot) const;
    bool powerAllowed() const;
    // Kilowatts of an interval.
    double kilowatts(int interval) const;
    double kilowattHours(const Span& range) const; // all but the first
    // Of the combined currents, amperes.
    double smallestAmps(const Span& range) const;
    double largestAmps(const Span& range) const;
    // Over all files, tenths.
    std::pair<int, int> extremes(const Span& range) const;

    void wholeRange();
    void opened(const std::string& path);
    // Forces an interval range of a slot; what is over at the oldest end goes along without a zoom.
    void force(int slot, int tenths, int which);
    void undo();
    // Writes a part of a slot to the disk and remembers it as saved.
    void save(int slot, const std::string& path, bool whole);
};

} // namespace tally::testing
