// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/forms/InstSel.h"

#include "core/forms/Words.h"
#include "link/forms/DialogText.h"
#include "link/forms/InstProperties.h"

#include <QApplication>
#include <QGridLayout>
#include <QPushButton>
#include <QRadioButton>

namespace tally {

namespace {

constexpr int buttonSpacing = 6;
constexpr int optionRows = 6; // the twelve options stand in two columns

QPushButton* addButton(const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    return button;
}

} // namespace

InstSel::InstSel(InstrumentState& instrument, bool mustSelect, QWidget* parent)
    : QDialog(parent), instrument_(instrument), choice_(instrument) {
    setObjectName(QStringLiteral("InstSel"));
    setWindowTitle(QStringLiteral("Instrument Selection"));
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(24);
    auto* label = namedLabel(QStringLiteral("Label1"));
    label->setText(mustSelect
                       ? QStringLiteral("Must first select an instrument type:")
                       : QStringLiteral("Please select the instrument you're using and then Press OK."));
    grid->addWidget(label, 0, 0, 1, 2);
    addOptions(*grid);
    addButtons(*grid);
}

void InstSel::addOptions(QGridLayout& grid) {
    const auto place = [&grid](QRadioButton* option, int position) {
        option->setObjectName(QStringLiteral("Option%1").arg(position));
        grid.addWidget(option, 1 + (position - 1) % optionRows, (position - 1) / optionRows);
    };
    for (int code = 1; code <= highestType; ++code) {
        auto* option = new QRadioButton(lines(optionCaption(code)));
        options_.at(std::size_t(code - 1)) = option;
        place(option, code);
        option->setChecked(code == instrument_.instSelection);
        connect(option, &QRadioButton::clicked, this, [this] {
            ok_->setEnabled(true);
            properties_->setEnabled(true);
        });
    }
    place(new QRadioButton(QStringLiteral("None of the above")), highestType + 1);
}

void InstSel::addButtons(QGridLayout& grid) {
    ok_ = addButton(QStringLiteral("OK"), QStringLiteral("OK"));
    ok_->setDefault(true);
    ok_->setEnabled(false);
    properties_ = addButton(QStringLiteral("Properties"), QStringLiteral("Properties"));
    properties_->setEnabled(false);
    QPushButton* cancel = addButton(QStringLiteral("CancelButton"), QStringLiteral("Cancel"));
    QPushButton* leave = addButton(QStringLiteral("ExitButton"), QStringLiteral("Exit"));
    leave->setEnabled(false);
    leave->hide();
    connect(ok_, &QPushButton::clicked, this, &InstSel::accept);
    connect(properties_, &QPushButton::clicked, this, &InstSel::showProperties);
    connect(cancel, &QPushButton::clicked, this, &InstSel::reject);
    connect(leave, &QPushButton::clicked, qApp, &QApplication::quit);
    auto* row = new QHBoxLayout;
    row->setSpacing(buttonSpacing); // a row in a grid has none of its own
    row->addWidget(properties_);
    row->addStretch(1);
    row->addWidget(ok_);
    row->addWidget(cancel);
    row->addWidget(leave);
    grid.addLayout(row, 1 + optionRows, 0, 1, 2);
}

std::optional<int> InstSel::checked() const {
    for (int code = 1; code <= highestType; ++code)
        if (options_.at(std::size_t(code - 1))->isChecked())
            return code;
    return {};
}

void InstSel::showProperties() {
    choice_.apply(checked());
    InstProperties(instrument_, this).exec();
}

void InstSel::accept() {
    choice_.apply(checked());
    QDialog::accept();
}

void InstSel::reject() {
    choice_.cancel();
    QDialog::reject();
}

bool runInstSel(QWidget* parent, InstrumentState& instrument, bool mustSelect) {
    return InstSel(instrument, mustSelect, parent).exec() == QDialog::Accepted;
}

} // namespace tally
