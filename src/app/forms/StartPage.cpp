// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/StartPage.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tally {

namespace {

QPushButton* add(QVBoxLayout& down, const QString& name, const QString& caption, const QString& why) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setMinimumWidth(320);
    button->setMinimumHeight(36);
    auto* label = new QLabel(why);
    label->setContentsMargins(0, 0, 0, 12);
    QFont small = label->font();
    small.setPointSizeF(small.pointSizeF() * 0.9);
    label->setFont(small);
    label->setObjectName(name + QStringLiteral("Why"));
    down.addWidget(button);
    down.addWidget(label);
    return button;
}

} // namespace

StartPage::StartPage(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("StartPage"));
    auto* outer = new QHBoxLayout(this);
    auto* down = new QVBoxLayout;
    outer->addStretch();
    outer->addLayout(down);
    outer->addStretch();
    down->addStretch();
    auto* title = new QLabel(QStringLiteral("No recording is open"));
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    title->setFont(large);
    down->addWidget(title);
    down->addSpacing(12);
    auto* open = add(*down, QStringLiteral("startOpen"), QStringLiteral("Open a data file..."),
                     QStringLiteral("Or drop up to three files on this window."));
    auto* download =
        add(*down, QStringLiteral("startDownload"), QStringLiteral("Download from an instrument"),
            QStringLiteral("Fetches a recording over the serial cable."));
    auto* sample = add(*down, QStringLiteral("startSample"), QStringLiteral("Open a sample recording"),
                       QStringLiteral("Four weeks of a feeder, to try things out."));
    auto* archive =
        add(*down, QStringLiteral("startArchive"), QStringLiteral("Search the archive"),
            QStringLiteral("Every recording that was kept, by circuit, serial number, note or date."));
    auto* help = add(*down, QStringLiteral("startHelp"), QStringLiteral("Read the help"),
                     QStringLiteral("F1 opens it; in an open menu, at the page of that menu."));
    down->addStretch();
    connect(open, &QPushButton::clicked, this, &StartPage::openWanted);
    connect(download, &QPushButton::clicked, this, &StartPage::downloadWanted);
    connect(sample, &QPushButton::clicked, this, &StartPage::sampleWanted);
    connect(archive, &QPushButton::clicked, this, &StartPage::archiveWanted);
    connect(help, &QPushButton::clicked, this, &StartPage::helpWanted);
}

void StartPage::setSamples(bool there) {
    for (const auto& name : {QStringLiteral("startSample"), QStringLiteral("startSampleWhy")})
        findChild<QWidget*>(name)->setVisible(there);
}

void StartPage::setArchive(bool there) {
    for (const auto& name : {QStringLiteral("startArchive"), QStringLiteral("startArchiveWhy")})
        findChild<QWidget*>(name)->setVisible(there);
}

void StartPage::setDownload(bool possible) {
    findChild<QPushButton*>(QStringLiteral("startDownload"))->setEnabled(possible);
}

} // namespace tally
