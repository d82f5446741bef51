// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/ReadBack.h"

#include "core/Fault.h"
#include "core/ModeTable.h"
#include "core/ReadingTime.h"
#include "core/Text1252.h"

namespace tally {

const char* const blankModeText = "HVN 40 or 80 only have 15 min average, continuoue mode";
const char* const anotherQuestion = " Do you want to do another?     \r";

namespace {

// `length` characters from a column on, counted from 1; fewer where the answer ends.
std::string_view field(std::string_view answer, std::size_t column, std::size_t length) {
    return answer.size() < column ? std::string_view() : answer.substr(column - 1, length);
}

std::string displayTime(std::string_view clock) {
    const auto time = parseHeaderTime(clock);
    return time ? formatTime(*time, "%H:%M %b %d, %y") : toUtf8(clock);
}

std::string code(std::string_view letters) {
    std::string upper;
    for (const char c : letters)
        upper += upperCase(c);
    return toUtf8(upper);
}

} // namespace

ReadBack readBack(std::string_view answer) {
    answer = answer.substr(0, answer.find('\x1a'));
    const std::string_view mode = field(answer, 4, 1);
    if (mode.empty())
        throw fault::subscript();
    ReadBack result;
    result.blankMode = mode[0] == ' ';
    const char letter = result.blankMode ? 'a' : mode[0];
    const ModeRow& row = modeRow(letter);
    const std::string minutes = row.minutes == 0 ? "" : std::to_string(row.minutes);
    result.report = "Initialization complete. New settings as read back from instrument:\r\n\r\n"
                    " Type: " +
                    code(field(answer, 1, 3)) + "           Serial Number " + toUtf8(field(answer, 8, 4)) +
                    "\r Mode setting:     " + (isMinMaxAvg(letter) ? "Min/Max/Avg  " : "  Average    ") +
                    std::string(row.whenFull) + "     " + minutes +
                    "  min interval\r"
                    " Time                     " +
                    displayTime(field(answer, 31, 14)) +
                    "\r\r"
                    "       RETURN THE SWITCH TO 'STANDBY'   \r"
                    "           OR REMOVE THE CABLE NOW       \r\r";
    return result;
}

} // namespace tally
