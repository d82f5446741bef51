// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/OpenFiles.h"
#include "view/Printinfo.h"

namespace tally::cli {

void addSummary(CLI::App& program, Context& shared) {
    struct Options {
        std::shared_ptr<std::string> file;
        std::shared_ptr<RangeOptions> range;
    };
    auto options = std::make_shared<Options>();
    CLI::App& command =
        addCommand(program, shared, "summary", "the summary of a data file", [options](Context& context) {
            const OpenFiles open = openFiles(context, {*options->file}, *options->range);
            context.out(Printinfo(open.recordings, 0, open.display.selection(open.recordings)));
            return 0;
        });
    options->file = addFile(command);
    options->range = addRange(command);
}

} // namespace tally::cli
