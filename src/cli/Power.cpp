// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Json.h"
#include "cli/PowerOptions.h"
#include "view/Printpwr.h"
#include "view/Printpwrinfo.h"

namespace tally::cli {

namespace {

struct Options {
    std::shared_ptr<std::vector<std::string>> files;
    std::shared_ptr<RangeOptions> range;
    std::shared_ptr<PowerOptions> power;
    std::shared_ptr<bool> json;
    std::shared_ptr<bool> align;
    bool table = false;
    bool summary = false;
};

Json jsonOf(const Power& power, const Plot& plot, const std::string& title) {
    Json kw = Json::array();
    for (const float value : power.kilowatts)
        kw.push_back(shortest(value));
    return {{"kw", kw},          {"energy", power.energyText},     {"ymin", plot.yMin},
            {"ymax", plot.yMax}, {"extremeMin", power.extremeMin}, {"extremeMax", power.extremeMax},
            {"title", title}};
}

int run(Context& context, const Options& options) {
    const OpenFiles open = openTogether(context, *options.files, *options.range, *options.align);
    const Power power = powerOfFiles(context, open, *options.power);
    warnTogether(context, open);
    if (*options.json) {
        const PlotRequest request = open.display.plotRequest(open.recordings);
        const Plot plot = DisplPlotPwr(open.recordings, request, power, context.clock());
        outJson(context, jsonOf(power, plot, powerTitle(open.recordings, power.basis)));
    } else if (options.table) {
        const Table table = Printpwr(open.recordings, power);
        context.out(table.heading + "\r\n" + table.text);
    } else {
        context.out(Printpwrinfo(open.recordings, power, open.display.zoomed(), open.time));
    }
    return 0;
}

} // namespace

void addPower(CLI::App& program, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command =
        addCommand(program, shared, "power", "kilowatts and energy of one to three files of amps",
                   [options](Context& context) { return run(context, *options); });
    options->files = addFiles(command);
    options->range = addRange(command);
    options->power = addPowerOptions(command);
    options->json = addJson(command);
    options->align = addAlign(command);
    auto* table = command.add_flag("--table", options->table, "print the power table");
    auto* summary = command.add_flag("--summary", options->summary, "print the power summary (the default)");
    table->excludes("--json")->excludes(summary);
    summary->excludes("--json");
}

} // namespace tally::cli
