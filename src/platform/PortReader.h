// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <cstddef>
#include <optional>
#include <span>

class QSerialPort;
class QSocketNotifier;

namespace tally {

// Reads what a serial port receives straight to where it is wanted. The port's own reading would put it into
// a buffer first, and what stands nowhere else goes with a program that is killed.
class PortReader : public QObject {
    Q_OBJECT

public:
    explicit PortReader(QSerialPort& port);

    // The port has been opened; it is about to be closed.
    void start();
    void stop();
    // How many characters were read, 0 when none wait; nothing when the other side has gone.
    std::optional<std::size_t> read(std::span<char> into);
    // Whether ready() is wanted.
    void listen(bool on);

Q_SIGNALS:
    void ready(); // characters wait, or the other side has gone; again and again until that is read

private:
    QSerialPort& port_;
    QSocketNotifier* notifier_ = nullptr;
};

} // namespace tally
