// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/StudyWorkbook.h"

namespace tally::study {

namespace {

using Row = std::vector<Cell>;

constexpr int factorDecimals = 3;
constexpr double timeWidth = 17;
constexpr double nameWidth = 20;

template <typename Figure>
Cell orEmpty(const std::optional<Figure>& figure, int decimals = 1) {
    if (!figure)
        return {};
    return NumberCell{*figure, decimals};
}
Cell valueOf(const std::optional<LoadAt>& load) {
    return load ? Cell(NumberCell{load->value}) : Cell();
}
Cell timeOf(const std::optional<LoadAt>& load) {
    return load ? Cell(load->at) : Cell();
}
Cell countCell(std::int64_t count) {
    return NumberCell{static_cast<double>(count), 0};
}

Row headingsOf(const Study& study, const std::string& first) {
    Row headings = {first};
    for (const Channel& channel : study.channels)
        headings.emplace_back(channel.name);
    return headings;
}

Sheet summarySheet(const Study& study) {
    Sheet sheet = {.name = "Summary", .widths = {nameWidth, nameWidth, nameWidth, nameWidth, nameWidth}};
    sheet.rows.push_back(headingsOf(study, "Figure"));
    const auto add = [&](const char* name, auto figure) {
        Row row = {std::string(name)};
        for (const ChannelFigures& figures : study.figures)
            row.push_back(figure(figures));
        sheet.rows.push_back(std::move(row));
    };
    add("Mean", [](const auto& of) { return Cell(NumberCell{of.level.mean}); });
    add("Maximum", [](const auto& of) { return valueOf(of.level.max); });
    add("Maximum at", [](const auto& of) { return timeOf(of.level.max); });
    add("Minimum", [](const auto& of) { return valueOf(of.level.min); });
    add("Minimum at", [](const auto& of) { return timeOf(of.level.min); });
    add("Load factor", [](const auto& of) { return orEmpty(of.demand.loadFactor, factorDecimals); });
    add("Loss factor", [](const auto& of) { return orEmpty(of.demand.lossFactor, factorDecimals); });
    add("Demand", [](const auto& of) { return valueOf(of.demand.block); });
    add("Demand at", [](const auto& of) { return timeOf(of.demand.block); });
    add("Rolling demand", [](const auto& of) { return valueOf(of.demand.rolling); });
    add("Rolling demand at", [](const auto& of) { return timeOf(of.demand.rolling); });
    return sheet;
}

Sheet readingsSheet(const Study& study) {
    Sheet sheet = {.name = "Readings", .widths = {timeWidth}};
    sheet.rows.reserve(study.axis.points + 1);
    sheet.rows.push_back(headingsOf(study, "Time"));
    for (std::size_t point = 0; point < study.axis.points; ++point) {
        Row row = {study.axis.at(point)};
        for (const Channel& channel : study.channels)
            row.emplace_back(NumberCell{channel.value(channel.loads[point])});
        sheet.rows.push_back(std::move(row));
    }
    return sheet;
}

Sheet demandSheet(const Study& study) {
    Sheet sheet = {.name = "Demand", .widths = {timeWidth}};
    sheet.rows.push_back(headingsOf(study, "Window"));
    const Blocks& blocks = study.figures.front().demand.blocks;
    for (std::size_t block = 0; block < blocks.count; ++block) {
        Row row = {blocks.at(block)};
        for (const Channel& channel : study.channels)
            row.emplace_back(NumberCell{blockDemand(channel, blocks, block)});
        sheet.rows.push_back(std::move(row));
    }
    return sheet;
}

// Lines of columns 1 to `columns` over column 0, right of the cells.
WorkbookChart chartOf(const std::string& title, int columns, int rows) {
    WorkbookChart chart;
    chart.title = title;
    chart.column = columns + 2;
    for (int column = 1; column <= columns; ++column)
        chart.lines.push_back({{0, 1, rows}, {column, 1, rows}});
    return chart;
}

Sheet durationSheet(const Study& study) {
    Sheet sheet = {.name = "Duration"};
    sheet.rows.push_back(headingsOf(study, "% of the time"));
    const std::size_t count = study.figures.front().duration.size();
    for (std::size_t p = 0; p < count; ++p) {
        Row row = {countCell(static_cast<std::int64_t>(p))};
        for (const ChannelFigures& figures : study.figures)
            row.emplace_back(NumberCell{figures.duration[p]});
        sheet.rows.push_back(std::move(row));
    }
    sheet.charts.push_back(
        chartOf("Load duration", static_cast<int>(study.channels.size()), static_cast<int>(count)));
    return sheet;
}

Sheet daysSheet(const Study& study) {
    Sheet sheet = {.name = "Days"};
    Row headings = {std::string("Slot")};
    for (const Channel& channel : study.channels)
        for (const char* kind : dayKindNames)
            headings.emplace_back(channel.name + " " + kind);
    sheet.rows.push_back(std::move(headings));
    const auto slots = static_cast<std::size_t>(minutesPerDay / study.axis.interval);
    for (std::size_t slot = 0; slot < slots; ++slot) {
        Row row = {ClockCell{static_cast<int>(slot) * study.axis.interval}};
        for (const ChannelFigures& figures : study.figures)
            for (const TypicalDay& day : figures.days)
                row.push_back(day.slots[slot].readings > 0 ? Cell(NumberCell{day.slots[slot].mean}) : Cell());
        sheet.rows.push_back(std::move(row));
    }
    sheet.charts.push_back(
        chartOf("Typical days", static_cast<int>(3 * study.channels.size()), static_cast<int>(slots)));
    return sheet;
}

Sheet limitsSheet(const Study& study) {
    Sheet sheet = {.name = "Limits", .widths = {nameWidth, 8, timeWidth, timeWidth, 9, 9, timeWidth}};
    sheet.rows.push_back({std::string("Channel"), std::string("Kind"), std::string("Start"),
                          std::string("End"), std::string("Minutes"), std::string("Peak"),
                          std::string("Peak at")});
    const auto add = [&](const std::string& channel, const std::vector<Run>& runs, const char* kind) {
        for (const Run& run : runs)
            sheet.rows.push_back({channel, std::string(kind), run.start, run.end, countCell(run.minutes),
                                  NumberCell{run.peak.value}, run.peak.at});
    };
    for (std::size_t i = 0; i < study.channels.size(); ++i) {
        add(study.channels[i].name, study.figures[i].limits.above, "above");
        add(study.channels[i].name, study.figures[i].limits.below, "below");
    }
    return sheet;
}

Sheet phasesSheet(const Study& study) {
    Sheet sheet = {.name = "Phases", .widths = {timeWidth, 14, 18}};
    sheet.rows.push_back(
        {std::string("Time"), std::string("Unbalance, %"), std::string("Neutral current, A")});
    if (!study.phases)
        return sheet;
    const Phases& phases = *study.phases;
    for (std::size_t point = 0; point < study.axis.points; ++point)
        sheet.rows.push_back({study.axis.at(point), orEmpty(phases.unbalances[point]),
                              phases.neutrals.empty() ? Cell() : Cell(NumberCell{phases.neutrals[point]})});
    return sheet;
}

Sheet flagsSheet(const Study& study) {
    Sheet sheet = {.name = "Flags", .widths = {nameWidth, 8, timeWidth, timeWidth, 10, 9}};
    sheet.rows.push_back({std::string("Channel"), std::string("Kind"), std::string("Start"),
                          std::string("End"), std::string("Readings"), std::string("Value")});
    for (const Flag& flag : study.flags)
        sheet.rows.push_back({study.channels[flag.file].name,
                              std::string(flagNames[static_cast<std::size_t>(flag.kind)]), flag.start,
                              flag.end, countCell(static_cast<std::int64_t>(flag.readings)),
                              NumberCell{flag.value}});
    return sheet;
}

} // namespace

Workbook workbookOf(const Study& study, ReadingTime made) {
    return {{summarySheet(study), readingsSheet(study), demandSheet(study), durationSheet(study),
             daysSheet(study), limitsSheet(study), phasesSheet(study), flagsSheet(study)},
            made};
}

} // namespace tally::study
