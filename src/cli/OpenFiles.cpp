// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/OpenFiles.h"

#include "core/Aligned.h"
#include "core/Fault.h"
#include "core/Fileopen.h"
#include "core/NotesFile.h"
#include "view/FilesTogether.h"

#include <QFileInfo>

#include <charconv>

namespace tally::cli {

namespace {

int indexOf(const std::string& text, int whenEmpty) {
    if (text.empty())
        return whenEmpty;
    int index = 0;
    const auto end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, index);
    if (error != std::errc() || stopped != end)
        throw WrongUsage("'" + text + "' is no reading index");
    return index;
}

WrongForFile outsideFile(const IndexRange& range, int count) {
    return WrongForFile("The range " + std::to_string(range.first) + " to " + std::to_string(range.last) +
                        " is turned round or outside the file, which has the readings 0 to " +
                        std::to_string(count - 1));
}

// A recording knows its file by the full path, from wherever it was named.
std::string fullPath(const std::string& path) {
    return path.empty() ? path : QFileInfo(QString::fromStdString(path)).absoluteFilePath().toStdString();
}

void warnOfUnreadable(Context& context, const FileFacts& info) {
    if (info.unreadable > 0)
        context.warn(info.path + ": " + std::to_string(info.unreadable) +
                     " item(s) could not be read as numbers; each counts with its leading number, or 0");
    if (info.notesUnreadable)
        context.warn(notesPath(info.path) + ": the notes file cannot be read");
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
    command.add_option("FILE", *file, "a data file")->required();
    return file;
}

std::shared_ptr<std::vector<std::string>> addFiles(CLI::App& command) {
    auto files = std::make_shared<std::vector<std::string>>();
    command.add_option("FILE", *files, "one to three data files of one mode")->required()->expected(1, 3);
    return files;
}

OpenFiles openFiles(Context& context, const std::vector<std::string>& paths) {
    OpenFiles open;
    for (const std::string& typed : paths) {
        const std::string path = fullPath(typed);
        const OpenOutcome outcome = Fileopen(open.recordings, context.files(), path);
        if (outcome != OpenOutcome::opened)
            throw Refused(std::string(openMessage(outcome)) + (paths.size() > 1 ? "\n(" + typed + ")" : ""));
        warnOfUnreadable(context, open.recordings.info(open.recordings.ginx));
    }
    open.recordings.ginx = 0;
    open.display.opened(open.recordings, 0);
    return open;
}

OpenFiles openFiles(Context& context, const std::vector<std::string>& paths, const RangeOptions& range) {
    OpenFiles open = openFiles(context, paths);
    const auto given = indexRange(range, open.recordings.info(0).count);
    if (given && !open.display.applyRange(open.recordings, given->first, given->last))
        throw outsideFile(*given, open.recordings.info(0).count);
    return open;
}

std::optional<IndexRange> indexRange(const RangeOptions& range, int count) {
    if (!range.given())
        return std::nullopt;
    const bool both = !range.from.empty() && !range.to.empty();
    if (both && indexOf(range.from, 0) > indexOf(range.to, 0))
        throw WrongUsage("The range " + range.from + " to " + range.to + " is turned round");
    const IndexRange given = {indexOf(range.from, 0), indexOf(range.to, count - 1)};
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
        throw Refused(std::string(fault.what()) + "\n" + path + " was not written.");
    }
}

} // namespace tally::cli
