// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/OpenFiles.h"
#include "view/Print.h"

namespace tally {

void addTable(CLI::App& program, Services& services) {
    struct Options {
        std::shared_ptr<std::string> file;
        std::shared_ptr<RangeOptions> range;
    };
    auto options = std::make_shared<Options>();
    CLI::App* command =
        addCommand(program, services, "table", "the data table: heading and readings", [&services, options] {
            OpenFiles open = openFiles(services, {*options->file}, *options->range);
            const std::string heading = Print(open.recordings, open.state);
            out(heading + "\r\n" + open.recordings.gTable);
            return 0;
        });
    options->file = addFile(*command);
    options->range = addRange(*command);
}

} // namespace tally
