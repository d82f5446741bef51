// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdlib>
#include <exception>
#include <functional>
#include <string>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tally::testing {

// Does something in a child process as an ordinary user (as oneself where one is no administrator), and gives
// the text that it gives.
inline std::string asOrdinaryUser(const std::function<std::string()>& work) {
    constexpr uid_t nobody = 65534;
    std::array<int, 2> ends = {};
    if (pipe(ends.data()) != 0)
        return "no pipe";
    const pid_t child = fork();
    if (child == 0) {
        std::string text;
        if (geteuid() == 0 && (setgid(nobody) != 0 || setuid(nobody) != 0)) {
            text = "the user cannot be changed";
        } else {
            try {
                text = work();
            } catch (const std::exception& problem) {
                text = std::string("thrown: ") + problem.what();
            }
        }
        [[maybe_unused]] const auto written = write(ends[1], text.data(), text.size());
        _exit(0);
    }
    close(ends[1]);
    std::string text;
    std::array<char, 512> buffer = {};
    for (ssize_t count = 0; (count = read(ends[0], buffer.data(), buffer.size())) > 0;)
        text.append(buffer.data(), static_cast<std::size_t>(count));
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return text;
}

} // namespace tally::testing
