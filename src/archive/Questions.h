// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/ArchiveStore.h"
#include "archive/CircuitLoad.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

// What the archive is asked about loads, over recordings and years. Loads in the unit of the recordings.
namespace tally::archive {

enum class Rank { max, mean, loadFactor };

// How high a circuit was.
struct Peak {
    const Entry* entry = nullptr; // of the recording that the highest reading is from
    double max = 0;
    ReadingTime maxAt;
    double mean = 0;
    std::optional<double> loadFactor;
};

struct Peaks {
    std::vector<Entry> entries; // what the peaks point into
    std::vector<Peak> peaks;    // highest first, those without the figure last
};

// The circuits over the readings from one date to another, both included. `top` 0: all.
Peaks peaksOf(ArchiveStore& store, const ArchiveTools& tools, std::optional<int> from, std::optional<int> to,
              Rank by, std::size_t top);

// On which dates there is a reading.
struct Coverage {
    int days = 0;
    std::vector<DaySpan> covered; // unbroken stretches in order
    // The dates without one between them.
    std::vector<DaySpan> gaps() const;
};
Coverage coverageOf(ArchiveStore& store, const Selection& selection);

struct YearOfLoad {
    int year = 0;
    double peak = 0;
    double mean = 0;
    int days = 0;                 // dates with a reading
    std::optional<double> change; // of the peak in % against the year before it in the list
};
std::vector<YearOfLoad> growthOf(ArchiveStore& store, const ArchiveTools& tools, const Circuit& circuit);

// What the loads at one time of day were over the days of one kind.
struct DaySlot {
    double mean = 0;
    double min = 0;
    double max = 0;
    double p10 = 0;
    double p90 = 0;
};
struct TypicalDay {
    int days = 0;                              // dates of the kind with a reading
    std::vector<std::optional<DaySlot>> slots; // an entry an interval, from 00:00
};
// Monday to Friday, Saturday, Sunday.
using TypicalDays = std::array<TypicalDay, 3>;
TypicalDays typicalDaysOf(ArchiveStore& store, const ArchiveTools& tools, const Circuit& circuit);

// The summed load of a station on one date.
struct StationDay {
    int day = 0;
    double peak = 0;
    ReadingTime peakAt;
    double mean = 0;
    int circuits = 0; // that have a reading on this date
};
// The circuits among the entries, summed at every time at which one of them has a reading.
std::vector<StationDay> stationDaysOf(ArchiveStore& store, const ArchiveTools& tools,
                                      const std::vector<Entry>& entries, int from, int to);

// The loads of a circuit's recordings.
std::vector<Part> partsOf(ArchiveStore& store, const ArchiveTools& tools, const Circuit& circuit);

// The recordings that one may have been cut out of or forced from: of the same instrument and kind, holding
// its whole time, longer or added before it.
std::vector<Entry> originsOf(ArchiveStore& store, const Entry& entry);

} // namespace tally::archive
