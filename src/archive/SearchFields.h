// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/ArchiveStore.h"
#include "core/Refusal.h"

#include <optional>
#include <string>
#include <string_view>

namespace tally::archive {

// What a person typed to narrow what is shown of an archive.
struct SearchFields {
    std::string words; // with blanks between
    std::optional<char> unit;
    std::string from; // "2009", "2009-03", "2009-03-15" or nothing
    std::string to;
};

// The dates of a day, a month or a year; nothing for what is none.
std::optional<DaySpan> daysOf(std::string_view text);

// What is asked of the store. Refused: what is no date, dates that are turned round.
Expected<Selection> selectionOf(const SearchFields& fields);

} // namespace tally::archive
