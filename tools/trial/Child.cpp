// SPDX-License-Identifier: GPL-3.0-or-later
#include "Child.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tally::trial {

namespace {

constexpr int linePatience = 10'000; // milliseconds
constexpr std::chrono::milliseconds lookEvery(10);

int fileFor(const std::string& path) {
    return open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
}

} // namespace

Child::Child(const std::string& program, const std::string& name, const std::vector<std::string>& arguments,
             const std::string& home, bool reads) {
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    std::vector<char*> argv = {const_cast<char*>(program.c_str())};
    for (const auto& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    const int out = reads ? -1 : fileFor(home + "/out");
    const int err = fileFor(home + "/" + name + ".err");
    const int in = open("/dev/null", O_RDONLY | O_CLOEXEC);
    child_ = fork();
    if (child_ == 0) {
        for (const char* place : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
            setenv(place, home.c_str(), 1);
        dup2(in, STDIN_FILENO);
        dup2(reads ? ends[1] : out, STDOUT_FILENO);
        dup2(err, STDERR_FILENO);
        if (chdir(home.c_str()) == 0)
            execv(program.c_str(), argv.data());
        _exit(127);
    }
    for (const int descriptor : {ends[1], out, err, in})
        if (descriptor >= 0)
            close(descriptor);
    out_ = ends[0];
}

Child::~Child() {
    if (child_ > 0) {
        kill(child_, SIGKILL);
        waitpid(child_, nullptr, 0);
    }
    close(out_);
}

std::string Child::line() {
    std::string text;
    char c = 0;
    pollfd ready = {out_, POLLIN, 0};
    while (poll(&ready, 1, linePatience) > 0 && read(out_, &c, 1) == 1 && c != '\n')
        text += c;
    return text;
}

void Child::look() {
    std::error_code error;
    int count = 0;
    for (std::filesystem::directory_iterator entry("/proc/" + std::to_string(child_) + "/fd", error), end;
         !error && entry != end; entry.increment(error))
        ++count;
    descriptors_ = std::max(descriptors_, count);
}

bool Child::wait(std::chrono::milliseconds patience) {
    const auto until = std::chrono::steady_clock::now() + patience;
    while (child_ > 0) {
        look();
        int raw = 0;
        struct rusage usage = {};
        if (wait4(child_, &raw, WNOHANG, &usage) == child_) {
            status_ = WIFEXITED(raw) ? WEXITSTATUS(raw) : 128 + WTERMSIG(raw);
            memory_ = usage.ru_maxrss;
            child_ = -1;
            return true;
        }
        if (std::chrono::steady_clock::now() > until)
            return false;
        std::this_thread::sleep_for(lookEvery);
    }
    return true;
}

void Child::signal(int number) const {
    if (child_ > 0)
        kill(child_, number);
}

} // namespace tally::trial
