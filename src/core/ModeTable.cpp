// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ModeTable.h"

#include "core/Fault.h"

#include <array>

namespace tally {

namespace {

constexpr std::array<ModeRow, 13> rows = {{{15, "Cont"},
                                           {5, "Cont"},
                                           {1, "Cont"},
                                           {15, "Stop"},
                                           {5, "Stop"},
                                           {1, "Stop"},
                                           {15, "Cont"},
                                           {5, "Cont"},
                                           {1, "Cont"},
                                           {15, "Stop"},
                                           {5, "Stop"},
                                           {1, "Stop"},
                                           {0, ""}}};

} // namespace

const ModeRow& modeRow(char letter) {
    const int row = letter - 'a';
    if (row < 0 || row >= static_cast<int>(rows.size()))
        throw fault::subscript();
    return rows[static_cast<std::size_t>(row)];
}

bool isMode(char letter) {
    return letter >= 'a' && letter <= 'l';
}

bool isMinMaxAvg(char letter) {
    return letter > 'f';
}

int valuesPerInterval(char letter) {
    return isMinMaxAvg(letter) ? 3 : 1;
}

char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

char upperCase(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

} // namespace tally
