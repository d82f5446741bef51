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
    auto* beside = new QVBoxLayout;
    outer->addStretch();
    outer->addLayout(down);
    outer->addSpacing(40);
    outer->addLayout(beside);
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
    auto* find = add(*down, QStringLiteral("startFind"), QStringLiteral("Find instrument"),
                     QStringLiteral("Listens on every free adapter, at both rates."));
    auto* simulated =
        add(*down, QStringLiteral("startSimulated"), QStringLiteral("Try the simulated instrument"),
            QStringLiteral("Sets it up and downloads from it."));
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
    connect(find, &QPushButton::clicked, this, &StartPage::findWanted);
    connect(simulated, &QPushButton::clicked, this, &StartPage::simulatedWanted);
    connect(sample, &QPushButton::clicked, this, &StartPage::sampleWanted);
    connect(archive, &QPushButton::clicked, this, &StartPage::archiveWanted);
    connect(help, &QPushButton::clicked, this, &StartPage::helpWanted);
    beside->addStretch();
    recent_ = new QVBoxLayout;
    beside->addLayout(recent_);
    unsaved_ = new QLabel;
    unsaved_->setObjectName(QStringLiteral("startUnsaved"));
    unsaved_->setTextFormat(Qt::PlainText);
    beside->addSpacing(12);
    beside->addWidget(unsaved_);
    beside->addStretch();
    setRecent({});
    setUnsaved({});
}

void StartPage::showEvent(QShowEvent* event) {
    Q_EMIT aboutToShow();
    QWidget::showEvent(event);
}

void StartPage::setSimulated(bool there) {
    for (const auto& name : {QStringLiteral("startSimulated"), QStringLiteral("startSimulatedWhy")})
        findChild<QWidget*>(name)->setVisible(there);
}

void StartPage::setRecent(const std::vector<std::pair<QString, QString>>& files) {
    while (QLayoutItem* item = recent_->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    if (!files.empty())
        recent_->addWidget(new QLabel(QStringLiteral("Recent files")));
    for (const auto& [text, path] : files) {
        auto* button = new QPushButton(QString(text).replace(QLatin1Char('&'), QStringLiteral("&&")));
        button->setObjectName(QStringLiteral("startRecent"));
        button->setToolTip(path);
        button->setStyleSheet(QStringLiteral("text-align: left; padding: 6px 12px;"));
        connect(button, &QPushButton::clicked, this, [this, path = path] { Q_EMIT recentWanted(path); });
        recent_->addWidget(button);
    }
}

void StartPage::setUnsaved(const QStringList& downloads) {
    unsaved_->setVisible(!downloads.isEmpty());
    unsaved_->setText(QStringLiteral("Not saved yet (see the notices above):\n  ") +
                      downloads.join(QStringLiteral("\n  ")));
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
    for (const auto& name :
         {QStringLiteral("startDownload"), QStringLiteral("startFind"), QStringLiteral("startSimulated")})
        findChild<QPushButton*>(name)->setEnabled(possible);
}

} // namespace tally
