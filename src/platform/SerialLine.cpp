// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SerialLine.h"

#include "core/Fault.h"

#include <QFileInfo>
#include <QStringList>
#include <algorithm>
#include <optional>
#include <span>
#include <utility>

namespace tally {

namespace {

constexpr char endOfFile = '\x1a';
// More than the longest recording; a device that never stops is held back there.
constexpr std::size_t maximumBuffered = 1 << 20;
constexpr std::size_t maximumAtOnce = 32768;

struct LineSettings {
    int baud = 0;
    QSerialPort::Parity parity = QSerialPort::NoParity;
    QSerialPort::DataBits dataBits = QSerialPort::Data8;
    QSerialPort::StopBits stopBits = QSerialPort::OneStop;
};

std::optional<QSerialPort::Parity> parityOf(const QString& letter) {
    if (letter == QLatin1String("N"))
        return QSerialPort::NoParity;
    if (letter == QLatin1String("E"))
        return QSerialPort::EvenParity;
    if (letter == QLatin1String("O"))
        return QSerialPort::OddParity;
    return std::nullopt;
}

// "9600,N,8,1": baud rate, parity, data bits, stop bits.
LineSettings parse(const std::string& settings) {
    const QStringList parts = QString::fromStdString(settings).split(QLatin1Char(','));
    LineSettings result;
    if (parts.size() == 4) {
        result.baud = parts[0].toInt();
        const int dataBits = parts[2].toInt();
        const int stopBits = parts[3].toInt();
        const auto parity = parityOf(parts[1]);
        if (result.baud > 0 && parity && dataBits >= 5 && dataBits <= 8 && (stopBits == 1 || stopBits == 2)) {
            result.parity = *parity;
            result.dataBits = static_cast<QSerialPort::DataBits>(dataBits);
            result.stopBits = stopBits == 1 ? QSerialPort::OneStop : QSerialPort::TwoStop;
            return result;
        }
    }
    throw Fault(380, "Invalid property value");
}

std::string goneText(const std::string& line) {
    return "The serial line " + line + " has gone. Was the adapter or its cable pulled out?";
}

bool isReal(QSerialPort::SerialPortError error) {
    return error == QSerialPort::ReadError || error == QSerialPort::WriteError ||
           error == QSerialPort::ResourceError || error == QSerialPort::UnknownError;
}

} // namespace

SerialLine::SerialLine(DeviceOf deviceOf) : deviceOf_(std::move(deviceOf)) {
    connect(&port_, &QSerialPort::errorOccurred, this, &SerialLine::onError);
    connect(&reader_, &PortReader::ready, this, [this] {
        if (arrive())
            Q_EMIT stirred();
    });
}

void SerialLine::CommPort(int number) {
    commPort_ = number;
}

void SerialLine::Settings(const std::string& settings) {
    const LineSettings wanted = parse(settings);
    port_.setBaudRate(wanted.baud);
    port_.setParity(wanted.parity);
    port_.setDataBits(wanted.dataBits);
    port_.setStopBits(wanted.stopBits);
}

void SerialLine::InputLen(int length) {
    inputLen_ = length > 0 ? static_cast<std::size_t>(length) : 0;
}

void SerialLine::EOFEnable(bool on) {
    eofEnable_ = on;
}

void SerialLine::DTREnable(bool on) {
    dtr_ = on;
    if (!port_.isOpen())
        return;
    bestEffort_ = true;
    port_.setDataTerminalReady(on);
    port_.clearError();
    bestEffort_ = false;
}

std::string SerialLine::name() const {
    const std::string com = "COM" + std::to_string(commPort_);
    return commPort_ == 0 || device_ == com ? device_ : com + " (" + device_ + ")";
}

void SerialLine::PortOpen(bool on) {
    if (on) {
        open();
        return;
    }
    lost_ = false;
    close();
}

void SerialLine::open() {
    if (port_.isOpen())
        throw Fault(8005, "Port already open");
    device_ = deviceOf_(commPort_);
    problem_.clear();
    arrived_.clear();
    used_ = 0;
    ended_ = false;
    lost_ = false;
    const QFileInfo file(QString::fromStdString(device_));
    // Two names of one device must meet in one lock.
    const QString target = file.canonicalFilePath();
    port_.setPortName(target.isEmpty() ? QString::fromStdString(device_) : target);
    bestEffort_ = true;
    const bool opened = port_.open(QIODevice::ReadWrite);
    const QSerialPort::SerialPortError error = port_.error();
    port_.clearError();
    bestEffort_ = false;
    if (opened) {
        reader_.start();
        port_.clear();
        DTREnable(dtr_);
        return;
    }
    if (error == QSerialPort::DeviceNotFoundError || device_.empty()) {
        problem_ = name() + " is not there. Check that the adapter is plugged in.";
        throw Fault(8002, "Invalid port number");
    }
    if (error == QSerialPort::PermissionError) {
        if (file.isReadable() && file.isWritable()) {
            problem_ = name() + " is in use by another program.";
            throw Fault(8005, "Port already open");
        }
        problem_ =
            "There is no permission to use " + name() + ". Add yourself to group dialout and log in again.";
        throw fault::permissionDenied();
    }
    problem_ = name() + " is not a serial line.";
    throw Fault(8002, "Invalid port number");
}

// With the other side gone errors come by the thousand while the port still counts as open.
void SerialLine::onError(QSerialPort::SerialPortError error) {
    if (bestEffort_ || !port_.isOpen() || !isReal(error))
        return;
    while (arrive()) {
    }
    if (port_.isOpen())
        gone(error == QSerialPort::WriteError
                 ? "The serial line " + name() + " takes no more characters. It was closed."
                 : goneText(name()));
}

void SerialLine::gone(const std::string& problem) {
    problem_ = problem;
    lost_ = true;
    close();
    Q_EMIT stirred();
}

void SerialLine::close() {
    if (!port_.isOpen())
        return;
    bestEffort_ = true;
    reader_.stop();
    port_.close();
    port_.clearError();
    bestEffort_ = false;
    if (!lost_) {
        arrived_.clear();
        used_ = 0;
    }
}

bool SerialLine::hasNews() {
    return lost_ || (!ended_ && used_ < arrived_.size()) || arrive() || lost_;
}

// What one reading of the port gives, first to whoever keeps it. False when there is nothing new to look at.
bool SerialLine::arrive() {
    if (!port_.isOpen())
        return false;
    if (arrived_.size() - used_ >= maximumBuffered) {
        reader_.listen(false);
        return false;
    }
    std::span<char> place = keeper_.room ? keeper_.room() : std::span<char>();
    if (place.empty()) {
        piece_.resize(maximumAtOnce);
        place = piece_;
    }
    place = place.first(std::min(place.size(), maximumAtOnce));
    const auto count = reader_.read(place);
    if (!count) {
        gone(goneText(name()));
        return false;
    }
    const std::string_view piece(place.data(), *count);
    if (keeper_.keep && !piece.empty())
        keeper_.keep(piece);
    if (ended_)
        return false;
    arrived_.erase(0, std::exchange(used_, 0));
    arrived_ += piece;
    return !piece.empty();
}

// The next characters, up to `maximum` and to ctrl/Z; they stay valid until the next call.
std::string_view SerialLine::take(std::size_t maximum) {
    if (ended_ || (used_ == arrived_.size() && !arrive()))
        return {};
    reader_.listen(true);
    std::string_view piece = std::string_view(arrived_).substr(used_, maximum);
    if (eofEnable_) {
        const std::size_t end = piece.find(endOfFile);
        ended_ = end != std::string_view::npos;
        piece = piece.substr(0, ended_ ? end + 1 : piece.size());
    }
    used_ += piece.size();
    return piece;
}

std::string SerialLine::Input() {
    return std::string(take(inputLen_ > 0 ? inputLen_ : std::string_view::npos));
}

void SerialLine::inputAll(std::string& into, std::size_t maximum) {
    while (into.size() < maximum) {
        const std::string_view piece = take(maximum - into.size());
        if (piece.empty())
            return;
        into += piece;
    }
}

void SerialLine::Output(std::string_view characters) {
    if (!port_.isOpen())
        return;
    port_.write(characters.data(), static_cast<qint64>(characters.size()));
    // A line that is closed next must not swallow them.
    if (port_.isOpen())
        port_.flush();
}

} // namespace tally
