// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Fileopen.h"

#include "core/DataText.h"
#include "core/Fault.h"
#include "core/NotesFile.h"

#include <optional>
#include <utility>

namespace tally {

namespace {

constexpr std::string_view modeMixingText = "Mode mixing not allowed";
constexpr std::string_view notVoltageText = "Not Voltage file";
constexpr std::string_view notFoundText = "File not found";
constexpr std::string_view badFileText = "Error in processing file";
constexpr std::string_view slotsFullText = "Three files are open already. Use Close first.";

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

OpenOutcome readInto(Recordings& recordings, const Files& files, const std::string& path, bool voltageOnly,
                     int slot) {
    // One byte more than is used tells whether the file goes on.
    std::string bytes = files.read(path, mostDataBytes + 1);
    const bool cutShort = bytes.size() > mostDataBytes;
    if (cutShort)
        bytes.resize(mostDataBytes);

    const auto header = findDataHeader(bytes);
    if (const auto* found = std::get_if<DataHeader>(&header)) {
        if (slot != 0 && found->modeLetter != recordings.gInfo[0].modeLetter)
            return OpenOutcome::modeMixing;
        if (voltageOnly && found->typeLetter != 'V')
            return OpenOutcome::notVoltage;
    }
    auto text = readDataText(bytes, cutShort);
    auto* recording = std::get_if<Recording>(&text);
    if (recording == nullptr)
        return OpenOutcome::badFile;
    recording->facts.path = path;
    Notes notes = notesBeside(files, path, recording->facts.notesUnreadable);
    fillSlot(recordings, slot, std::move(*recording), std::move(notes));
    return OpenOutcome::opened;
}

OpenOutcome outcomeOf(int number) {
    if (number == fault::fileNotFound().number() || number == fault::pathNotFound().number())
        return OpenOutcome::notFound;
    for (const Fault& why : {fault::permissionDenied(), fault::pathFileAccess(), fault::deviceIo()})
        if (number == why.number())
            return OpenOutcome::cannotRead;
    return OpenOutcome::badFile;
}

} // namespace

std::string_view openMessage(OpenOutcome outcome) {
    switch (outcome) {
    case OpenOutcome::opened:
        break;
    case OpenOutcome::modeMixing:
        return modeMixingText;
    case OpenOutcome::notVoltage:
        return notVoltageText;
    case OpenOutcome::notFound:
        return notFoundText;
    case OpenOutcome::cannotRead:
    case OpenOutcome::badFile:
        return badFileText;
    case OpenOutcome::slotsFull:
        return slotsFullText;
    }
    return {};
}

OpenOutcome Fileopen(Recordings& recordings, const Files& files, const std::string& path, bool voltageOnly) {
    const int slot = recordings.freeSlot();
    if (slot < 0)
        return OpenOutcome::slotsFull;
    try {
        return readInto(recordings, files, path, voltageOnly, slot);
    } catch (const Fault& fault) {
        return outcomeOf(fault.number());
    }
}

} // namespace tally
