// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/AxisChoice.h"

#include "core/Numbers.h"

#include <algorithm>

namespace tally {

namespace {

constexpr double roomAboveLimit = 1.05;

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// The words of a text, parted by blanks and the given sign.
std::vector<std::string> wordsOf(std::string_view text, char also) {
    std::vector<std::string> words(1);
    for (const char c : text)
        if (c == ' ' || c == '\t' || c == also)
            words.emplace_back();
        else
            words.back() += c;
    std::erase(words, std::string());
    return words;
}

std::optional<AxisUnit> unitOf(std::string_view word) {
    if (word == "A" || word == "a")
        return AxisUnit::amperes;
    if (word == "V" || word == "v")
        return AxisUnit::volts;
    return word == "KW" || word == "kW" || word == "kw" ? std::optional(AxisUnit::kilowatts) : std::nullopt;
}

tl::unexpected<Refusal> noAxis(std::string_view entry) {
    return refuse("An axis is given as two numbers, the lower one first, such as 0 to 400.",
                  std::string(entry), "The axis stays as it was.");
}

tl::unexpected<Refusal> noLimit(std::string_view part) {
    return refuse("A limit line begins with its value, such as 400 Rating.", std::string(part),
                  "The limit lines stay as they were.");
}

Expected<LimitEntry> limitOf(std::string_view part, AxisUnit unit) {
    std::vector<std::string> words = wordsOf(part, ' ');
    const auto value = words.empty() ? std::nullopt : plainNumber(words.front());
    if (!value)
        return noLimit(part);
    words.erase(words.begin());
    LimitEntry limit{unit, {*value, {}, 0}};
    if (!words.empty())
        if (const auto said = unitOf(words.front())) {
            limit.unit = *said;
            words.erase(words.begin());
        }
    for (const std::string& word : words)
        limit.line.label += (limit.line.label.empty() ? "" : " ") + word;
    return limit;
}

} // namespace

AxisUnit axisUnitOf(char unit) {
    return unit == 'V' ? AxisUnit::volts : AxisUnit::amperes;
}

const char* axisUnitName(AxisUnit unit) {
    constexpr std::array<const char*, axisUnits> names = {"A", "V", "KW"};
    return names.at(static_cast<std::size_t>(unit));
}

Expected<FixedAxisEntry> fixedAxisOf(std::string_view entry) {
    std::vector<std::string> words = wordsOf(entry, ';');
    if (words.empty())
        return FixedAxisEntry{};
    std::erase(words, "to");
    FixedAxisEntry axis;
    if (words.size() == 3) {
        axis.unit = unitOf(words.back());
        if (axis.unit)
            words.pop_back();
    }
    if (words.size() != 2)
        return noAxis(entry);
    const auto min = plainNumber(words[0]);
    const auto max = plainNumber(words[1]);
    if (!min || !max || *min >= *max)
        return noAxis(entry);
    axis.fixed = FixedAxis{*min, *max};
    return axis;
}

std::string fixedAxisText(const AxisChoice& choice) {
    return choice.fixed ? plain(choice.fixed->min) + " to " + plain(choice.fixed->max) : std::string();
}

Expected<std::vector<LimitEntry>> limitsOf(std::string_view entry, AxisUnit unit) {
    std::vector<LimitEntry> limits;
    while (!trimmed(entry).empty()) {
        const auto end = std::min(entry.find(';'), entry.size());
        if (const auto part = trimmed(entry.substr(0, end)); !part.empty()) {
            auto limit = limitOf(part, unit);
            if (!limit)
                return tl::make_unexpected(limit.error());
            limits.push_back(std::move(*limit));
        }
        entry.remove_prefix(std::min(end + 1, entry.size()));
    }
    return limits;
}

std::string limitsText(const AxisChoice& choice) {
    std::string text;
    for (const LimitLine& line : choice.limits)
        text += (text.empty() ? "" : "; ") + plain(line.value) + (line.label.empty() ? "" : " " + line.label);
    return text;
}

void applyChoice(Plot& plot, UnitAxis& axis, int index, AxisUnit unit, const AxisChoice& choice) {
    for (LimitLine line : choice.limits) {
        line.axis = index;
        line.label += (line.label.empty() ? "" : " ") + plain(line.value) + " " + axisUnitName(unit);
        plot.limits.push_back(line);
        axis.min = std::min(axis.min, Int(line.value));
        axis.max = std::max(axis.max, line.value * roomAboveLimit);
    }
    if (!choice.fixed)
        return;
    axis.min = choice.fixed->min;
    axis.max = choice.fixed->max;
    plot.remark += (plot.remark.empty() ? "" : "; ") + ("Axis fixed at " + fixedAxisText(choice)) + " " +
                   axisUnitName(unit);
}

} // namespace tally
