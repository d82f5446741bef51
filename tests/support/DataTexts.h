// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace tally::testing {

// A header line of the current layout, without its line end.
struct TestHeader {
    char mode = 'a';
    std::string time = "03-15-99 10:30";
    char type = 'A';
    std::string serial = "4711";
};

inline std::string headerLine(const TestHeader& header = {}) {
    std::string line(44, ' ');
    line[0] = 'H';
    line[1] = '1';
    line[2] = header.type;
    line[3] = header.mode;
    line.replace(7, 4, header.serial);
    line.replace(13, 9, "INTERVAL ");
    line.replace(30, 14, header.time);
    return line + "   Vbatt  6.12";
}

// Fields of the writer: ten to a line, `width` characters each. `values` newest first, as they stand.
inline std::string fieldLines(const std::vector<std::string>& values, std::size_t width) {
    std::string text;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0 && i % 10 == 0)
            text += "\n\r";
        if (values[i].size() < width)
            text.append(width - values[i].size(), ' ');
        text += values[i];
    }
    return text;
}

// A data file as it stands on disk.
inline std::string dataFile(const TestHeader& header, const std::string& readings) {
    return "\"\r\n\n\n" + headerLine(header) + "\r" + readings + "\x1a\"\r\n";
}

} // namespace tally::testing
