// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"
#include "core/Files.h"
#include "core/Settings.h"

#include <memory>
#include <optional>
#include <string>

namespace tally {

// What the commands work with: files, settings and clock of this machine. Settings are read when first asked
// for.
class Services {
public:
    Services();
    ~Services();
    Services(const Services&) = delete;
    Services& operator=(const Services&) = delete;

    Files& files();
    Settings& settings();
    // The machine's clock, or the time of --at.
    const Clock& clock();
    // What --at gave: "mm-dd-yy hh:mm"; empty for the machine's clock. Throws WrongUsage for anything else.
    void setTime(const std::string& at);
    std::optional<ReadingTime> timeGiven() const { return at_; }

private:
    std::unique_ptr<Files> files_;
    std::unique_ptr<Settings> settings_;
    std::unique_ptr<Clock> clock_;
    std::optional<ReadingTime> at_;
};

} // namespace tally
