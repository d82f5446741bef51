// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SerialLine.h"

#include "Child.h"
#include "OpenLine.h"
#include "core/Fault.h"
#include "support/Process.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <sys/stat.h>

namespace tally {
namespace {

using testing::asOrdinaryUser;
using testing::OpenLine;

std::string allBytes() {
    std::string all;
    for (int value = 0; value < 256; ++value)
        all += static_cast<char>(value);
    return all;
}

// The number of the fault and the words for the user when a device is opened.
std::string refusal(const std::string& device) {
    SerialLine line([&](int) { return device; });
    line.CommPort(2);
    line.Settings("9600,N,8,1");
    try {
        line.PortOpen(true);
    } catch (const Fault& fault) {
        return std::to_string(fault.number()) + " " + line.problem() + (line.isOpen() ? " open" : "");
    }
    return "opened";
}

TEST(SerialLine, AllByteValuesArrive) {
    OpenLine port;
    port.line.InputLen(1);
    port.open();
    EXPECT_EQ(port.pty->write(allBytes()), 256U);
    EXPECT_EQ(port.read(256), allBytes());
}

TEST(SerialLine, AllByteValuesAreSent) {
    OpenLine port;
    port.open();
    port.line.Output(allBytes());
    std::string received;
    for (int i = 0; i < 100 && received.size() < 256; ++i) {
        received += port.pty->read();
        port.waiter.until(port.waiter.now() + 5);
    }
    EXPECT_EQ(received, allBytes());
}

TEST(SerialLine, InputLenBoundsOneRead) {
    OpenLine port;
    port.open();
    port.pty->write("abcdef");
    ASSERT_EQ(port.waiter.until(port.waiter.now() + testing::patience), Wake::data);
    port.line.InputLen(1);
    EXPECT_EQ(port.line.Input(), "a");
    port.line.InputLen(3);
    EXPECT_EQ(port.line.Input(), "bcd");
    port.line.InputLen(0);
    EXPECT_EQ(port.line.Input(), "ef");
    EXPECT_EQ(port.line.Input(), "");
}

TEST(SerialLine, InputStopsAtCtrlZUntilTheNextOpening) {
    OpenLine port;
    port.line.EOFEnable(true);
    port.line.InputLen(0);
    port.open();
    port.pty->write("ab\x1a"
                    "cd");
    EXPECT_EQ(port.read(3), "ab\x1a");
    port.pty->write("ef\x1a");
    EXPECT_EQ(port.waiter.until(port.waiter.now() + 100), Wake::due);
    EXPECT_EQ(port.line.Input(), "");
    EXPECT_TRUE(port.line.isOpen());
    port.line.PortOpen(false);
    port.open();
    port.pty->write("gh");
    EXPECT_EQ(port.read(2), "gh");
}

TEST(SerialLine, TakesAllThatHasArrivedUpToABoundAndToCtrlZ) {
    OpenLine port;
    port.line.EOFEnable(true);
    port.line.InputLen(1);
    port.open();
    port.pty->write("abcd\x1a"
                    "ef");
    ASSERT_EQ(port.waiter.until(port.waiter.now() + testing::patience), Wake::data);
    std::string all = "kept ";
    port.line.inputAll(all, 7);
    EXPECT_EQ(all, "kept ab");
    port.line.inputAll(all, 100);
    EXPECT_EQ(all, "kept abcd\x1a");
    port.line.inputAll(all, 100);
    EXPECT_EQ(all, "kept abcd\x1a");
}

TEST(SerialLine, EveryCharacterIsKeptBeforeAnythingLooksAtIt) {
    OpenLine port;
    port.line.EOFEnable(true);
    port.line.InputLen(1);
    std::string kept;
    port.line.onArrival({.keep = [&](std::string_view characters) { kept += characters; }});
    port.open();
    port.pty->write("abc\x1a"
                    "de");
    ASSERT_EQ(port.waiter.until(port.waiter.now() + testing::patience), Wake::data);
    EXPECT_EQ(kept, "abc\x1a"
                    "de");
    EXPECT_EQ(port.read(4), "abc\x1a");
    port.pty->write("fg");
    EXPECT_EQ(port.waiter.until(port.waiter.now() + 100), Wake::due);
    EXPECT_EQ(kept, "abc\x1a"
                    "defg");
}

TEST(SerialLine, CtrlZIsPlainDataWhenTheRuleIsOff) {
    OpenLine port;
    port.open();
    port.pty->write("a\x1a"
                    "b");
    EXPECT_EQ(port.read(3), "a\x1a"
                            "b");
}

TEST(SerialLine, WhatWaitedBeforeTheOpeningIsDropped) {
    OpenLine port;
    port.pty->write("old");
    port.open();
    EXPECT_EQ(port.waiter.until(port.waiter.now() + 100), Wake::due);
    port.pty->write("new");
    EXPECT_EQ(port.read(3), "new");
}

TEST(SerialLine, UnreadCharactersGoWithTheClosing) {
    OpenLine port;
    port.open();
    port.pty->write("abc");
    ASSERT_EQ(port.waiter.until(port.waiter.now() + testing::patience), Wake::data);
    port.line.InputLen(1);
    port.line.Input();
    port.line.PortOpen(false);
    EXPECT_EQ(port.line.Input(), "");
    EXPECT_FALSE(port.line.hasNews());
}

TEST(SerialLine, TheOtherSideSeesTheBaudRate) {
    OpenLine port;
    port.open();
    EXPECT_EQ(port.pty->baud(), 9600);
    port.line.Settings("115200,N,8,1");
    EXPECT_EQ(port.pty->baud(), 115200);
    port.line.PortOpen(false);
    EXPECT_EQ(port.pty->baud(), 9600);
    port.open();
    EXPECT_EQ(port.pty->baud(), 115200);
}

TEST(SerialLine, SettingsThatNoLineCanHaveAreRefused) {
    OpenLine port;
    for (const char* settings : {"", "9600", "9600,N,8", "0,N,8,1", "-1,N,8,1", "9600,X,8,1", "9600,N,9,1",
                                 "9600,N,8,3", "x,N,8,1", "9600,N,8,1,1"})
        EXPECT_THROW(port.line.Settings(settings), Fault) << settings;
    for (const char* settings : {"9600,E,7,2", "300,O,8,1"})
        EXPECT_NO_THROW(port.line.Settings(settings)) << settings;
}

TEST(SerialLine, ALineWithoutDTRStaysUsable) {
    OpenLine port;
    port.line.DTREnable(false);
    port.open();
    port.line.DTREnable(true);
    port.line.DTREnable(false);
    EXPECT_TRUE(port.line.isOpen());
    EXPECT_EQ(port.line.problem(), "");
    port.pty->write("x");
    EXPECT_EQ(port.read(1), "x");
}

TEST(SerialLine, ClosesItselfOnceWhenTheOtherSideGoes) {
    OpenLine port;
    const std::string device = port.pty->path();
    port.open();
    int stirs = 0;
    QObject::connect(&port.line, &SerialLine::stirred, [&] { ++stirs; });
    port.pty->write("last words");
    ASSERT_EQ(port.waiter.until(port.waiter.now() + testing::patience), Wake::data);
    stirs = 0;
    port.pty.reset();
    const std::int64_t deadline = port.waiter.now() + testing::patience;
    while (port.line.isOpen() && port.waiter.now() < deadline)
        port.waiter.until(port.waiter.now() + 10);
    EXPECT_FALSE(port.line.isOpen());
    EXPECT_EQ(port.line.problem(),
              "The serial line COM3 (" + device + ") has gone. Was the adapter or its cable pulled out?");
    // What had arrived can still be read, and the session hears of the end.
    EXPECT_EQ(port.read(10), "last words");
    EXPECT_EQ(port.waiter.until(port.waiter.now() + 1000), Wake::data);
    EXPECT_EQ(port.line.Input(), "");
    EXPECT_EQ(stirs, 1);
    port.line.Output("nobody hears this");
    port.line.PortOpen(false);
    EXPECT_NE(port.line.problem(), "");
    port.pty.emplace();
    port.open();
    EXPECT_EQ(port.line.problem(), "");
}

TEST(SerialLine, WritingToALineThatHasGoneClosesItToo) {
    OpenLine port;
    port.open();
    port.pty.reset();
    port.line.Output("x");
    const std::int64_t deadline = port.waiter.now() + testing::patience;
    while (port.line.isOpen() && port.waiter.now() < deadline)
        port.waiter.until(port.waiter.now() + 10);
    EXPECT_FALSE(port.line.isOpen());
    EXPECT_NE(port.line.problem(), "");
}

TEST(SerialLine, ADeviceThatIsNotThere) {
    EXPECT_EQ(refusal("/dev/no-such-device"),
              "8002 COM2 (/dev/no-such-device) is not there. Check that the adapter is plugged in.");
}

TEST(SerialLine, WhatIsNoSerialLine) {
    EXPECT_EQ(refusal("/dev/null"), "8002 COM2 (/dev/null) is not a serial line.");
    EXPECT_EQ(refusal("/tmp"), "8002 COM2 (/tmp) is not a serial line.");
    const testing::TemporaryFolder folder;
    const std::string file = folder.write("no-line.txt", "text");
    EXPECT_EQ(refusal(file), "8002 COM2 (" + file + ") is not a serial line.");
    EXPECT_EQ(refusal("").substr(0, 4), "8002");
}

TEST(SerialLine, ALineThatAnotherProgramHasLocked) {
    EXPECT_EQ(asOrdinaryUser([] {
                  const sim::Pty pty;
                  const int other = open(pty.path().c_str(), O_RDWR | O_NOCTTY);
                  ioctl(other, TIOCEXCL);
                  std::string text = refusal(pty.path());
                  return text.replace(text.find(pty.path()), pty.path().size(), "DEVICE");
              }),
              "8005 COM2 (DEVICE) is in use by another program.");
}

TEST(SerialLine, ALineThatIsOpenUnderAnotherName) {
    const OpenLine port;
    const testing::TemporaryFolder folder;
    const std::string link = folder.path("other-name");
    ASSERT_EQ(symlink(port.pty->path().c_str(), link.c_str()), 0);
    SerialLine first([&](int) { return port.pty->path(); });
    first.Settings("9600,N,8,1");
    first.PortOpen(true);
    EXPECT_EQ(refusal(link), "8005 COM2 (" + link + ") is in use by another program.");
}

TEST(SerialLine, ALineWithoutPermission) {
    EXPECT_EQ(
        asOrdinaryUser([] {
            const sim::Pty pty;
            chmod(pty.path().c_str(), 0);
            std::string text = refusal(pty.path());
            return text.replace(text.find(pty.path()), pty.path().size(), "DEVICE");
        }),
        "70 There is no permission to use COM2 (DEVICE). Add yourself to group dialout and log in again.");
}

TEST(SerialLine, OpeningTwiceIsRefusedAndChangesNothing) {
    OpenLine port;
    port.open();
    EXPECT_THROW(port.open(), Fault);
    port.pty->write("x");
    EXPECT_EQ(port.read(1), "x");
}

TEST(SerialLine, WorksForAnOrdinaryUser) {
    EXPECT_EQ(asOrdinaryUser([] {
                  const sim::Pty pty;
                  return refusal(pty.path());
              }),
              "opened");
}

} // namespace
} // namespace tally
