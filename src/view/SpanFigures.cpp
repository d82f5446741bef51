// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/SpanFigures.h"

#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "view/Range.h"

#include <cmath>

namespace tally {

namespace {

constexpr std::array<const char*, 3> statisticNames = {"Average", "Max", "Min"};

// Adds up a line value by value, in units.
class Adding {
public:
    explicit Adding(SpanLine& line) : line_(line) {}

    void add(double value, ReadingTime at, bool isFirst, bool isLast) {
        if (!line_.max || value > line_.max->value)
            line_.max = {value, at};
        if (!line_.min || value < line_.min->value)
            line_.min = {value, at};
        if (isFirst)
            line_.first = value;
        if (isLast)
            line_.last = value;
        sum_ += value;
        ++line_.readings;
    }

    void finish(bool load) {
        if (line_.first && line_.last)
            line_.difference = *line_.last - *line_.first;
        if (line_.readings == 0)
            return;
        line_.mean = sum_ / line_.readings;
        if (load && line_.max->value > 0)
            line_.loadFactor = *line_.mean / line_.max->value;
    }

private:
    SpanLine& line_;
    double sum_ = 0;
};

// One line of a file: of each of its triples the reading at `offset`.
SpanLine lineOf(const Recordings& recordings, int slot, const Range& ofFirst, int offset, std::string name) {
    const FileFacts& info = recordings.info(slot);
    const int stride = valuesPerInterval(info.modeLetter);
    const Range range = sameIntervals(recordings, ofFirst, slot);
    const auto& readings = recordings.gReadings.at(static_cast<std::size_t>(slot));
    SpanLine line;
    line.name = std::move(name);
    line.unit = std::string(1, info.unit());
    Adding adding(line);
    const int points = range.entries() / stride;
    for (int point = 0; point < points; ++point) {
        const int at = range.first + point * stride + offset;
        if (at >= static_cast<int>(readings.size()))
            break;
        adding.add(readings[static_cast<std::size_t>(at)] / 10.0, timeOf(info, at), point == 0,
                   point == points - 1);
    }
    // A load factor is one of averages; that of volts says nothing.
    adding.finish(info.unit() == 'A' && offset == 0);
    return line;
}

SpanFigures frameOf(const Recordings& recordings, const Range& range) {
    const FileFacts& info = recordings.info(0);
    SpanFigures figures;
    figures.from = timeOf(info, range.first);
    figures.to = timeOf(info, range.last);
    figures.points = range.entries() / valuesPerInterval(info.modeLetter);
    for (int slot = 0; slot < recordings.openCount(); ++slot) {
        const FileFacts& file = recordings.info(slot);
        if (file.unreadable > 0)
            figures.remarks.push_back(fileNameOf(file.path) + ": " + std::to_string(file.unreadable) +
                                      (file.unreadable == 1 ? " item" : " items") +
                                      " of the file could not be read");
    }
    return figures;
}

void remarkOnShorter(SpanFigures& figures) {
    for (const SpanLine& line : figures.lines)
        if (line.readings < figures.points)
            figures.remarks.push_back(line.name + " has " + std::to_string(line.readings) + " of " +
                                      std::to_string(figures.points) + " readings");
}

std::string lengthOf(std::int64_t minutes) {
    std::string text;
    const auto add = [&](std::int64_t count, const char* unit) {
        if (count > 0)
            text += (text.empty() ? "" : " ") + std::to_string(count) + unit;
    };
    add(minutes / (24 * 60), " d");
    add(minutes / 60 % 24, " h");
    add(minutes % 60, " min");
    return text.empty() ? "0 min" : text;
}

std::string inUnits(const std::optional<double>& value, const std::string& unit) {
    return value ? Format(*value, "##0.0") + " " + unit : "-";
}

std::string timeText(const std::optional<SpanLine::Extreme>& extreme) {
    return extreme ? screenTime(extreme->at) : "-";
}

std::optional<double> valueOf(const std::optional<SpanLine::Extreme>& extreme) {
    return extreme ? std::optional(extreme->value) : std::nullopt;
}

} // namespace

SpanFigures spanFigures(const Recordings& recordings, const Range& range, Statistic statistic) {
    SpanFigures figures = frameOf(recordings, range);
    const bool triples = isMinMaxAvg(recordings.info(0).modeLetter);
    if (triples && recordings.openCount() == 1) {
        for (int offset = 0; offset < 3; ++offset)
            figures.lines.push_back(
                lineOf(recordings, 0, range, offset, statisticNames.at(static_cast<std::size_t>(offset))));
        return figures;
    }
    const int offset = triples ? static_cast<int>(statistic) - 1 : 0;
    for (int slot = 0; slot < recordings.openCount(); ++slot)
        figures.lines.push_back(
            lineOf(recordings, slot, range, offset, fileNameOf(recordings.info(slot).path)));
    remarkOnShorter(figures);
    return figures;
}

SpanFigures spanFigures(const Recordings& recordings, const Power& power) {
    const FileFacts& info = recordings.info(0);
    SpanFigures figures = frameOf(recordings, power.range);
    figures.energy = power.energyText;
    SpanLine line;
    line.name = "Power";
    line.unit = "KW";
    Adding adding(line);
    const std::size_t count = power.kilowatts.size();
    for (std::size_t i = 0; i < count; ++i)
        adding.add(static_cast<double>(power.kilowatts[i]),
                   timeOf(info, power.range.first + static_cast<int>(i)), i == 0, i + 1 == count);
    adding.finish(true);
    figures.lines.push_back(std::move(line));
    for (int slot = 0; slot < recordings.openCount(); ++slot) {
        const int missing = power.range.last + 1 - recordings.info(slot).count;
        if (missing > 0)
            figures.remarks.push_back(fileNameOf(recordings.info(slot).path) +
                                      " has no reading for the last " + std::to_string(missing) +
                                      "; its current counts as 0 there");
    }
    return figures;
}

std::vector<std::vector<std::string>> spanRows(const SpanFigures& figures) {
    std::vector<std::vector<std::string>> rows = {{""},     {"First"},      {"Last"}, {"Difference"},
                                                  {"Max"},  {"Max at"},     {"Min"},  {"Min at"},
                                                  {"Mean"}, {"Load factor"}};
    for (const SpanLine& line : figures.lines) {
        const std::string cells[] = {line.name,
                                     inUnits(line.first, line.unit),
                                     inUnits(line.last, line.unit),
                                     inUnits(line.difference, line.unit),
                                     inUnits(valueOf(line.max), line.unit),
                                     timeText(line.max),
                                     inUnits(valueOf(line.min), line.unit),
                                     timeText(line.min),
                                     inUnits(line.mean, line.unit),
                                     line.loadFactor ? Format(*line.loadFactor, "0.000") : "-"};
        for (std::size_t row = 0; row < rows.size(); ++row)
            rows[row].push_back(cells[row]);
    }
    if (!figures.energy.empty())
        rows.push_back({"Energy", figures.energy});
    return rows;
}

std::string spanTitle(const SpanFigures& figures) {
    return screenTime(figures.from) + " to " + screenTime(figures.to) + " (" +
           lengthOf(figures.to.minutes - figures.from.minutes) + ", " + std::to_string(figures.points) +
           (figures.points == 1 ? " reading)" : " readings)");
}

std::string spanText(const SpanFigures& figures) {
    std::string text = spanTitle(figures) + "\r\n";
    for (const auto& row : spanRows(figures)) {
        for (std::size_t cell = 0; cell < row.size(); ++cell)
            text += (cell > 0 ? "\t" : "") + row[cell];
        text += "\r\n";
    }
    for (const std::string& remark : figures.remarks)
        text += remark + "\r\n";
    return text;
}

} // namespace tally
