// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Fileopen.h"

#include "core/DataFile.h"
#include "core/Fault.h"
#include "core/ModeTable.h"
#include "core/NotesFile.h"

#include <utility>

namespace tally {

namespace {

constexpr const char* modeMixingText = "Mode mixing not allowed";
constexpr const char* notVoltageText = "Not Voltage file";
constexpr const char* slotsFullText = "Three files are open already. Use Close first.";

using Opened = tl::expected<int, OpenRefusal>;

tl::unexpected<OpenRefusal> refuse(OpenProblem why, const char* text, const std::string& path,
                                   std::string advice) {
    return tl::make_unexpected(OpenRefusal{{text, path, std::move(advice)}, why});
}

std::string modeName(char letter) {
    return std::string("mode ") + letter + " (" + std::to_string(modeRow(letter).minutes) + " min, " +
           (isMinMaxAvg(letter) ? "Min/Max/Avg" : "Average") + ")";
}

// Notes are an addition: what is wrong with their file never keeps the readings away.
Notes notesBeside(const Files& files, const std::string& path, bool& unreadable) {
    try {
        return readNotes(files, path);
    } catch (const Fault&) {
        unreadable = true;
        return {};
    }
}

void fillSlot(Recordings& recordings, int slot, Recording&& recording, Notes&& notes) {
    const auto row = static_cast<std::size_t>(slot);
    recordings.gFileName = recording.facts.path;
    recordings.gInfo[row] = std::move(recording.facts);
    recordings.gReadings[row] = std::move(recording.readings);
    recordings.gNotes[row] = std::move(notes);
    recordings.forcedEdits[row].clear();
    recordings.written[row].clear();
    recordings.ginx = slot;
}

Opened readInto(Recordings& recordings, const Files& files, const std::string& path, bool voltageOnly,
                int slot) {
    const DataBytes data = readDataBytes(files, path);
    if (const auto header = findDataHeader(data.bytes)) {
        const char open = recordings.gInfo[0].modeLetter;
        if (slot != 0 && header->modeLetter != open)
            return refuse(OpenProblem::modeMixing, modeMixingText, path,
                          "It is of " + modeName(header->modeLetter) + ", what is open of " + modeName(open) +
                              ". Open files of one mode together; use Close before files of another.");
        if (voltageOnly && header->typeLetter != 'V')
            return refuse(OpenProblem::notVoltage, notVoltageText, path,
                          "It is a recording of current. Choose a file of a voltage recorder.");
    }
    auto recording = readDataText(data.bytes, data.cutShort);
    if (!recording)
        return refuse(OpenProblem::badFile, badFileText, path, dataAdvice(recording.error()));
    recording->facts.path = path;
    Notes notes = notesBeside(files, path, recording->facts.notesUnreadable);
    fillSlot(recordings, slot, *std::move(recording), std::move(notes));
    return slot;
}

tl::unexpected<OpenRefusal> unread(const Fault& fault, const std::string& path) {
    const auto is = [&](const Fault& other) { return fault.number() == other.number(); };
    if (is(fault::fileNotFound()) || is(fault::pathNotFound()))
        return refuse(OpenProblem::notFound, fileNotFoundText, path, faultAdvice(fault::fileNotFound()));
    const bool there = is(fault::permissionDenied()) || is(fault::pathFileAccess()) || is(fault::deviceIo());
    return refuse(there ? OpenProblem::cannotRead : OpenProblem::badFile, badFileText, path,
                  there ? faultAdvice(fault) : fault.what());
}

} // namespace

Opened Fileopen(Recordings& recordings, const Files& files, const std::string& path, bool voltageOnly) {
    const int slot = recordings.freeSlot();
    if (slot < 0)
        return refuse(OpenProblem::slotsFull, slotsFullText, path, {});
    try {
        return readInto(recordings, files, path, voltageOnly, slot);
    } catch (const Fault& fault) {
        return unread(fault, path);
    }
}

std::string incompleteNotice(const FileFacts& info) {
    if (info.complete)
        return {};
    return "ends without its end mark; it may have been cut; " + std::to_string(info.count) +
           " readings, the oldest number may be incomplete";
}

} // namespace tally
