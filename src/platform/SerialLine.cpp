// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SerialLine.h"

#include "core/Fault.h"

#include <QFileInfo>
#include <QStringList>
#include <optional>

namespace tally {

namespace {

constexpr char endOfFile = '\x1a';
// More than the longest recording; a device that never stops is held back there.
constexpr qint64 mostBuffered = 1 << 20;

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

bool isReal(QSerialPort::SerialPortError error) {
    return error == QSerialPort::ReadError || error == QSerialPort::WriteError ||
           error == QSerialPort::ResourceError || error == QSerialPort::UnknownError;
}

} // namespace

SerialLine::SerialLine(DeviceOf deviceOf) : deviceOf_(std::move(deviceOf)) {
    port_.setReadBufferSize(mostBuffered);
    connect(&port_, &QSerialPort::errorOccurred, this, &SerialLine::onError);
    connect(&port_, &QSerialPort::readyRead, this, [this] {
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
    bestEffort_ = true;
    arrive();
    bestEffort_ = false;
    problem_ = error == QSerialPort::WriteError
                   ? "The serial line " + name() + " takes no more characters. It was closed."
                   : "The serial line " + name() + " has gone. Was the adapter or its cable pulled out?";
    lost_ = true;
    close();
    Q_EMIT stirred();
}

void SerialLine::close() {
    if (!port_.isOpen())
        return;
    bestEffort_ = true;
    port_.close();
    port_.clearError();
    bestEffort_ = false;
    if (!lost_) {
        arrived_.clear();
        used_ = 0;
    }
}

bool SerialLine::hasNews() const {
    return lost_ || (!ended_ && (used_ < arrived_.size() || port_.bytesAvailable() > 0));
}

// Everything that the port holds, first to whoever keeps it. False when nothing is to be read from it.
bool SerialLine::arrive() {
    if (port_.bytesAvailable() == 0 || arrived_.size() - used_ >= mostBuffered)
        return false;
    const QByteArray piece = port_.readAll();
    if (keep_)
        keep_({piece.constData(), static_cast<std::size_t>(piece.size())});
    if (ended_)
        return false;
    if (used_ == arrived_.size())
        arrived_ = piece;
    else
        arrived_ = arrived_.mid(used_) + piece;
    used_ = 0;
    return !piece.isEmpty();
}

// The next characters, up to `most` and to ctrl/Z; they stay valid until the next call.
std::string_view SerialLine::take(std::size_t most) {
    if (ended_ || (used_ == arrived_.size() && !arrive()))
        return {};
    std::string_view piece(arrived_.constData() + used_, static_cast<std::size_t>(arrived_.size() - used_));
    piece = piece.substr(0, most);
    if (eofEnable_) {
        const std::size_t end = piece.find(endOfFile);
        ended_ = end != std::string_view::npos;
        piece = piece.substr(0, ended_ ? end + 1 : piece.size());
    }
    used_ += static_cast<qsizetype>(piece.size());
    return piece;
}

std::string SerialLine::Input() {
    return std::string(take(inputLen_ > 0 ? inputLen_ : std::string_view::npos));
}

void SerialLine::inputAll(std::string& into, std::size_t most) {
    while (into.size() < most) {
        const std::string_view piece = take(most - into.size());
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
