// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/RecoverText.h"

#include "core/DataText.h"
#include "core/Fault.h"
#include "core/Header.h"
#include "core/ModeTable.h"
#include "core/Recordings.h"
#include "link/Instruments.h"

#include <algorithm>

namespace tally {

namespace {

const char* const notValid = "     NOT A VALID INSTRUMENT    \r         REMOVE THE CABLE NOW       \r\r";
const char* const notVoltmeter = "Not Voltmeter";
const char* const notRecoverable = "    CONTINUOUS DATA; NOT RECOVERABLE     \r"
                                   "  CANNOT DETERMINE STOPPED TIME \r\r";

std::size_t startOf(std::string_view text) {
    const auto found = std::find_if(text.begin(), text.end(), isFamilyInitial);
    return static_cast<std::size_t>(found - text.begin());
}

} // namespace

SessionEnd recoverEnd(RecoverRefusal refusal) {
    switch (refusal) {
    case RecoverRefusal::notValid:
        return {EndKind::wrongInstrument, {notValid}};
    case RecoverRefusal::notVoltmeter:
        return {EndKind::wrongInstrument, {notVoltmeter}};
    case RecoverRefusal::notRecoverable:
        break;
    }
    return {EndKind::notRecoverable, {notRecoverable}};
}

std::optional<RecoverRefusal> recoverRefusal(std::size_t offset, char c, int instrumentType) {
    const bool cutShort = c == '\x1a' && offset < recoverMarkOffset;
    if (cutShort || (offset == recoverMarkOffset && c != 'T'))
        return RecoverRefusal::notValid;
    if (offset == recoverTypeOffset && c == 'A' && isVoltageRecorder(instrumentType))
        return RecoverRefusal::notVoltmeter;
    return {};
}

RecoverHeader recoverHeader(std::string_view text) {
    const std::string_view header = text.substr(startOf(text));
    const char letter = modeLetterOf(header);
    if (headerField(header, column::mode).empty() || !isMode(letter))
        throw fault::subscript();
    const auto start = parseHeaderTime(headerField(header, column::time));
    if (!start)
        throw fault::typeMismatch();
    return {letter, *start};
}

std::string quotedText(std::string_view text) {
    return "\"" + std::string(text) + "\"\r\n";
}

int countReadings(std::string_view file) {
    const auto read = readDataText(file);
    if (read)
        return read->facts.count;
    if (read.error() == DataRefusal::outOfRange || read.error() == DataRefusal::touching)
        throw fault::overflow();
    return 0;
}

bool overwritten(char mode, int readings, std::int32_t maxSamples) {
    return readings >= maxSamples && modeRow(mode).whenFull != "Stop";
}

ReadingTime stopTime(const RecoverHeader& header, int readings) {
    return header.start + static_cast<std::int64_t>(modeRow(header.mode).minutes) * readings /
                              valuesPerInterval(header.mode);
}

RecoveredText recoverText(std::string text, const RecoverHeader& header, int readings) {
    const ReadingTime stopped = stopTime(header, readings);
    text.replace(startOf(text) + column::time.at, column::time.length, headerTime(stopped));
    return {std::move(text), header.start, stopped, readings};
}

} // namespace tally
