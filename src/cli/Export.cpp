// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/Export.h"

#include "cli/Commands.h"
#include "cli/Endings.h"
#include "cli/PowerOptions.h"
#include "export/CsvData.h"
#include "export/expmv90.h"
#include "view/Print.h"

namespace tally::cli {

namespace {

struct Options {
    std::shared_ptr<std::string> file;
    std::shared_ptr<std::vector<std::string>> files;
    std::shared_ptr<RangeOptions> range;
    std::shared_ptr<PowerOptions> power;
    std::string directory;
    std::string identifier;
    bool perLine = false;
};

// Prints the line of an export that was written; a refusal ends the command with its text.
int report(Context& context, const Expected<Exported>& exported) {
    context.out(valueOrRefused(exported).text + "\n");
    return status::done;
}

std::string directoryOf(Context& context, const Options& options) {
    return options.directory.empty() ? context.settings().get("Directory", "default") : options.directory;
}

int exportCsv(Context& context, const Options& options) {
    const OpenFiles open = openFiles(context, {*options.file}, *options.range);
    const ExportPlace place{context.results(), directoryOf(context, options)};
    return report(context, CsvData(open.recordings, 0, open.part(), place));
}

int exportText(Context& context, const Options& options) {
    const OpenFiles open = openFiles(context, {*options.file}, *options.range);
    const Table table = Print(open.recordings, 0, open.part());
    return report(context, Export(open.recordings, 0, table, options.perLine, context.results()));
}

int exportMetering(Context& context, const Options& options) {
    const OpenFiles open = openFiles(context, *options.files, *options.range);
    const PowerBasis basis = options.power->basis(context);
    const ExportPlace place{context.results(), directoryOf(context, options)};
    const MeteringPlan plan = valueOrRefused(planMetering(open.recordings, open.part(), basis.factor, place));
    const Power power = valueOrRefused(powerOf(open.recordings, plan.range, basis));
    options.power->warn(context);
    warnTogether(context, open);
    return report(context, expmv90(plan, power, options.identifier, context.results()));
}

void addDirectory(CLI::App& command, Options& options) {
    command
        .add_option("--dir", options.directory,
                    "folder to write to (else the default directory, else that of the data file)")
        ->check(whyEmpty);
}

void addCsv(CLI::App& exports, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command =
        addCommand(exports, shared, "csv", "Lotusint.csv: eight readings a line, 15-minute averages",
                   [options](Context& context) { return exportCsv(context, *options); });
    options->file = addFile(command);
    options->range = addRange(command);
    addDirectory(command, *options);
}

void addText(CLI::App& exports, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(exports, shared, "text", "the data table as .prn beside the data file",
                                   [options](Context& context) { return exportText(context, *options); });
    options->file = addFile(command);
    options->range = addRange(command);
    command.add_flag("--per-line", options->perLine, "one interval a line");
}

void addMetering(CLI::App& exports, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(exports, shared, "metering", "Lotusint.prn: hourly demand",
                                   [options](Context& context) { return exportMetering(context, *options); });
    options->files = addFiles(command);
    options->range = addRange(command);
    options->power = addPowerOptions(command);
    command.add_option("--id", options->identifier, "recorder identifier, 14 characters")->required();
    addDirectory(command, *options);
}

} // namespace

void addExport(CLI::App& program, Context& context) {
    CLI::App* exports =
        program.add_subcommand("export", "write a file for a spreadsheet or a metering system");
    exports->require_subcommand(1);
    addCsv(*exports, context);
    addText(*exports, context);
    addMetering(*exports, context);
    addTableExports(*exports, context);
}

} // namespace tally::cli
