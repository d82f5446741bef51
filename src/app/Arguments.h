// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <optional>
#include <string>
#include <vector>

namespace tally {

// What the command line of the window asks for.
struct Arguments {
    std::vector<std::string> files; // full paths
    bool plot = false;
    bool quitAfterFirstFrame = false;
};

// The exit status of a call that needs no window: 0 for --help and --version, 2 for an option that nobody
// knows. To be asked first of all, since nothing of it needs a display.
std::optional<int> endedByArguments(int& argc, char** argv);

// The arguments that are left once the toolkit has taken its own, as characters and as they were given: the
// names of files are bytes, which need not be characters.
Arguments readArguments(const QStringList& arguments, char** argv);

// While it lives, a window system that cannot be reached is said in a line and ends the program with status
// 1; the toolkit would abort it.
class DisplayCheck {
public:
    DisplayCheck();
    ~DisplayCheck();
    DisplayCheck(const DisplayCheck&) = delete;
    DisplayCheck& operator=(const DisplayCheck&) = delete;
};

} // namespace tally
