// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ModeTable.h"
#include "core/ReadingTime.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace tally::testing {

// What a data text says, worked out the slow and simple way: copies, one character at a time, floating point.
// The reader is held against it.
struct PlainReading {
    std::vector<int> tenths; // oldest first
    bool low = false;
    int unreadable = 0;
};

inline bool plainIn(char c, const char* set) {
    return c != '\0' && std::string(set).find(c) != std::string::npos;
}

inline bool hasDigit(const std::string& text) {
    return text.find_first_of("0123456789") != std::string::npos;
}

// Whether a run of touching characters is what a save writes for some numbers, and which: each as its
// shortest decimal, four characters or more but for the first.
inline bool plainFields(const std::string& run, std::vector<std::string>& fields) {
    if (run.empty())
        return true;
    for (std::size_t length = fields.empty() ? 1 : 4; length <= std::min<std::size_t>(5, run.size());
         ++length) {
        const std::string field = run.substr(0, length);
        const std::size_t digits = length - (field[0] == '-' ? 1 : 0);
        if (field.find_first_not_of("-0123456789") != std::string::npos || !hasDigit(field) || digits > 4 ||
            std::to_string(std::atoi(field.c_str())) != field)
            continue;
        fields.push_back(field);
        if (plainFields(run.substr(length), fields))
            return true;
        fields.pop_back();
    }
    return false;
}

// The items that one run of characters stands for; none when they cannot be told apart.
inline std::vector<std::string> plainItems(std::string token, bool low) {
    std::vector<std::string> items;
    if (low && std::count(token.begin(), token.end(), '.') > 1) {
        std::string item;
        for (std::size_t i = 0; i < token.size(); ++i) {
            item += token[i];
            const bool cut = item.size() >= 2 && item.find('.') == item.size() - 2;
            if (cut && hasDigit(token.substr(i + 1))) {
                items.push_back(item);
                item.clear();
            }
        }
        if (!item.empty())
            items.push_back(item);
        return items;
    }
    if (!low && token.find_first_not_of("-0123456789") == std::string::npos) {
        if (plainFields(token, items))
            return items;
        std::size_t digits = 0;
        for (const char c : token) {
            digits = c == '-' ? 0 : digits + 1;
            if (digits > 4)
                return {};
        }
    }
    return {token};
}

inline std::optional<PlainReading> plainRead(const std::string& bytes) {
    const auto begin = bytes.find_first_of("HPK");
    if (begin == std::string::npos)
        return std::nullopt;
    std::string header;
    auto at = begin;
    while (at < bytes.size() && !plainIn(bytes[at], "\r\n\x1a"))
        header += bytes[at++];
    if (at == bytes.size() || bytes[at] != '\r' || header.size() < 44)
        return std::nullopt;
    if (header.size() > 51 && header.substr(44, 8) != "   Vbatt") {
        if (header.size() < 60)
            return std::nullopt;
        header = header.substr(0, 30) + header.substr(46, 14) + header.substr(44);
    }
    const char mode = header[3] == ' ' ? 'a' : lowerCase(header[3]);
    if (!isMode(mode) || !parseHeaderTime(header.substr(30, 14)))
        return std::nullopt;

    std::string text = bytes.substr(at);
    text.erase(0, text.find_first_not_of("\r\n"));
    const bool formT = !text.empty() && text[0] == 'T';
    if (formT && text.substr(0, 2) == "T:")
        text.erase(0, 2);
    else if (formT)
        text.erase(0, text.find_first_of(" ,\t\n\v\f\r\x1a"));

    PlainReading reading;
    const auto end = text.find('\x1a');
    std::string body = text.substr(0, end);
    if (end != std::string::npos && hasDigit(text.substr(end)))
        ++reading.unreadable;
    if (end == std::string::npos) {
        body.erase(body.find_last_not_of(" ,\t\n\v\f\r") + 1);
        if (!body.empty() && body.back() == '"')
            body.pop_back();
    }
    const auto first = body.find_first_not_of(" ,\t\n\v\f\r");
    if (first == std::string::npos)
        return std::nullopt;
    reading.low =
        body.substr(first, body.find_first_of("\r\n", first) - first).find('.') != std::string::npos;

    std::string token;
    for (const char c : body + ' ') {
        if (!plainIn(c, " ,\t\n\v\f\r")) {
            token += c;
            continue;
        }
        if (token.empty())
            continue;
        const std::vector<std::string> items = plainItems(token, reading.low);
        if (items.empty())
            return std::nullopt;
        for (const std::string& item : items) {
            std::size_t length = plainIn(item[0], "+-") ? 1 : 0;
            length = std::min(item.find_first_not_of("0123456789", length), item.size());
            if (length < item.size() && item[length] == '.')
                length = std::min(item.find_first_not_of("0123456789", length + 1), item.size());
            const std::string number = item.substr(0, length);
            const double value = std::nearbyint(std::strtod(number.c_str(), nullptr) * 10);
            if (value > 32767 || value < -32768)
                return std::nullopt;
            reading.unreadable += length == item.size() && hasDigit(number) ? 0 : 1;
            reading.tenths.insert(reading.tenths.begin(), static_cast<int>(value));
        }
        token.clear();
    }
    if (reading.tenths.empty())
        return std::nullopt;
    if (isMinMaxAvg(mode) && !formT)
        for (auto i = static_cast<std::ptrdiff_t>(reading.tenths.size()) - 3; i >= 0; i -= 3) {
            std::vector<int> triple(reading.tenths.begin() + i, reading.tenths.begin() + i + 3);
            std::sort(triple.begin(), triple.end());
            reading.tenths[static_cast<std::size_t>(i)] = triple[1];
            reading.tenths[static_cast<std::size_t>(i) + 1] = triple[2];
            reading.tenths[static_cast<std::size_t>(i) + 2] = triple[0];
        }
    return reading;
}

} // namespace tally::testing
