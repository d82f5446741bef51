// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tally {

// What a session shows while it runs: the labels, the log and the progress bar of its dialog, and the main
// window's status line. Texts are UTF-8.
class Panel {
public:
    virtual ~Panel() = default;
    virtual void prompt(const std::string& text) = 0;       // instruction label
    virtual void status(const std::string& text) = 0;       // Label1
    virtual void progressText(const std::string& text) = 0; // Label2
    virtual void appendLog(const std::string& text) = 0;    // Label3, "Debugging log:"
    virtual void progressVisible(bool visible) = 0;
    virtual void progress(int value) = 0; // 0 to 20,000
    virtual void busy(bool busy) = 0;     // hourglass pointer
    // How much of the memory has come and how long the rest takes, beside progressText; empty to take it
    // away.
    virtual void remaining(const std::string&) {}
    // What to look at while nothing comes, in a line of its own; empty to take it away.
    virtual void hint(const std::string& text) = 0;
    virtual void mainStatus(const std::string& text) = 0; // status line of the main window
};

} // namespace tally
