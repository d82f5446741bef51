// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PortReader.h"

#include <QtGlobal>

#ifndef Q_OS_WIN

#include <QSerialPort>
#include <QSocketNotifier>
#include <cerrno>
#include <poll.h>
#include <unistd.h>

namespace tally {

namespace {

// What poll says of a line now.
int eventsOf(int line) {
    pollfd looked = {line, POLLIN, 0};
    return poll(&looked, 1, 0) > 0 ? looked.revents : 0;
}

} // namespace

PortReader::PortReader(QSerialPort& port) : port_(port) {}

void PortReader::start() {
    // The port's own notifier would read before us; it is only turned on again by its own read functions.
    for (QSocketNotifier* own : port_.findChildren<QSocketNotifier*>())
        if (own->type() == QSocketNotifier::Read)
            own->setEnabled(false);
    notifier_ = new QSocketNotifier(port_.handle(), QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, &PortReader::ready);
}

// May be called while the notifier tells.
void PortReader::stop() {
    if (notifier_ == nullptr)
        return;
    notifier_->setEnabled(false);
    notifier_->deleteLater();
    notifier_ = nullptr;
}

std::optional<std::size_t> PortReader::read(std::span<char> into) {
    const ssize_t count = ::read(port_.handle(), into.data(), into.size());
    if (count > 0)
        return static_cast<std::size_t>(count);
    if (count < 0 && errno != EAGAIN && errno != EINTR)
        return {};
    // Nothing came: so it is with a line at rest, and with one whose other side has gone.
    if ((eventsOf(port_.handle()) & (POLLHUP | POLLERR | POLLNVAL)) != 0)
        return {};
    return 0;
}

void PortReader::listen(bool on) {
    if (notifier_ != nullptr)
        notifier_->setEnabled(on);
}

} // namespace tally

#endif
