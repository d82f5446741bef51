// SPDX-License-Identifier: GPL-3.0-or-later
// The reset of automatic selection, on a line that has the DTR line: a pipe stands for it.
#include "SessionDesk.h"
#include "link/DownloadSession.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace tally {
namespace {

using testing::LiveInstrument;
using testing::memoryOf;
using testing::quickInstrument;
using testing::SessionDesk;

struct Pipe {
    std::array<int, 2> ends = {-1, -1};

    Pipe() {
        if (pipe(ends.data()) != 0)
            throw std::runtime_error("no pipe");
    }
    ~Pipe() {
        close(ends[0]);
        close(ends[1]);
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
};

// A line whose DTR reaches the instrument.
class LineWithDtr : public SerialLine {
public:
    LineWithDtr(std::string device, int pipe)
        : SerialLine([device = std::move(device)](int) { return device; }), pipe_(pipe) {}
    void DTREnable(bool on) override {
        [[maybe_unused]] const auto written = write(pipe_, on ? "1" : "0", 1);
        SerialLine::DTREnable(on);
    }

private:
    int pipe_;
};

// Downloads with automatic selection that begins at 9,600 baud from an instrument of 115,200.
SessionResult<PendingDownload> automaticDownload(const sim::InstrumentSetup& setup, std::int64_t& took) {
    const Pipe dtr;
    const LiveInstrument instrument(setup, dtr.ends[0]);
    SessionDesk desk(instrument.live.path(), 11);
    LineWithDtr line(instrument.live.path(), dtr.ends[1]);
    QtWaiter waiter(line);
    Session session({line, waiter, desk.prompt, desk.state, desk.journal, desk.callPoint}, desk.panel);
    const std::int64_t start = waiter.now();
    auto received = DownloadSession(session).DownLoadProc();
    took = waiter.now() - start;
    EXPECT_EQ(desk.state.instAutoCurrent, 8);
    EXPECT_FALSE(line.isOpen());
    return received;
}

sim::InstrumentSetup resetting(sim::Reset reset) {
    sim::InstrumentSetup setup = quickInstrument(8, 500);
    setup.reset = reset;
    return setup;
}

TEST(ResetOnTheLine, AnInstrumentThatIsSilentWhileDtrIsLowIsFoundAfterwards) {
    const sim::InstrumentSetup setup = resetting(sim::Reset::restarts);
    std::int64_t took = 0;
    const auto received = automaticDownload(setup, took);
    ASSERT_TRUE(received);
    EXPECT_EQ(received->text, memoryOf(setup));
    // 2.5 s of silence and 5 s of reset.
    EXPECT_GE(took, 7500);
}

// It has sent its whole memory during the reset, and begins again after it.
TEST(ResetOnTheLine, AnInstrumentThatSendsDuringTheResetAndAfterGivesOneSoundText) {
    const sim::InstrumentSetup setup = resetting(sim::Reset::excites);
    std::int64_t took = 0;
    const auto received = automaticDownload(setup, took);
    ASSERT_TRUE(received);
    EXPECT_EQ(received->text, memoryOf(setup));
}

} // namespace
} // namespace tally
