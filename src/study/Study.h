// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "core/Refusal.h"
#include "core/TimeAxis.h"
#include "study/Capacity.h"
#include "study/Decimal.h"
#include "study/Demand.h"
#include "study/Diversity.h"
#include "study/Duration.h"
#include "study/Flags.h"
#include "study/Level.h"
#include "study/Limits.h"
#include "study/Phases.h"
#include "study/TypicalDays.h"

#include <optional>
#include <string>
#include <vector>

namespace tally::study {

// What every kilowatt rests on. A power factor of 0 is taken as 1.
struct PowerBase {
    double volts = 0;
    double factor = 1;
};

struct StudyOptions {
    int window = usualWindow; // of the demands, minutes
    std::optional<Decimal> high;
    std::optional<Decimal> low;
    std::optional<CapacityCheck> capacity;
    std::optional<PowerBase> power; // adds the channel "power"
    Holidays holidays;
};

// What is to be known of a file before its figures are believed.
struct FileBasis {
    std::string name; // of the channel
    std::string path;
    std::string serial;
    int unreadable = 0;  // items that were no numbers
    bool forced = false; // readings were forced; which ones may be unknown
    // Of the forced readings (triples) those in the studied span: how many, the first and the last.
    int forcedReadings = 0;
    ReadingTime firstForced = {};
    ReadingTime lastForced = {};
    bool complete = true; // the end mark is there
    bool minMaxAvg = false;
    int entries = 0;        // readings (triples) of the file
    int before = 0;         // of those, how many lie before the common span ...
    int after = 0;          // ... and after it
    bool oddTriple = false; // an incomplete oldest triple was left out
};

struct ChannelFigures {
    Level level;
    Demand demand;
    Duration duration = {};
    Limits limits;
    TypicalDays days;
};

// Everything that a load study says, as values; page, PDF, workbook and JSON all show these.
struct Study {
    StudyOptions options;
    Axis axis;
    std::vector<Channel> channels;       // the files in their order, then power
    std::size_t files = 0;               // how many of them are files
    std::vector<ChannelFigures> figures; // by channel
    std::optional<Phases> phases;
    std::optional<Diversity> diversity;
    std::optional<Capacity> capacity;
    std::vector<Flag> flags;
    std::vector<FileBasis> basis; // by file

    std::span<const Channel> fileChannels() const { return std::span(channels).first(files); }
    int days() const; // dates with at least one reading
};

inline constexpr const char* capacityOfVolts = "A capacity check needs files of amps";

// Studies the open files over the time that they share. `range` counts in readings of the first file. Refuses
// what timeAxis refuses, a capacity check of volts, and with the words of the power view files that have no
// power. Throws Overflow as the power view does. The window fits the interval (isDemandWindow).
Expected<Study> studyOf(const Recordings& recordings, std::optional<Range> range,
                        const StudyOptions& options);

// The average loads of the first open file (tenths) on their axis, for a question about one recording alone.
struct LoadSeries {
    Axis axis;
    Channel channel;
};
Expected<LoadSeries> loadSeries(const Recordings& recordings, std::optional<Range> range);

} // namespace tally::study
