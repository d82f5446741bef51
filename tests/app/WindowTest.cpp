// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowTest.h"

#include <cstdio>

namespace tally::testing {

std::string dataFile(char modeLetter, const std::vector<int>& tenths, char typeLetter, bool low,
                     const std::string& time) {
    std::string text = "\r\n\n\nPQ";
    text += typeLetter;
    text += modeLetter;
    text += "   1234" + std::string(19, ' ') + time + "   Vbatt 1F0\r";
    int inLine = 0;
    for (auto value = tenths.rbegin(); value != tenths.rend(); ++value) {
        if (inLine++ == 10) {
            text += "\n\r";
            inLine = 1;
        }
        char field[16];
        if (low)
            std::snprintf(field, sizeof field, "%3d.%d", *value / 10, *value % 10);
        else
            std::snprintf(field, sizeof field, "%4d", *value / 10);
        text += field;
    }
    return text + "\x1a";
}

void WindowTest::open(const std::string& path, const std::string& bytes) {
    files.contents[path] = bytes;
    prompt.files.push_back(path);
    click("mnuItemOpen");
}

void WindowTest::mark(int first, int last) {
    Chart& chart = window.screen().chart();
    Q_EMIT chart.spanStarted(first);
    Q_EMIT chart.spanEnded(last);
}

} // namespace tally::testing
