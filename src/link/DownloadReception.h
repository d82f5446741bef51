// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/HeaderScan.h"
#include "link/Instruments.h"
#include "link/ResponseTimer.h"
#include "link/Session.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tally {

// What an instrument sent.
struct ReceivedDownload {
    std::string text; // bytes
    bool lowBattery = false;
    ReadingTime headerSeen; // the computer's time when the recording began to come
};

// The receiving part of a download: from the opened port to ctrl/Z, silence or the receive limit.
class DownloadReception {
public:
    static constexpr std::int64_t tickInterval = 250; // milliseconds of the progress timer
    static constexpr std::size_t longLimit = 205000;
    static constexpr std::size_t shortLimit = 48000;

    DownloadReception(Session& session, std::int64_t waitFor);

    // Receives everything; nothing when the session ended without a text, which was then told. Throws what
    // opening a port throws.
    std::optional<ReceivedDownload> run();

private:
    enum class Step { goOn, complete, ended };

    Step onDue();
    Step onResponseTimeOut();
    Step onCharacter();
    Step checkToken();
    Step flip();
    void firstCharacter();
    void startOver();
    void tick();
    bool automatic() const { return session_.instrument.instSelection == autoSelectType; }
    std::int64_t nextDeadline() const;

    Session& session_;
    ResponseTimer timer_;
    HeaderScan scan_;
    ReceivedDownload received_;
    std::int64_t waitFor_;
    std::int64_t waitDeadline_ = Waiter::never; // of the first character
    std::int64_t tickDeadline_ = Waiter::never;
    std::size_t limit_;
    std::size_t counted_ = 0; // characters at the tick before
    int silentTicks_ = 0;
    int progress_ = 0;
    bool tokenSeen_ = false;
    bool silenceStop_ = false;
};

} // namespace tally
