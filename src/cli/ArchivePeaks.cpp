// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Day.h"
#include "archive/Questions.h"
#include "cli/ArchiveCommands.h"
#include "cli/ArchivePlace.h"

#include <map>

namespace tally::cli {

namespace {

struct Options {
    std::optional<std::string> top;
    std::string by = "max";
    DateOptions dates;
    std::shared_ptr<bool> json;
};

const std::map<std::string, archive::Rank>& ranks() {
    static const std::map<std::string, archive::Rank> all = {{"max", archive::Rank::max},
                                                             {"mean", archive::Rank::mean},
                                                             {"load-factor", archive::Rank::loadFactor}};
    return all;
}

std::size_t topOf(const std::string& typed) {
    constexpr std::size_t maximumDigits = 9;
    const bool plain =
        typed.size() <= maximumDigits && typed.find_first_not_of("0123456789") == std::string::npos;
    const std::size_t top = plain ? std::stoul(typed) : 0;
    if (top == 0)
        throw WrongUsage("'" + typed + "' is no number of circuits");
    return top;
}

Json jsonOf(const archive::Peak& peak) {
    return {{"station", peak.entry->belonging.station},
            {"circuit", peak.entry->belonging.circuit},
            {"id", peak.entry->name()},
            {"max", peak.max},
            {"maxAt", archive::timeText(peak.maxAt)},
            {"mean", peak.mean},
            {"loadFactor", figure(peak.loadFactor)},
            {"unit", std::string(1, peak.entry->unit)}};
}

int peaks(Context& context, const Options& options) {
    const std::size_t top = options.top ? topOf(*options.top) : 0;
    const auto from = options.dates.from();
    const auto to = options.dates.to();
    const auto store = openStore(context);
    const archive::Peaks found =
        archive::peaksOf(*store, archiveTools(), from, to, ranks().at(options.by), top);
    Json list = Json::array();
    for (const archive::Peak& peak : found.peaks) {
        if (*options.json)
            list.push_back(jsonOf(peak));
        else
            context.out(peak.entry->name() + "  " + peak.entry->belonging.station + "  " +
                        peak.entry->belonging.circuit + "  max " + figureText(peak.max) + " " +
                        peak.entry->unit + " at " + formatTime(peak.maxAt, "%Y-%m-%d %H:%M") + "  mean " +
                        figureText(peak.mean) + "  load factor " + figureText(peak.loadFactor, 3) + "\n");
    }
    if (*options.json)
        outJson(context, list);
    return status::done;
}

} // namespace

void addArchivePeaks(CLI::App& archive, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(archive, shared, "peaks", "the circuits with the highest load",
                                   [options](Context& context) { return peaks(context, *options); });
    command.add_option("--top", options->top, "how many");
    command.add_option("--by", options->by, "max, mean or load-factor")
        ->check(CLI::IsMember({"max", "mean", "load-factor"}));
    addDates(command, options->dates);
    options->json = addJson(command);
}

} // namespace tally::cli
