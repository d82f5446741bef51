// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Texts.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace tally::sim {

namespace {

constexpr std::size_t perLine = 10;
constexpr char ctrlZ = '\x1a';
// What a line at the wrong rate looks like: no initial, no end, no digit.
constexpr std::array<unsigned char, 8> rubbish = {0x80, 0xFE, 0x00, 0xE0, 0xFC, 0x1C, 0xF8, 0xC0};

std::string number(int value, bool low) {
    std::array<char, 32> text = {};
    if (low)
        std::snprintf(text.data(), text.size(), "%3d.%d", value / 10, value % 10);
    else
        std::snprintf(text.data(), text.size(), "%4d", value);
    return text.data();
}

// The readings as they are written, with the faults of single ones.
std::vector<std::string> fields(const std::vector<int>& values, bool low, const Faults& faults) {
    std::vector<std::string> result;
    result.reserve(values.size());
    for (const int value : values)
        result.push_back(number(value, low));
    const auto first = [&](int count) { return std::min(result.size(), static_cast<std::size_t>(count)); };
    for (std::size_t i = 0; i < first(faults.over); ++i)
        result[i] = " 1234";
    for (std::size_t i = 0; i < first(faults.nines); ++i)
        result[i] = " 999";
    return result;
}

std::string line(const std::vector<std::string>& all, std::size_t from, const Faults& faults) {
    const int number = static_cast<int>(from / perLine) + 1;
    std::size_t count = std::min(perLine, all.size() - from);
    if (number == faults.shortLine)
        --count;
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += all[from + i];
    if (number == faults.longLine)
        text += all[from];
    if (number == faults.damagedLine)
        text += 'A';
    return text;
}

std::string binaryText(int count) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += static_cast<char>((i * 151 + 128) & 0xFF);
    return text;
}

} // namespace

std::string headerText(const Header& header, Layout layout) {
    std::string text = header.code;
    text.resize(3, ' ');
    text += header.mode;
    text += "   ";
    std::string serial = header.serial;
    serial.resize(4, ' ');
    text += serial;
    std::string time = header.time;
    time.resize(14, ' ');
    if (layout == Layout::older) {
        text.resize(46, ' ');
        return text + time;
    }
    text.resize(30, ' ');
    text += time;
    if (layout == Layout::brief)
        return text;
    std::array<char, 16> digits = {};
    std::snprintf(digits.data(), digits.size(), "%03X", static_cast<unsigned>(header.battery) & 0xFFFU);
    return text + "   Vbatt " + digits.data();
}

std::string lineEnd(Layout layout) {
    return layout == Layout::brief ? "\r\n" : "\r";
}

MemoryText memoryText(const Header& header, Layout layout, const std::vector<int>& newestFirst, bool low,
                      const Faults& faults) {
    if (faults.binary > 0)
        return {binaryText(faults.binary)};
    MemoryText result;
    for (int i = 0; i < faults.noise; ++i)
        result.text += static_cast<char>(rubbish[static_cast<std::size_t>(i) % rubbish.size()]);
    std::string head = headerText(header, layout);
    if (faults.headerCut > 0)
        head.resize(std::min(head.size(), static_cast<std::size_t>(faults.headerCut)));
    result.text += head + lineEnd(layout) + "T:";
    const std::size_t dataStart = result.text.size();
    const std::vector<std::string> all = fields(newestFirst, low, faults);
    for (std::size_t from = 0; from < all.size(); from += perLine) {
        result.text += line(all, from, faults);
        if (from == 0 && faults.doubleCtrlZ)
            result.text += ctrlZ;
        if (from + perLine < all.size())
            result.text += "\n\r";
    }
    if (faults.endless) {
        result.text += "\n\r";
        result.repeatFrom = dataStart;
    } else if (!faults.noCtrlZ) {
        result.text += ctrlZ;
    }
    return result;
}

} // namespace tally::sim
