// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/IniText.h"

#include <QStringDecoder>
#include <charconv>
#include <optional>

namespace tally {

namespace {

std::string_view trim(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// "\xE4": a byte of a file name that is no character.
std::optional<char> escapedByte(std::string_view text) {
    unsigned byte = 0;
    if (text.size() < 4 || text.substr(0, 2) != "\\x" ||
        std::from_chars(text.data() + 2, text.data() + 4, byte, 16).ptr != text.data() + 4)
        return {};
    return static_cast<char>(byte);
}

std::string unescape(std::string_view text) {
    constexpr std::string_view codes = "\\\"rnt";
    constexpr std::string_view stands = "\\\"\r\n\t";
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (const auto byte = escapedByte(text.substr(i))) {
            out += *byte;
            i += 3;
            continue;
        }
        const auto code =
            text[i] == '\\' && i + 1 < text.size() ? codes.find(text[i + 1]) : std::string::npos;
        if (code == std::string::npos) {
            out += text[i];
        } else {
            out += stands[code];
            ++i;
        }
    }
    return out;
}

bool isUtf8(std::string_view text) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    [[maybe_unused]] const QString decoded =
        decoder.decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    return !decoder.hasError();
}

std::string escape(std::string_view text) {
    constexpr std::string_view special = "\\\"\r\n\t";
    constexpr std::string_view codes = "\\\"rnt";
    constexpr std::string_view hexadecimal = "0123456789ABCDEF";
    const bool characters = isUtf8(text);
    std::string out;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const auto at = special.find(c);
        if (!characters && byte >= 0x80)
            out += {'\\', 'x', hexadecimal[byte >> 4], hexadecimal[byte & 0xF]};
        else if (at == std::string_view::npos)
            out += c;
        else
            (out += '\\') += codes[at];
    }
    return out;
}

// One line; false when it is none of ours. `section` follows the headings.
bool takeLine(std::string_view line, std::string& section, IniSections& sections) {
    if (line.empty() || line.front() == ';')
        return true;
    if (!isUtf8(line) || line.find('\0') != std::string_view::npos)
        return false;
    if (line.front() == '[') {
        if (line.size() < 3 || line.back() != ']')
            return false;
        section = line.substr(1, line.size() - 2);
        return true;
    }
    const auto equals = line.find('=');
    if (equals == 0 || equals == std::string_view::npos || section.empty())
        return false;
    std::string_view value = trim(line.substr(equals + 1));
    if (value.size() >= 2 && value.front() == '"' && value.back() == '"')
        value = value.substr(1, value.size() - 2);
    else if (!value.empty() && value.front() == '"')
        return false;
    sections[section][std::string(trim(line.substr(0, equals)))] = unescape(value);
    return true;
}

} // namespace

IniText parseIni(std::string_view text) {
    IniText ini;
    std::string section;
    while (!text.empty()) {
        const auto end = text.find('\n');
        ini.whole &= takeLine(trim(text.substr(0, end)), section, ini.sections);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    }
    return ini;
}

std::string formatIni(const IniSections& sections) {
    std::string text;
    for (const auto& [section, keys] : sections) {
        text += "[" + section + "]\n";
        for (const auto& [key, value] : keys) {
            const std::string escaped = escape(value);
            const bool bare = escaped == value && trim(value) == value;
            text += key + "=" + (bare ? value : '"' + escaped + '"') + "\n";
        }
    }
    return text;
}

} // namespace tally
