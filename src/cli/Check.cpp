// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"
#include "cli/Endings.h"
#include "cli/InstrumentLink.h"
#include "cli/Json.h"
#include "cli/OpenFiles.h"
#include "core/DataFile.h"
#include "link/InsertErrors.h"
#include "link/ValidationReport.h"

namespace tally::cli {

namespace {

struct CheckOptions {
    std::string file;
    std::string runspec;
    std::string output;
    std::shared_ptr<bool> json;
};

constexpr std::uint64_t longestRunspec = 1 << 20;

// A saved data file holds its text as one quoted item.
std::string unquoted(std::string text) {
    if (text.size() < 4 || text.front() != '"' || !text.ends_with("\"\r\n"))
        return text;
    return text.substr(1, text.size() - 4);
}

Json asJson(const ValidationCounts& counts, const std::string& report, const std::string& about999) {
    Json document = {{"badLines", counts.badLines},
                     {"over999", counts.over999},
                     {"count999", counts.count999},
                     {"ctrlZ", counts.ctrlZ},
                     {"badChars", counts.badChars}};
    document["firstBadChar"] = counts.firstBadChar ? Json(*counts.firstBadChar) : Json();
    document["result"] = counts.result();
    document["report"] = report;
    document["report999"] = about999;
    return document;
}

std::string asText(const ValidationCounts& counts) {
    return "Lines with an incorrect number of readings: " + std::to_string(counts.badLines) +
           "\nReadings over 999: " + std::to_string(counts.over999) +
           "\nReadings of 999: " + std::to_string(counts.count999) +
           "\nTerminators: " + std::to_string(counts.ctrlZ) +
           "\nBad characters: " + std::to_string(counts.badChars) + "\n";
}

int check(Context& context, const CheckOptions& options) {
    RunFlags flags;
    if (!options.runspec.empty()) {
        const Runspec found = readRunspec(context.files().read(options.runspec, longestRunspec));
        context.warn(found.report);
        flags = found.flags;
    }
    std::string text = unquoted(context.files().read(options.file, maximumDataBytes));
    LinkPrompt prompt(context, {});
    InsertErrors(text, flags, prompt);
    const ValidationCounts counts = validate(text, flags.enableChange999sTo000);
    const std::string report = flags.enableErrorReport ? errorReport(counts) : std::string();
    const std::string about999 =
        flags.enable999CountReport ? report999(counts, flags.enableChange999sTo000) : std::string();
    if (!options.output.empty())
        writeFile(context, options.output, text);
    if (*options.json) {
        outJson(context, asJson(counts, report, about999));
    } else {
        context.out(asText(counts));
        for (const std::string& message : {about999, report})
            if (!message.empty())
                context.warn(message);
    }
    return counts.clean() ? status::done : status::refused;
}

} // namespace

void addCheck(CLI::App& program, Context& shared) {
    auto options = std::make_shared<CheckOptions>();
    CLI::App& command = addCommand(program, shared, "check", "validate a received text as a download is",
                                   [options](Context& context) { return check(context, *options); });
    command.add_option("TEXTFILE", options->file, "the received text")->required();
    command.add_option("--runspec", options->runspec, "a run specification, whose faults are planted first")
        ->check(whyEmpty);
    command.add_option("-o,--output", options->output, "writes the text as it stands after the check")
        ->check(whyEmpty);
    options->json = addJson(command);
}

} // namespace tally::cli
