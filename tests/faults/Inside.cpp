// SPDX-License-Identifier: GPL-3.0-or-later
// What runs as a process of its own, so that a fault strikes it alone.
#include "Desk.h"

#include "core/Fault.h"
#include "link/DownloadSession.h"
#include "platform/JournalFolder.h"
#include "platform/QtWaiter.h"
#include "platform/SafeFile.h"
#include "platform/SerialLine.h"
#include "platform/UserSettings.h"
#include "sim/Pty.h"
#include "support/QueuedPrompt.h"
#include "support/RecordingPanel.h"
#include "view/forms/ChartFile.h"

#include <QCoreApplication>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>

namespace tally::faults {

namespace {

// Sets other values at each call.
int writeSettings(const std::string& path) {
    SafeFile files;
    UserSettings settings(files, path);
    settings.onProblem([](const std::string& text) { std::fprintf(stderr, "%s\n", text.c_str()); });
    const auto time = std::chrono::system_clock::now().time_since_epoch().count();
    settings.set("Settings", "Name", std::to_string(time));
    settings.flush();
    return 0;
}

// Saves a chart as the window does.
int writeChart(const std::string& path) {
    SafeFile files;
    Plot plot;
    plot.points = 2;
    try {
        files.write(path, ChartFile::write(plot, {}));
    } catch (const tally::Fault& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return 1;
    }
    return 0;
}

// Begins receptions one after the other, most of them without a character; says which ones are unsaved.
int begin(const std::string& folder, int count) {
    SafeFile files;
    constexpr int unsavedEvery = 40;
    constexpr int savedEvery = 3;
    for (int i = 1; i <= count; ++i) {
        JournalFolder journal(folder, files);
        journal.onProblem([](const std::string& text) { std::printf("problem %s\n", text.c_str()); });
        journal.begin({});
        if (i % savedEvery == 0 || i % unsavedEvery == 0)
            journal.append("KWTa   1234");
        if (i % unsavedEvery == 0)
            std::printf("unsaved %s\n", journal.id().c_str());
        journal.end(i % unsavedEvery == 0 ? JournalState::interrupted : JournalState::saved);
    }
    return 0;
}

// Receives for some seconds at the pace of 115,200 baud while a clock of the event loop ticks; says the
// longest pause between two ticks, in milliseconds.
int pause(const std::string& folder) {
    using Clock = std::chrono::steady_clock;
    sim::Pty pty;
    SafeFile files;
    SerialLine line([&](int) { return pty.path(); });
    QtWaiter waiter(line);
    testing::QueuedPrompt prompt;
    testing::RecordingPanel panel;
    InstrumentState state;
    JournalFolder journal(folder, files);
    int callPoint = 0;
    Session session({line, waiter, prompt, state, journal, callPoint}, panel);

    QTimer ticks;
    auto last = Clock::now();
    auto longest = Clock::duration::zero();
    QObject::connect(&ticks, &QTimer::timeout, [&] {
        const auto now = Clock::now();
        longest = std::max(longest, now - last);
        last = now;
    });
    ticks.start(5);
    journal.begin({});
    session.openPort();
    std::thread instrument([&] {
        constexpr int pieces = 300;
        for (int i = 0; i < pieces; ++i) {
            pty.write(std::string(115, i + 1 < pieces ? 'K' : '\x1a'));
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    });
    const auto received = InstrumentWait(session, downloadPolicy(panel)).run();
    session.closePort();
    journal.end(JournalState::received);
    journal.accepted(received ? received->text : std::string());
    waiter.until(waiter.now() + 100);
    instrument.join();
    std::printf("%lld\n", static_cast<long long>(
                              std::chrono::duration_cast<std::chrono::milliseconds>(longest).count()));
    return 0;
}

} // namespace

int runInside(const std::vector<std::string>& arguments) {
    int count = 1;
    std::string name = "inside";
    char* names[] = {name.data(), nullptr};
    const QCoreApplication application(count, names);
    if (arguments.size() == 2 && arguments[0] == "settings")
        return writeSettings(arguments[1]);
    if (arguments.size() == 2 && arguments[0] == "chart")
        return writeChart(arguments[1]);
    if (arguments.size() == 3 && arguments[0] == "starts")
        return begin(arguments[1], std::stoi(arguments[2]));
    if (arguments.size() == 2 && arguments[0] == "pause")
        return pause(arguments[1]);
    return 2;
}

} // namespace tally::faults
