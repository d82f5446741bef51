// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Day.h"
#include "archive/Verify.h"
#include "cli/ArchiveCommands.h"
#include "cli/ArchivePlace.h"
#include "core/Numbers.h"

namespace tally::cli {

namespace {

int stats(Context& context, bool json) {
    const archive::Stats stats = openStore(context)->stats();
    const Json first = stats.days ? Json(archive::dayText(stats.days->first)) : Json(nullptr);
    const Json last = stats.days ? Json(archive::dayText(stats.days->last)) : Json(nullptr);
    if (json) {
        outJson(context, {{"recordings", stats.recordings},
                          {"readings", stats.readings},
                          {"circuits", stats.circuits},
                          {"stations", stats.stations},
                          {"bytes", stats.bytes},
                          {"first", first},
                          {"last", last}});
        return status::done;
    }
    context.out(counted(stats.recordings, "recording") + ", " + counted(stats.readings, "reading") + ", " +
                std::to_string(stats.bytes) + " bytes\n" + counted(stats.circuits, "circuit") + " at " +
                counted(stats.stations, "station") + "\n");
    if (stats.days)
        context.out(archive::dayText(stats.days->first) + " to " + archive::dayText(stats.days->last) + "\n");
    return status::done;
}

int verify(Context& context, bool json) {
    const auto store = openStore(context);
    const archive::Verified verified = archive::verifyArchive(*store, archiveTools());
    if (json)
        outJson(context, {{"checked", verified.checked}, {"bad", verified.bad}});
    else
        context.out(counted(verified.checked, "recording") + " checked, " +
                    std::to_string(verified.bad.size()) + " bad\n");
    if (!json)
        for (const std::string& name : verified.bad)
            context.out(name + "\n");
    return verified.bad.empty() ? status::done : status::refused;
}

void addPlain(CLI::App& archive, Context& shared, const char* name, const char* what,
              int (*run)(Context&, bool)) {
    auto json = std::make_shared<std::shared_ptr<bool>>();
    CLI::App& command = addCommand(archive, shared, name, what,
                                   [json, run](Context& context) { return run(context, **json); });
    *json = addJson(command);
}

} // namespace

void addArchiveWhole(CLI::App& archive, Context& shared) {
    addPlain(archive, shared, "stats", "how much is in the archive", stats);
    addPlain(archive, shared, "verify", "make every hash and figure again from the bytes", verify);
}

} // namespace tally::cli
