// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/QtWaiter.h"

#include "OpenLine.h"
#include "platform/QtWaiterInterrupt.h"

#include <QCoreApplication>
#include <QTimer>
#include <csignal>
#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::OpenLine;

TEST(QtWaiter, WakesAtItsDeadline) {
    OpenLine port;
    port.open();
    const std::int64_t start = port.waiter.now();
    EXPECT_EQ(port.waiter.until(start + 100), Wake::due);
    EXPECT_GE(port.waiter.now(), start + 100);
    EXPECT_LT(port.waiter.now(), start + 1000);
}

TEST(QtWaiter, WakesForCharacters) {
    OpenLine port;
    port.open();
    QTimer::singleShot(20, [&] { port.pty->write("x"); });
    EXPECT_EQ(port.waiter.until(Waiter::never), Wake::data);
    EXPECT_EQ(port.line.Input(), "x");
}

TEST(QtWaiter, WakesForACancel) {
    OpenLine port;
    port.open();
    QTimer::singleShot(20, &port.waiter, &QtWaiter::cancel);
    EXPECT_EQ(port.waiter.until(Waiter::never), Wake::cancelled);
    EXPECT_TRUE(port.waiter.cancelRequested());
    // It lasts until it is reset.
    EXPECT_EQ(port.waiter.until(Waiter::never), Wake::cancelled);
    port.waiter.resetCancel();
    EXPECT_EQ(port.waiter.until(port.waiter.now() + 10), Wake::due);
}

TEST(QtWaiter, AnswersDueThenCancelledThenData) {
    OpenLine port;
    port.open();
    port.pty->write("x");
    ASSERT_EQ(port.waiter.until(Waiter::never), Wake::data);
    port.waiter.cancel();
    EXPECT_EQ(port.waiter.until(port.waiter.now()), Wake::due);
    EXPECT_EQ(port.waiter.until(Waiter::never), Wake::cancelled);
    port.waiter.resetCancel();
    EXPECT_EQ(port.waiter.until(Waiter::never), Wake::data);
}

TEST(QtWaiter, WhatArrivedWhileTheProcessStoodStillComesBeforeADeadlineLongMissed) {
    OpenLine port;
    port.open();
    port.pty->write("x");
    const std::int64_t missed = port.waiter.now() - 2 * Waiter::stoodStill;
    EXPECT_EQ(port.waiter.until(missed), Wake::data);
    EXPECT_EQ(port.line.Input(), "x");
    EXPECT_EQ(port.waiter.until(missed), Wake::due);
}

TEST(QtWaiter, ADeadlineFurtherThanATimerReachesIsKept) {
    OpenLine port;
    port.open();
    QTimer::singleShot(20, &port.waiter, &QtWaiter::cancel);
    constexpr std::int64_t fortyDays = 40LL * 24 * 3600 * 1000;
    EXPECT_EQ(port.waiter.until(port.waiter.now() + fortyDays), Wake::cancelled);
}

TEST(QtWaiter, LetsTheWindowBreatheWhileCharactersKeepComing) {
    OpenLine port;
    port.open();
    port.pty->write("never read");
    int breaths = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++breaths; });
    timer.start(1);
    const std::int64_t end = port.waiter.now() + 550;
    int waits = 0;
    while (port.waiter.now() < end) {
        ASSERT_EQ(port.waiter.until(Waiter::never), Wake::data);
        ++waits;
    }
    // Once in 50 ms, and not once a wait.
    EXPECT_GE(breaths, 8);
    EXPECT_LE(breaths, 40);
    EXPECT_GT(waits, 1000);
}

TEST(QtWaiter, AnApplicationThatQuitsCancelsTheWaitForGood) {
    OpenLine port;
    port.open();
    Wake first = Wake::data;
    Wake second = Wake::data;
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(30, qApp, &QCoreApplication::quit);
        first = port.waiter.until(Waiter::never);
        port.waiter.resetCancel();
        second = port.waiter.until(Waiter::never);
    });
    QCoreApplication::exec();
    EXPECT_EQ(first, Wake::cancelled);
    EXPECT_EQ(second, Wake::cancelled);
    EXPECT_TRUE(port.waiter.cancelRequested());
}

TEST(QtWaiter, AnApplicationThatExitsWithAnErrorCancelsToo) {
    OpenLine port;
    port.open();
    Wake wake = Wake::data;
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(30, [] { QCoreApplication::exit(1); });
        wake = port.waiter.until(Waiter::never);
    });
    QCoreApplication::exec();
    EXPECT_EQ(wake, Wake::cancelled);
}

TEST(QtWaiter, TheEndOfTheLineIsNews) {
    OpenLine port;
    port.open();
    QTimer::singleShot(20, [&] { port.pty.reset(); });
    EXPECT_EQ(port.waiter.until(port.waiter.now() + testing::patience), Wake::data);
    EXPECT_FALSE(port.line.isOpen());
}

TEST(QtWaiter, AClosedPortOnlyWaits) {
    OpenLine port;
    EXPECT_EQ(port.waiter.until(port.waiter.now() + 30), Wake::due);
}

TEST(QtWaiter, CtrlCCancelsTheWait) {
    OpenLine port;
    port.open();
    {
        const QtWaiterInterrupt interrupt(port.waiter);
        QTimer::singleShot(20, [] { std::raise(SIGINT); });
        EXPECT_EQ(port.waiter.until(Waiter::never), Wake::cancelled);
        port.waiter.resetCancel();
        std::raise(SIGTERM);
        EXPECT_EQ(port.waiter.until(port.waiter.now() + testing::patience), Wake::cancelled);
    }
    struct sigaction after = {};
    sigaction(SIGINT, nullptr, &after);
    EXPECT_EQ(after.sa_handler, SIG_DFL);
}

TEST(QtWaiter, TellsTheTimeOfTheMachine) {
    OpenLine port;
    const std::int64_t before = port.waiter.now();
    EXPECT_LE(before, port.waiter.now());
    EXPECT_GT(port.waiter.localTime(), toReadingTime({2024, 1, 1, 0, 0}));
}

} // namespace
} // namespace tally
