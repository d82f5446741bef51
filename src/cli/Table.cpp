// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/OpenFiles.h"
#include "view/Print.h"

namespace tally::cli {

void addTable(CLI::App& program, Context& shared) {
    struct Options {
        std::shared_ptr<std::string> file;
        std::shared_ptr<RangeOptions> range;
    };
    auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(
        program, shared, "table", "the data table: heading and readings", [options](Context& context) {
            const OpenFiles open = openFiles(context, {*options->file}, *options->range);
            const Table table = Print(open.recordings, 0, open.part());
            context.out(table.heading + "\r\n" + table.text);
            return 0;
        });
    options->file = addFile(command);
    options->range = addRange(command);
}

} // namespace tally::cli
