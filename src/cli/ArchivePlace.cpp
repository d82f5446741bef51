// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ArchivePlace.h"

#include "platform/archive/OpenArchive.h"
#include "platform/archive/QtArchiveTools.h"

#include <QtGlobal>

namespace tally::cli {

using archive::Entry;
using archive::Place;

namespace {

constexpr const char* placeVariable = "TALLYLINE_ARCHIVE";

} // namespace

void addArchiveOption(CLI::App& command) {
    // The option stands for the variable, so that whoever opens a recording of the archive need not know of
    // it.
    command
        .add_option_function<std::string>(
            "--db", [](const std::string& url) { qputenv(placeVariable, QByteArray::fromStdString(url)); },
            "the archive: PATH, sqlite:PATH or postgresql://USER@HOST:PORT/NAME")
        ->check([](const std::string& url) {
            const auto place = archive::parsePlace(url);
            return place ? std::string() : place.error().message();
        });
}

Place archivePlace(const std::string& url) {
    const auto place = archive::parsePlace(url);
    if (!place)
        throw WrongUsage(onLines(place.error()));
    return *place;
}

Place archivePlace() {
    const QByteArray url = qgetenv(placeVariable);
    return url.isEmpty() ? defaultPlace() : archivePlace(url.toStdString());
}

std::unique_ptr<archive::ArchiveStore> openStore(Context& context, const Place& place) {
    context.needEventLoop();
    auto store = openArchive(place, archiveTools(), [&](const std::string& text) { context.warn(text); });
    if (!store)
        throw Refused(onLines(store.error()));
    return *std::move(store);
}

std::unique_ptr<archive::ArchiveStore> openStore(Context& context) {
    return openStore(context, archivePlace());
}

const archive::ArchiveTools& archiveTools() {
    static const QtArchiveTools tools;
    return tools;
}

Entry entryNamed(archive::ArchiveStore& store, const std::string& name) {
    archive::Selection selection;
    selection.id = archive::IdBeginning(name);
    std::vector<Entry> found;
    if (selection.id->valid())
        found = store.find(selection);
    if (found.empty())
        throw Refused("There is no recording " + name + " in the archive");
    if (found.size() > 1)
        throw Refused("Several recordings begin with " + name + "; give more digits (" + found[0].name() +
                      ", " + found[1].name() + (found.size() > 2 ? ", ..." : "") + ")");
    store.addSources(found);
    return std::move(found.front());
}

} // namespace tally::cli
