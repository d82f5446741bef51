// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Services.h"

#include "cli/Command.h"
#include "platform/Folders.h"
#include "platform/QtClock.h"
#include "platform/SafeFile.h"
#include "platform/UserSettings.h"

namespace tally {

namespace {

// The machine's clock with the wall stopped at a given time.
class StoppedClock : public QtClock {
public:
    explicit StoppedClock(ReadingTime time) : time_(time) {}
    ReadingTime localTime() const override { return time_; }

private:
    ReadingTime time_;
};

} // namespace

Services::Services() : files_(std::make_unique<SafeFile>()), clock_(std::make_unique<QtClock>()) {}

Services::~Services() = default;

Files& Services::files() {
    return *files_;
}

Settings& Services::settings() {
    if (!settings_) {
        auto store = std::make_unique<UserSettings>(*files_, folders::settingsFile());
        store->onProblem([](const std::string& text) { warn(text); });
        settings_ = std::move(store);
    }
    return *settings_;
}

const Clock& Services::clock() {
    return *clock_;
}

void Services::setTime(const std::string& at) {
    if (at.empty())
        return;
    at_ = parseHeaderTime(at);
    if (!at_)
        throw WrongUsage("--at: '" + at + "' is no time; write it as \"mm-dd-yy hh:mm\"");
    clock_ = std::make_unique<StoppedClock>(*at_);
}

} // namespace tally
