// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/About.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace tally {

About::About(const QString& userName, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("About"));
    setWindowTitle(QStringLiteral("About Tallyline"));
    auto* down = new QVBoxLayout(this);
    auto* name = new QLabel(QStringLiteral("Tallyline ") + QCoreApplication::applicationVersion(), this);
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    large.setBold(true);
    name->setFont(large);
    down->addWidget(name);
    down->addWidget(new QLabel(QStringLiteral("Reads, keeps and plots the recordings of portable\n"
                                              "electrical load recorders."),
                               this));
    auto* user = new QLabel(userName, this);
    user->setObjectName(QStringLiteral("userName"));
    user->setTextFormat(Qt::PlainText);
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("User Name"), user);
    form->addRow(QStringLiteral("Licence"), new QLabel(QStringLiteral("GNU GPL 3 or later"), this));
    down->addLayout(form);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    down->addWidget(buttons);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace tally
