// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"
#include "core/Files.h"
#include "core/Settings.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class QCoreApplication;

namespace tally::cli {

// What commands run with: files, clock and settings of this machine, standard output and standard error.
// Whatever costs time at the start is made when it is first asked for.
class Context {
public:
    Context(int& argc, char** argv);
    ~Context();
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    Files& files() { return *files_; }
    // The wall clock, or the time of --at.
    Clock& clock();
    Settings& settings();

    // "mm-dd-yy hh:mm"; false when it is no date.
    bool setTime(const std::string& at);

    // Bytes for standard output; they are written when the command is done, not when it is refused.
    void out(std::string_view bytes) { output_ += bytes; }
    // A progress text or warning (UTF-8, any line breaks), at once on standard error.
    void warn(std::string_view text);

    // Qt without a window system, for sessions with an instrument.
    void needEventLoop();
    // Qt with fonts and painting, on no display.
    void needPainting();

    // What the chosen command does; set while the arguments are read.
    std::function<int(Context&)> action;

    // Sends the output; false when it could not be written.
    bool flush();

private:
    class FixedClock;

    int& argc_;
    char** argv_;
    std::unique_ptr<Files> files_;
    std::unique_ptr<Clock> clock_;
    std::unique_ptr<Settings> settings_;
    std::unique_ptr<QCoreApplication> application_;
    std::string output_;
};

} // namespace tally::cli
