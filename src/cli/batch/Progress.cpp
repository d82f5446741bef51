// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/batch/Progress.h"

#include <cstdio>
#ifdef _WIN32
#include <io.h>
#define isatty _isatty
#define fileno _fileno
#else
#include <unistd.h>
#endif

namespace tally::cli {

namespace {

constexpr auto interval = std::chrono::milliseconds(100);

} // namespace

Progress::Progress(std::size_t all) : all_(all), terminal_(isatty(fileno(stderr)) != 0) {}

void Progress::show(std::size_t done) {
    if (!terminal_)
        return;
    const auto now = std::chrono::steady_clock::now();
    if (!shown_ && now - last_ < interval)
        return;
    last_ = now;
    shown_ = true;
    std::fprintf(stderr, "\r%zu of %zu", done, all_);
}

void Progress::clear() {
    if (shown_)
        std::fputs("\r\033[K", stderr);
    shown_ = false;
}

} // namespace tally::cli
