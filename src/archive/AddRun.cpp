// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/AddRun.h"

#include "archive/StoreFault.h"

#include <algorithm>

namespace tally::archive {

namespace {

constexpr std::size_t shownFailures = 5;
constexpr std::int64_t lookStep = 1000; // files

std::string grouped(std::int64_t number) {
    std::string text = std::to_string(number);
    constexpr std::size_t group = 3;
    for (std::size_t at = text.size(); at > group; at -= group)
        text.insert(at - group, ",");
    return text;
}

std::string countText(const FeedCount& count) {
    std::string text = grouped(count.added) + " added, " + grouped(count.already) + " there already";
    if (!count.failures.empty())
        text += ", " + grouped(static_cast<std::int64_t>(count.failures.size())) + " failed";
    return text;
}

std::vector<FoundFile> look(const Archives& archives, const std::vector<std::string>& paths,
                            AddProgress& progress, const std::function<bool()>& stop,
                            const std::function<void(const AddProgress&)>& tell) {
    std::vector<FoundFile> found;
    for (const std::string& path : paths)
        archives.eachFile(
            path,
            [&](FoundFile&& file) {
                found.push_back(std::move(file));
                if (++progress.files % lookStep == 0)
                    tell(progress);
                return !stop();
            },
            [&](const std::string& failed, const std::string& reason) {
                progress.count.failures.push_back({failed, reason});
            });
    return found;
}

} // namespace

AddOutcome addPaths(const Archives& archives, const Place& place, const Files& files,
                    const std::vector<std::string>& paths, const std::function<bool()>& stop,
                    const std::function<void(const AddProgress&)>& progress) {
    AddOutcome outcome;
    const Opened store = archives.open(place);
    if (!store) {
        outcome.fault = store.error().message();
        return outcome;
    }
    std::vector<FoundFile> found = look(archives, paths, outcome.progress, stop, progress);
    const std::vector<FeedCount::Failure> notFound = outcome.progress.count.failures;
    outcome.progress.looking = false;
    outcome.progress.files += static_cast<std::int64_t>(notFound.size());
    const auto counted = [&](const FeedCount& count) {
        outcome.progress.count = count;
        auto& failures = outcome.progress.count.failures;
        failures.insert(failures.begin(), notFound.begin(), notFound.end());
        progress(outcome.progress);
    };
    try {
        Feed feed(**store, archives.tools(), files, counted);
        for (FoundFile& file : found) {
            if (stop())
                break;
            feed.take(std::move(file));
        }
        outcome.stopped = stop();
        if (!outcome.stopped)
            feed.finish();
    } catch (const StoreFault& fault) {
        outcome.fault = fault.what();
    }
    return outcome;
}

std::string progressText(const AddProgress& progress) {
    if (progress.looking)
        return "Looking for recordings: " + grouped(progress.files) + " found";
    return grouped(progress.done()) + " of " + grouped(progress.files) + ": " + countText(progress.count);
}

std::string outcomeText(const AddOutcome& outcome) {
    const FeedCount& count = outcome.progress.count;
    std::string text = (outcome.stopped ? "Stopped: " : "") + countText(count);
    if (!outcome.fault.empty())
        text = outcome.fault + "\n" + text;
    for (std::size_t at = 0; at < std::min(count.failures.size(), shownFailures); ++at)
        text += "\n" + count.failures[at].path + ": " + count.failures[at].reason;
    if (count.failures.size() > shownFailures)
        text +=
            "\nand " + grouped(static_cast<std::int64_t>(count.failures.size() - shownFailures)) + " more";
    return text;
}

} // namespace tally::archive
