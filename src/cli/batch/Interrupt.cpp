// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/batch/Interrupt.h"

#include <csignal>
#include <ctime>

namespace tally::cli {

namespace {

volatile std::sig_atomic_t noted = 0;

// The disposition goes back to the system's own; calls that wait (for names, for a reader of the output) end
// with an error, which a handler of std::signal would not make them do.
extern "C" void note(int signal) {
    noted = 1;
    std::signal(signal, SIG_DFL);
}

void handle(int signal) {
#ifdef _WIN32
    std::signal(signal, note);
#else
    struct sigaction action = {};
    action.sa_handler = note;
    sigaction(signal, &action, nullptr);
#endif
}

} // namespace

Interrupt::Interrupt() {
    noted = 0;
    handle(SIGINT);
    handle(SIGTERM);
}

Interrupt::~Interrupt() {
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}

bool Interrupt::happened() {
    return noted != 0;
}

bool Interrupt::pause() const {
    const timespec second = {1, 0};
    // A signal ends the sleep early.
    if (!happened())
        nanosleep(&second, nullptr);
    return !happened();
}

} // namespace tally::cli
