// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Day.h"
#include "cli/ArchiveCommands.h"
#include "cli/ArchivePlace.h"
#include "cli/CircuitOptions.h"
#include "core/Numbers.h"

namespace tally::cli {

namespace {

struct Options {
    CircuitOptions circuit;
    std::shared_ptr<bool> json;
};

Json jsonOf(const archive::Coverage& coverage) {
    Json gaps = Json::array();
    for (const archive::DaySpan& gap : coverage.gaps())
        gaps.push_back({{"from", archive::dayText(gap.first)}, {"to", archive::dayText(gap.last)}});
    const bool any = !coverage.covered.empty();
    return {{"days", coverage.days},
            {"first", any ? Json(archive::dayText(coverage.covered.front().first)) : Json(nullptr)},
            {"last", any ? Json(archive::dayText(coverage.covered.back().last)) : Json(nullptr)},
            {"gaps", gaps}};
}

std::string textOf(const archive::Coverage& coverage) {
    std::string text = counted(coverage.days, "day") + " with readings\n";
    for (const archive::DaySpan& span : coverage.covered)
        text += archive::dayText(span.first) + " to " + archive::dayText(span.last) + "\n";
    return text;
}

int coverage(Context& context, const Options& options) {
    const auto store = openStore(context);
    const archive::Coverage covered = archive::coverageOf(*store, options.circuit.selection());
    if (*options.json)
        outJson(context, jsonOf(covered));
    else
        context.out(textOf(covered));
    return status::done;
}

Json jsonOf(const std::vector<archive::YearOfLoad>& growth) {
    Json list = Json::array();
    for (const archive::YearOfLoad& year : growth)
        list.push_back({{"year", year.year},
                        {"peak", year.peak},
                        {"mean", year.mean},
                        {"days", year.days},
                        {"change", figure(year.change)}});
    return list;
}

int growth(Context& context, const Options& options) {
    const auto store = openStore(context);
    const NamedCircuit named = circuitNamed(context, *store, options.circuit);
    const auto years = archive::growthOf(*store, archiveTools(), named.circuit);
    if (*options.json) {
        outJson(context, jsonOf(years));
        return status::done;
    }
    for (const archive::YearOfLoad& year : years)
        context.out(std::to_string(year.year) + "  peak " + figureText(year.peak) + "  mean " +
                    figureText(year.mean) + "  " + counted(year.days, "day") + "  change " +
                    figureText(year.change) + " %\n");
    return status::done;
}

} // namespace

void addArchiveYears(CLI::App& archive, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& covered = addCommand(archive, shared, "coverage", "the days with readings, and the gaps",
                                   [options](Context& context) { return coverage(context, *options); });
    addCircuit(covered, options->circuit);
    options->json = addJson(covered);

    auto other = std::make_shared<Options>();
    CLI::App& grown = addCommand(archive, shared, "growth", "peak and mean of a circuit by year",
                                 [other](Context& context) { return growth(context, *other); });
    addCircuit(grown, other->circuit)->required();
    other->json = addJson(grown);
}

} // namespace tally::cli
