// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/ReportParts.h"

#include "core/Numbers.h"

#include <algorithm>

namespace tally::study {

namespace {

// "4 readings were forced, 2024-03-04 00:15 to 2024-03-05 03:00": the times of the first and the last.
std::string forcedText(const FileBasis& file) {
    if (file.forcedReadings == 0)
        return "readings were forced";
    std::string text = count(static_cast<std::size_t>(file.forcedReadings), "reading was", "readings were") +
                       " forced, " + timeText(file.firstForced);
    return file.forcedReadings == 1 ? text : text + " to " + timeText(file.lastForced);
}

// "red.dat: 3 items could not be read, readings were forced."
std::string doubtOf(const FileBasis& file, bool single) {
    std::vector<std::string> doubts;
    if (file.unreadable > 0)
        doubts.push_back(count(static_cast<std::size_t>(file.unreadable), "item", "items") +
                         " could not be read as numbers; each counts with its leading number, or 0");
    if (file.forced)
        doubts.push_back(forcedText(file));
    if (!file.complete)
        doubts.emplace_back("the file ends without its end mark, it may have been cut");
    if (file.oddTriple)
        doubts.emplace_back("the incomplete oldest reading is left out");
    if (file.before + file.after > 0)
        doubts.push_back(count(static_cast<std::size_t>(file.before), "reading", "readings") +
                         " before and " + std::to_string(file.after) + " after the " +
                         (single ? "chosen" : "common") + " span are left out");
    std::string text;
    for (const std::string& doubt : doubts)
        text += (text.empty() ? file.name + ": " : "; ") + doubt;
    return text.empty() ? text : text + ".";
}

std::string spanLine(const Study& study) {
    const Axis& axis = study.axis;
    return timeText(axis.start) + " to " + timeText(axis.end()) + ": " +
           count(axis.points, "reading", "readings") + " of " + std::to_string(axis.interval) + " min on " +
           count(static_cast<std::size_t>(study.days()), "day", "days") + ".";
}

std::string powerLine(const PowerBase& power) {
    return "Power at " + plain(power.volts) + " V and a power factor of " +
           plain(power.factor == 0 ? 1 : power.factor) + "; every kW rests on both.";
}

void addRuns(ReportTable& table, const Channel& channel, const std::vector<Run>& runs, const char* kind) {
    for (std::size_t i = 0; i < std::min(runs.size(), listed); ++i) {
        const Run& run = runs[i];
        table.rows.push_back({{channel.name},
                              {kind, run.start},
                              {timeText(run.start), run.start},
                              {timeText(run.end), run.start},
                              {std::to_string(run.minutes)},
                              {loadText(run.peak.value), run.peak.at},
                              {timeText(run.peak.at), run.peak.at}});
    }
}

std::string runsLine(const Channel& channel, const std::vector<Run>& runs, std::int64_t minutes,
                     const char* kind) {
    return channel.name + ": " + std::to_string(minutes) + " min " + kind + " in " +
           count(runs.size(), "run", "runs") +
           (runs.size() > listed ? ", of which the first " + std::to_string(listed) + " are listed." : ".");
}

} // namespace

std::string count(std::size_t number, const char* one, const char* many) {
    return std::to_string(number) + " " + (number == 1 ? one : many);
}

ReportSection basisSection(const Study& study) {
    ReportSection section = {Part::basis, "Load study", {spanLine(study)}, {}};
    section.table.headings = {"File", "Serial", "Unit", "Path"};
    for (std::size_t i = 0; i < study.files; ++i)
        section.table.rows.push_back({{study.basis[i].name},
                                      {study.basis[i].serial},
                                      {std::string(unitName(study.channels[i].unit))},
                                      {study.basis[i].path}});
    if (study.basis.front().minMaxAvg)
        section.lines.emplace_back(
            "Min/Max/Avg: the figures are of the averages, extremes and limits of the maxima "
            "and minima.");
    if (study.options.power)
        section.lines.push_back(powerLine(*study.options.power));
    for (const FileBasis& file : study.basis)
        if (const std::string doubt = doubtOf(file, study.files == 1); !doubt.empty())
            section.lines.push_back(doubt);
    section.lines.push_back(study.days() == 1
                                ? "The figures speak of this day; a season with a higher load "
                                  "may lie outside it."
                                : "The figures speak of these " + std::to_string(study.days()) +
                                      " days; a season with a higher load may lie outside them.");
    return section;
}

ReportSection limitsSection(const Study& study) {
    ReportSection section = {Part::limits, "Limits", {}, {}};
    section.table.headings = {"Channel", "Kind", "Start", "End", "Minutes", "Peak", "Peak at"};
    for (std::size_t i = 0; i < study.files; ++i) {
        const Channel& channel = study.channels[i];
        const Limits& limits = study.figures[i].limits;
        if (study.options.high) {
            const std::string above =
                "above " + plain(study.options.high->value) + " " + std::string(unitName(channel.unit));
            section.lines.push_back(runsLine(channel, limits.above, limits.minutesAbove, above.c_str()));
            addRuns(section.table, channel, limits.above, "above");
        }
        if (study.options.low) {
            const std::string below =
                "below " + plain(study.options.low->value) + " " + std::string(unitName(channel.unit));
            section.lines.push_back(runsLine(channel, limits.below, limits.minutesBelow, below.c_str()));
            addRuns(section.table, channel, limits.below, "below");
        }
    }
    return section;
}

ReportSection flagsSection(const Study& study) {
    ReportSection section = {Part::flags, "Flags", {}, {}};
    if (study.flags.empty()) {
        section.lines.emplace_back("No flat runs, spikes or outages.");
        return section;
    }
    section.lines.push_back(
        count(study.flags.size(), "stretch", "stretches") + " to look at; no reading is changed for them" +
        (study.flags.size() > listed ? ". The first " + std::to_string(listed) + " are listed." : "."));
    section.table.headings = {"Channel", "Kind", "Start", "End", "Readings", "Value"};
    for (std::size_t i = 0; i < std::min(study.flags.size(), listed); ++i) {
        const Flag& flag = study.flags[i];
        section.table.rows.push_back({{study.channels[flag.file].name},
                                      {flagNames[static_cast<std::size_t>(flag.kind)], flag.start},
                                      {timeText(flag.start), flag.start},
                                      {timeText(flag.end), flag.start},
                                      {std::to_string(flag.readings)},
                                      {loadText(flag.value), flag.start}});
    }
    return section;
}

} // namespace tally::study
