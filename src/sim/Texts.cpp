// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Texts.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace tally::sim {

namespace {

constexpr std::size_t perLine = 10;
constexpr char ctrlZ = '\x1a';

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

// The data section without its end.
std::string lines(const std::vector<int>& newestFirst, bool low, const Faults& faults) {
    const std::vector<std::string> all = fields(newestFirst, low, faults);
    std::string text;
    for (std::size_t from = 0; from < all.size(); from += perLine) {
        text += line(all, from, faults);
        if (from == 0 && faults.doubleCtrlZ)
            text += ctrlZ;
        if (from + perLine < all.size())
            text += "\n\r";
    }
    return text;
}

std::string end(const Faults& faults) {
    if (faults.noCtrlZ)
        return {};
    return std::string(faults.twoCtrlZ ? 2 : 1, ctrlZ);
}

// What an adapter still held of an earlier, sound transmission.
std::string oldTail(const std::vector<int>& newestFirst, bool low, int count) {
    const std::string old = lines(newestFirst, low, {}) + ctrlZ;
    return old.substr(old.size() - std::min(old.size(), static_cast<std::size_t>(count)));
}

void insertEnd(MemoryText& memory, std::size_t at) {
    memory.text.insert(std::min(memory.text.size(), at), 1, ctrlZ);
    if (memory.repeatFrom != std::string::npos && at <= memory.repeatFrom)
        ++memory.repeatFrom;
}

std::string cutHeader(const Header& header, Layout layout, const Faults& faults) {
    std::string text = headerText(header, layout);
    if (faults.headerCut > 0)
        text.resize(std::min(text.size(), static_cast<std::size_t>(faults.headerCut)));
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

std::string rubbish(int count, std::mt19937& random) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += static_cast<char>(random() & 0xFFU);
    return text;
}

MemoryText memoryText(const Header& header, Layout layout, const std::vector<int>& newestFirst, bool low,
                      const Faults& faults, std::mt19937& random) {
    if (faults.binary > 0)
        return {binaryText(faults.binary)};
    MemoryText result;
    result.text = rubbish(faults.noise, random) + oldTail(newestFirst, low, faults.tail) +
                  cutHeader(header, layout, faults) + lineEnd(layout);
    if (!faults.headerOnly) {
        result.text += "T:";
        const std::size_t dataStart = result.text.size();
        result.text += lines(newestFirst, low, faults);
        result.text += faults.endless ? "\n\r" : end(faults);
        if (faults.endless)
            result.repeatFrom = dataStart;
    }
    if (faults.earlyCtrlZ >= 0)
        insertEnd(result, static_cast<std::size_t>(faults.earlyCtrlZ));
    return result;
}

} // namespace tally::sim
