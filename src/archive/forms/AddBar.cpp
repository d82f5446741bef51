// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/forms/AddBar.h"

#include "archive/forms/Adder.h"
#include "core/forms/Words.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace tally::archive {

AddBar::AddBar(Adder& adder, QWidget* parent)
    : QWidget(parent),
      adder_(adder),
      bar_(new QProgressBar(this)),
      text_(new QLabel(this)),
      stop_(new QPushButton(QStringLiteral("Sto&p"), this)) {
    setObjectName(QStringLiteral("AddBar"));
    bar_->setObjectName(QStringLiteral("addProgress"));
    bar_->setAccessibleName(QStringLiteral("Progress of the adding"));
    bar_->setTextVisible(false);
    bar_->setFixedWidth(220);
    text_->setObjectName(QStringLiteral("addText"));
    text_->setTextFormat(Qt::PlainText);
    stop_->setObjectName(QStringLiteral("addStop"));
    stop_->setToolTip(QStringLiteral("What was added so far stays; adding again goes on from there"));
    stop_->setAutoDefault(false);
    auto* across = new QHBoxLayout(this);
    across->setContentsMargins(0, 0, 0, 0);
    across->addWidget(bar_);
    across->addWidget(text_, 1);
    across->addWidget(stop_);
    connect(&adder_, &Adder::progressed, this, &AddBar::progress);
    connect(&adder_, &Adder::ended, this, [this] { setVisible(adder_.running()); });
    connect(stop_, &QPushButton::clicked, this, [this] {
        stop_->setEnabled(false);
        text_->setText(QStringLiteral("Stopping..."));
        adder_.stop();
    });
    setVisible(adder_.running());
}

void AddBar::begin() {
    bar_->setRange(0, 0);
    text_->setText(QStringLiteral("Opening the archive..."));
    stop_->setEnabled(true);
    show();
}

void AddBar::progress(const AddProgress& progress) {
    if (!stop_->isEnabled() || !adder_.running())
        return;
    bar_->setRange(0, progress.looking ? 0 : int(progress.files));
    bar_->setValue(progress.looking ? 0 : int(progress.done()));
    text_->setText(words(progressText(progress)));
    show();
}

} // namespace tally::archive
