// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Report.h"

#include "core/Numbers.h"
#include "study/ReportParts.h"

namespace tally::study {

namespace {

ReportCell cell(const std::optional<double>& value, std::string (*text)(double)) {
    return {value ? text(*value) : noFigure};
}

ReportCell valueCell(const std::optional<LoadAt>& load) {
    return load ? ReportCell{loadText(load->value), load->at} : ReportCell{noFigure};
}
ReportCell timeCell(const std::optional<LoadAt>& load) {
    return load ? ReportCell{timeText(load->at), load->at} : ReportCell{noFigure};
}

// A table with the figures below each other and a column a channel.
class FigureTable {
public:
    explicit FigureTable(const Study& study) : study_(study) {
        table_.headings.emplace_back("");
        for (const Channel& channel : study.channels)
            table_.headings.push_back(channel.name + " (" + std::string(unitName(channel.unit)) + ")");
    }

    template <typename Figure>
    void add(const std::string& name, Figure figure) {
        std::vector<ReportCell> row = {{name}};
        for (const ChannelFigures& figures : study_.figures)
            row.push_back(figure(figures));
        table_.rows.push_back(std::move(row));
    }
    ReportTable take() { return std::move(table_); }

private:
    const Study& study_;
    ReportTable table_;
};

ReportSection demandSection(const Study& study) {
    const std::string window = std::to_string(study.options.window) + " min";
    FigureTable table(study);
    table.add("Mean", [](const auto& of) { return ReportCell{loadText(of.level.mean)}; });
    table.add("Maximum", [](const auto& of) { return valueCell(of.level.max); });
    table.add("Maximum at", [](const auto& of) { return timeCell(of.level.max); });
    table.add("Minimum", [](const auto& of) { return valueCell(of.level.min); });
    table.add("Minimum at", [](const auto& of) { return timeCell(of.level.min); });
    table.add("Demand, " + window, [](const auto& of) { return valueCell(of.demand.block); });
    table.add("Demand at", [](const auto& of) { return timeCell(of.demand.block); });
    table.add("Complete windows",
              [](const auto& of) { return ReportCell{std::to_string(of.demand.blocks.count)}; });
    table.add("Rolling demand, " + window, [](const auto& of) { return valueCell(of.demand.rolling); });
    table.add("Rolling demand at", [](const auto& of) { return timeCell(of.demand.rolling); });
    table.add("Load factor", [](const auto& of) { return cell(of.demand.loadFactor, factorText); });
    table.add("Loss factor", [](const auto& of) { return cell(of.demand.lossFactor, factorText); });
    return {Part::demand, "Demand", {}, table.take()};
}

ReportSection durationSection(const Study& study) {
    FigureTable table(study);
    for (const std::size_t p : {0, 1, 2, 5, 10, 20, 30, 40, 50, 60, 70, 80, 90, 95, 100})
        table.add(std::to_string(p) + " % of the time",
                  [p](const auto& of) { return ReportCell{loadText(of.duration[p])}; });
    return {Part::duration, "Load duration", {"The load that is reached or passed."}, table.take()};
}

// The typical days at each full hour: mean (10th to 90th percentile).
ReportSection daysSection(const Study& study) {
    ReportSection section = {Part::days, "Typical days", {}, {}};
    section.lines.push_back("Mean (10th to 90th percentile) of the interval at the full hour.");
    section.table.headings = {"Channel", "Hour", "Weekday", "Saturday", "Sunday"};
    constexpr int hours = 24;
    for (std::size_t i = 0; i < study.channels.size(); ++i)
        for (int hour = 0; hour < hours; ++hour) {
            std::vector<ReportCell> row = {{hour == 0 ? study.channels[i].name : std::string()},
                                           {Format(static_cast<double>(hour), "00") + ":00"}};
            for (const TypicalDay& day : study.figures[i].days) {
                const DaySlot& slot = day.slots[static_cast<std::size_t>(hour * 60 / study.axis.interval)];
                row.push_back({slot.readings == 0 ? std::string(noFigure)
                                                  : loadText(slot.mean) + " (" + loadText(slot.p10) + " to " +
                                                        loadText(slot.p90) + ")"});
            }
            section.table.rows.push_back(std::move(row));
        }
    const TypicalDays& days = study.figures.front().days;
    const auto counted = [&](std::size_t kind, const char* one, const char* many) {
        return count(static_cast<std::size_t>(days[kind].days), one, many);
    };
    section.lines.push_back("Days: " + counted(0, "weekday", "weekdays") + ", " +
                            counted(1, "Saturday", "Saturdays") + ", " +
                            counted(2, "Sunday or holiday", "Sundays and holidays") + ".");
    return section;
}

ReportSection phasesSection(const Phases& phases) {
    const Unbalance& unbalance = phases.unbalance;
    ReportSection section = {Part::phases, "Phases", {}, {}};
    section.lines.push_back(
        "Unbalance after NEMA MG 1: greatest distance of a phase from the mean of the three, in "
        "% of the mean; times with less than 10 % of the highest mean do not count.");
    section.table.headings = {"", "Value", "At"};
    auto& rows = section.table.rows;
    rows.push_back({{"Highest unbalance, %"}, valueCell(unbalance.max), timeCell(unbalance.max)});
    rows.push_back({{"Mean unbalance, %"}, cell(unbalance.mean, loadText), {}});
    rows.push_back({{"95th percentile, %"}, cell(unbalance.p95, loadText), {}});
    rows.push_back({{"Unbalance at the highest load, %"}, cell(unbalance.atPeak, loadText), {}});
    rows.push_back({{"Times that count"}, {std::to_string(unbalance.counted)}, {}});
    if (phases.neutral) {
        section.lines.push_back(
            "Neutral current of phases 120° apart with one power factor, without third harmonic.");
        rows.push_back(
            {{"Highest neutral current, A"}, valueCell(phases.neutral->max), timeCell(phases.neutral->max)});
        rows.push_back({{"Mean neutral current, A"}, {loadText(phases.neutral->mean)}, {}});
    }
    return section;
}

ReportSection diversitySection(const Diversity& diversity) {
    ReportSection section = {Part::diversity, "Diversity", {}, {}};
    section.lines.push_back("Of the files together, taken to be of one voltage.");
    section.table.headings = {"", "Value", "At"};
    auto& rows = section.table.rows;
    rows.push_back({{"Sum of the highest demands, A"}, cell(diversity.sumOfPeaks, loadText), {}});
    rows.push_back(
        {{"Highest sum of demands, A"}, valueCell(diversity.peakOfSum), timeCell(diversity.peakOfSum)});
    rows.push_back({{"Diversity factor"}, cell(diversity.diversityFactor, factorText), {}});
    rows.push_back({{"Coincidence factor"}, cell(diversity.coincidenceFactor, factorText), {}});
    return section;
}

ReportSection capacitySection(const Study& study) {
    ReportSection section = {Part::capacity, "Capacity", {}, {}};
    if (!study.capacity) {
        section.lines.push_back("The recording covers less than 15 minutes: nothing can be said.");
        return section;
    }
    const Capacity& capacity = *study.capacity;
    section.lines.push_back(std::string(capacity.ok ? "There is room" : "There is no room") +
                            " (NEC 220.87 exception: highest 15 minutes of 30 days × factor + new load).");
    if (!capacity.enoughDays)
        section.lines.push_back("The files cover " + loadText(capacity.days) + " days; 30 are asked for.");
    const CapacityCheck& check = *study.options.capacity;
    section.table.headings = {"", "Value", "At"};
    auto& rows = section.table.rows;
    rows.push_back({{"Highest demand of 15 min, A (" + study.channels[capacity.file].name + ")"},
                    valueCell(capacity.demand),
                    timeCell(capacity.demand)});
    rows.push_back({{"Factor"}, {factorText(check.factor)}, {}});
    rows.push_back({{"New load, A"}, {loadText(check.add)}, {}});
    rows.push_back({{"Required, A"}, {loadText(capacity.required)}, {}});
    rows.push_back({{"Rating, A"}, {loadText(capacity.rating)}, {}});
    rows.push_back({{"Spare, A"}, {loadText(capacity.spare)}, {}});
    return section;
}

} // namespace

std::string timeText(ReadingTime time) {
    return formatTime(time, "%Y-%m-%d %H:%M");
}

std::string loadText(double value) {
    return Format(value, "0.0");
}

std::string factorText(double value) {
    return Format(value, "0.000");
}

std::vector<ReportSection> reportOf(const Study& study) {
    std::vector<ReportSection> report = {basisSection(study), demandSection(study), durationSection(study)};
    if (study.options.high || study.options.low)
        report.push_back(limitsSection(study));
    report.push_back(daysSection(study));
    if (study.phases)
        report.push_back(phasesSection(*study.phases));
    if (study.diversity)
        report.push_back(diversitySection(*study.diversity));
    if (study.options.capacity)
        report.push_back(capacitySection(study));
    report.push_back(flagsSection(study));
    return report;
}

} // namespace tally::study
