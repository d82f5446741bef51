// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tally::sim {

// A pseudo-terminal: a serial port without hardware. The far end is ours, the near end is opened by others.
class Pty {
public:
    enum class Opening { opened, closed, none };

    // Throws std::system_error.
    Pty();
    ~Pty();
    Pty(const Pty&) = delete;
    Pty& operator=(const Pty&) = delete;

    // The device that others open.
    const std::string& path() const { return path_; }
    // Makes a symbolic link to the device, in place of an older link; it goes with the pseudo-terminal.
    // Throws std::system_error, also when something else stands there.
    void link(const std::string& path);

    // To be polled: characters have come; somebody has opened or closed.
    int charactersReady() const { return far_; }
    int openingsReady() const { return watch_; }

    // The next opening or closing: the first of several users, or the last.
    Opening nextOpening();
    // What has come; empty when nothing has.
    std::string read();
    // How many characters were taken; the rest must be offered again.
    std::size_t write(std::string_view characters);
    // The rate that the other side has set; 0 for an unknown one.
    int baud() const;
    // Whether everything written was read.
    bool drained() const;
    // Drops what the last user did not read.
    void dropUnread();
    // Whether a user who was killed has left exclusive use behind; release() takes it back, and his settings.
    bool isLocked() const;
    void release(int baud);

private:
    void becomeRaw(int baud);
    void readWatch();

    std::string path_;
    std::string link_;
    std::string events_; // of the watch, not looked at yet
    int far_ = -1;
    // Kept open, else characters would be echoed and a killed user would lock the others out.
    int near_ = -1;
    int watch_ = -1;
    int users_ = 0;
};

} // namespace tally::sim
