// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"
#include "core/Files.h"
#include "core/Settings.h"

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class QCoreApplication;

namespace tally::cli {

class ArchiveFiles;

// What commands run with: files, clock and settings of this machine, standard output and standard error.
// Whatever costs time at the start is made when it is first asked for.
class Context {
public:
    Context(int& argc, char** argv);
    // For a worker beside others: what it would write and tell is kept for whoever hands the results on, and
    // its clock stands still. `shared` outlives it.
    explicit Context(Context& shared);
    ~Context();
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    Files& files();
    // The same, where recordings of the archive can be put beside them.
    ArchiveFiles& archived() { return *files_; }
    // For what a command makes: a file that was replaced is told.
    Files& results();
    // Sends what a command writes under a name of its own to this path.
    void placeResult(const std::string& path);
    // The name that it would have had; empty when nothing was written so.
    const std::string& ownName() const;
    // The wall clock, or the time of --at.
    Clock& clock();
    Settings& settings();

    // "mm-dd-yy hh:mm"; false when it is no date.
    bool setTime(const std::string& at);

    // Bytes for standard output; they are written when the command is done, not when it is refused.
    void out(std::string_view bytes) { output_ += bytes; }
    // A progress text or warning (UTF-8, any line breaks), at once on standard error.
    void warn(std::string_view text);

    // Of a worker: what it wrote and warned of since it was last asked.
    std::string takeOutput() { return std::exchange(output_, {}); }
    std::vector<std::string> takeWarnings() { return std::exchange(warnings_, {}); }

    // JSON documents one a line, each with this path; empty for documents of their own.
    void nameDocuments(const std::string& path) { documentPath_ = path; }
    const std::string& documentPath() const { return documentPath_; }

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
    class ToldFiles;
    class WorkerSettings;

    int& argc_;
    char** argv_;
    Context* shared_ = nullptr;
    std::mutex settingsInUse_; // by workers
    std::unique_ptr<ArchiveFiles> files_;
    std::unique_ptr<ToldFiles> results_;
    std::unique_ptr<Clock> clock_;
    std::unique_ptr<Settings> settings_;
    std::unique_ptr<QCoreApplication> application_;
    std::string output_;
    std::string documentPath_;
    std::vector<std::string> warnings_;
};

} // namespace tally::cli
