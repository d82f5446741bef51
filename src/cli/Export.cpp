// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/Export.h"

#include "cli/AnswerPrompt.h"
#include "cli/Commands.h"
#include "cli/PowerOptions.h"
#include "core/Fault.h"
#include "export/CsvData.h"
#include "export/expmv90.h"
#include "view/LineVoltage.h"
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

// Runs an export and prints its line; a refusal or a fault ends the command with its text.
template <typename Run>
int report(Context& context, const AnswerPrompt& prompt, Run run) {
    const ExportOutcome outcome = run();
    if (outcome != ExportOutcome::saved)
        throw Refused(prompt.told());
    context.out(prompt.told() + "\n");
    return status::done;
}

std::string directoryOf(Context& context, const Options& options) {
    return options.directory.empty() ? context.settings().get("Directory", "default") : options.directory;
}

int exportCsv(Context& context, const Options& options) {
    OpenFiles open = openFiles(context, {*options.file}, *options.range);
    AnswerPrompt prompt;
    const ExportDesk desk{open.recordings, open.state, context.files(), prompt,
                          directoryOf(context, options)};
    return report(context, prompt, [&] { return CsvData(desk); });
}

int exportText(Context& context, const Options& options) {
    OpenFiles open = openFiles(context, {*options.file}, *options.range);
    AnswerPrompt prompt;
    const ExportDesk desk{open.recordings, open.state, context.files(), prompt, {}};
    const std::string heading = Print(open.recordings, open.state);
    return report(context, prompt, [&] { return Export(desk, heading, options.perLine); });
}

int exportMetering(Context& context, const Options& options) {
    OpenFiles open = openFiles(context, *options.files, *options.range);
    setPowerFactor(open.recordings, options.power->powerFactor);
    AnswerPrompt prompt(options.identifier);
    const ExportDesk desk{open.recordings, open.state, context.files(), prompt,
                          directoryOf(context, options)};
    const auto makePower = [&] {
        drawPower(context, open, *options.power);
        return true;
    };
    std::string recorderId;
    return report(context, prompt, [&] { return expmv90(desk, recorderId, makePower); });
}

void addDirectory(CLI::App& command, Options& options) {
    command.add_option("--dir", options.directory,
                       "folder to write to (else the default directory, else that of the data file)");
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
