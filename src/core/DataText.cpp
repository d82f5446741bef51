// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DataText.h"

#include "core/DataItems.h"
#include "core/Header.h"
#include "core/ModeTable.h"

#include <algorithm>
#include <optional>
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
        const auto [least, most] = std::minmax({triple[0], triple[1], triple[2]});
        const int middle = triple[0] + triple[1] + triple[2] - least - most;
        triple[0] = static_cast<std::int16_t>(middle);
        triple[1] = most;
        triple[2] = least;
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
    facts.count = static_cast<int>(items.readings.size());
    if (isMinMaxAvg(facts.modeLetter) && form != 'T')
        orderTriples(items.readings);
    facts.largest = *std::max_element(items.readings.begin(), items.readings.end());
    facts.smallest = *std::min_element(items.readings.begin(), items.readings.end());
    facts.start = startTime(facts);
    recording.readings = std::move(items.readings);
    return recording;
}

} // namespace

std::variant<DataHeader, DataRefusal> findDataHeader(std::string_view bytes) {
    const auto begin = bytes.find_first_of(familyInitials);
    if (begin == std::string_view::npos)
        return DataRefusal::noHeader;
    const auto end = bytes.find_first_of("\r\n\x1a", begin);
    // A header is one line that ends with CR; anything else was cut or damaged.
    if (end == std::string_view::npos || bytes[end] != '\r')
        return DataRefusal::noHeader;
    DataHeader header;
    header.text = bytes.substr(begin, end - begin);
    header.end = end + 1;
    if (header.end < bytes.size() && bytes[header.end] == '\n')
        ++header.end;
    if (header.text.size() < column::mode.end())
        return DataRefusal::badMode;
    header.typeLetter = header.text[column::type.at];
    header.modeLetter = modeLetterOf(header.text);
    if (!isMode(header.modeLetter))
        return DataRefusal::badMode;
    if (!repairOlderLayout(header.text))
        return DataRefusal::badTime;
    return header;
}

std::variant<Recording, DataRefusal> readDataText(std::string_view bytes, bool cutShort) {
    const auto found = findDataHeader(bytes);
    if (const auto* refusal = std::get_if<DataRefusal>(&found))
        return *refusal;
    const auto& header = std::get<DataHeader>(found);
    const auto time = parseHeaderTime(headerField(header.text, column::time));
    if (!time)
        return DataRefusal::badTime;

    std::string_view text = bytes.substr(header.end);
    text.remove_prefix(std::min(text.find_first_not_of("\r\n"), text.size()));
    if (text.empty())
        return DataRefusal::noReadings;
    const char form = text.front();
    if (form == 'T')
        text = withoutFormItem(text);
    const bool low = firstLine(text).find('.') != std::string_view::npos;
    DataItems items = readDataItems(text, low);
    if (items.outOfRange)
        return DataRefusal::outOfRange;
    if (cutShort && !items.ended)
        return DataRefusal::tooLong;
    if (items.readings.empty())
        return DataRefusal::noReadings;
    return makeRecording(header, *time, form, low, std::move(items));
}

} // namespace tally
