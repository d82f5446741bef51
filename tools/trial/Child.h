// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <string>
#include <sys/types.h>
#include <vector>

namespace tally::trial {

// A program of the bin folder; its output goes into files, or its standard output through a pipe.
class Child {
public:
    // `home` becomes its folder and the place of its settings. With `reads` its standard output can be read
    // line by line, else it goes into the file "out"; standard error goes into "NAME.err".
    Child(const std::string& program, const std::string& name, const std::vector<std::string>& arguments,
          const std::string& home, bool reads);
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    // The next line of its standard output; what there is after 10 s.
    std::string line();
    // Waits for its end, and notes meanwhile how many descriptors it has open. False when it goes on after
    // so long.
    bool wait(std::chrono::milliseconds patience);
    void signal(int number) const;

    int status() const { return status_; } // exit status; 128 + the signal
    int mostDescriptors() const { return descriptors_; }
    long mostMemory() const { return memory_; } // kilobytes, as the system counts them

private:
    void look();

    pid_t child_ = -1;
    int out_ = -1;
    int status_ = -1;
    int descriptors_ = 0;
    long memory_ = 0;
};

} // namespace tally::trial
