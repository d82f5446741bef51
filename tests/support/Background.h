// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace tally::testing {

// A program of the build's bin folder that runs beside the test and ends with the object. Its standard error
// goes nowhere.
class Background {
public:
    Background(const std::string& path, const std::vector<std::string>& arguments) {
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) != 0)
            throw std::runtime_error("no pipe");
        std::vector<char*> argv = {const_cast<char*>(path.c_str())};
        for (const auto& argument : arguments)
            argv.push_back(const_cast<char*>(argument.c_str()));
        argv.push_back(nullptr);
        child_ = fork();
        if (child_ == 0) {
            dup2(ends[1], STDOUT_FILENO);
            const int nowhere = open("/dev/null", O_RDWR);
            dup2(nowhere, STDIN_FILENO);
            dup2(nowhere, STDERR_FILENO);
            execv(path.c_str(), argv.data());
            _exit(127);
        }
        close(ends[1]);
        out_ = ends[0];
    }
    ~Background() {
        end(SIGKILL);
        close(out_);
    }
    Background(const Background&) = delete;
    Background& operator=(const Background&) = delete;

    // The next line of its standard output, without the line break; what there is after 10 s.
    std::string line() {
        std::string text;
        char c = 0;
        pollfd ready = {out_, POLLIN, 0};
        while (poll(&ready, 1, 10000) > 0 && read(out_, &c, 1) == 1 && c != '\n')
            text += c;
        return text;
    }
    // Sends a signal and waits for the end.
    int end(int signal) {
        if (child_ > 0)
            kill(child_, signal);
        return status();
    }
    // Waits for the end; the exit status, or 128 + the signal.
    int status() {
        if (child_ > 0) {
            int raw = 0;
            while (waitpid(child_, &raw, 0) < 0 && errno == EINTR)
                continue;
            status_ = WIFEXITED(raw) ? WEXITSTATUS(raw) : 128 + WTERMSIG(raw);
            child_ = -1;
        }
        return status_;
    }
    void signal(int number) const { kill(child_, number); }

private:
    pid_t child_ = -1;
    int out_ = -1;
    int status_ = -1;
};

// A simulated instrument that sends without pauses as soon as a port is opened, with these options besides.
class BackgroundInstrument : public Background {
public:
    BackgroundInstrument(const std::string& binFolder, std::vector<std::string> options)
        : Background(binFolder + "/tallyline-sim", with(std::move(options))) {
        const std::string ready = line();
        device_ = ready.substr(0, 6) == "READY " ? ready.substr(6) : std::string();
    }
    const std::string& device() const { return device_; }

private:
    static std::vector<std::string> with(std::vector<std::string> options) {
        for (const char* option : {"--quiet", "--with-parent", "--speed", "0", "--plug", "0.05"})
            options.push_back(option);
        return options;
    }
    std::string device_;
};

} // namespace tally::testing
