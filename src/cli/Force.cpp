// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Endings.h"
#include "cli/OpenFiles.h"
#include "core/ForceReadings.h"
#include "core/Numbers.h"
#include "core/SaveText.h"

namespace tally::cli {

namespace {

struct Options {
    std::shared_ptr<std::string> file;
    std::shared_ptr<RangeOptions> range;
    std::string to;
    std::string value;
    std::string which = "all";
};

ForceWhich whichOf(const std::string& name) {
    return name == "left" ? ForceWhich::leftmost : name == "right" ? ForceWhich::rightmost : ForceWhich::all;
}

int run(Context& context, const Options& options) {
    OpenFiles open = openFiles(context, {*options.file}, *options.range);
    float lastValue = 0;
    const int count = valueOrRefused(
        forceReadings(open.recordings, 0, open.readings(), options.value, whichOf(options.which), lastValue));
    context.warn(counted(count, "reading") + " forced");
    writeFile(context, options.to, tally::quoted(buildDataText(open.recordings, 0, open.recordings.all(0))));
    return 0;
}

} // namespace

void addForce(CLI::App& program, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command =
        addCommand(program, shared, "force", "force readings to one value and save the whole file",
                   [options](Context& context) { return run(context, *options); });
    options->file = addFile(command);
    options->range = addRange(command);
    command.add_option("-o,--output", options->to, "the data file to write")->check(whyEmpty)->required();
    command.add_option("--value", options->value, "the new value, in units")->required();
    command.add_option("--which", options->which, "which readings of the range")
        ->check(CLI::IsMember({"all", "left", "right"}));
}

} // namespace tally::cli
