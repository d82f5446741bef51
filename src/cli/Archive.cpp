// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Day.h"
#include "cli/ArchiveCommands.h"
#include "cli/ArchivePlace.h"
#include "core/Numbers.h"

namespace tally::cli {

namespace {

std::string placeText(const archive::Entry& entry) {
    const auto& belonging = entry.belonging;
    if (belonging.station.empty() || belonging.circuit.empty())
        return belonging.station + belonging.circuit;
    return belonging.station + " / " + belonging.circuit;
}

} // namespace

std::optional<int> DateOptions::from() const {
    const auto from = archive::parseDay(fromText);
    const auto until = to();
    if (from && until && *until < *from)
        throw WrongUsage("The dates " + fromText + " to " + toText + " are turned round");
    return from;
}

std::optional<int> DateOptions::to() const {
    return archive::parseDay(toText);
}

CLI::Option* addDate(CLI::App& command, const std::string& name, std::string& date, const std::string& what) {
    return command.add_option(name, date, what + ", YYYY-MM-DD")->check([](const std::string& typed) {
        return archive::parseDay(typed) ? std::string()
                                        : "'" + typed + "' is no date; write it as YYYY-MM-DD";
    });
}

void addDates(CLI::App& command, DateOptions& dates) {
    addDate(command, "--from", dates.fromText, "first date");
    addDate(command, "--to", dates.toText, "last date");
}

Json figure(const std::optional<double>& value) {
    return value ? Json(*value) : Json(nullptr);
}

std::string figureText(const std::optional<double>& value, int decimals) {
    return value ? Format(*value, decimals == 3 ? "0.000" : "0.0") : "-";
}

Json jsonOf(const archive::Entry& entry) {
    Json paths = Json::array();
    for (const archive::Source& source : entry.sources)
        paths.push_back(source.path);
    const archive::Figures& figures = entry.figures;
    return {{"id", entry.name()},
            {"serial", entry.serial},
            {"station", entry.belonging.station},
            {"circuit", entry.belonging.circuit},
            {"unit", std::string(1, entry.unit)},
            {"interval", entry.interval},
            {"start", archive::timeText(entry.start)},
            {"end", archive::timeText(entry.end)},
            {"count", entry.count},
            {"min", inUnits(entry.lowest)},
            {"max", inUnits(static_cast<std::int32_t>(figures.highest))},
            {"maxAt", archive::timeText(figures.highestAt)},
            {"mean", figure(archive::meanOf(figures))},
            {"loadFactor", figure(archive::loadFactorOf(figures, entry.unit))},
            {"notes", entry.notes},
            {"paths", paths}};
}

std::string lineOf(const archive::Entry& entry) {
    const auto clock = [](ReadingTime time) { return formatTime(time, "%Y-%m-%d %H:%M"); };
    return entry.name() + "  " + placeText(entry) + "  Ser. " + entry.serial + "  " + clock(entry.start) +
           " to " + clock(entry.end) + "  peak " +
           plainTenths(static_cast<std::int32_t>(entry.figures.highest)) + " " + entry.unit +
           "  load factor " + figureText(archive::loadFactorOf(entry.figures, entry.unit), 3);
}

void addArchive(CLI::App& program, Context& context) {
    CLI::App* archive = program.add_subcommand("archive", "many recordings in one searchable place");
    addArchiveOption(*archive);
    archive->require_subcommand(1);
    archive->fallthrough();
    for (const AddCommand add :
         {addArchiveInit, addArchiveAdd, addArchiveFind, addArchiveGet, addArchivePeaks, addArchiveYears,
          addArchiveTypical, addArchiveStation, addArchiveWhole, addArchiveChange, addArchiveCopies})
        add(*archive, context);
}

} // namespace tally::cli
