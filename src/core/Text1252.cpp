// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Text1252.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tally {

namespace {

// The characters of the codes 0x80 to 0x9F; all others stand for their own number.
constexpr std::array<char32_t, 32> upperControls = {
    0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021, 0x2C6,  0x2030, 0x160,
    0x2039, 0x152,  0x8D,   0x17D,  0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};
constexpr unsigned firstControl = 0x80;
constexpr unsigned firstLatin = 0xA0;

constexpr std::string_view replacement = "\xEF\xBF\xBD"; // U+FFFD

void appendUtf8(std::string& text, char32_t c) {
    if (c < 0x80) {
        text += static_cast<char>(c);
        return;
    }
    if (c < 0x800) {
        text += static_cast<char>(0xC0 | (c >> 6));
    } else {
        text += static_cast<char>(0xE0 | (c >> 12));
        text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    }
    text += static_cast<char>(0x80 | (c & 0x3F));
}

// One character of UTF-8: its number and how many bytes it takes, 0 bytes when it is none.
struct Character {
    char32_t code = 0;
    std::size_t length = 0;
};

Character characterAt(std::string_view text, std::size_t at) {
    const auto lead = static_cast<unsigned char>(text[at]);
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 0;
    if (length == 0 || lead > 0xF4 || text.size() - at < length)
        return {};
    char32_t code = lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[at + i]);
        if ((next & 0xC0) != 0x80)
            return {};
        code = (code << 6) | (next & 0x3F);
    }
    constexpr std::array<char32_t, 5> minimum = {0, 0, 0x80, 0x800, 0x10000};
    if (code < minimum[length] || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF))
        return {};
    return {code, length};
}

} // namespace

std::string toUtf8(std::string_view bytes1252) {
    std::string text;
    text.reserve(bytes1252.size());
    for (const char c : bytes1252) {
        const unsigned code = static_cast<unsigned char>(c);
        const bool control = code >= firstControl && code < firstLatin;
        appendUtf8(text, control ? upperControls[code - firstControl] : static_cast<char32_t>(code));
    }
    return text;
}

std::optional<std::string> to1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const Character character = characterAt(utf8, at);
        if (character.length == 0)
            return std::nullopt;
        at += character.length;
        const auto code = character.code;
        if (code < firstControl || (code >= firstLatin && code <= 0xFF)) {
            bytes += static_cast<char>(code);
            continue;
        }
        const auto* found = std::find(upperControls.begin(), upperControls.end(), code);
        if (found == upperControls.end())
            return std::nullopt;
        bytes += static_cast<char>(firstControl + static_cast<unsigned>(found - upperControls.begin()));
    }
    return bytes;
}

std::string repairedUtf8(std::string_view text) {
    std::string repaired;
    repaired.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Character character = characterAt(text, at);
        repaired += character.length == 0 ? replacement : text.substr(at, character.length);
        at += std::max<std::size_t>(character.length, 1);
    }
    return repaired;
}

} // namespace tally
