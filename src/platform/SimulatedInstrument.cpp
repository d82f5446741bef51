// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SimulatedInstrument.h"

#include "platform/Folders.h"
#include "platform/PortList.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <utility>

namespace tally {

namespace {

constexpr int patience = 5000; // milliseconds

QString program() {
    return QCoreApplication::applicationDirPath() + QStringLiteral("/tallyline-sim");
}

} // namespace

SimulatedInstrument::SimulatedInstrument(std::string device) : device_(std::move(device)) {}

SimulatedInstrument::SimulatedInstrument() : SimulatedInstrument(simulatedInstrument()) {}

SimulatedInstrument::~SimulatedInstrument() {
    if (process_.state() == QProcess::NotRunning)
        return;
    process_.terminate();
    process_.waitForFinished(patience);
}

bool SimulatedInstrument::available() {
    return QFileInfo(program()).isExecutable();
}

bool SimulatedInstrument::start(int type) {
    const QString link = QString::fromStdString(device_);
    const bool ours = process_.state() != QProcess::NotRunning;
    if (ours && type_ == type)
        return true;
    if (!available() || !folders::make(folders::cache()))
        return false;
    if (ours) {
        process_.terminate();
        process_.waitForFinished(patience);
    }
    type_ = type;
    process_.setProcessChannelMode(QProcess::SeparateChannels);
    process_.setStandardErrorFile(QProcess::nullDevice());
    process_.start(program(), {QStringLiteral("--type"), QString::number(type), QStringLiteral("--link"),
                               link, QStringLiteral("--with-parent")});
    return process_.waitForReadyRead(patience) && process_.readAllStandardOutput().startsWith("READY");
}

} // namespace tally
