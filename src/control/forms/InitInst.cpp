// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/forms/InitInst.h"

#include "control/ModeLetter.h"
#include "core/forms/Words.h"
#include "link/forms/DialogText.h"

#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <utility>

namespace tally {

namespace {

constexpr int charactersWide = 80; // of the line about downloads

} // namespace

InitInst::InitInst(const std::string& known, std::function<std::string(const ModeChoice&)> lasts,
                   QWidget* parent)
    : QDialog(parent), lasts_(std::move(lasts)) {
    setObjectName(QStringLiteral("InitInst"));
    setWindowTitle(QStringLiteral("Initialization Options"));
    new QVBoxLayout(this);
    QGroupBox* frame = addFrame(QStringLiteral("Frame1"), QStringLiteral("Select Time"));
    addOption(*frame, 1, QStringLiteral("15 minutes"))->setChecked(true);
    fiveMinutes_ = addOption(*frame, 2, QStringLiteral("5 minutes"));
    oneMinute_ = addOption(*frame, 3, QStringLiteral("1 minute"));
    frame = addFrame(QStringLiteral("Frame2"), QStringLiteral("Average or Min/Max/Avg"));
    addOption(*frame, 4, QStringLiteral("Average"))->setChecked(true);
    minMaxAvg_ = addOption(*frame, 5, QStringLiteral("Min/Max/Avg"));
    frame = addFrame(QStringLiteral("Frame3"), QStringLiteral("Continuous or Stop"));
    addOption(*frame, 6, QStringLiteral("Continuous Loop"))->setChecked(true);
    stopWhenFull_ = addOption(*frame, 7, QStringLiteral("Stop when memory full"));

    howLong_ = namedLabel(QStringLiteral("MemoryLasts"));
    howLong_->setAccessibleName(tr("How long the memory lasts"));
    layout()->addWidget(howLong_);
    for (auto* option : findChildren<QRadioButton*>())
        connect(option, &QRadioButton::toggled, this, &InitInst::showHowLong);
    showHowLong();

    QLabel* downloads = namedLabel(QStringLiteral("KnownDownloads"));
    downloads->setText(lines(known));
    downloads->setWordWrap(true);
    downloads->setMinimumWidth(downloads->fontMetrics().averageCharWidth() * charactersWide);
    downloads->setAccessibleName(tr("Last downloads"));
    layout()->addWidget(downloads);

    auto* proceed = new QPushButton(QStringLiteral("Proceed"));
    proceed->setObjectName(QStringLiteral("Command1"));
    proceed->setDefault(true);
    connect(proceed, &QPushButton::clicked, this, &QDialog::accept);
    auto* cancel = new QPushButton(QStringLiteral("Cancel"));
    cancel->setObjectName(QStringLiteral("Command2"));
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(proceed);
    buttons->addWidget(cancel);
    static_cast<QVBoxLayout*>(layout())->addLayout(buttons);
}

QGroupBox* InitInst::addFrame(const QString& name, const QString& title) {
    auto* frame = new QGroupBox(title);
    frame->setObjectName(name);
    new QHBoxLayout(frame);
    layout()->addWidget(frame);
    return frame;
}

QRadioButton* InitInst::addOption(QGroupBox& frame, int number, const QString& caption) {
    auto* option = new QRadioButton(caption);
    option->setObjectName(QStringLiteral("Option%1").arg(number));
    frame.layout()->addWidget(option);
    return option;
}

void InitInst::showHowLong() {
    howLong_->setText(lines(lasts_(choice())));
}

ModeChoice InitInst::choice() const {
    ModeChoice choice;
    if (oneMinute_->isChecked())
        choice.minutes = 1;
    else if (fiveMinutes_->isChecked())
        choice.minutes = 5;
    choice.minMaxAvg = minMaxAvg_->isChecked();
    choice.stopWhenFull = stopWhenFull_->isChecked();
    return choice;
}

} // namespace tally
