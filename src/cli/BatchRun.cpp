// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/BatchRun.h"

#include "cli/batch/Interrupt.h"
#include "cli/batch/Names.h"
#include "cli/batch/Paths.h"
#include "cli/batch/Progress.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace tally::cli {

namespace {

namespace fs = std::filesystem;

constexpr const char* overSource = "The result would replace a file of the list. Nothing was written.";

void makeFolder(const std::string& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    std::error_code ignored;
    if (!fs::is_directory(folder, ignored))
        throw Refused(folder + ": the folder cannot be made (" + error.message() + ")");
}

std::vector<std::string> pathsOf(const std::vector<Listed>& list) {
    std::vector<std::string> paths;
    paths.reserve(list.size());
    for (const Listed& one : list)
        paths.push_back(one.path);
    return paths;
}

// A path to compare by, however it is spelled.
std::string compared(const std::string& path) {
    std::error_code ignored;
    const fs::path found = fs::weakly_canonical(fs::absolute(path, ignored), ignored);
    return found.empty() ? path : found.string();
}

// Where each file's result goes; a result that would replace a file of the list becomes that file's problem.
std::vector<std::string> placesFor(std::vector<Listed>& list, const BatchRun& run) {
    if (run.folder.empty())
        return {};
    std::vector<std::string> places = resultNames(pathsOf(list), run.folder, run.ending);
    std::vector<std::string> sources;
    for (const Listed& one : list)
        sources.push_back(compared(one.path));
    std::sort(sources.begin(), sources.end());
    for (std::size_t i = 0; i < list.size(); ++i)
        if (std::binary_search(sources.begin(), sources.end(), compared(places[i])))
            list[i].problem = overSource;
    return places;
}

// Hands results on as they come, and counts them.
class Report {
public:
    Report(Context& context, const BatchRun& run, const std::vector<Listed>& list)
        : context_(context), run_(run), list_(list), progress_(list.size()) {}

    // False when nothing more is to come.
    bool take(std::size_t job, const JobResult& result) {
        if (result.ofEvery) {
            wrong_ = result.told.empty() ? std::string() : result.told.back();
            return false;
        }
        const std::string& path = list_[job].path;
        progress_.clear();
        for (const std::string& text : result.told)
            tell(path, text);
        if (result.status == status::done)
            ++done_;
        else
            ++failed_;
        if (result.status != status::done && result.told.empty())
            tell(path, "errors were found");
        if (result.status == status::done || !result.output.empty())
            write(path, result.output);
        progress_.show(job + 1);
        return !unwritable_;
    }

    int end() {
        progress_.clear();
        if (!wrong_.empty())
            throw WrongUsage(wrong_);
        if (unwritable_)
            throw Refused("Standard output cannot be written");
        const bool interrupted = Interrupt::happened();
        context_.warn((interrupted ? "Interrupted: " : "") + std::to_string(done_) + " done, " +
                      std::to_string(failed_) + " failed");
        return interrupted ? status::interrupted : failed_ > 0 ? status::refused : status::done;
    }

private:
    // A text may name its file by itself.
    void tell(const std::string& path, const std::string& text) {
        const bool named = text.find(path) == 0;
        context_.warn(named ? text : path + ": " + text);
    }

    void write(const std::string& path, const std::string& output) {
        if (!run_.call.json)
            context_.out("== " + path + "\n");
        context_.out(output);
        if (!output.empty() && output.back() != '\n')
            context_.out("\n");
        unwritable_ = !context_.flush() && !Interrupt::happened();
    }

    Context& context_;
    const BatchRun& run_;
    const std::vector<Listed>& list_;
    Progress progress_;
    std::size_t done_ = 0;
    std::size_t failed_ = 0;
    std::string wrong_;
    bool unwritable_ = false;
};

std::size_t threadsFor(const BatchRun& run, std::size_t jobs) {
    constexpr std::size_t maximum = 64; // more only cost memory
    return std::clamp<std::size_t>(static_cast<std::size_t>(run.workers), 1,
                                   std::max<std::size_t>(std::min(jobs, maximum), 1));
}

// Before any file is touched: what is wrong with the arguments themselves.
void tryArguments(Context& context, const Call& call) {
    try {
        const BatchWorker trial(context, call);
    } catch (const CLI::ParseError& error) {
        throw WrongUsage(error.what());
    }
}

} // namespace

int runBatch(Context& context, BatchRun& run) {
    const Interrupt interrupt;
    tryArguments(context, run.call);
    std::vector<Listed> list = listPaths(run.paths, std::cin);
    const std::vector<std::string> places = placesFor(list, run);
    if (!run.folder.empty())
        makeFolder(run.folder);
    if (run.paints)
        context.needPainting();
    Report report(context, run, list);
    const auto runOne = [&](BatchWorker& worker, std::size_t job) {
        if (!list[job].problem.empty())
            return JobResult{status::refused, false, {}, {list[job].problem}};
        return worker.run(list[job].path, places.empty() ? std::string() : places[job]);
    };
    PoolWork work;
    work.jobs = list.size();
    work.threads = threadsFor(run, list.size());
    work.makeWorker = [&] {
        return [&, worker = std::make_shared<BatchWorker>(context, run.call)](std::size_t job) {
            return runOne(*worker, job);
        };
    };
    work.take = [&](std::size_t job, const JobResult& result) { return report.take(job, result); };
    work.stopped = Interrupt::happened;
    runPool(work);
    return report.end();
}

} // namespace tally::cli
