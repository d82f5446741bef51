// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/InformationReport.h"

#include "core/DataText.h"
#include "core/Header.h"
#include "core/ModeTable.h"
#include "core/Text1252.h"
#include "link/ReceivedText.h"

#include <cstdlib>
#include <variant>

namespace tally {

namespace {

const char* const title = "                 Instrument Information from download                 ";
const char* const reminder = "                  REMEMBER TO SAVE THIS DOWNLOAD TO A FILE               ";

constexpr std::int64_t aDay = 24 * 60;     // minutes
constexpr std::int64_t fewDays = 2 * aDay; // from there on minutes say nothing to a person

std::string clockLine(std::int64_t minutes) {
    if (minutes == 0)
        return "Instrument clock: the same as this computer's\r\n";
    const std::int64_t apart = std::llabs(minutes);
    return "Instrument clock: " +
           (apart < fewDays ? std::to_string(apart) + " min " : std::to_string(apart / aDay) + " days ") +
           (minutes > 0 ? "ahead of" : "behind") + " this computer's\r\n";
}

std::string modeLine(char letter) {
    if (!isMode(letter))
        return "Mode:  unknown\r\n";
    return std::string("Mode:  ") + (isMinMaxAvg(letter) ? "Min/Max/Avg " : "Average ") +
           std::to_string(modeRow(letter).minutes) + " min interval\r\n";
}

std::string spanText(std::int64_t minutes) {
    return std::to_string(minutes / aDay) + " d " + std::to_string(minutes / 60 % 24) + " h " +
           std::to_string(minutes % 60) + " min";
}

// How much of it there is, so that a recording that was cut short is seen.
std::string sizeLines(std::string_view gText, char letter, const ReportFacts& facts) {
    const auto read = readDataText(gText);
    const Recording* recording = read ? &*read : nullptr;
    std::string lines;
    if (recording != nullptr) {
        const int count = recording->facts.count;
        if (!facts.recovered)
            lines = "  Readings: " + std::to_string(count) + "\r\n";
        lines +=
            "  They span: " +
            spanText(static_cast<std::int64_t>(modeRow(letter).minutes) * count / valuesPerInterval(letter)) +
            "\r\n";
    }
    if (facts.memory > 0)
        lines += "  The memory holds: " + std::to_string(facts.memory) + " readings\r\n";
    return lines;
}

} // namespace

std::string informationReport(std::string_view gText, const ReportFacts& facts) {
    const std::string header = headerOf(gText);
    const char letter = modeLetterOf(header);
    std::string text = std::string(title) + "\r\n\r\nType: " + toUtf8(headerField(header, column::model)) +
                       "     Ser. " + toUtf8(headerField(header, column::serial)) + "\r\n" + modeLine(letter);
    if (facts.recovered) {
        text += "Start Time " + facts.recovered->start +
                "\r\n  Downloaded (stopped):  " + facts.recovered->stopped +
                "\r\n  Readings: " + std::to_string(facts.recovered->readings) + "\r\n";
    } else {
        const auto stopped = timeOf(header);
        text += "           Downloaded or stopped at:  " + (stopped ? screenTime(*stopped) : std::string()) +
                "\r\n";
    }
    text += sizeLines(gText, letter, facts);
    if (facts.clockDifference)
        text += clockLine(*facts.clockDifference);
    return text + "\r\n" + reminder;
}

} // namespace tally
