// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/ModeLetter.h"

#include "core/Fault.h"
#include "core/ModeTable.h"

namespace tally {

char modeLetter(const ModeChoice& choice) {
    for (char letter = 'a'; letter <= 'c'; ++letter)
        if (modeRow(letter).minutes == choice.minutes)
            return static_cast<char>(letter + (choice.minMaxAvg ? 6 : 0) + (choice.stopWhenFull ? 3 : 0));
    throw fault::subscript();
}

std::string initString(char letter, ReadingTime now) {
    const bool minMaxAvg = isMinMaxAvg(letter);
    const char reduced = static_cast<char>(minMaxAvg ? letter - 6 : letter);
    return headerTime(now) + " " + reduced + (minMaxAvg ? "1" : "0") + "\r";
}

} // namespace tally
