// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "export/ExportDesk.h"

#include <functional>
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

// Makes the kilowatts of the last power plot cover the report's range (powerForReport), with whatever has to
// be asked; false when it was cancelled or refused, which it has told.
using MakePower = std::function<bool()>;

// Writes the hourly metering report of the open files. `recorderId` (UTF-8) is offered as the identifier and
// keeps the answer for the next time. Resets the view kind. Throws file faults; then nothing was written.
ExportOutcome expmv90(const ExportDesk& desk, std::string& recorderId, const MakePower& makePower);

} // namespace tally
