// SPDX-License-Identifier: GPL-3.0-or-later
#include "survey/SurveyReport.h"

#include "core/Numbers.h"

#include <algorithm>
#include <array>

namespace tally {

namespace {

constexpr std::string_view lineEnd = "\r\n";
constexpr std::size_t tabColumns = 8;

constexpr std::string_view resultHeading = "Amps          Peak Time;  Date";
constexpr std::array<std::string_view, phaseCount> resultLines = {"RED           ", "WHITE       ",
                                                                  "BLUE         "};
constexpr std::string_view resultFill = "           ";
constexpr std::string_view momentHeading = "\t\tRED\tWHITE\tBLUE\tSum";
constexpr std::array<std::string_view, phaseCount> momentLines = {"At RED peak", "At WHITE peak",
                                                                  "At BLUE peak"};

constexpr std::string_view stationTime = "                          %H:%M             %b %d, %y";
constexpr std::string_view stationTimeHeading = "                      Peak Time         Peak Date";
constexpr std::string_view stationPhases = " RED          WHITE      BLUE  ";
constexpr std::string_view afterRed = "          ";
constexpr std::string_view afterWhite = "        ";

constexpr std::string_view paperTitle = "LOAD SURVEY REPORT";
constexpr std::size_t paperTitleColumns = 60;
constexpr std::string_view paperFeeders = " Feeder Amperes During Feeder Peak (Non-Coincidental Peak) ";
constexpr std::string_view paperSeparator = "                    ***************                         ";

std::string amps(double tenths, std::string_view pattern) {
    return Format(tenths / 10, pattern);
}

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

std::size_t columnsOf(std::string_view utf8) {
    return utf8.size() - static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), isContinuation));
}

// As many tabs as lead from the end of a label to a tab stop.
std::string tabsTo(std::size_t stop, std::string_view label) {
    return std::string(stop - columnsOf(label) / tabColumns, '\t');
}

std::string stationLine(const SurveyData& survey, std::size_t feeder) {
    return "   F" + std::to_string(feeder + 1) + ":  " + survey.feederNames[feeder];
}

std::string feederBlock(const SurveyData& survey, std::size_t feeder) {
    return "Feeder " + std::to_string(feeder + 1) + "  " + survey.feederNames[feeder] + std::string(lineEnd) +
           feederResult(survey, static_cast<int>(feeder)) + std::string(lineEnd);
}

std::string noticesBlock(const SurveyData& survey) {
    if (survey.notices.empty())
        return {};
    std::string text = "\r\nNotices\r\n";
    for (const std::string& notice : survey.notices)
        text += "  " + notice + std::string(lineEnd);
    return text;
}

// All that stands above the station peak.
std::string paperHead(const SurveyData& survey) {
    std::string text = " STATION NAME: " + survey.stationName + "\r\n\r\n";
    text.append(paperFeeders).append(lineEnd).append(lineEnd);
    for (std::size_t feeder = 0; feeder < survey.feederPeaks.size(); ++feeder)
        if (survey.feederPeaks[feeder])
            text += feederBlock(survey, feeder);
    return text.append(paperSeparator).append(lineEnd);
}

SurveyPaper paper(const std::string& text, ReadingTime date) {
    std::string title(paperTitle);
    title.resize(paperTitleColumns, ' ');
    return {title + formatTime(date, "%b %d, %Y"), expandTabs(text)};
}

} // namespace

std::string stationLabel(const SurveyData& survey) {
    return "STATION: " + survey.stationName;
}

std::string feederLabel(const SurveyData& survey, int feeder) {
    return "  F" + std::to_string(feeder + 1) + ": " +
           survey.feederNames.at(static_cast<std::size_t>(feeder));
}

std::string feederResult(const SurveyData& survey, int feeder) {
    const FeederPeaks& peaks = survey.feederPeaks.at(static_cast<std::size_t>(feeder)).value();
    std::string text = "\t\t" + std::string(resultHeading) + std::string(lineEnd);
    for (std::size_t phase = 0; phase < peaks.size(); ++phase) {
        const PhasePeak& peak = peaks[phase];
        text.append(resultLines[phase]).append("\t").append(amps(peak.currents[phase], "0000"));
        text.append(resultFill).append("\t").append(formatTime(peak.time, peakTime)).append(lineEnd);
    }
    text.append(lineEnd).append(momentHeading).append(lineEnd);
    for (std::size_t phase = 0; phase < peaks.size(); ++phase) {
        text.append(momentLines[phase]);
        for (const std::int16_t current : peaks[phase].currents)
            text.append("\t").append(amps(current, "0000"));
        text.append("\t").append(amps(static_cast<double>(peaks[phase].sum), "0000")).append(lineEnd);
    }
    return text;
}

std::string stationReport(const SurveyData& survey) {
    const StationPeak& peak = survey.stationPeak.value();
    std::size_t widest = 0;
    for (std::size_t feeder = 0; feeder < peak.feeders.size(); ++feeder)
        if (peak.feeders[feeder])
            widest = std::max(widest, columnsOf(stationLine(survey, feeder)));
    // Room for two blanks after the widest name, so that the fields stay apart.
    const std::size_t stop = (widest + 1) / tabColumns + 1;
    std::string text = formatTime(peak.time, stationTime).append(lineEnd);
    text.append(stationTimeHeading).append(lineEnd);
    text.append(tabsTo(stop, {})).append(stationPhases).append(lineEnd);
    for (std::size_t feeder = 0; feeder < peak.feeders.size(); ++feeder) {
        if (!peak.feeders[feeder])
            continue;
        const auto& [red, white, blue] = *peak.feeders[feeder];
        const std::string label = stationLine(survey, feeder);
        text.append(label).append(tabsTo(stop, label)).append(amps(red, " 0000")).append(afterRed);
        text.append(amps(white, " 0000")).append(afterWhite).append(amps(blue, " 0000")).append(lineEnd);
    }
    text += "Station: " + survey.stationName + std::string(lineEnd);
    for (const int feeder : peak.leftOut)
        text += "Left out: " + stationLine(survey, static_cast<std::size_t>(feeder)).substr(3) +
                ". The peak covers the feeders up to the one that was loaded last." + std::string(lineEnd);
    return text;
}

SurveyPaper feedersPaper(const SurveyData& survey, ReadingTime date) {
    return paper(paperHead(survey) + noticesBlock(survey), date);
}

SurveyPaper stationPaper(const SurveyData& survey, ReadingTime date) {
    std::string text = paperHead(survey) + std::string(lineEnd);
    text.append(stationCaption).append(lineEnd).append(stationReport(survey));
    return paper(text + noticesBlock(survey), date);
}

std::string expandTabs(std::string_view text) {
    std::string expanded;
    std::size_t column = 0;
    for (const char c : text) {
        if (c == '\t') {
            const std::size_t blanks = tabColumns - column % tabColumns;
            expanded.append(blanks, ' ');
            column += blanks;
            continue;
        }
        expanded += c;
        column = c == '\n' || c == '\r' ? 0 : column + (isContinuation(c) ? 0U : 1U);
    }
    return expanded;
}

} // namespace tally
