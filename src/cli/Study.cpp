// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Study.h"

#include "cli/Commands.h"
#include "cli/Endings.h"
#include "cli/OpenFiles.h"
#include "cli/StudyJson.h"
#include "cli/StudyOptions.h"
#include "core/ModeTable.h"
#include "platform/XlsxWriter.h"
#include "study/Report.h"
#include "study/StudyWorkbook.h"
#include "study/forms/StudyPaper.h"

namespace tally::cli {

namespace {

struct Options {
    std::shared_ptr<std::vector<std::string>> files;
    std::shared_ptr<RangeOptions> range;
    std::shared_ptr<StudyOptions> study;
    std::shared_ptr<bool> json;
    std::string to;
};

study::Study studyOfFiles(Context& context, const Options& options) {
    const study::StudyOptions asked = options.study->read();
    const OpenFiles open = openFiles(context, *options.files);
    const FileFacts& first = open.recordings.info(0);
    const int interval = modeRow(first.modeLetter).minutes;
    if (!study::isDemandWindow(asked.window, interval))
        throw WrongForFile("--window: " + std::to_string(asked.window) +
                           " minutes are no multiple of the interval of " + std::to_string(interval) +
                           " minutes");
    return valueOrRefused(study::studyOf(open.recordings, indexRange(*options.range, first.count), asked));
}

// The bytes of the file that -o asks for.
std::string fileOf(Context& context, const study::Study& study, const std::string& ending) {
    if (ending == "xlsx")
        return xlsxBytes(study::workbookOf(study, context.clock().localTime()));
    context.needPainting();
    return study::studyPdf(study);
}

int run(Context& context, const Options& options) {
    const std::string ending = options.to.empty() ? std::string() : endingOf(options.to, {"pdf", "xlsx"});
    const study::Study study = studyOfFiles(context, options);
    if (!ending.empty())
        writeFile(context, options.to, fileOf(context, study, ending));
    if (*options.json)
        outJson(context, jsonOf(study));
    else if (ending.empty())
        context.out(study::textOf(study::reportOf(study)));
    return status::done;
}

} // namespace

void addStudy(CLI::App& program, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(program, shared, "study",
                                   "demand, duration, phases, capacity: what one to three files say",
                                   [options](Context& context) { return run(context, *options); });
    options->files = addFiles(command);
    options->range = addRange(command);
    options->study = addStudyOptions(command);
    options->json = addJson(command);
    command.add_option("-o,--output", options->to, "the study as a file, .pdf or .xlsx")->check(whyEmpty);
}

} // namespace tally::cli
