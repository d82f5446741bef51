// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/NotesFile.h"

#include "core/DataItems.h"
#include "core/Fault.h"
#include "core/PathBeside.h"
#include "core/Text1252.h"

#include <algorithm>

namespace tally {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view extension = "not";
constexpr std::size_t maximumNotesBytes = std::size_t{1} << 20;

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

bool endsLine(char c) {
    return c == '\r' || c == '\n' || c == terminator;
}

// Reads items one by one; at the end of the text they are empty.
class NoteItems {
public:
    explicit NoteItems(std::string_view text) : text_(text) {}

    std::string_view next() {
        if (afterComma_)
            while (at_ < text_.size() && isBlank(text_[at_]))
                ++at_;
        std::string_view item;
        if (!quotedItem(item))
            item = plainItem();
        skipSeparator();
        return item;
    }

private:
    char at(std::size_t index) const { return index < text_.size() ? text_[index] : terminator; }

    // A quote opens an item only when another one closes it: before a separator and on the same line.
    bool quotedItem(std::string_view& item) {
        std::size_t begin = at_;
        while (isBlank(at(begin)))
            ++begin;
        if (at(begin) != '"')
            return false;
        std::size_t end = begin + 1;
        while (at(end) != '"' && !endsLine(at(end)))
            ++end;
        std::size_t after = end + 1;
        while (isBlank(at(after)))
            ++after;
        if (at(end) != '"' || (at(after) != ',' && !endsLine(at(after))))
            return false;
        item = text_.substr(begin + 1, end - begin - 1);
        at_ = after;
        return true;
    }

    std::string_view plainItem() {
        const std::size_t begin = at_;
        while (at(at_) != ',' && !endsLine(at(at_)))
            ++at_;
        return text_.substr(begin, at_ - begin);
    }

    void skipSeparator() {
        const char c = at(at_);
        if (c == terminator)
            return;
        afterComma_ = c == ',';
        at_ += c == '\r' && at(at_ + 1) == '\n' ? 2 : 1;
    }

    std::string_view text_;
    std::size_t at_ = 0;
    bool afterComma_ = false;
};

std::string oneLine(std::string text) {
    for (std::size_t at = 0; (at = text.find_first_of("\r\n\x1a", at)) != std::string::npos;) {
        const bool pair = text.compare(at, 2, "\r\n") == 0;
        text.replace(at, pair ? 2 : 1, " ");
    }
    return text;
}

Notes clean(const Notes& notes) {
    Notes cleaned;
    std::transform(notes.begin(), notes.end(), cleaned.begin(),
                   [](const std::string& note) { return oneLine(repairedUtf8(note)); });
    return cleaned;
}

} // namespace

std::string notesPath(const std::string& dataPath) {
    return pathBeside(dataPath, extension);
}

Notes parseNotes(std::string_view bytes) {
    const bool utf8 = bytes.substr(0, byteOrderMark.size()) == byteOrderMark;
    if (utf8)
        bytes.remove_prefix(byteOrderMark.size());
    NoteItems items(bytes);
    Notes notes;
    for (std::string& note : notes) {
        const std::string_view item = items.next();
        note = utf8 ? repairedUtf8(item) : toUtf8(item);
    }
    return notes;
}

std::string formatNotes(const Notes& notes) {
    std::string lines;
    for (const std::string& note : clean(notes))
        lines += note + "\r\n";
    auto bytes = to1252(lines);
    if (bytes && bytes->substr(0, byteOrderMark.size()) != byteOrderMark)
        return *std::move(bytes);
    return std::string(byteOrderMark) + lines;
}

Notes readNotes(const Files& files, const std::string& dataPath) {
    const std::string path = notesPath(dataPath);
    if (path == dataPath || !files.exists(path))
        return {};
    return parseNotes(files.read(path, maximumNotesBytes));
}

void saveNotes(Recordings& recordings, Files& files, int slot, const Notes& notes) {
    const FileFacts& info = recordings.info(slot);
    const std::string path = notesPath(info.path);
    // A data file that is called like its notes file must not be replaced by them.
    if (path == info.path)
        throw fault::pathFileAccess();
    // Notes that nobody has seen must not be replaced; say again what is wrong with their file.
    if (info.notesUnreadable) {
        static_cast<void>(readNotes(files, info.path));
        throw fault::pathFileAccess();
    }
    files.write(path, formatNotes(notes));
    recordings.gNotes.at(static_cast<std::size_t>(slot)) = clean(notes);
}

} // namespace tally
