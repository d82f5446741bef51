// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Interrupt.h"

#include <csignal>
#include <ctime>

namespace tally::cli {

namespace {

// A signal handler can reach nothing else.
volatile std::sig_atomic_t endAsked = 0;

void ask(int) {
    endAsked = 1;
}

void handle(void (*handler)(int)) {
    struct sigaction action = {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

} // namespace

Interrupt::Interrupt() {
    endAsked = 0;
    handle(ask);
}

Interrupt::~Interrupt() {
    handle(SIG_DFL);
}

bool Interrupt::asked() const {
    return endAsked != 0;
}

bool Interrupt::pause() const {
    const timespec second = {1, 0};
    // A signal ends the sleep early.
    if (!asked())
        nanosleep(&second, nullptr);
    return !asked();
}

} // namespace tally::cli
