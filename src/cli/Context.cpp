// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Context.h"

#include "cli/ArchiveFiles.h"
#include "platform/Folders.h"
#include "platform/QtClock.h"
#include "platform/UserSettings.h"

#include <QApplication>

#include <clocale>
#include <cstdio>

namespace tally::cli {

namespace {

// Qt misses the run-time folder of a session that a script does not have, and nothing here needs one. That a
// server has gone is told once, in words, and not again for each of its statements.
void passMessageOn(QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR")) &&
        !text.startsWith(QLatin1String("Unable to free statement")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

// Stands still at the time of --at; waiting goes on by the machine's clock.
class Context::FixedClock : public QtClock {
public:
    explicit FixedClock(ReadingTime time) : time_(time) {}
    ReadingTime localTime() const override { return time_; }

private:
    ReadingTime time_;
};

class Context::ToldFiles : public Files {
public:
    explicit ToldFiles(Context& context) : context_(context) {}
    bool exists(const std::string& path) const override { return files().exists(path); }
    bool same(const std::string& path, const std::string& other) const override {
        return files().same(path, other);
    }
    std::string read(const std::string& path, std::uint64_t maximum) const override {
        return files().read(path, maximum);
    }
    void write(const std::string& path, const std::string& bytes) override {
        const std::string& to = place.empty() ? path : place;
        const bool replaced = exists(to);
        files().write(to, bytes);
        ownName = path;
        if (replaced)
            context_.warn(to + " was replaced");
    }

    std::string place;
    std::string ownName;

private:
    Files& files() const { return context_.files(); }

    Context& context_;
};

// The settings of the program for one worker, who asks when no other does.
class Context::WorkerSettings : public Settings {
public:
    explicit WorkerSettings(Context& shared) : shared_(shared) {}
    std::string get(const std::string& section, const std::string& key) const override {
        const std::lock_guard lock(shared_.settingsInUse_);
        return shared_.settings().get(section, key);
    }
    void set(const std::string& section, const std::string& key, const std::string& value) override {
        const std::lock_guard lock(shared_.settingsInUse_);
        shared_.settings().set(section, key, value);
    }

private:
    Context& shared_;
};

Context::Context(int& argc, char** argv)
    : argc_(argc),
      argv_(argv),
      files_(std::make_unique<ArchiveFiles>()),
      results_(std::make_unique<ToldFiles>(*this)) {}

Context::Context(Context& shared)
    : argc_(shared.argc_),
      argv_(shared.argv_),
      shared_(&shared),
      files_(std::make_unique<ArchiveFiles>()),
      results_(std::make_unique<ToldFiles>(*this)),
      clock_(std::make_unique<FixedClock>(shared.clock().localTime())),
      settings_(std::make_unique<WorkerSettings>(shared)) {}

Files& Context::results() {
    return *results_;
}

void Context::placeResult(const std::string& path) {
    results_->place = path;
    results_->ownName.clear();
}

const std::string& Context::ownName() const {
    return results_->ownName;
}

Context::~Context() = default;

Files& Context::files() {
    return *files_;
}

Clock& Context::clock() {
    if (!clock_)
        clock_ = std::make_unique<QtClock>();
    return *clock_;
}

bool Context::setTime(const std::string& at) {
    const auto time = parseHeaderTime(at);
    if (time)
        clock_ = std::make_unique<FixedClock>(*time);
    return time.has_value();
}

Settings& Context::settings() {
    if (!settings_) {
        auto settings = std::make_unique<UserSettings>(files(), folders::settingsFile());
        settings->onProblem([this](const std::string& text) { warn(text); });
        settings_ = std::move(settings);
    }
    return *settings_;
}

void Context::warn(std::string_view text) {
    if (shared_ != nullptr) {
        warnings_.emplace_back(text);
        return;
    }
    // The words as they are; a lone CR would make a terminal write one line over the other.
    std::string lines(text);
    for (std::size_t at = 0; (at = lines.find('\r', at)) != std::string::npos; ++at)
        if (lines.compare(at, 2, "\r\n") != 0)
            lines[at] = '\n';
    if (lines.empty() || lines.back() != '\n')
        lines += '\n';
    std::fwrite(lines.data(), 1, lines.size(), stderr);
}

namespace {

// The toolkit takes the user's locale; what a server or the system says is understood and shown in English.
void plainWords() {
    std::setlocale(LC_MESSAGES, "C");
}

} // namespace

void Context::needEventLoop() {
    if (application_ || shared_ != nullptr)
        return;
    qInstallMessageHandler(passMessageOn);
    application_ = std::make_unique<QCoreApplication>(argc_, argv_);
    plainWords();
}

void Context::needPainting() {
    if (shared_ != nullptr || qobject_cast<QApplication*>(application_.get()) != nullptr)
        return;
    // One without painting, which a recording was fetched from the archive with, has done its work.
    application_.reset();
    qInstallMessageHandler(passMessageOn);
    // No command needs a display, and none may open one.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(argc_, argv_);
    plainWords();
}

bool Context::flush() {
    const bool written = std::fwrite(output_.data(), 1, output_.size(), stdout) == output_.size();
    output_.clear();
    return std::fflush(stdout) == 0 && written;
}

} // namespace tally::cli
