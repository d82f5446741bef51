// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DataText.h"

#include "core/DataItems.h"
#include "core/Header.h"
#include "core/ModeTable.h"

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>

namespace tally {

namespace {

bool isLineBreak(char c) {
    return c == '\r' || c == '\n';
}

// The first line that holds anything to read.
std::string_view firstLine(std::string_view text) {
    const auto begin = std::find_if_not(text.begin(), text.end(), isDataSeparator);
    const auto end =
        std::find_if(begin, text.end(), [](char c) { return isLineBreak(c) || c == terminator; });
    return text.substr(static_cast<std::size_t>(begin - text.begin()), static_cast<std::size_t>(end - begin));
}

// "T:" is thrown away; where it is damaged, the item in its place.
std::string_view withoutFormItem(std::string_view text) {
    if (text.substr(0, 2) == "T:")
        return text.substr(2);
    const auto end =
        std::find_if(text.begin(), text.end(), [](char c) { return isDataSeparator(c) || c == terminator; });
    return text.substr(static_cast<std::size_t>(end - text.begin()));
}

// Smallest, largest, middle in the file, newest first: oldest first that is middle, largest, smallest.
// Triples are counted from the newest end; what is over at the oldest end stays as it is.
void orderTriples(std::vector<std::int16_t>& readings) {
    for (std::size_t end = readings.size(); end >= 3; end -= 3) {
        std::int16_t* triple = readings.data() + end - 3;
        const auto [lower, upper] = std::pair(std::min(triple[0], triple[1]), std::max(triple[0], triple[1]));
        const std::int16_t third = triple[2];
        triple[0] = std::max(lower, std::min(upper, third));
        triple[1] = std::max(upper, third);
        triple[2] = std::min(lower, third);
    }
}

// The time of reading 0. The header time is that of the newest reading, or lies in the interval after it.
ReadingTime startTime(const FileFacts& facts) {
    const int interval = modeRow(facts.modeLetter).minutes;
    const int intervals = intervalsOf(facts);
    if (facts.form == 'T')
        return facts.headerTime - std::int64_t{interval} * intervals;
    const int minute = toCivil(facts.headerTime).minute;
    const int upward = minute % interval == 0 ? 0 : interval * (minute / interval + 1) - minute;
    return facts.headerTime + upward - std::int64_t{interval} * (intervals + 1);
}

// Smallest and largest. In locals, so that many are looked at at once.
std::pair<std::int16_t, std::int16_t> extremes(const std::vector<std::int16_t>& readings) {
    std::int16_t smallest = readings.front();
    std::int16_t largest = smallest;
    for (const std::int16_t reading : readings) {
        smallest = std::min(smallest, reading);
        largest = std::max(largest, reading);
    }
    return {smallest, largest};
}

Recording makeRecording(const DataHeader& header, ReadingTime time, char form, bool low, DataItems items) {
    Recording recording;
    FileFacts& facts = recording.facts;
    facts.modeLetter = header.modeLetter;
    facts.typeLetter = header.typeLetter;
    facts.serial = headerField(header.text, column::serial);
    facts.header = header.text;
    facts.headerTime = time;
    facts.form = form;
    facts.low = low;
    facts.unreadable = items.unreadable;
    facts.complete = items.complete;
    facts.count = static_cast<int>(items.readings.size());
    if (isMinMaxAvg(facts.modeLetter) && form != 'T')
        orderTriples(items.readings);
    std::tie(facts.smallest, facts.largest) = extremes(items.readings);
    facts.start = startTime(facts);
    recording.readings = std::move(items.readings);
    return recording;
}

} // namespace

tl::expected<DataHeader, DataRefusal> findDataHeader(std::string_view bytes) {
    const auto begin = bytes.find_first_of(familyInitials);
    if (begin == std::string_view::npos)
        return tl::make_unexpected(DataRefusal::noHeader);
    const auto end = bytes.find_first_of("\r\n\x1a", begin);
    // A header is one line that ends with CR; anything else was cut or damaged.
    if (end == std::string_view::npos || bytes[end] != '\r')
        return tl::make_unexpected(DataRefusal::noHeader);
    DataHeader header;
    header.text = bytes.substr(begin, end - begin);
    header.end = end + 1;
    if (header.end < bytes.size() && bytes[header.end] == '\n')
        ++header.end;
    if (header.text.size() < column::mode.end())
        return tl::make_unexpected(DataRefusal::badMode);
    header.typeLetter = header.text[column::type.at];
    header.modeLetter = modeLetterOf(header.text);
    if (!isMode(header.modeLetter))
        return tl::make_unexpected(DataRefusal::badMode);
    if (!repairOlderLayout(header.text))
        return tl::make_unexpected(DataRefusal::badTime);
    return header;
}

tl::expected<Recording, DataRefusal> readDataText(std::string_view bytes, bool cutShort) {
    const auto header = findDataHeader(bytes);
    if (!header)
        return tl::make_unexpected(header.error());
    const auto time = parseHeaderTime(headerField(header->text, column::time));
    if (!time)
        return tl::make_unexpected(DataRefusal::badTime);

    std::string_view text = bytes.substr(header->end);
    text.remove_prefix(std::min(text.find_first_not_of("\r\n"), text.size()));
    if (text.empty())
        return tl::make_unexpected(DataRefusal::noReadings);
    const char form = text.front();
    if (form == 'T')
        text = withoutFormItem(text);
    const bool low = firstLine(text).find('.') != std::string_view::npos;
    DataItems items = readDataItems(text, low);
    if (items.outOfRange)
        return tl::make_unexpected(DataRefusal::outOfRange);
    if (items.touching)
        return tl::make_unexpected(DataRefusal::touching);
    if (cutShort && !items.ended)
        return tl::make_unexpected(DataRefusal::tooLong);
    if (items.readings.empty())
        return tl::make_unexpected(DataRefusal::noReadings);
    return makeRecording(*header, *time, form, low, std::move(items));
}

} // namespace tally
