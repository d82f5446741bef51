// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "survey/SurveyData.h"

#include <string>
#include <string_view>

namespace tally {

inline constexpr std::string_view resultTitle = "TARNWELL STATION FEEDER REPORT";
inline constexpr std::string_view resultCaption = "FEEDER AMPS DURING FEEDER PEAK (NON-COINCIDENTAL)  ";
// How the time of a peak is shown: six blanks between hour and date.
inline constexpr std::string_view peakTime = "%H:%M      %b %d, %y";
inline constexpr std::string_view stationCaption =
    "Feeder Phase Amps During Station Peak (Coincidental Peak)";

// Texts in whole amperes, lines ended by CR LF, columns set apart by tabs of eight characters.

// "STATION: " and the name.
std::string stationLabel(const SurveyData& survey);
// Which feeder a result is of, as the result's dialog shows it.
std::string feederLabel(const SurveyData& survey, int feeder);
// The peaks of a feeder whose result was worked out.
std::string feederResult(const SurveyData& survey, int feeder);
// The station peak that was worked out.
std::string stationReport(const SurveyData& survey);

// A report for the printer; tabs have become blanks.
struct SurveyPaper {
    std::string title; // the first line of each page
    std::string text;
};
// The feeders whose result was worked out; the same with the station peak. The date is that of printing.
SurveyPaper feedersPaper(const SurveyData& survey, ReadingTime date);
SurveyPaper stationPaper(const SurveyData& survey, ReadingTime date);

// Tabs as blanks up to the next column that is a multiple of eight characters.
std::string expandTabs(std::string_view text);

} // namespace tally
