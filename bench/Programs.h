// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace tally::bench {

// Starts a program of the build with its output thrown away and waits for its end.
inline void runToEnd(const std::string& program, const std::vector<std::string>& arguments) {
    const std::string path = std::string(TALLY_BIN_DIR) + "/" + program;
    std::vector<char*> argv = {const_cast<char*>(path.c_str())};
    for (const std::string& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    const int failed = posix_spawn(&child, path.c_str(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    if (failed != 0 || waitpid(child, &status, 0) != child || status != 0)
        throw std::runtime_error(program + " failed");
}

// A data file of 42,966 readings with one decimal, in a folder of its own.
class LongFile {
public:
    LongFile() {
        char folder[] = "/tmp/bench-XXXXXX";
        if (mkdtemp(folder) == nullptr)
            throw std::runtime_error("no temporary folder");
        folder_ = folder;
        std::ofstream file(path(), std::ios::binary);
        file << "\"\r\n\n\nPQXa   4127                   03-15-24 10:30   Vbatt 3E8\r";
        for (int i = 0; i < 42966; ++i) {
            char field[8];
            std::snprintf(field, sizeof field, "%5.1f", (i * 37 % 1000) / 10.0);
            file << (i > 0 && i % 10 == 0 ? "\n\r" : "") << field;
        }
        file << "\x1a\"\r\n";
    }
    ~LongFile() {
        std::remove(path().c_str());
        rmdir(folder_.c_str());
    }
    LongFile(const LongFile&) = delete;
    LongFile& operator=(const LongFile&) = delete;

    std::string path() const { return folder_ + "/long.dat"; }

private:
    std::string folder_;
};

} // namespace tally::bench
