// SPDX-License-Identifier: GPL-3.0-or-later
#include "WalkDesk.h"

#include "core/ForceReadings.h"

#include <QAction>
#include <cmath>
#include <sstream>

namespace tally::testing {

namespace {

std::string number(double value) {
    return std::to_string(value);
}

bool near(double one, double other) {
    return std::fabs(one - other) <= 0.0001 + std::fabs(other) * 1e-5;
}

// The number behind a label of a text; not a number where there is none.
double behind(const std::string& text, const std::string& label) {
    const auto at = text.find(label);
    if (at == std::string::npos)
        return std::nan("");
    std::string rest = text.substr(at + label.size(), 40);
    std::erase(rest, ',');
    return std::atof(rest.c_str());
}

bool has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

} // namespace

std::string WalkDesk::differences() {
    if (prompt.shown.size() != told_)
        return "message boxes: " + std::to_string(prompt.shown.size()) + " instead of " +
               std::to_string(told_) +
               (prompt.shown.empty() ? "" : "; the last: " + prompt.shown.back().text);
    if (!prompt.inputs.empty() || !prompt.files.empty() || !prompt.answers.empty() ||
        !chooser.answers.empty())
        return "a question was not asked";
    if (std::string other = differentFiles(); !other.empty())
        return other;
    if (item("mnuItemBack").isEnabled() != (model_.shown != Shown::start && model_.place > 0))
        return "Back is wrong";
    if (item("mnuItemAlign").isChecked() != model_.byTime)
        return "the files are combined otherwise";
    if (model_.shown == Shown::start)
        return window.screen().page() == Screen::Page::start ? "" : "something is shown";
    if (model_.shown == Shown::plot || model_.shown == Shown::powerPlot)
        return differentPlot();
    return differentText();
}

std::string WalkDesk::differentFiles() {
    if (recordings.openCount() != int(model_.open.size()))
        return "another number of files is open";
    bool unsaved = false;
    for (std::size_t slot = 0; slot < model_.open.size(); ++slot) {
        const OpenFile& file = model_.open[slot];
        const auto& readings = recordings.gReadings[slot];
        if (recordings.info(int(slot)).path != file.path ||
            std::vector<int>(readings.begin(), readings.end()) != file.now.tenths)
            return "slot " + std::to_string(slot) + " holds other readings";
        if (screenTime(timeOf(recordings.info(int(slot)), int(readings.size()) - 1)) !=
            screenTime(file.now.newest))
            return "slot " + std::to_string(slot) + " ends at another time";
        unsaved = unsaved || file.unsaved() > 0;
    }
    if (window.notices().has(QStringLiteral("forced")) != unsaved)
        return unsaved ? "no notice of unsaved readings" : "a notice of readings that are saved";
    return {};
}

std::string WalkDesk::differentPlot() {
    if (window.screen().page() != Screen::Page::chart)
        return "no chart is shown";
    const Plot& plot = window.screen().chart().plot();
    const Span range = model_.displayed();
    if (plot.points != range.last - range.first + 1)
        return "the plot has " + std::to_string(plot.points) + " points";
    const bool power = model_.shown == Shown::powerPlot;
    const int stride = model_.open[0].now.stride();
    const bool three = !power && stride == 3 && model_.open.size() == 1;
    const std::size_t series = power ? 1 : three ? 3 : model_.open.size();
    if (plot.series.size() != series)
        return "the plot has " + std::to_string(plot.series.size()) + " series";
    for (std::size_t s = 0; s < series; ++s) {
        const OpenFile& file = model_.open[power || three ? 0 : s];
        const int later = power || three ? 0 : model_.offset(int(s));
        const int part = three ? int(s) : stride == 3 ? model_.statistic - 1 : 0;
        for (int i = range.first; i <= range.last; ++i) {
            const double expected = power ? model_.kilowatts(i) : file.at(i - later, part) / 10.0;
            const double drawn = double(plot.series[s].values[std::size_t(i - range.first)]);
            if (!near(drawn, expected))
                return "series " + std::to_string(s) + " point " + std::to_string(i - range.first) + " is " +
                       number(drawn) + " instead of " + number(expected);
        }
    }
    const auto [smallest, largest] = model_.extremes(range);
    if (!power && (plot.extremeMin != smallest || plot.extremeMax != largest))
        return "the plot's extremes are others";
    const OpenFile& first = model_.open[0];
    const std::string selected = "Selected:   " + screenTime(first.time(model_.span.first)) + "   to   " +
                                 screenTime(first.time(model_.span.last));
    if (has(plot.title, "Selected:") != selected_ || (selected_ && !has(plot.title, selected)))
        return "the title's selection is another one: " + plot.title;
    if (window.findChild<QAction*>(QStringLiteral("chartShowAll"))->isVisible() != model_.zoom.has_value())
        return "Show all is wrong";
    return {};
}

std::string WalkDesk::differentText() {
    if (window.screen().page() != Screen::Page::text)
        return "no text is shown";
    const std::string text = window.screen().text().text().toStdString();
    switch (model_.shown) {
    case Shown::table:
    case Shown::powerTable:
        return differentTable(window.screen().text().heading().toStdString(), text);
    case Shown::powerSummary:
        return differentPowerSummary(text);
    default:
        return differentSummary(text);
    }
}

std::string WalkDesk::differentTable(const std::string& heading, const std::string& text) {
    const bool power = model_.shown == Shown::powerTable;
    if (has(heading, "power in KW") != power)
        return "the heading is that of another table: " + heading;
    const OpenFile& file = model_.open[std::size_t(model_.slot)];
    const Span part = power ? model_.displayed() : *model_.part(model_.slot);
    const int stride = file.now.stride();
    int interval = part.first;
    int value = 0; // of the interval
    std::istringstream lines(text);
    for (std::string row; std::getline(lines, row);) {
        if (row.size() < 23)
            continue;
        if (row.substr(0, 17) != screenTime(file.time(interval)))
            return "a table row begins with another time: " + row;
        std::istringstream numbers(row.substr(23));
        for (double shown = 0; numbers >> shown;) {
            if (interval > part.last)
                return "the table runs on";
            const double expected = power ? model_.kilowatts(interval) : file.at(interval, value) / 10.0;
            if (std::fabs(shown - expected) > 0.0501 + std::fabs(expected) * 1e-6)
                return "the table says " + number(shown) + " instead of " + number(expected);
            if (++value == stride) {
                value = 0;
                ++interval;
            }
        }
    }
    return interval == part.last + 1 ? "" : "the table ends early";
}

std::string WalkDesk::differentSummary(const std::string& text) {
    const OpenFile& file = model_.open[std::size_t(model_.slot)];
    const int all = (int(file.now.tenths.size()) + file.now.stride() - 1) / file.now.stride();
    const ReadingTime oldest = file.now.newest - std::int64_t{file.now.minutes()} * (all - 1);
    if (!has(text, "    File:     " + file.path + " "))
        return "the summary is of another file";
    if (!has(text, "Start:  " + screenTime(oldest) + "    End:  " + screenTime(file.now.newest)))
        return "the summary names other times";
    const bool energy = model_.powerKnown && model_.powerAllowed();
    if (has(text, "Total Energy") != energy)
        return "the summary's energy is there or not";
    if (energy &&
        std::fabs(behind(text, "Displayed Area  ") - model_.kilowattHours(model_.displayed())) > 0.6)
        return "the summary says another energy";
    if (has(text, "Selected:") != model_.zoom.has_value())
        return "the summary's selection is there or not";
    if (!model_.zoom)
        return {};
    const Span part = *model_.part(model_.slot);
    const auto [smallest, largest] = model_.extremes(model_.displayed());
    if (!has(text, "Start  " + screenTime(file.time(part.first)) + "                   Finish  " +
                       screenTime(file.time(part.last))))
        return "the summary's selection is another one";
    if (!near(behind(text, "Min      "), smallest / 10.0) ||
        !near(behind(text, "max       "), largest / 10.0))
        return "the summary's extremes are others";
    return {};
}

std::string WalkDesk::differentPowerSummary(const std::string& text) {
    const Span range = model_.displayed();
    const double kilowatts = model_.volts() / 1000 * model_.factor;
    if (std::fabs(behind(text, "         Min: ") - model_.smallestAmps(range) * kilowatts) > 0.06 ||
        std::fabs(behind(text, " Max: ") - model_.largestAmps(range) * kilowatts) > 0.06)
        return "the power summary says other extremes: " + text;
    if (std::fabs(behind(text, "Displayed Area: ") - model_.kilowattHours(range)) > 0.6)
        return "the power summary says another energy";
    if (!near(behind(text, "Line Voltage: "), model_.volts()) ||
        !near(behind(text, "Power Factor: "), model_.factor))
        return "the power summary says another voltage or factor";
    ReadingTime oldest = model_.open[0].time(0);
    ReadingTime newest = model_.open[0].now.newest;
    for (const OpenFile& file : model_.open) {
        oldest = std::min(oldest, file.time(0));
        newest = std::max(newest, file.now.newest);
    }
    if (!has(text,
             "All Files:  Start:  " + screenTime(oldest) + "                End:  " + screenTime(newest)))
        return "the power summary names other times of all files";
    const OpenFile& first = model_.open[0];
    const std::string selected = "Start  " + screenTime(first.time(range.first)) +
                                 "                Finish  " + screenTime(first.time(range.last));
    if (has(text, "Selected:") != model_.zoom.has_value() || (model_.zoom && !has(text, selected)))
        return "the power summary's selection is another one";
    return {};
}

} // namespace tally::testing
