// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/OpenFiles.h"
#include "core/SaveText.h"

namespace tally {

void addSave(CLI::App& program, Services& services) {
    struct Options {
        std::shared_ptr<std::string> file;
        std::shared_ptr<RangeOptions> range;
        std::string to;
    };
    auto options = std::make_shared<Options>();
    CLI::App* command =
        addCommand(program, services, "save", "write the data file of a range", [&services, options] {
            const OpenFiles open = openFiles(services, {*options->file}, *options->range);
            writeFile(services, options->to, quoted(buildDataText(open.recordings)));
            return 0;
        });
    options->file = addFile(*command);
    options->range = addRange(*command);
    command->add_option("-o,--output", options->to, "the data file to write")->required();
}

} // namespace tally
