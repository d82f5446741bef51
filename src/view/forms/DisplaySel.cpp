// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/DisplaySel.h"

#include "view/Display.h"

#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tally {
namespace {

QRadioButton* option(const QString& name, const QString& text, bool on, QVBoxLayout& layout) {
    auto* button = new QRadioButton(text);
    button->setObjectName(name);
    button->setAccessibleName(text);
    button->setChecked(on);
    layout.addWidget(button);
    return button;
}

} // namespace

DisplaySel::DisplaySel(Statistic preset, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("displaysel"));
    setWindowTitle(tr("Data Displayed"));
    setAccessibleName(windowTitle());
    auto* layout = new QVBoxLayout(this);
    average_ =
        option(QStringLiteral("Option1"), QStringLiteral("Average"), preset == Statistic::average, *layout);
    minimum_ =
        option(QStringLiteral("Option2"), QStringLiteral("Minimum"), preset == Statistic::minimum, *layout);
    maximum_ =
        option(QStringLiteral("Option3"), QStringLiteral("Maximum"), preset == Statistic::maximum, *layout);
    auto* command = new QPushButton(tr("OK"));
    command->setObjectName(QStringLiteral("Command1"));
    command->setAccessibleName(command->text());
    command->setDefault(true);
    layout->addWidget(command);
    setMinimumWidth(220);
    connect(command, &QPushButton::clicked, this, &QDialog::accept);
}

Statistic DisplaySel::chosen() const {
    if (minimum_->isChecked())
        return Statistic::minimum;
    return maximum_->isChecked() ? Statistic::maximum : Statistic::average;
}

} // namespace tally
