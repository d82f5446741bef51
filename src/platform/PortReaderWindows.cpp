// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PortReader.h"

#include <QtGlobal>

#ifdef Q_OS_WIN

#include <QSerialPort>

namespace tally {

PortReader::PortReader(QSerialPort& port) : port_(port) {
    constexpr qint64 maximumBuffered = 1 << 20;
    port_.setReadBufferSize(maximumBuffered);
    connect(&port_, &QSerialPort::readyRead, this, &PortReader::ready);
}

void PortReader::start() {}

void PortReader::stop() {}

std::optional<std::size_t> PortReader::read(std::span<char> into) {
    const qint64 count = port_.read(into.data(), static_cast<qint64>(into.size()));
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

void PortReader::listen(bool) {}

} // namespace tally

#endif
