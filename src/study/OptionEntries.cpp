// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/OptionEntries.h"

#include <algorithm>

namespace tally::study {

namespace {

// Reads entries one after the other; the first that makes no sense is kept, and what is read after it does
// not matter.
class Reader {
public:
    std::optional<Refusal> refusal;

    void refuse(const char* name, const std::string& text) {
        if (!refusal)
            refusal = Refusal{text, name};
    }
    Decimal decimal(const char* name, const std::string& text) {
        const auto number = decimalOf(text);
        if (!number)
            refuse(name, "'" + text + "' is no plain number");
        return number.value_or(Decimal{});
    }
    double above0(const char* name, const std::string& text) {
        const double number = decimal(name, text).value;
        if (number <= 0)
            refuse(name, "'" + text + "' is not above 0");
        return number;
    }
    double notBelow0(const char* name, const std::string& text) {
        const double number = decimal(name, text).value;
        if (number < 0)
            refuse(name, "'" + text + "' is below 0");
        return number;
    }
    void needs(const char* name, const std::optional<std::string>& entry, const char* other,
               const std::optional<std::string>& needed) {
        if (entry && !needed)
            refuse(name, "'" + *entry + "' needs a " + other);
    }
};

// 13,800 without its comma; a comma elsewhere stays and makes the text no number.
std::string withoutGroups(const std::string& text) {
    const auto point = std::min(text.find('.'), text.size());
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool groups = text[i] == ',' && i > 0 && i < point && (point - i) % 4 == 0;
        if (!groups)
            plain += text[i];
    }
    return plain;
}

int windowOf(Reader& reader, const std::string& text) {
    const double minutes = reader.decimal("window", text).value;
    for (const int window : demandWindows)
        if (minutes == window)
            return window;
    reader.refuse("window", "'" + text + "' is none of 5, 10, 15, 20, 30 and 60 minutes");
    return usualWindow;
}

void readLimits(Reader& reader, const OptionEntries& entries, StudyOptions& options) {
    if (entries.high)
        options.high = reader.decimal("high", *entries.high);
    if (entries.low)
        options.low = reader.decimal("low", *entries.low);
    if (options.high && options.low && options.high->value <= options.low->value)
        reader.refuse("high", "'" + *entries.high + "' is not above the low limit");
}

void readCapacity(Reader& reader, const OptionEntries& entries, StudyOptions& options) {
    reader.needs("add", entries.add, "rating", entries.rating);
    reader.needs("factor", entries.factor, "rating", entries.rating);
    if (!entries.rating)
        return;
    CapacityCheck check;
    check.rating = reader.above0("rating", *entries.rating);
    if (entries.add)
        check.add = reader.notBelow0("add", *entries.add);
    if (entries.factor)
        check.factor = reader.above0("factor", *entries.factor);
    options.capacity = check;
}

void readPower(Reader& reader, const OptionEntries& entries, StudyOptions& options) {
    reader.needs("pf", entries.pf, "voltage", entries.volts);
    if (!entries.volts)
        return;
    options.power = PowerBase{reader.above0("volts", withoutGroups(*entries.volts)), 1};
    if (entries.pf)
        options.power->factor = reader.notBelow0("pf", *entries.pf);
}

} // namespace

Expected<StudyOptions> optionsOf(const OptionEntries& entries) {
    Reader reader;
    StudyOptions options;
    if (entries.window)
        options.window = windowOf(reader, *entries.window);
    readLimits(reader, entries, options);
    readCapacity(reader, entries, options);
    readPower(reader, entries, options);
    for (const std::string& text : entries.holidays) {
        const auto day = holidayOf(text);
        if (!day)
            reader.refuse("holiday", "'" + text + "' is no date; write it as YYYY-MM-DD");
        options.holidays.push_back(day.value_or(0));
    }
    if (reader.refusal)
        return tl::make_unexpected(std::move(*reader.refusal));
    return options;
}

} // namespace tally::study
