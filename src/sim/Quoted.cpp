// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Quoted.h"

namespace tally::sim {

namespace {

const char* const digits = "0123456789ABCDEF";

int digitValue(char c) {
    const std::size_t place =
        std::string_view(digits).find(c >= 'a' && c <= 'f' ? static_cast<char>(c - 32) : c);
    return place == std::string_view::npos ? -1 : static_cast<int>(place);
}

// The byte that the escape after a backslash stands for, and how long that escape is; 0 for none.
struct Escape {
    char byte = 0;
    std::size_t length = 0;
};

Escape escape(std::string_view text) {
    switch (text.front()) {
    case '\\':
    case '"':
        return {text.front(), 1};
    case 'r':
        return {'\r', 1};
    case 'n':
        return {'\n', 1};
    case 'x': {
        const int high = text.size() < 3 ? -1 : digitValue(text[1]);
        const int low = text.size() < 3 ? -1 : digitValue(text[2]);
        if (high < 0 || low < 0)
            return {};
        return {static_cast<char>(high * 16 + low), 3};
    }
    default:
        return {};
    }
}

} // namespace

std::string quoted(std::string_view bytes) {
    std::string text = "\"";
    for (const char c : bytes) {
        const auto value = static_cast<unsigned char>(c);
        if (c == '\\' || c == '"')
            text += {'\\', c};
        else if (c == '\r')
            text += "\\r";
        else if (c == '\n')
            text += "\\n";
        else if (value >= 0x20 && value < 0x7F)
            text += c;
        else
            text += {'\\', 'x', digits[value >> 4], digits[value & 15]};
    }
    return text + '"';
}

std::optional<std::string> unquoted(std::string_view text) {
    if (text.size() < 2 || text.front() != '"' || text.back() != '"')
        return std::nullopt;
    text = text.substr(1, text.size() - 2);
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"')
            return std::nullopt;
        if (text[i] != '\\') {
            bytes += text[i];
            continue;
        }
        const Escape found = i + 1 < text.size() ? escape(text.substr(i + 1)) : Escape{};
        if (found.length == 0)
            return std::nullopt;
        bytes += found.byte;
        i += found.length;
    }
    return bytes;
}

} // namespace tally::sim
