// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/forms/SearchBar.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace tally::archive {

SearchBar::SearchBar(QWidget* parent)
    : QWidget(parent), words_(new QLineEdit(this)), unit_(new QComboBox(this)) {
    words_->setObjectName(QStringLiteral("searchWords"));
    words_->setAccessibleName(QStringLiteral("Search words"));
    words_->setPlaceholderText(
        QStringLiteral("Words of station, circuit, serial number, notes, file or folder"));
    words_->setClearButtonEnabled(true);
    unit_->setObjectName(QStringLiteral("searchUnit"));
    unit_->setAccessibleName(QStringLiteral("Unit"));
    unit_->addItems(
        {QStringLiteral("Amperes and volts"), QStringLiteral("Amperes"), QStringLiteral("Volts")});
    auto* across = new QHBoxLayout(this);
    across->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(QStringLiteral("&Search"), this);
    label->setBuddy(words_);
    across->addWidget(label);
    across->addWidget(words_, 1);
    across->addWidget(unit_);
    from_ = addDate("searchFrom", "&From");
    to_ = addDate("searchTo", "&To");
    connect(words_, &QLineEdit::textChanged, this, &SearchBar::changed);
    connect(unit_, &QComboBox::currentIndexChanged, this, &SearchBar::changed);
    connect(from_, &QLineEdit::textChanged, this, &SearchBar::changed);
    connect(to_, &QLineEdit::textChanged, this, &SearchBar::changed);
}

QLineEdit* SearchBar::addDate(const char* name, const char* caption) {
    auto* date = new QLineEdit(this);
    date->setObjectName(QString::fromLatin1(name));
    date->setPlaceholderText(QStringLiteral("YYYY-MM-DD"));
    date->setToolTip(QStringLiteral("A day, a month or a year: 2009-03-15, 2009-03 or 2009"));
    date->setFixedWidth(110);
    auto* label = new QLabel(QString::fromLatin1(caption), this);
    label->setBuddy(date);
    label->setContentsMargins(4, 0, 4, 0);
    layout()->addWidget(label);
    layout()->addWidget(date);
    return date;
}

SearchFields SearchBar::fields() const {
    SearchFields fields;
    fields.words = words_->text().toStdString();
    if (unit_->currentIndex() > 0)
        fields.unit = unit_->currentIndex() == 1 ? 'A' : 'V';
    fields.from = from_->text().toStdString();
    fields.to = to_->text().toStdString();
    return fields;
}

void SearchBar::focusWords() {
    words_->setFocus();
    words_->selectAll();
}

} // namespace tally::archive
