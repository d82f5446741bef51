// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace tally::testing {

struct Finished {
    int status = -1; // exit status; 128 + signal when killed
    std::string out;
    std::string err;
};

// Runs a program of the build's bin folder with arguments, waits for its end (at most 30 s, then it is
// killed) and gives what it printed.
Finished runProgram(const std::string& program, const std::vector<std::string>& arguments);

// A folder of its own that goes away with the object.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    // The path of a file in it; not made.
    std::string path(const std::string& name) const { return folder_ + "/" + name; }
    // Writes bytes into a file in it and gives its path.
    std::string write(const std::string& name, const std::string& bytes) const;
    static std::string read(const std::string& path);

private:
    std::string folder_;
};

} // namespace tally::testing
