// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/OpenFiles.h"

#include "cli/ArchiveFiles.h"
#include "cli/ArchivePlace.h"
#include "core/Fault.h"
#include "core/Fileopen.h"
#include "core/ModeTable.h"
#include "core/NotesFile.h"
#include "core/Numbers.h"
#include "core/TimeAxis.h"
#include "platform/FilePath.h"
#include "platform/OutputPlace.h"
#include "view/FilesTogether.h"

#include <charconv>

namespace tally::cli {

namespace {

int indexOf(const std::optional<std::string>& text, int whenNone) {
    if (!text)
        return whenNone;
    int index = 0;
    const auto end = text->data() + text->size();
    const auto [stopped, error] = std::from_chars(text->data(), end, index);
    if (error != std::errc() || stopped != end)
        throw WrongUsage("'" + *text + "' is no reading index");
    return index;
}

WrongForFile outsideFile(const Range& range, int count) {
    return WrongForFile("The range " + std::to_string(range.first) + " to " + std::to_string(range.last) +
                        " is turned round or outside the file, which has the readings 0 to " +
                        std::to_string(count - 1));
}

void warnOfFile(Context& context, const FileFacts& info) {
    if (const std::string cut = incompleteNotice(info); !cut.empty())
        context.warn(info.path + ": " + cut);
    if (info.unreadable > 0)
        context.warn(info.path + ": " + counted(info.unreadable, "item") +
                     " could not be read as numbers; each counts with its leading number, or 0");
    if (info.notesUnreadable)
        context.warn(notesPath(info.path) + ": the notes file cannot be read");
}

// Of a range inside the file that holds none of its whole intervals.
WrongUsage noWholeInterval(const Range& range, const FileFacts& info) {
    const int whole = info.count % valuesPerInterval(info.modeLetter);
    const std::string oldest = std::to_string(whole);
    return WrongUsage("The range " + std::to_string(range.first) + " to " + std::to_string(range.last) +
                      " holds no whole interval: a Min/Max/Avg file is taken in threes, counted from the "
                      "newest reading, and the oldest " +
                      oldest + " of this file are less than three. " +
                      (whole < info.count ? "Take a range that reaches reading " + oldest
                                          : "It has no others; leave the range out"));
}

Refused notWritten(const std::string& path, const Fault& fault) {
    return Refused(std::string(fault.what()) + "\n" + path + " was not written.\n" + faultAdvice(fault));
}

} // namespace

std::shared_ptr<RangeOptions> addRange(CLI::App& command) {
    auto range = std::make_shared<RangeOptions>();
    command.add_option("--from", range->from, "index of the first reading, from 0");
    command.add_option("--to", range->to, "index of the last reading, to count - 1");
    return range;
}

std::shared_ptr<std::string> addFile(CLI::App& command) {
    auto file = std::make_shared<std::string>();
    command.add_option("FILE", *file, "a data file, or archive:ID")->required();
    addArchiveOption(command);
    return file;
}

std::shared_ptr<std::vector<std::string>> addFiles(CLI::App& command) {
    auto files = std::make_shared<std::vector<std::string>>();
    command.add_option("FILE", *files, "one to three data files of one mode, or archive:ID")
        ->required()
        ->expected(1, 3);
    addArchiveOption(command);
    return files;
}

OpenFiles openFiles(Context& context, const std::vector<std::string>& paths) {
    OpenFiles open;
    for (const std::string& typed : paths) {
        // A recording knows its file by the full path, from wherever it was named.
        const std::string path = isArchived(typed) ? fetchArchived(context, typed) : absolutePath(typed);
        if (const auto slot = Fileopen(open.recordings, context.files(), path); !slot)
            throw Refused(onLines(slot.error()));
        warnOfFile(context, open.recordings.info(open.recordings.ginx));
    }
    open.recordings.ginx = 0;
    open.time = timeOfFiles(open.recordings);
    open.display.opened(open.recordings, 0);
    return open;
}

OpenFiles openFiles(Context& context, const std::vector<std::string>& paths, const RangeOptions& range) {
    OpenFiles open = openFiles(context, paths);
    const auto given = indexRange(range, open.recordings.info(0).count);
    if (given && !open.display.applyRange(open.recordings, given->first, given->last))
        throw noWholeInterval(*given, open.recordings.info(0));
    return open;
}

std::optional<Range> indexRange(const RangeOptions& range, int count) {
    if (!range.given())
        return std::nullopt;
    const bool both = range.from && range.to;
    if (both && indexOf(range.from, 0) > indexOf(range.to, 0))
        throw WrongUsage("The range " + *range.from + " to " + *range.to + " is turned round");
    const Range given = {indexOf(range.from, 0), indexOf(range.to, count - 1)};
    if (given.first < 0 || given.last < given.first || given.last >= count)
        throw outsideFile(given, count);
    return given;
}

std::shared_ptr<bool> addAlign(CLI::App& command) {
    auto align = std::make_shared<bool>(false);
    command.add_flag("--align", *align, "put the files side by side by time, not reading by reading");
    return align;
}

OpenFiles openTogether(Context& context, const std::vector<std::string>& paths, const RangeOptions& range,
                       bool align) {
    if (!align)
        return openFiles(context, paths, range);
    OpenFiles open = openFiles(context, paths);
    const auto given = indexRange(range, open.recordings.info(0).count);
    open.recordings = aligned(open.recordings, valueOrRefused(timeAxis(open.recordings, given)));
    open.display.opened(open.recordings, 0);
    if (given)
        open.display.applyRange(open.recordings, 0, open.recordings.info(0).count - 1);
    return open;
}

void warnTogether(Context& context, const OpenFiles& open) {
    for (const std::string& warning : togetherWarnings(open.recordings))
        context.warn(warning);
}

void writeFile(Context& context, const std::string& path, const std::string& bytes) {
    try {
        context.results().write(path, bytes);
    } catch (const Fault& fault) {
        throw notWritten(path, fault);
    }
}

void checkPlace(const std::string& path, std::uint64_t bytes) {
    try {
        checkOutputPlace(path, bytes);
    } catch (const Fault& fault) {
        throw notWritten(path, fault);
    }
}

} // namespace tally::cli
