// SPDX-License-Identifier: GPL-3.0-or-later
#include "Goals.h"

#include "link/DownloadSession.h"
#include "platform/Folders.h"
#include "platform/JournalFolder.h"
#include "platform/QtWaiter.h"
#include "platform/SafeFile.h"
#include "platform/SerialLine.h"
#include "sim/Pty.h"

#include <atomic>
#include <chrono>
#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace tally::bench {

namespace {

constexpr std::size_t longest = 205000;    // characters, the receive limit
constexpr double scale = 1000;             // processor time is shown for so many seconds
constexpr std::int64_t watched = 1000;     // milliseconds of each measurement of it
constexpr std::size_t pieceAtOnce = 115;   // characters that 115,200 baud bring ...
constexpr std::int64_t pieceEvery = 10;    // ... in so many milliseconds
constexpr std::int64_t progressTick = 250; // milliseconds

class NoPanel : public Panel {
public:
    void prompt(const std::string&) override {}
    void status(const std::string&) override {}
    void progressText(const std::string&) override {}
    void appendLog(const std::string&) override {}
    void progressVisible(bool) override {}
    void progress(int) override {}
    void hint(const std::string&) override {}
    void busy(bool) override {}
    void mainStatus(const std::string&) override {}
};

class NoPrompt : public Prompt {
public:
    Answer show(const Message&) override { return Answer::Ok; }
    std::optional<std::string> input(const InputQuestion&) override { return {}; }
    std::optional<std::string> chooseFile(const FileQuestion&) override { return {}; }
};

double seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

// Processor time of this thread, the instrument's not counted.
double processorTime() {
    rusage usage = {};
    getrusage(RUSAGE_THREAD, &usage);
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

double now() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// A recording as an instrument sends it, of the longest length that is received.
std::string recording() {
    std::string text = "KWTa   1234                   03-15-24 12:00   Vbatt 3E8\rT:";
    while (text.size() < longest)
        text += " 123 124 125 126 127 128 129 130 131 132\n\r";
    text.resize(longest);
    return text;
}

// The instrument's end: writes as fast as it is read.
void pour(sim::Pty& pty, const std::string& text) {
    for (std::size_t done = 0; done < text.size();) {
        pollfd ready = {pty.charactersReady(), POLLOUT, 0};
        poll(&ready, 1, -1);
        done += pty.write(std::string_view(text).substr(done));
    }
}

// Everything that a download works on.
struct Desk {
    sim::Pty pty;
    std::string text = recording();
    SafeFile files;
    SerialLine line{[this](int) { return pty.path(); }};
    QtWaiter waiter{line};
    NoPanel panel;
    NoPrompt prompt;
    InstrumentState state;
    JournalFolder journal{folders::data() + "/bench-journal", files};
    int callPoint = 0;

    Desk() {
        state.instSelection = 8;
        state.portSettings = "115200,N,8,1";
        state.maxSamples = 42966;
    }

    // The way of the program: session, waiter, one character a read; the journal has a disk of its own to
    // wait for, and is measured with the paced line.
    double downloadAtFullSpeed() {
        // Not begun: it keeps nothing.
        Session session({line, waiter, prompt, state, journal, callPoint}, panel);
        session.openPort();
        const double start = now();
        std::thread instrument([this] { pour(pty, text); });
        const auto received = InstrumentWait(session, downloadPolicy(panel)).run();
        const double taken = now() - start;
        instrument.join();
        session.closePort();
        keep(received->text.size());
        return taken;
    }

    // The least that brings the same characters: poll and read.
    double rawRead() {
        const int port = open(pty.path().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK);
        const double start = now();
        std::thread instrument([this] { pour(pty, text); });
        std::string all;
        char buffer[4096];
        while (all.size() < text.size()) {
            pollfd ready = {port, POLLIN, 0};
            poll(&ready, 1, -1);
            const ssize_t count = read(port, buffer, sizeof buffer);
            if (count > 0)
                all.append(buffer, static_cast<std::size_t>(count));
        }
        const double taken = now() - start;
        instrument.join();
        close(port);
        keep(all);
        return taken;
    }

    double idle() {
        // Not begun: it keeps nothing.
        Session session({line, waiter, prompt, state, journal, callPoint}, panel);
        session.openPort();
        const double start = processorTime();
        const std::int64_t end = waiter.now() + watched;
        while (waiter.now() < end)
            session.until(waiter.now() + progressTick);
        const double used = processorTime() - start;
        session.closePort();
        return used * scale * 1000 / watched;
    }

    double paced() {
        Session session({line, waiter, prompt, state, journal, callPoint}, panel);
        session.openPort();
        journal.begin({});
        std::thread instrument([this] {
            std::string piece = text.substr(0, pieceAtOnce);
            for (std::int64_t sent = 0; sent < watched; sent += pieceEvery) {
                if (sent + pieceEvery >= watched)
                    piece.back() = '\x1a';
                pty.write(piece);
                std::this_thread::sleep_for(std::chrono::milliseconds(pieceEvery));
            }
        });
        const double start = processorTime();
        const auto received = InstrumentWait(session, downloadPolicy(panel)).run();
        const double used = processorTime() - start;
        instrument.join();
        session.closePort();
        journal.end(JournalState::dropped);
        keep(received->text.size());
        return used * scale * 1000 / watched;
    }
};

} // namespace

void registerGoals() {
    static const auto desk = std::make_shared<Desk>();
    goalTimed(
        "line/205000-characters", [] { return desk->downloadAtFullSpeed(); }, [] { return desk->rawRead(); },
        4);
    goalTimed(
        "line/processor-waiting", [] { return desk->idle(); }, [] { return scale; }, 0.001);
    goalTimed(
        "line/processor-115200-baud", [] { return desk->paced(); }, [] { return scale; }, 0.01);
}

} // namespace tally::bench
