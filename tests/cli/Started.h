// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/Places.h"

#include <array>
#include <csignal>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace tally::testing {

// A program of the build's bin folder that runs beside the test, both outputs in one text. It is killed when
// the object goes.
class Started {
public:
    Started(const std::string& program, const std::vector<std::string>& arguments) {
        std::array<int, 2> ends = {};
        if (pipe(ends.data()) != 0)
            throw std::runtime_error("no pipe");
        child_ = fork();
        if (child_ == 0) {
            dup2(ends[1], STDOUT_FILENO);
            dup2(ends[1], STDERR_FILENO);
            const std::string path = ::testing::binDir() + "/" + program;
            std::vector<char*> argv = {const_cast<char*>(path.c_str())};
            for (const auto& argument : arguments)
                argv.push_back(const_cast<char*>(argument.c_str()));
            argv.push_back(nullptr);
            execv(path.c_str(), argv.data());
            _exit(127);
        }
        close(ends[1]);
        output_ = ends[0];
    }
    ~Started() {
        if (child_ > 0) {
            kill(child_, SIGKILL);
            waitpid(child_, nullptr, 0);
        }
        close(output_);
    }
    Started(const Started&) = delete;
    Started& operator=(const Started&) = delete;

    // Reads until the text has come; false when the program ends or says nothing for 20 s before that.
    bool says(const std::string& text) {
        while (said_.find(text) == std::string::npos)
            if (!readMore())
                return false;
        return true;
    }
    void interrupt() const { kill(child_, SIGINT); }
    // Its exit status, once it has ended by itself.
    int end() {
        while (readMore()) {
        }
        int status = 0;
        waitpid(child_, &status, 0);
        child_ = 0;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    const std::string& said() const { return said_; }

private:
    bool readMore() {
        pollfd waiting = {output_, POLLIN, 0};
        std::array<char, 4096> buffer = {};
        if (poll(&waiting, 1, 20000) <= 0)
            return false;
        const auto count = read(output_, buffer.data(), buffer.size());
        if (count <= 0)
            return false;
        said_.append(buffer.data(), static_cast<std::size_t>(count));
        return true;
    }

    pid_t child_ = 0;
    int output_ = -1;
    std::string said_;
};

// A simulated instrument a hundred times as fast as a real one, at `path`.
class StartedInstrument : public Started {
public:
    StartedInstrument(const std::string& path, std::vector<std::string> arguments)
        : Started("tallyline-sim", with(path, std::move(arguments))) {
        if (!says("READY"))
            throw std::runtime_error("the simulated instrument did not start: " + said());
    }

private:
    static std::vector<std::string> with(const std::string& path, std::vector<std::string> arguments) {
        for (const char* more : {"--speed", "100", "--plug", "0.05", "--erase-time", "0.05", "--with-parent"})
            arguments.emplace_back(more);
        arguments.emplace_back("--link");
        arguments.push_back(path);
        return arguments;
    }
};

} // namespace tally::testing
