// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>

namespace tally {

// Finds the start of a recording in what an instrument sends, character by character. Knows neither time nor
// line; the one place of this for download, status check, initialisation and recover.
class HeaderScan {
public:
    enum class Token { pending, valid, wrong };

    // Takes one character and gives it as it is kept: the initial that starts the recording in upper case.
    char feed(char c);

    bool started() const { return started_; }
    // How many characters came before the start of the recording.
    std::size_t startIndex() const { return startIndex_; }
    // How many characters were fed in all.
    std::size_t count() const { return count_; }
    // The initial came in lower case.
    bool lowBattery() const { return lowBattery_; }
    // The characters of the first line from the initial on, without its end (at most `longest`).
    const std::string& line() const { return line_; }
    // The first line has ended (CR).
    bool lineComplete() const { return lineComplete_; }
    // Whether the first three characters are "KWT"; pending until three have come.
    Token token() const;
    // Forgets everything.
    void restart() { *this = HeaderScan(); }

    static constexpr std::size_t longest = 205100;

private:
    std::string line_;
    std::size_t startIndex_ = 0;
    std::size_t count_ = 0;
    bool started_ = false;
    bool lineComplete_ = false;
    bool lowBattery_ = false;
};

} // namespace tally
