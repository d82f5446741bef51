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
    bool table = false;
    bool summary = false;
};

Json jsonOf(const OpenFiles& open, const Plot& plot, const std::string& title) {
    Json kw = Json::array();
    for (const float value : open.state.power)
        kw.push_back(shortest(value));
    return {{"kw", kw},
            {"energy", open.state.energyText},
            {"ymin", plot.yMin},
            {"ymax", plot.yMax},
            {"extremeMin", open.state.powerExtremeMin},
            {"extremeMax", open.state.powerExtremeMax},
            {"title", title}};
}

int run(Context& context, const Options& options) {
    OpenFiles open = openFiles(context, *options.files, *options.range);
    const Plot plot = drawPower(context, open, *options.power);
    const std::string vline = options.power->vline(context);
    if (*options.json) {
        outJson(context, jsonOf(open, plot, plot.title.substr(0, plot.title.find("\r\n"))));
    } else if (options.table) {
        const std::string heading = Printpwr(open.recordings, open.state);
        context.out(heading + "\r\n" + open.recordings.gTable);
    } else {
        context.out(Printpwrinfo(open.recordings, open.state, vline));
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
    auto* table = command.add_flag("--table", options->table, "print the power table");
    auto* summary = command.add_flag("--summary", options->summary, "print the power summary (the default)");
    table->excludes("--json")->excludes(summary);
    summary->excludes("--json");
}

} // namespace tally::cli
