// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ArchiveCommands.h"
#include "cli/ArchivePlace.h"
#include "cli/CircuitOptions.h"

#include <array>

namespace tally::cli {

namespace {

constexpr std::array<const char*, 3> kinds = {"weekday", "saturday", "sunday"};

struct Options {
    CircuitOptions circuit;
    std::shared_ptr<bool> json;
};

using Figure = double archive::DaySlot::*;

Json listOf(const archive::TypicalDay& day, Figure what) {
    Json list = Json::array();
    for (const auto& slot : day.slots)
        list.push_back(slot ? Json((*slot).*what) : Json(nullptr));
    return list;
}

Json jsonOf(const archive::TypicalDay& day) {
    return {{"days", day.days},
            {"mean", listOf(day, &archive::DaySlot::mean)},
            {"min", listOf(day, &archive::DaySlot::min)},
            {"max", listOf(day, &archive::DaySlot::max)},
            {"p10", listOf(day, &archive::DaySlot::p10)},
            {"p90", listOf(day, &archive::DaySlot::p90)}};
}

std::string textOf(const archive::TypicalDays& days) {
    std::string text = "time";
    for (std::size_t kind = 0; kind < kinds.size(); ++kind)
        text += std::string("  ") + kinds[kind] + " (" + std::to_string(days[kind].days) + " days)";
    text += "\n";
    const std::size_t slots = days.front().slots.size();
    for (std::size_t slot = 0; slot < slots; ++slot) {
        constexpr std::int64_t minutesPerDay = 1440;
        text += formatTime(
            {minutesPerDay / static_cast<std::int64_t>(slots) * static_cast<std::int64_t>(slot)}, "%H:%M");
        for (const archive::TypicalDay& day : days)
            text += "  " + (day.slots[slot] ? figureText(day.slots[slot]->mean) : "-");
        text += "\n";
    }
    return text;
}

int typical(Context& context, const Options& options) {
    const auto store = openStore(context);
    const NamedCircuit named = circuitNamed(context, *store, options.circuit);
    if (named.circuit.empty())
        throw Refused("There is no circuit " + options.circuit.circuit + " in the archive");
    const archive::TypicalDays days = archive::typicalDaysOf(*store, archiveTools(), named.circuit);
    if (!*options.json) {
        context.out(textOf(days));
        return status::done;
    }
    Json document;
    for (std::size_t kind = 0; kind < kinds.size(); ++kind)
        document[kinds[kind]] = jsonOf(days[kind]);
    outJson(context, document);
    return status::done;
}

} // namespace

void addArchiveTypical(CLI::App& archive, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command =
        addCommand(archive, shared, "typical", "the load of a circuit over the hours of a day",
                   [options](Context& context) { return typical(context, *options); });
    addCircuit(command, options->circuit)->required();
    options->json = addJson(command);
}

} // namespace tally::cli
