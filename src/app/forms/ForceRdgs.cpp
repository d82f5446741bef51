// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/ForceRdgs.h"

#include "core/forms/Words.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace tally {

namespace {

constexpr const char* instruction =
    "To force one or all of the readings in the current zoomed range to a particular value, enter the "
    "desired "
    "new value in the box below, select the number of readings to change and then press OK.";

QLabel* label(const char* name, const char* text, QWidget* parent) {
    auto* made = new QLabel(QString::fromLatin1(text), parent);
    made->setObjectName(QString::fromLatin1(name));
    return made;
}

QRadioButton* option(const char* name, const QString& caption, QWidget* parent) {
    auto* made = new QRadioButton(caption, parent);
    made->setObjectName(QString::fromLatin1(name));
    return made;
}

} // namespace

ForceRdgs::ForceRdgs(const std::string& file, const std::string& last, const std::string& range,
                     QWidget* parent)
    : QDialog(parent),
      value_(new QLineEdit(words(last), this)),
      all_(option("Option1", QStringLiteral("All Readings (%1)").arg(words(range)), this)),
      left_(option("Option2", QStringLiteral("Leftmost Reading"), this)),
      right_(option("Option3", QStringLiteral("Rightmost Reading"), this)) {
    setObjectName(QStringLiteral("ForceRdgs"));
    setWindowTitle(QStringLiteral("Force Readings"));
    auto* what = label("Label1", instruction, this);
    what->setWordWrap(true);
    auto* which = new QLabel(words(file), this);
    which->setObjectName(QStringLiteral("file"));
    which->setTextFormat(Qt::PlainText);
    which->setWordWrap(true);
    auto* desired = label("Label2", "Desired value:", this);
    desired->setBuddy(value_);
    value_->setObjectName(QStringLiteral("Text1"));
    value_->setAccessibleName(desired->text());
    value_->selectAll();
    all_->setChecked(true);
    auto* ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("Command1"));
    ok->setDefault(true);
    auto* cancel = new QPushButton(QStringLiteral("Cancel"), this);
    cancel->setObjectName(QStringLiteral("Command2"));
    auto* grid = new QGridLayout(this);
    grid->addWidget(what, 0, 0, 1, 3);
    grid->addWidget(which, 1, 0, 1, 3);
    grid->addWidget(desired, 2, 0);
    grid->addWidget(value_, 2, 1);
    grid->addWidget(label("Label3", "No. of readings to change:", this), 3, 0, Qt::AlignTop);
    grid->addWidget(all_, 3, 1, 1, 2);
    grid->addWidget(left_, 4, 1, 1, 2);
    grid->addWidget(right_, 5, 1, 1, 2);
    grid->addWidget(ok, 6, 1);
    grid->addWidget(cancel, 6, 2);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    value_->setFocus();
    setMinimumWidth(460);
}

std::string ForceRdgs::value() const {
    return value_->text().toStdString();
}

bool ForceRdgs::leftmost() const {
    return left_->isChecked();
}

bool ForceRdgs::rightmost() const {
    return right_->isChecked();
}

} // namespace tally
