// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/InformationReport.h"

#include "core/Header.h"
#include "core/ModeTable.h"
#include "core/Text1252.h"
#include "link/ReceivedText.h"

#include <cstdlib>

namespace tally {

namespace {

const char* const title = "                 Instrument Information from download                 ";
const char* const reminder = "                  REMEMBER TO SAVE THIS DOWNLOAD TO A FILE               ";

std::string clockLine(std::int64_t minutes) {
    if (minutes == 0)
        return "Instrument clock: the same as this computer's\r\n";
    return "Instrument clock: " + std::to_string(std::llabs(minutes)) + " min " +
           (minutes > 0 ? "ahead of" : "behind") + " this computer's\r\n";
}

} // namespace

std::string informationReport(std::string_view gText, const std::optional<RecoveredFacts>& recovered,
                              std::optional<std::int64_t> clockDifference) {
    const std::string header = headerOf(gText);
    const char letter = modeLetterOf(header);
    std::string text = std::string(title) + "\r\n\r\nType: " + toUtf8(headerField(header, column::model)) +
                       "     Ser. " + toUtf8(headerField(header, column::serial)) +
                       "\r\nMode:  " + (isMinMaxAvg(letter) ? "Min/Max/Avg " : "Average ") +
                       std::to_string(modeRow(letter).minutes) + " min interval\r\n";
    if (recovered) {
        text += "Start Time " + recovered->start + "\r\n  Downloaded (stopped):  " + recovered->stopped +
                "\r\n  Readings: " + std::to_string(recovered->readings) + "\r\n";
    } else {
        const auto stopped = timeOf(header);
        text += "           Downloaded or stopped at:  " + (stopped ? screenTime(*stopped) : std::string()) +
                "\r\n";
    }
    if (clockDifference)
        text += clockLine(*clockDifference);
    return text + "\r\n" + reminder;
}

} // namespace tally
