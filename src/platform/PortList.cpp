// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PortList.h"

#include "platform/Folders.h"
#include "platform/SimulatedInstrument.h"

#include <QDir>
#include <QFileInfo>
#include <QSerialPort>
#include <QSerialPortInfo>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>
#endif

namespace tally {

namespace {

// The name of a device that stays the same under another number; the device itself where it has none.
std::string lastingName(const QString& device) {
    const QDir byId(QStringLiteral("/dev/serial/by-id"));
    for (const QFileInfo& entry : byId.entryInfoList(QDir::System | QDir::Files | QDir::NoDotAndDotDot))
        if (entry.canonicalFilePath() == device)
            return entry.absoluteFilePath().toStdString();
    return device.toStdString();
}

std::string descriptionOf(const QSerialPortInfo& info) {
    if (info.description().isEmpty() || info.manufacturer().isEmpty())
        return (info.description() + info.manufacturer()).toStdString();
    return (info.manufacturer() + QLatin1Char(' ') + info.description()).toStdString();
}

#ifdef Q_OS_UNIX

PortPresence refusal(int error) {
    switch (error) {
    case EACCES:
    case EPERM:
        return PortPresence::noPermission;
    case EBUSY:
        return PortPresence::inUse;
    default:
        return PortPresence::notThere;
    }
}

PortPresence look(const std::string& path) {
    struct stat facts = {};
    if (stat(path.c_str(), &facts) != 0)
        return refusal(errno);
    if (!S_ISCHR(facts.st_mode))
        return PortPresence::notThere;
    const int device = open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (device < 0)
        return refusal(errno);
    // The system lists ports that have no chip; those have no attributes either.
    struct termios attributes = {};
    const bool line = tcgetattr(device, &attributes) == 0;
    int exclusive = 0;
#ifdef TIOCGEXCL
    // The system administrator opens what others have locked.
    if (ioctl(device, TIOCGEXCL, &exclusive) != 0)
        exclusive = 0;
#endif
    close(device);
    if (!line)
        return PortPresence::notThere;
    return exclusive != 0 ? PortPresence::inUse : PortPresence::free;
}

#else

PortPresence look(const std::string& path) {
    QSerialPort port(QString::fromStdString(path));
    if (port.open(QIODevice::ReadWrite))
        return PortPresence::free;
    return port.error() == QSerialPort::PermissionError ? PortPresence::inUse : PortPresence::notThere;
}

#endif

} // namespace

std::string simulatedInstrument() {
    return folders::cache() + "/simulated-instrument";
}

std::vector<PortDevice> PortList::devices() const {
    std::vector<PortDevice> all;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts())
        all.push_back({lastingName(info.systemLocation()), descriptionOf(info), false, false,
                       info.hasVendorIdentifier()});
    if (SimulatedInstrument::available() || QFileInfo::exists(QString::fromStdString(simulatedInstrument())))
        all.push_back({simulatedInstrument(), "simulated instrument", true, true, true});
    return all;
}

PortPresence PortList::presence(const std::string& path) const {
    const PortPresence seen = look(path);
    // One that does not run yet is started when it is opened.
    const bool startable = path == simulatedInstrument() && SimulatedInstrument::available();
    return seen == PortPresence::notThere && startable ? PortPresence::free : seen;
}

} // namespace tally
