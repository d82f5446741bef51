// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/ReadBack.h"

#include "core/Fault.h"
#include "core/Header.h"
#include "core/ModeTable.h"
#include "core/ReadingTime.h"
#include "core/Text1252.h"

namespace tally {

const char* const blankModeText = "HVN 40 or 80 only have 15 min average, continuoue mode";
const char* const anotherQuestion = " Do you want to do another?     \r";

namespace {

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
    const std::string_view mode = headerField(answer, column::mode);
    if (mode.empty())
        throw fault::subscript();
    ReadBack result;
    result.blankMode = mode[0] == ' ';
    const char letter = result.blankMode ? 'a' : mode[0];
    const ModeRow& row = modeRow(letter);
    const std::string minutes = row.minutes == 0 ? "" : std::to_string(row.minutes);
    result.report = "Initialization complete. New settings as read back from instrument:\r\n\r\n"
                    " Type: " +
                    code(headerField(answer, column::model)) + "           Serial Number " +
                    toUtf8(headerField(answer, column::serial)) +
                    "\r Mode setting:     " + (isMinMaxAvg(letter) ? "Min/Max/Avg  " : "  Average    ") +
                    std::string(row.whenFull) + "     " + minutes +
                    "  min interval\r"
                    " Time                     " +
                    displayTime(headerField(answer, column::time)) +
                    "\r\r"
                    "       RETURN THE SWITCH TO 'STANDBY'   \r"
                    "           OR REMOVE THE CABLE NOW       \r\r";
    return result;
}

} // namespace tally
