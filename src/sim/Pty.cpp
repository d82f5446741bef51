// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Pty.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <pty.h>
#include <sys/inotify.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <system_error>
#include <termios.h>
#include <unistd.h>

namespace tally::sim {

namespace {

struct Rate {
    speed_t constant;
    int baud;
};

constexpr Rate rates[] = {{B300, 300},     {B600, 600},       {B1200, 1200},    {B2400, 2400},
                          {B4800, 4800},   {B9600, 9600},     {B19200, 19200},  {B38400, 38400},
                          {B57600, 57600}, {B115200, 115200}, {B230400, 230400}};

[[noreturn]] void fail(const std::string& what) {
    throw std::system_error(errno, std::generic_category(), what);
}

void addFlags(int descriptor, int flags) {
    fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) | flags);
    fcntl(descriptor, F_SETFD, FD_CLOEXEC);
}

} // namespace

Pty::Pty() {
    std::array<char, 256> name = {};
    if (openpty(&far_, &near_, name.data(), nullptr, nullptr) != 0)
        fail("no pseudo-terminal can be had");
    path_ = name.data();
    addFlags(far_, O_NONBLOCK);
    addFlags(near_, O_NONBLOCK);
    becomeRaw(9600);
    watch_ = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (watch_ < 0 || inotify_add_watch(watch_, path_.c_str(), IN_OPEN | IN_CLOSE) < 0)
        fail("the pseudo-terminal cannot be watched");
}

Pty::~Pty() {
    // Another instrument may have taken the link over.
    std::error_code error;
    if (!link_.empty() && std::filesystem::read_symlink(link_, error) == path_)
        unlink(link_.c_str());
    for (const int descriptor : {watch_, near_, far_})
        if (descriptor >= 0)
            close(descriptor);
}

void Pty::link(const std::string& path) {
    struct stat facts = {};
    if (lstat(path.c_str(), &facts) == 0 && S_ISLNK(facts.st_mode))
        unlink(path.c_str());
    if (symlink(path_.c_str(), path.c_str()) != 0)
        fail("the link " + path + " cannot be made");
    link_ = path;
}

void Pty::becomeRaw(int baud) {
    struct termios attributes = {};
    tcgetattr(near_, &attributes);
    cfmakeraw(&attributes);
    for (const Rate& rate : rates)
        if (rate.baud == baud)
            cfsetspeed(&attributes, rate.constant);
    tcsetattr(near_, TCSANOW, &attributes);
}

void Pty::readWatch() {
    std::array<char, 4096> buffer = {};
    for (ssize_t count = 0; (count = ::read(watch_, buffer.data(), buffer.size())) > 0;)
        events_.append(buffer.data(), static_cast<std::size_t>(count));
}

Pty::Opening Pty::nextOpening() {
    readWatch();
    while (events_.size() >= sizeof(inotify_event)) {
        inotify_event event = {};
        std::memcpy(&event, events_.data(), sizeof event);
        events_.erase(0, sizeof event + event.len);
        if ((event.mask & IN_OPEN) != 0 && ++users_ == 1)
            return Opening::opened;
        if ((event.mask & IN_CLOSE) != 0 && users_ > 0 && --users_ == 0)
            return Opening::closed;
    }
    return Opening::none;
}

std::string Pty::read() {
    std::string all;
    std::array<char, 4096> buffer = {};
    for (ssize_t count = 0; (count = ::read(far_, buffer.data(), buffer.size())) > 0;)
        all.append(buffer.data(), static_cast<std::size_t>(count));
    return all;
}

std::size_t Pty::write(std::string_view characters) {
    const ssize_t count = ::write(far_, characters.data(), characters.size());
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

int Pty::baud() const {
    struct termios attributes = {};
    if (tcgetattr(near_, &attributes) != 0)
        return 0;
    for (const Rate& rate : rates)
        if (rate.constant == cfgetospeed(&attributes))
            return rate.baud;
    return 0;
}

bool Pty::drained() const {
    int waiting = 0;
    return ioctl(near_, FIONREAD, &waiting) != 0 || waiting == 0;
}

void Pty::dropUnread() {
    tcflush(near_, TCIFLUSH);
}

bool Pty::isLocked() const {
    int exclusive = 0;
    return ioctl(near_, TIOCGEXCL, &exclusive) == 0 && exclusive != 0;
}

void Pty::release(int baud) {
    ioctl(near_, TIOCNXCL);
    becomeRaw(baud);
}

} // namespace tally::sim
