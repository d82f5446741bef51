// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Questions.h"
#include "cli/ArchiveCommands.h"
#include "cli/ArchivePlace.h"

namespace tally::cli {

using archive::Entry;

namespace {

struct FindOptions {
    CLI::Option* words = nullptr;
    std::string serial;
    std::string circuit;
    std::string station;
    std::string unit;
    DateOptions dates;
    std::shared_ptr<bool> json;
    CLI::App* command = nullptr;

    std::optional<std::string> given(const char* name, const std::string& value) const {
        return command->count(name) > 0 ? std::optional(value) : std::nullopt;
    }
};

archive::Selection selectionOf(const FindOptions& options) {
    archive::Selection selection;
    // As they were typed: brackets and braces are signs like others.
    selection.words = options.words->results();
    selection.serial = options.given("--serial", options.serial);
    selection.circuit = options.given("--circuit", options.circuit);
    selection.station = options.given("--station", options.station);
    if (!options.unit.empty())
        selection.unit = options.unit.front();
    selection.from = options.dates.from();
    selection.to = options.dates.to();
    return selection;
}

int find(Context& context, const FindOptions& options) {
    const archive::Selection selection = selectionOf(options);
    const auto store = openStore(context);
    std::vector<Entry> entries = store->find(selection);
    if (*options.json) {
        store->addSources(entries);
        Json list = Json::array();
        for (const Entry& entry : entries)
            list.push_back(jsonOf(entry));
        outJson(context, list);
        return status::done;
    }
    for (const Entry& entry : entries)
        context.out(lineOf(entry) + "\n");
    return status::done;
}

std::string pageOf(const Entry& entry, const std::vector<Entry>& origins) {
    std::string text = lineOf(entry) + "\n";
    text += std::string("Names:    ") + (entry.belonging.assigned ? "assigned" : "from the notes") + "\n";
    text += "Readings: " + std::to_string(entry.count) + ", " + std::to_string(entry.interval) +
            " min interval\n";
    text += "Mean:     " + figureText(archive::meanOf(entry.figures)) + " " + entry.unit + "\n";
    constexpr std::array<const char*, 4> labels = {"Location: ", "Circuit:  ", "Name:     ", "Other:    "};
    for (std::size_t at = 0; at < labels.size(); ++at)
        text += labels[at] + entry.notes[at] + "\n";
    for (const archive::Source& source : entry.sources)
        text += "File:     " + source.path + "\n";
    for (const Entry& origin : origins)
        text += "Part of:  " + lineOf(origin) + "\n";
    return text;
}

int show(Context& context, const std::string& name, bool json) {
    const auto store = openStore(context);
    const Entry entry = entryNamed(*store, name);
    const std::vector<Entry> origins = archive::originsOf(*store, entry);
    if (!json) {
        context.out(pageOf(entry, origins));
        return status::done;
    }
    Json document = jsonOf(entry);
    document["assigned"] = entry.belonging.assigned;
    document["partOf"] = Json::array();
    for (const Entry& origin : origins)
        document["partOf"].push_back(origin.name());
    outJson(context, document);
    return status::done;
}

void addShow(CLI::App& archive, Context& shared) {
    struct Options {
        std::string name;
        std::shared_ptr<bool> json;
    };
    auto options = std::make_shared<Options>();
    CLI::App& command =
        addCommand(archive, shared, "show", "all that is known of one recording",
                   [options](Context& context) { return show(context, options->name, *options->json); });
    command.add_option("ID", options->name, "the first digits of the recording's name")->required();
    options->json = addJson(command);
}

} // namespace

void addArchiveFind(CLI::App& archive, Context& shared) {
    auto options = std::make_shared<FindOptions>();
    CLI::App& command = addCommand(archive, shared, "find", "recordings by words, names and dates",
                                   [options](Context& context) { return find(context, *options); });
    options->command = &command;
    options->words =
        command.add_option("WORDS", "each must occur in station, circuit, serial number, notes or names "
                                    "of file and folder");
    options->words->expected(0, CLI::detail::expected_max_vector_size)->allow_extra_args();
    command.add_option("--serial", options->serial, "the whole serial number");
    command.add_option("--circuit", options->circuit, "the whole name of the circuit");
    command.add_option("--station", options->station, "the whole name of the station");
    command.add_option("--unit", options->unit, "A or V")->check(CLI::IsMember({"A", "V"}));
    addDates(command, options->dates);
    options->json = addJson(command);
    addShow(archive, shared);
}

} // namespace tally::cli
