// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "export/ExportPlace.h"
#include "support/MemoryFiles.h"
#include "support/SampleFile.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace tally::testing {

// A file in a folder, as the system writes paths.
inline std::string in(const std::string& folder, const std::string& name) {
    return (std::filesystem::path(folder) / name).string();
}

// Nothing is open; exports go to /out.
class ExportTest : public ::testing::Test {
protected:
    Recordings recordings;
    MemoryFiles files;
    ExportPlace place{files, "/out"};

    static std::string blanks(int count) { return std::string(static_cast<std::size_t>(count), ' '); }
};

inline std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t from = 0;
    for (auto at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", from)) {
        lines.push_back(text.substr(from, at - from));
        from = at + 2;
    }
    EXPECT_EQ(from, text.size()) << "the text does not end with CR LF";
    return lines;
}

} // namespace tally::testing
