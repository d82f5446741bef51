// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Day.h"
#include "archive/Questions.h"
#include "cli/ArchiveCommands.h"
#include "cli/ArchivePlace.h"
#include "core/Numbers.h"

#include <algorithm>

namespace tally::cli {

namespace {

struct Options {
    std::string station;
    DateOptions dates;
    std::shared_ptr<bool> json;
};

Json jsonOf(const std::vector<archive::StationDay>& days) {
    Json list = Json::array();
    for (const archive::StationDay& day : days)
        list.push_back({{"date", archive::dayText(day.day)},
                        {"peak", day.peak},
                        {"peakAt", archive::timeText(day.peakAt)},
                        {"mean", day.mean},
                        {"circuits", day.circuits}});
    return list;
}

// Voltages of circuits are no load that could be summed.
std::vector<archive::Entry> currentsOf(archive::ArchiveStore& store, const Options& options) {
    archive::Selection selection;
    selection.station = options.station;
    selection.from = options.dates.from();
    selection.to = options.dates.to();
    std::vector<archive::Entry> entries = store.find(selection);
    const bool any = !entries.empty();
    std::erase_if(entries, [](const archive::Entry& entry) { return entry.unit == 'V'; });
    if (any && entries.empty())
        throw Refused("Station " + options.station + " has recordings of volts only, which have no sum");
    return entries;
}

int station(Context& context, const Options& options) {
    const int from = options.dates.from().value();
    const int to = options.dates.to().value();
    const auto store = openStore(context);
    const auto days = archive::stationDaysOf(*store, archiveTools(), currentsOf(*store, options), from, to);
    if (*options.json) {
        outJson(context, jsonOf(days));
        return status::done;
    }
    for (const archive::StationDay& day : days)
        context.out(archive::dayText(day.day) + "  peak " + figureText(day.peak) + " A at " +
                    formatTime(day.peakAt, "%H:%M") + "  mean " + figureText(day.mean) + " A  " +
                    counted(day.circuits, "circuit") + "\n");
    return status::done;
}

} // namespace

void addArchiveStation(CLI::App& archive, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(archive, shared, "station", "the summed load of a station by day",
                                   [options](Context& context) { return station(context, *options); });
    command.add_option("STATION", options->station, "the whole name of the station")->required();
    addDate(command, "--from", options->dates.fromText, "first date")->required();
    addDate(command, "--to", options->dates.toText, "last date")->required();
    options->json = addJson(command);
}

} // namespace tally::cli
