// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Wire.h"

#include "Child.h"
#include "LiveInstrument.h"
#include "OpenLine.h"
#include "platform/PortList.h"
#include "support/Process.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/ioctl.h>

namespace tally {
namespace {

using testing::asOrdinaryUser;
using testing::LiveInstrument;

sim::InstrumentSetup quick(int type, int count) {
    sim::InstrumentSetup setup = sim::setupOf(type, toReadingTime({2024, 3, 15, 12, 0}), count);
    setup.speed = 100;
    setup.plugDelay = 50;
    return setup;
}

// The computer's end of a live instrument.
struct Computer {
    std::string device;
    SerialLine line{[this](int) { return device; }};
    QtWaiter waiter{line};

    explicit Computer(std::string path, const std::string& settings = "9600,N,8,1")
        : device(std::move(path)) {
        line.EOFEnable(true);
        line.InputLen(0);
        line.Settings(settings);
    }
    // Everything up to ctrl/Z, or what came in time.
    std::string readAll(std::int64_t milliseconds = testing::patience) {
        std::string all;
        const std::int64_t deadline = waiter.now() + milliseconds;
        while (all.find('\x1a') == std::string::npos && waiter.until(deadline) == Wake::data) {
            const std::string next = line.Input();
            if (next.empty() && !line.isOpen())
                break;
            all += next;
        }
        return all;
    }
    std::string readOnce(std::int64_t milliseconds = testing::patience) {
        line.PortOpen(true);
        std::string all = readAll(milliseconds);
        line.PortOpen(false);
        return all;
    }
};

TEST(Wire, AMemoryComesOverTheRealLineUnchanged) {
    const sim::InstrumentSetup setup = quick(7, 2000);
    sim::Instrument reference(setup);
    reference.opened(0);
    reference.rate(0, 9600);
    const std::string expected = reference.sent(1'000'000);
    ASSERT_GT(expected.size(), 8000U);
    const LiveInstrument instrument(setup);
    EXPECT_EQ(Computer(instrument.live.path()).readOnce(), expected);
}

TEST(Wire, ThePaceIsThatOfTheBaudRate) {
    sim::InstrumentSetup setup = quick(8, 0);
    setup.speed = 1;
    setup.memory.readings.assign(1400, 100); // some 5,900 characters: half a second at 115,200 baud
    const LiveInstrument instrument(setup);
    Computer computer(instrument.live.path(), "115200,N,8,1");
    const std::int64_t start = computer.waiter.now();
    const std::string text = computer.readOnce();
    const auto expected = static_cast<std::int64_t>(50 + 1000 * text.size() / 11520);
    EXPECT_GE(computer.waiter.now() - start, expected - 20);
    EXPECT_LE(computer.waiter.now() - start, expected + 1000);
}

TEST(Wire, IsSilentAtTheWrongRateAndAnswersAfterTheChange) {
    const LiveInstrument instrument(quick(8, 10));
    Computer computer(instrument.live.path());
    EXPECT_EQ(computer.readOnce(300), "");
    computer.line.Settings("115200,N,8,1");
    EXPECT_EQ(computer.readOnce().substr(0, 4), "KWTa");
}

TEST(Wire, SeesTheRateAlsoWhenThePortIsClosedAndReopenedAtOnce) {
    const LiveInstrument instrument(quick(8, 10));
    Computer computer(instrument.live.path());
    for (int i = 0; i < 20; ++i) {
        computer.line.Settings("9600,N,8,1");
        computer.line.PortOpen(true);
        computer.line.PortOpen(false);
        computer.line.Settings("115200,N,8,1");
        EXPECT_EQ(computer.readOnce().substr(0, 4), "KWTa") << i;
    }
}

TEST(Wire, EveryReopeningBringsTheMemoryAgain) {
    const LiveInstrument instrument(quick(7, 10));
    Computer computer(instrument.live.path());
    const std::string first = computer.readOnce();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(computer.readOnce(), first);
}

TEST(Wire, ThePulledAdapterLosesNoCharacterThatWasSent) {
    for (const int count : {1, 57, 4096, 9000}) {
        sim::InstrumentSetup setup = quick(7, 5000);
        setup.faults.gone = count;
        const LiveInstrument instrument(setup);
        Computer computer(instrument.live.path());
        computer.line.PortOpen(true);
        EXPECT_EQ(computer.readAll().size(), static_cast<std::size_t>(count));
        EXPECT_FALSE(computer.line.isOpen());
        EXPECT_NE(computer.line.problem(), "");
    }
}

TEST(Wire, AReaderThatIsBusyLosesNothing) {
    sim::InstrumentSetup setup = quick(8, 0);
    setup.memory.readings.assign(42966, 500);
    setup.speed = 0;
    const LiveInstrument instrument(setup);
    Computer computer(instrument.live.path(), "115200,N,8,1");
    computer.line.PortOpen(true);
    usleep(200'000);
    // 42,966 fields of 4, 4,296 line ends of 2, header 56 and its end, "T:", ctrl/Z
    EXPECT_EQ(computer.readAll().size(), 42966U * 4 + 4296 * 2 + 57 + 2 + 1);
}

TEST(Wire, AUserWhoWasKilledDoesNotLockTheOthersOut) {
    EXPECT_EQ(asOrdinaryUser([]() -> std::string {
                  sim::Pty pty;
                  std::array<int, 2> ready = {};
                  if (pipe(ready.data()) != 0)
                      return "no pipe";
                  const pid_t user = fork();
                  if (user == 0) {
                      const int port = open(pty.path().c_str(), O_RDWR | O_NOCTTY);
                      ioctl(port, TIOCEXCL);
                      [[maybe_unused]] const auto written = write(ready[1], "x", 1);
                      pause();
                  }
                  char mark = 0;
                  [[maybe_unused]] const auto got = read(ready[0], &mark, 1);
                  kill(user, SIGKILL);
                  waitpid(user, nullptr, 0);
                  std::string text = pty.nextOpening() == sim::Pty::Opening::opened ? "opened " : "";
                  text += pty.nextOpening() == sim::Pty::Opening::closed ? "closed " : "";
                  text += pty.isLocked() ? "locked " : "";
                  text += open(pty.path().c_str(), O_RDWR | O_NOCTTY) < 0 ? "refused " : "";
                  pty.release(9600);
                  text += open(pty.path().c_str(), O_RDWR | O_NOCTTY) < 0 ? "refused" : "free";
                  return text;
              }),
              "opened closed locked refused free");
}

TEST(Wire, LinksReplaceLinksAndNothingElse) {
    const testing::TemporaryFolder folder;
    const std::string link = folder.path("line-link");
    {
        sim::Pty first;
        first.link(link);
        EXPECT_EQ(std::filesystem::read_symlink(link), first.path());
        {
            sim::Pty second;
            second.link(link);
            EXPECT_EQ(std::filesystem::read_symlink(link), second.path());
        }
        EXPECT_FALSE(std::filesystem::is_symlink(link));
        std::ofstream(link) << "a file of the user's";
        EXPECT_THROW(first.link(link), std::system_error);
    }
    EXPECT_TRUE(std::filesystem::is_regular_file(link));
    std::filesystem::remove(link);
}

TEST(Wire, TellsWhatADeviceIs) {
    const sim::Pty pty;
    const PortList ports;
    EXPECT_EQ(ports.presence(pty.path()), PortPresence::free);
    EXPECT_EQ(ports.presence("/dev/no-such-device"), PortPresence::notThere);
    EXPECT_EQ(ports.presence("/dev/null"), PortPresence::notThere);
    EXPECT_EQ(ports.presence("/tmp"), PortPresence::notThere);
    EXPECT_EQ(ports.presence(""), PortPresence::notThere);
    const int user = open(pty.path().c_str(), O_RDWR | O_NOCTTY);
    ioctl(user, TIOCEXCL);
    EXPECT_EQ(ports.presence(pty.path()), PortPresence::inUse);
    ioctl(user, TIOCNXCL);
    close(user);
}

TEST(Wire, TellsOfMissingPermission) {
    EXPECT_EQ(asOrdinaryUser([] {
                  const sim::Pty pty;
                  chmod(pty.path().c_str(), 0);
                  return std::string(presenceText(PortList().presence(pty.path())));
              }),
              "no permission: add yourself to group dialout and log in again");
}

TEST(Wire, OffersTheSimulatedInstrument) {
    // The program stands beside the tests.
    const auto devices = PortList().devices();
    ASSERT_FALSE(devices.empty());
    EXPECT_EQ(devices.back().path, simulatedInstrument());
    EXPECT_EQ(devices.back().text(), "simulated instrument");
    EXPECT_EQ(PortList().presence(simulatedInstrument()), PortPresence::free);
}

} // namespace
} // namespace tally
