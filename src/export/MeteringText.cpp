// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/MeteringText.h"

#include "core/Fault.h"
#include "core/Numbers.h"
#include "core/Text1252.h"

#include <cmath>

namespace tally {

namespace {

constexpr std::size_t identifierChars = 14;
constexpr std::string_view noIdentifier = " N/A ";
constexpr int interval = 15;
constexpr int perHour = 4;
constexpr int minutesPerDay = 24 * 60;
constexpr std::size_t columnChars = 11;
constexpr std::size_t paddingChars = 157;
constexpr std::string_view numberFormat = "         0";
constexpr std::string_view zeroColumn = "         0";
constexpr std::string_view header =
    R"("RECORDER ID"," DATE"," HOUR"," IN"," UN","     KW","   KVAR","       ","       ")";
constexpr std::string_view lengthAndUnit = "60,\"   KW\",";
constexpr std::string_view lineEnd = "\r\n";

// A number with its comma, as it comes out of the format.
std::string column(float value) {
    return Format(value, numberFormat) + ",";
}

std::string fixedColumn(float value) {
    const std::string text = column(value);
    return text.substr(text.size() - columnChars);
}

// An hour is named by its end; midnight is the 24th hour of the day that it ends.
std::string dateAndHour(ReadingTime end) {
    if (formatTime(end, "%H%M") == "0000")
        return formatTime(end - minutesPerDay, "%y%m%d,") + "2400,";
    return formatTime(end, "%y%m%d,%H%M,");
}

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

} // namespace

std::string identifierField(std::string_view answer) {
    std::string field;
    const std::string text = repairedUtf8(answer);
    for (std::size_t from = 0; from < text.size();) {
        std::size_t to = from + 1;
        while (to < text.size() && isContinuation(text[to]))
            ++to;
        field += to1252(std::string_view(text).substr(from, to - from)).value_or("?");
        from = to;
    }
    if (field.empty())
        field = noIdentifier;
    field.resize(identifierChars, ' ');
    return field;
}

WholeHours wholeHours(ReadingTime firstReading, int readings) {
    const CivilTime civil = toCivil(firstReading);
    const int minuteOfDay = civil.hour * 60 + civil.minute;
    const int first = minuteOfDay < interval ? 0 : (minutesPerDay - minuteOfDay + interval - 1) / interval;
    const int after = readings - first;
    const ReadingTime start = firstReading + std::int64_t{first} * interval;
    return {first, after < perHour ? 0 : after / perHour, start - toCivil(start).minute + 60};
}

std::string meteringText(std::string_view identifier, std::span<const float> kilowatts,
                         const WholeHours& hours, float powerFactor) {
    const std::string padding(paddingChars, ' ');
    const std::string lead = "\"" + std::string(identifier) + "\",";
    const float reactive = std::sqrt(1.0F - powerFactor * powerFactor);
    std::string text = std::string(header).append(padding).append(lineEnd);
    auto left = kilowatts.subspan(static_cast<std::size_t>(hours.first));
    ReadingTime end = hours.firstEnd;
    for (int hour = 0; hour < hours.count; ++hour) {
        const float kw = (left[0] + left[1] + left[2] + left[3]) / 4.0F;
        const float kva = kw / powerFactor;
        if (!std::isfinite(kva))
            throw fault::overflow();
        text += lead;
        text += dateAndHour(end);
        text += lengthAndUnit;
        text += fixedColumn(kw);
        text += fixedColumn(kva * reactive);
        text += column(kva);
        text += zeroColumn;
        text += padding;
        text += lineEnd;
        left = left.subspan(perHour);
        end = end + 60;
    }
    return text;
}

} // namespace tally
