// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"
#include "export/ExportPlace.h"
#include "export/MeteringText.h"
#include "view/Power.h"

#include <string>

namespace tally {

inline constexpr std::string_view meteringName = "Lotusint.prn";
inline constexpr std::string_view meteringWrongMode =
    "            NOT A VALID MODE    \r   INTERVAL MUST BE 15 MINUTES    \r\r";
inline constexpr std::string_view meteringNoWholeHour =
    "The readings hold no whole hour after a midnight. No report was written.";
inline constexpr std::string_view meteringBadFactor =
    "The power factor in use is above 1; use OPTIONS to alter it. No report was written.";
inline constexpr std::string_view meteringBadId =
    "A Recorder ID can hold no double quotes and no control characters. No report was written.";

// A report that can be written: what is refused is refused before anything is asked or worked out.
struct MeteringPlan {
    Range range; // of the first file
    WholeHours hours;
    std::string path;
};
Expected<MeteringPlan> planMetering(const Recordings& recordings, const Range& range, float powerFactor,
                                    const ExportPlace& place);

// The question for the recorder's identifier (UTF-8); `preset` is the one of the last report.
InputQuestion recorderQuestion(float powerFactor, const std::string& preset);

// Writes the hourly metering report from the power of the plan's range. Throws file faults and Overflow; then
// nothing was written.
Expected<Exported> expmv90(const MeteringPlan& plan, const Power& power, const std::string& identifier,
                           Files& files);

// An identifier as a report keeps it: what its field holds of it.
std::string keptIdentifier(const std::string& identifier);

} // namespace tally
