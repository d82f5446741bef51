// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/DownloadProgress.h"
#include "link/HeaderScan.h"
#include "link/Instruments.h"
#include "link/ResponseTimer.h"
#include "link/Session.h"
#include "link/WaitHint.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace tally {

// What an instrument sent.
struct Received {
    // Bytes, the initial that starts the recording in upper case; a header alone begins with it.
    std::string text;
    HeaderScan scan;
    ReadingTime headerSeen;   // the computer's time when the recording began to come
    std::size_t followed = 0; // characters that came within a tick after the end mark

    bool lowBattery() const { return scan.lowBattery(); }
};

// What a command waits for, and what it says and does meanwhile.
struct WaitPolicy {
    using Words = std::function<std::string(const HeaderScan& came)>;

    // The whole memory, to its end mark, silence or the receive limit; else the header line alone.
    bool wholeText = false;
    // A wrong response token changes the rate, or ends the wait, at once; else it waits for the timer.
    bool tokenAtOnce = true;
    // Bounds the wait for the first character, with a header alone that for its end (milliseconds).
    std::int64_t waitFor = Waiter::never;
    // Nothing, or nothing good, came in the time of both rates; the token was wrong at both.
    Words silent;
    Words wrongToken;
    // Instead of the words about the line that closed itself or the port that did not reopen, which then go
    // into the log.
    std::string lineGone = {};
    // Looks at what has come; an end is told.
    std::function<std::optional<SessionEnd>(const HeaderScan& came)> refuses = {};
    // Whether a header line that has ended can be read; one that cannot is followed by what comes within a
    // tick of silence.
    std::function<bool(const Received& received)> readable = {};
    std::function<void()> onFirst = {};     // the first character has come
    std::function<void()> onRecording = {}; // it, or with automatic selection the token, has come
    // Call points of the error reports: at the change of the rate, and where both have been tried.
    int atSwitch = 0;
    int atGiveUp = 0;
};

// "No response in  2.5 seconds"
std::string noResponseText(std::int64_t milliseconds);

// The one wait for an instrument, on an opened port, with the response timer and the two rates of the
// automatic type.
class InstrumentWait {
public:
    InstrumentWait(Session& session, WaitPolicy policy);

    // What came, or how the wait ended, which was told (a cancel needs no word).
    SessionResult<Received> run();

private:
    enum class Step { goOn, complete, ended };

    Step onDue();
    Step onResponseTimeOut();
    Step onCharacter();
    Step onKept(char c);
    Step checkToken(char c);
    Step wrongToken();
    Step onLine(char c);
    Step flip(const std::string& reason);
    Step fail(EndKind kind, const Refusal& why);
    Step lineGone();
    Step watchEnd();
    void firstCharacter();
    void startOver();
    bool automatic() const { return session_.instrument.instSelection == autoSelectType; }
    bool tokenAwaited() const { return automatic() && !tokenSeen_; }
    std::int64_t nextDeadline() const;

    Session& session_;
    WaitPolicy policy_;
    ResponseTimer timer_;
    WaitHint hint_;
    std::optional<DownloadProgress> progress_; // of a whole text
    Received received_;
    SessionEnd end_;
    std::int64_t waitDeadline_ = Waiter::never; // of the first character, or of the header
    std::int64_t lineDeadline_ = Waiter::never; // what follows an unreadable header line
    std::int64_t lineGivenUp_ = Waiter::never;  // ... even while characters keep coming
    std::size_t limit_ = 0;
    bool tokenSeen_ = false;
};

} // namespace tally
