// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <unistd.h>
#include <utility>

namespace tally {

// An open file of the system that is closed at the end of its scope.
class Descriptor {
public:
    explicit Descriptor(int number = -1) : number_(number) {}
    ~Descriptor() { close(); }
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }

    void close() {
        if (number_ >= 0)
            ::close(std::exchange(number_, -1));
    }
    bool isOpen() const { return number_ >= 0; }
    int get() const { return number_; }

private:
    int number_;
};

} // namespace tally
