// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/BatchWorker.h"

#include <algorithm>

namespace tally::cli {

namespace {

constexpr const char* placeholder = "x";

void set(CLI::Option& option, const std::string& value) {
    option.clear();
    option.add_result(value);
    option.run_callback();
}

// Puts the place of a result where its command named it.
void sayPlace(std::string& output, const std::string& name, const std::string& place) {
    const auto at = name.empty() ? std::string::npos : output.find(name);
    if (at != std::string::npos)
        output.replace(at, name.size(), place);
}

} // namespace

BatchWorker::BatchWorker(Context& shared, const Call& call)
    : context_(shared), json_(call.json), ownName_(call.ownName) {
    call.add(program_, context_);
    std::vector<std::string> arguments = call.words;
    arguments.insert(arguments.end(), call.arguments.begin(), call.arguments.end());
    if (call.writes)
        arguments.push_back(std::string("--output=") + placeholder);
    arguments.insert(arguments.end(), {"--", placeholder});
    std::reverse(arguments.begin(), arguments.end()); // as the parser takes them
    program_.parse(arguments);
    CLI::App* command = &program_;
    for (const std::string& word : call.words)
        command = command->get_subcommand(word);
    for (CLI::Option* option : command->get_options())
        if (option->get_positional())
            file_ = option;
    if (call.writes)
        output_ = command->get_option("--output");
}

JobResult BatchWorker::run(const std::string& path, const std::string& to) {
    set(*file_, path);
    if (output_ != nullptr)
        set(*output_, to);
    if (ownName_)
        context_.placeResult(to);
    if (json_)
        context_.nameDocuments(path);
    Ended ended;
    try {
        ended = runAction(context_);
    } catch (const std::exception& error) {
        // One file must not end the work on all others.
        ended = {status::refused, error.what()};
    }
    JobResult result{ended.status, ended.status == status::usage && !ended.wrongForFile,
                     context_.takeOutput(), context_.takeWarnings()};
    if (ownName_)
        sayPlace(result.output, context_.ownName(), to);
    if (!ended.reason.empty()) {
        result.output.clear();
        // The name stands before it already: the first line says what happened.
        result.told.push_back(ended.reason.substr(0, ended.reason.find_first_of("\r\n")));
    }
    return result;
}

} // namespace tally::cli
