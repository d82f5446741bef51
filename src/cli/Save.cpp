// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Endings.h"
#include "cli/OpenFiles.h"
#include "core/SaveText.h"

namespace tally::cli {

void addSave(CLI::App& program, Context& shared) {
    struct Options {
        std::shared_ptr<std::string> file;
        std::shared_ptr<RangeOptions> range;
        std::string to;
    };
    auto options = std::make_shared<Options>();
    CLI::App& command =
        addCommand(program, shared, "save", "write the data file of a range", [options](Context& context) {
            const OpenFiles open = openFiles(context, {*options->file}, *options->range);
            writeFile(context, options->to,
                      tally::quoted(buildDataText(open.recordings, 0, open.readings())));
            return 0;
        });
    options->file = addFile(command);
    options->range = addRange(command);
    command.add_option("-o,--output", options->to, "the data file to write")->check(whyEmpty)->required();
}

} // namespace tally::cli
