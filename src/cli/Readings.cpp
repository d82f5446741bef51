// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Json.h"
#include "cli/OpenFiles.h"
#include "core/Numbers.h"

namespace tally::cli {

namespace {

Json jsonOf(const Recordings& recordings, const Range& range) {
    Json list = Json::array();
    for (int i = range.first; i <= range.last; ++i)
        list.push_back({{"i", i},
                        {"time", screenTime(timeOf(recordings.info(0), i))},
                        {"tenths", recordings.reading(0, i)}});
    return list;
}

std::string linesOf(const Recordings& recordings, const Range& range) {
    std::string lines;
    for (int i = range.first; i <= range.last; ++i)
        lines += std::to_string(i) + "," + screenTime(timeOf(recordings.info(0), i)) + "," +
                 Format(inUnits(recordings.reading(0, i)), "0.0") + "\n";
    return lines;
}

} // namespace

void addReadings(CLI::App& program, Context& shared) {
    struct Options {
        std::shared_ptr<std::string> file;
        std::shared_ptr<RangeOptions> range;
        std::shared_ptr<bool> json;
    };
    auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(
        program, shared, "readings", "index, time and value of each reading", [options](Context& context) {
            const OpenFiles open = openFiles(context, {*options->file}, *options->range);
            const Range range = open.readings();
            if (*options->json)
                outJson(context, jsonOf(open.recordings, range));
            else
                context.out(linesOf(open.recordings, range));
            return 0;
        });
    options->file = addFile(command);
    options->range = addRange(command);
    options->json = addJson(command);
}

} // namespace tally::cli
