// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/RecoverText.h"

#include "core/DataText.h"
#include "core/Fault.h"
#include "core/Header.h"
#include "core/ModeTable.h"
#include "core/Recordings.h"
#include "link/Instruments.h"
#include "link/ReceivedText.h"

#include <algorithm>

namespace tally {

namespace {

const char* const notValid = "     NOT A VALID INSTRUMENT    \r         REMOVE THE CABLE NOW       \r\r";
const char* const notVoltmeter = "Not Voltmeter";
const char* const notRecoverable = "    CONTINUOUS DATA; NOT RECOVERABLE     \r"
                                   "  CANNOT DETERMINE STOPPED TIME \r\r";

constexpr int perLine = 10;

// Digits, with one decimal point at most.
bool isReading(std::string_view item) {
    const auto points = std::count(item.begin(), item.end(), '.');
    const auto digits = std::count_if(item.begin(), item.end(), [](char c) { return c >= '0' && c <= '9'; });
    return points <= 1 && digits > 0 && static_cast<std::size_t>(points + digits) == item.size();
}

// What is wrong with the readings of a text.
struct Damage {
    int lines = 0;
    int items = 0;

    // Takes one line without its end; the last one may be shorter.
    void look(std::string_view line, bool last) {
        constexpr std::string_view between = " \r";
        int readings = 0;
        for (std::size_t at = 0; (at = line.find_first_not_of(between, at)) != std::string_view::npos;) {
            const std::size_t end = std::min(line.find_first_of(between, at), line.size());
            items += isReading(line.substr(at, end - at)) ? 0 : 1;
            ++readings;
            at = end;
        }
        lines += readings == perLine || last ? 0 : 1;
    }
};

std::string finding(int count, const char* what) {
    return count == 0 ? std::string() : "   \xE2\x80\xA2  " + std::to_string(count) + what + "\r\n";
}

} // namespace

std::string damageText(std::string_view text) {
    const std::size_t mark = text.find("T:");
    Damage damage;
    std::string_view rest = mark == std::string_view::npos ? std::string_view() : text.substr(mark + 2);
    rest = rest.substr(0, rest.find('\x1a'));
    for (std::size_t end; (end = rest.find('\n')) != std::string_view::npos; rest.remove_prefix(end + 1))
        damage.look(rest.substr(0, end), false);
    damage.look(rest, true);
    if (damage.lines == 0 && damage.items == 0)
        return {};
    return "The recovered data has the following error(s):\r\n" +
           finding(damage.lines, " line(s) with an incorrect number of readings") +
           finding(damage.items, " reading(s) that are no numbers") +
           "\r\nThe time at which it stopped is worked out from the number of readings.\r\n"
           "Recover it again before you initialize the instrument.";
}

void warnOfDamage(std::string_view text, Prompt& prompt) {
    const std::string damage = damageText(text);
    if (!damage.empty())
        prompt.show({.text = damage, .title = "WARNING", .exclamation = true});
}

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
    const std::string_view header = text.substr(startOfRecording(text));
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
    text.replace(startOfRecording(text) + column::time.at, column::time.length, headerTime(stopped));
    return {std::move(text), header.start, stopped, readings};
}

} // namespace tally
