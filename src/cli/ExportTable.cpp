// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/TableCsv.h"

#include "cli/ArchivePlace.h"
#include "cli/Commands.h"
#include "cli/Endings.h"
#include "cli/OpenFiles.h"
#include "export/ExportPlace.h"
#include "export/Loadshape.h"
#include "export/TableWorkbook.h"
#include "platform/XlsxWriter.h"

namespace tally::cli {

namespace {

struct Options {
    std::shared_ptr<std::string> file;
    std::shared_ptr<std::vector<std::string>> files;
    std::shared_ptr<RangeOptions> range;
    std::string to;
    std::string separator;
    std::string decimal = "point";
    std::string time = "iso";
};

CsvForm formOf(const Options& options) {
    CsvForm form;
    form.decimal = options.decimal == "comma" ? ',' : '.';
    form.time = options.time == "shown" ? TimeForm::shown : TimeForm::iso;
    // Where the comma is the decimal sign, spreadsheets take the semicolon for the separator.
    const std::string separator = !options.separator.empty() ? options.separator
                                  : form.decimal == ','      ? "semicolon"
                                                             : "comma";
    form.separator = separator == "semicolon" ? ';' : separator == "tab" ? '\t' : ',';
    return form;
}

void keepDataFiles(Context& context, const std::vector<std::string>& files, const std::string& path) {
    for (const std::string& file : files)
        if (context.files().same(file, path))
            throw Refused(std::string(exportOverData));
}

// Writes an export and prints its line.
void write(Context& context, const std::string& path, const std::string& bytes) {
    writeFile(context, path, bytes);
    context.out(path + " saved OK\n");
}

int exportTable(Context& context, const Options& options) {
    const std::string ending = endingOf(options.to, {"csv", "xlsx"});
    const OpenFiles open = openFiles(context, *options.files, *options.range);
    std::optional<Range> range;
    if (options.range->given())
        range = {open.readings().first, open.readings().last};
    keepDataFiles(context, *options.files, options.to);
    const ReadingTable table = valueOrRefused(readingTable(open.recordings, range));
    write(context, options.to,
          ending == "csv" ? tableCsv(open.recordings, table, formOf(options))
                          : xlsxBytes(tableWorkbook(open.recordings, table, context.clock().localTime())));
    return status::done;
}

int exportOpendss(Context& context, const Options& options) {
    const std::string stem = withoutEnding(options.to, endingOf(options.to, {"dss"}));
    std::vector<Loadshape> shapes;
    std::set<std::string> taken;
    std::string script;
    for (const std::string& file : *options.files) {
        const OpenFiles open = openFiles(context, {file});
        shapes.push_back(valueOrRefused(loadshape(open.recordings, stem, taken)));
        script += shapes.back().script;
    }
    keepDataFiles(context, *options.files, options.to);
    for (const Loadshape& shape : shapes)
        keepDataFiles(context, *options.files, shapeCsv(stem, shape.name));
    // The script last: where it stands, what it names stands too.
    for (const Loadshape& shape : shapes)
        writeFile(context, shapeCsv(stem, shape.name), shape.csv);
    write(context, options.to, script);
    return status::done;
}

int exportGridlabd(Context& context, const Options& options) {
    endingOf(options.to, {"player"});
    const OpenFiles open = openFiles(context, {*options.file});
    keepDataFiles(context, {*options.file}, options.to);
    write(context, options.to, valueOrRefused(playerText(open.recordings)));
    return status::done;
}

void addTableExport(CLI::App& exports, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(exports, shared, "table", "one row a reading, one column a file",
                                   [options](Context& context) { return exportTable(context, *options); });
    options->files = addFiles(command);
    options->range = addRange(command);
    command.add_option("-o,--output", options->to, "the file to write, .csv or .xlsx")
        ->check(whyEmpty)
        ->required();
    command
        .add_option("--separator", options->separator,
                    "between columns (comma; semicolon with --decimal comma)")
        ->check(CLI::IsMember({"comma", "semicolon", "tab"}));
    command.add_option("--decimal", options->decimal, "decimal sign")
        ->check(CLI::IsMember({"point", "comma"}))
        ->capture_default_str();
    command.add_option("--time", options->time, "times as YYYY-MM-DD HH:MM or as tables show them")
        ->check(CLI::IsMember({"iso", "shown"}))
        ->capture_default_str();
}

void addOpendss(CLI::App& exports, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(exports, shared, "opendss", "load shapes for OpenDSS, one a file",
                                   [options](Context& context) { return exportOpendss(context, *options); });
    options->files = std::make_shared<std::vector<std::string>>();
    command.add_option("FILE", *options->files, "data files, any number, or archive:ID")->required();
    addArchiveOption(command);
    command.add_option("-o,--output", options->to, "the script to write, .dss; the values stand beside it")
        ->check(whyEmpty)
        ->required();
}

void addGridlabd(CLI::App& exports, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(exports, shared, "gridlabd", "a player for GridLAB-D",
                                   [options](Context& context) { return exportGridlabd(context, *options); });
    options->file = addFile(command);
    command.add_option("-o,--output", options->to, "the file to write, .player")->check(whyEmpty)->required();
}

} // namespace

void addTableExports(CLI::App& exports, Context& context) {
    addTableExport(exports, context);
    addOpendss(exports, context);
    addGridlabd(exports, context);
}

} // namespace tally::cli
