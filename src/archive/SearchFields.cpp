// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/SearchFields.h"

#include "archive/Day.h"

#include <sstream>

namespace tally::archive {

namespace {

constexpr std::size_t yearLength = 4;
constexpr std::size_t monthLength = 7;
constexpr int daysOver = 32; // from the first of a month surely into the next

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// The last day of the month that a day lies in.
int lastOfMonth(int day) {
    const int inNext = *parseDay(dayText(day).substr(0, monthLength) + "-01") + daysOver;
    return *parseDay(dayText(inNext).substr(0, monthLength) + "-01") - 1;
}

Expected<std::optional<DaySpan>> spanOf(const std::string& typed) {
    const std::string text = trimmed(typed);
    if (text.empty())
        return std::optional<DaySpan>();
    const auto days = daysOf(text);
    if (!days)
        return refuse("'" + text + "' is no date", {}, "Write 2009, 2009-03 or 2009-03-15.");
    return days;
}

} // namespace

std::optional<DaySpan> daysOf(std::string_view text) {
    const std::string typed(text);
    if (const auto day = parseDay(typed))
        return DaySpan{*day, *day};
    if (typed.size() == monthLength)
        if (const auto first = parseDay(typed + "-01"))
            return DaySpan{*first, lastOfMonth(*first)};
    if (typed.size() == yearLength) {
        const auto first = parseDay(typed + "-01-01");
        const auto last = parseDay(typed + "-12-31");
        if (first && last)
            return DaySpan{*first, *last};
    }
    return std::nullopt;
}

Expected<Selection> selectionOf(const SearchFields& fields) {
    const auto from = spanOf(fields.from);
    const auto to = spanOf(fields.to);
    if (!from || !to)
        return tl::make_unexpected(from ? to.error() : from.error());
    Selection selection;
    if (*from)
        selection.from = (*from)->first;
    if (*to)
        selection.to = (*to)->last;
    if (selection.from && selection.to && *selection.to < *selection.from)
        return refuse("The dates are turned round");
    std::istringstream words(fields.words);
    for (std::string word; words >> word;)
        selection.words.push_back(word);
    selection.unit = fields.unit;
    return selection;
}

} // namespace tally::archive
