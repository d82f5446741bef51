// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Process.h"

#include "support/Places.h"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tally::testing {

namespace {

using Clock = std::chrono::steady_clock;

// Reads both pipes until the program has closed them or the time is over.
bool collect(int out, int err, Finished& finished) {
    const auto end = Clock::now() + std::chrono::seconds(30);
    pollfd pipes[2] = {{out, POLLIN, 0}, {err, POLLIN, 0}};
    std::string* texts[2] = {&finished.out, &finished.err};
    int open = 2;
    while (open > 0) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
        if (left <= 0 || poll(pipes, 2, static_cast<int>(left)) <= 0)
            return false;
        for (int i = 0; i < 2; ++i) {
            if (pipes[i].fd < 0 || pipes[i].revents == 0)
                continue;
            char buffer[4096];
            const auto got = read(pipes[i].fd, buffer, sizeof buffer);
            if (got > 0) {
                texts[i]->append(buffer, static_cast<std::size_t>(got));
            } else {
                pipes[i].fd = -1;
                --open;
            }
        }
    }
    return true;
}

[[noreturn]] void become(const std::string& program, const std::vector<std::string>& arguments, int out,
                         int err) {
    dup2(out, STDOUT_FILENO);
    dup2(err, STDERR_FILENO);
    const std::string path = ::testing::binDir() + "/" + program;
    std::vector<char*> argv = {const_cast<char*>(path.c_str())};
    for (const auto& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    execv(path.c_str(), argv.data());
    _exit(127);
}

} // namespace

Finished runProgram(const std::string& program, const std::vector<std::string>& arguments) {
    int out[2];
    int err[2];
    if (pipe(out) != 0 || pipe(err) != 0)
        throw std::runtime_error("no pipe");
    const pid_t child = fork();
    if (child == 0)
        become(program, arguments, out[1], err[1]);
    close(out[1]);
    close(err[1]);
    Finished finished;
    if (!collect(out[0], err[0], finished))
        kill(child, SIGKILL);
    close(out[0]);
    close(err[0]);
    int status = 0;
    waitpid(child, &status, 0);
    finished.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return finished;
}

TemporaryFolder::TemporaryFolder() {
    std::string pattern = std::filesystem::temp_directory_path().string() + "/tallyline-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr)
        throw std::runtime_error("no temporary folder");
    folder_ = pattern;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::string TemporaryFolder::write(const std::string& name, const std::string& bytes) const {
    std::ofstream(path(name), std::ios::binary) << bytes;
    return path(name);
}

std::string TemporaryFolder::read(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace tally::testing
