// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/Line.h"
#include "platform/PortReader.h"

#include <QObject>
#include <QSerialPort>
#include <functional>
#include <vector>

namespace tally {

// The serial line of the machine. It closes itself on its first real error; problem() then says why.
class SerialLine : public QObject, public Line {
    Q_OBJECT

public:
    // Gives the device (UTF-8) behind COM port 1 to 8, or 0; asked at each opening.
    using DeviceOf = std::function<std::string(int commPort)>;

    explicit SerialLine(DeviceOf deviceOf);

    void CommPort(int number) override;
    // Throws Fault 380 "Invalid property value" for settings that no line can have.
    void Settings(const std::string& settings) override;
    void InputLen(int length) override;
    void EOFEnable(bool on) override;
    void DTREnable(bool on) override;
    // Throws also Fault 8002 for a device that is no serial line; problem() tells the cases apart.
    void PortOpen(bool open) override;
    bool isOpen() const override { return port_.isOpen(); }
    void onArrival(Keeper keeper) override { keeper_ = std::move(keeper); }
    std::string Input() override;
    void inputAll(std::string& into, std::size_t maximum) override;
    // Does nothing on a closed line.
    void Output(std::string_view characters) override;
    std::string problem() const override { return problem_; }

    // Characters wait to be read, or the line has closed itself since it was opened. Has the port read.
    bool hasNews();

Q_SIGNALS:
    // Characters have arrived, or the line has closed itself.
    void stirred();

private:
    void open();
    void onError(QSerialPort::SerialPortError error);
    void close();
    bool arrive();
    void gone(const std::string& problem);
    std::string_view take(std::size_t maximum);
    // "COM3 (/dev/ttyUSB0)"; the device alone when it was given by its path
    std::string name() const;

    DeviceOf deviceOf_;
    Keeper keeper_;
    QSerialPort port_;
    PortReader reader_{port_};
    std::string device_;
    std::string problem_;
    std::vector<char> piece_; // what was read last, where it is kept nowhere else
    std::string arrived_;     // characters from used_ on are unread
    std::size_t used_ = 0;
    std::size_t inputLen_ = 0; // 0: all that has arrived
    int commPort_ = 1;
    bool eofEnable_ = false;
    bool ended_ = false; // ctrl/Z was read
    bool dtr_ = true;
    bool lost_ = false;
    bool bestEffort_ = false; // errors of the call in progress do not matter
};

} // namespace tally
