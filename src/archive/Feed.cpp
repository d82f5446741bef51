// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Feed.h"

#include "core/DataFile.h"
#include "core/DataText.h"
#include "core/Fault.h"
#include "core/Fileopen.h"
#include "core/NotesFile.h"
#include "core/Text1252.h"

#include <algorithm>
#include <utility>

namespace tally::archive {

namespace {

constexpr std::size_t batchSize = 500;
constexpr std::uint64_t maximumNotesBytes = std::uint64_t{1} << 20;

std::optional<std::string> notesBeside(const Files& files, const std::string& path) {
    const std::string notes = notesPath(path);
    if (notes == path || !files.exists(notes))
        return std::nullopt;
    try {
        std::string bytes = files.read(notes, maximumNotesBytes + 1);
        // What is so long is no notes file.
        if (bytes.size() > maximumNotesBytes)
            return std::nullopt;
        return bytes;
    } catch (const Fault&) {
        // Notes are an addition: what is wrong with their file never keeps the readings away.
        return std::nullopt;
    }
}

// Names and paths are bytes; a store holds characters.
Source sourceOf(const FoundFile& file) {
    Source source{repairedUtf8(file.path), {}};
    for (const std::string& name : file.names)
        source.names.push_back(repairedUtf8(name));
    return source;
}

Expected<Kept> keptFrom(const FoundFile& file, const Files& files, const ArchiveTools& tools) {
    try {
        const std::string bytes = files.read(file.path, maximumDataBytes + 1);
        if (bytes.size() > maximumDataBytes)
            return refuse(badFileText, file.path, "It is too long.");
        return keptOf(bytes, notesBeside(files, file.path), sourceOf(file), tools);
    } catch (const Fault& fault) {
        return refuse(fault.what(), file.path);
    }
}

} // namespace

Feed::Feed(ArchiveStore& store, const ArchiveTools& tools, const Files& files,
           std::function<void(const FeedCount&)> progress)
    : store_(store), tools_(tools), files_(files), progress_(std::move(progress)) {}

void Feed::take(FoundFile&& file) {
    waiting_.push_back(std::move(file));
    if (waiting_.size() >= batchSize)
        passOn();
}

void Feed::fail(const std::string& path, const std::string& reason) {
    count_.failures.push_back({path, reason});
}

void Feed::finish() {
    passOn();
    passOn();
}

void Feed::passOn() {
    auto made = std::exchange(making_, {});
    make();
    if (made.valid())
        write(made.get());
}

void Feed::make() {
    if (waiting_.empty())
        return;
    making_ = std::async(std::launch::async, [this, list = std::exchange(waiting_, {})] {
        Made made;
        for (const FoundFile& file : list)
            made.push_back(keptFrom(file, files_, tools_));
        return made;
    });
}

void Feed::write(Made&& batch) {
    std::vector<Kept> recordings;
    for (auto& made : batch) {
        if (made)
            recordings.push_back(*std::move(made));
        else
            fail(made.error().subject,
                 made.error().text + (made.error().advice.empty() ? "" : ". " + made.error().advice));
    }
    if (!recordings.empty())
        for (const bool isNew : store_.add(recordings))
            ++(isNew ? count_.added : count_.already);
    progress_(count_);
}

} // namespace tally::archive
