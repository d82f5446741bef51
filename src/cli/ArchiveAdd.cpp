// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Feed.h"
#include "archive/StoreFault.h"
#include "cli/ArchiveCommands.h"
#include "cli/ArchivePlace.h"
#include "cli/FolderWatch.h"
#include "cli/batch/Interrupt.h"

namespace tally::cli {

namespace {

constexpr int interrupted = 130;

struct Options {
    CLI::Option* paths = nullptr;
    bool watch = false;
    std::shared_ptr<bool> json;
};

Json jsonOf(const archive::FeedCount& count) {
    Json errors = Json::array();
    for (const archive::FeedCount::Failure& failure : count.failures)
        errors.push_back({{"path", failure.path}, {"reason", failure.reason}});
    return {{"added", count.added},
            {"already", count.already},
            {"failed", count.failures.size()},
            {"errors", errors}};
}

// Says what was acknowledged after each batch, and which files were skipped.
class Progress {
public:
    explicit Progress(Context& context) : context_(context) {}
    void operator()(const archive::FeedCount& count) {
        for (; told_ < count.failures.size(); ++told_)
            context_.warn(count.failures[told_].path + ": " + count.failures[told_].reason);
        const std::int64_t done = count.added + count.already;
        if (done > done_)
            context_.warn(std::to_string(count.added) + " added, " + std::to_string(count.already) +
                          " there already");
        done_ = done;
    }

private:
    Context& context_;
    std::size_t told_ = 0;
    std::int64_t done_ = 0;
};

void addAll(archive::Feed& feed, const std::vector<std::string>& paths) {
    for (const std::string& path : paths)
        eachFile(
            path,
            [&](archive::FoundFile&& file) {
                feed.take(std::move(file));
                return !Interrupt::happened();
            },
            [&](const std::string& failed, const std::string& reason) { feed.fail(failed, reason); });
    feed.finish();
}

void watch(archive::Feed& feed, FolderWatch& folders, const Interrupt& interrupt) {
    while (interrupt.pause()) {
        for (archive::FoundFile& file : folders.settled())
            feed.take(std::move(file));
        feed.finish();
    }
}

int finish(Context& context, const Options& options, const archive::FeedCount& count, int result) {
    if (*options.json)
        outJson(context, jsonOf(count));
    else
        context.out(std::to_string(count.added) + " added, " + std::to_string(count.already) +
                    " there already, " + std::to_string(count.failures.size()) + " failed\n");
    return result;
}

int add(Context& context, const Options& options) {
    const std::vector<std::string> paths = options.paths->results();
    const auto store = openStore(context);
    const Interrupt interrupt;
    Progress progress(context);
    archive::Feed feed(*store, archiveTools(), context.files(),
                       [&](const archive::FeedCount& count) { progress(count); });
    try {
        // What comes while the rest is added is seen later, so the look comes first.
        std::optional<FolderWatch> folders;
        if (options.watch)
            folders.emplace(paths);
        addAll(feed, paths);
        if (folders)
            watch(feed, *folders, interrupt);
    } catch (const archive::StoreFault& fault) {
        // What was acknowledged is there, and is told.
        context.warn(fault.what());
        return finish(context, options, feed.count(), status::refused);
    }
    progress(feed.count());
    const bool cut = Interrupt::happened() && !options.watch;
    return finish(context, options, feed.count(),
                  cut                             ? interrupted
                  : feed.count().failures.empty() ? status::done
                                                  : status::refused);
}

} // namespace

void addArchiveAdd(CLI::App& archive, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command =
        addCommand(archive, shared, "add", "keep data files, and those of whole folders, with their notes",
                   [options](Context& context) { return add(context, *options); });
    options->paths = command.add_option("PATH", "data files and folders");
    options->paths->required()->expected(1, CLI::detail::expected_max_vector_size)->allow_extra_args();
    command.add_flag("--watch", options->watch, "go on with what comes into the folders, until Ctrl+C");
    options->json = addJson(command);
}

} // namespace tally::cli
