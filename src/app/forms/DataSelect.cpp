// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/DataSelect.h"

#include "core/forms/Words.h"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <algorithm>

namespace tally {

namespace {

constexpr const char* nothingChosen = "No Selection Made\r  Click on filename";

QPushButton* button(const char* name, const char* caption, QWidget* parent) {
    auto* made = new QPushButton(QString::fromLatin1(caption), parent);
    made->setObjectName(QString::fromLatin1(name));
    made->setAutoDefault(false);
    return made;
}

} // namespace

DataSelect::DataSelect(const Recordings& recordings, Prompt& prompt, QWidget* parent)
    : QDialog(parent),
      recordings_(recordings),
      prompt_(prompt),
      list_(new QListWidget(this)),
      scroll_(new QScrollBar(Qt::Horizontal, this)),
      details_(new QLabel(this)) {
    setObjectName(QStringLiteral("DataSelect"));
    setWindowTitle(QStringLiteral("Select Data"));
    list_->setObjectName(QStringLiteral("List1"));
    list_->setAccessibleName(QStringLiteral("Open files"));
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setTextElideMode(Qt::ElideNone);
    scroll_->setObjectName(QStringLiteral("HScroll1"));
    scroll_->setAccessibleName(QStringLiteral("Scroll the file paths"));
    details_->setObjectName(QStringLiteral("scrollData"));
    details_->setTextFormat(Qt::PlainText);
    details_->setWordWrap(true);
    details_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    int longest = 1;
    for (int slot = 0; slot < Recordings::slotCount; ++slot) {
        list_->addItem(words(recordings.info(slot).path));
        longest = std::max(longest, int(list_->item(slot)->text().size()));
    }
    scroll_->setRange(1, longest);
    list_->setCurrentRow(0);
    auto* ok = button("Command1", "OK", this);
    auto* cancel = button("Command2", "Cancel", this);
    auto* show = button("Command3", "Show scroll data", this);
    ok->setDefault(true);
    auto* grid = new QGridLayout(this);
    grid->addWidget(list_, 0, 0, 1, 3);
    grid->addWidget(scroll_, 1, 0, 1, 3);
    grid->addWidget(details_, 2, 0, 1, 3);
    grid->addWidget(ok, 3, 0);
    grid->addWidget(cancel, 3, 1);
    grid->addWidget(show, 3, 2);
    connect(list_, &QListWidget::currentRowChanged, this, &DataSelect::List1_Click);
    connect(list_, &QListWidget::itemDoubleClicked, this, &DataSelect::Command1_Click);
    connect(scroll_, &QScrollBar::valueChanged, this, &DataSelect::HScroll1_Change);
    connect(ok, &QPushButton::clicked, this, &DataSelect::Command1_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(show, &QPushButton::clicked, this, &DataSelect::Command3_Click);
    resize(520, 240);
}

void DataSelect::List1_Click() {
    const int row = list_->currentRow();
    if (row < 0 || row == chosen_)
        return;
    if (recordings_.isOpen(row)) {
        chosen_ = row;
        if (!details_->text().isEmpty())
            Command3_Click();
        return;
    }
    prompt_.show({.text = nothingChosen, .title = "Error"});
    list_->setCurrentRow(chosen_);
}

// The text of the list begins with the character that the bar stands at.
void DataSelect::HScroll1_Change() {
    for (int slot = 0; slot < Recordings::slotCount; ++slot)
        list_->item(slot)->setText(words(recordings_.info(slot).path).mid(scroll_->value() - 1));
}

void DataSelect::Command1_Click() {
    ginx_ = chosen_;
    accept();
}

void DataSelect::Command3_Click() {
    details_->setText(words(scrollData()));
}

std::string DataSelect::scrollData() const {
    const FileFacts& info = recordings_.info(chosen_);
    std::string text = info.path + "\n";
    text += screenTime(info.start) + "   to   " + screenTime(timeOf(info, info.count - 1));
    text += "   " + std::to_string(info.count) + " readings, range " + info.rangeWord();
    constexpr const char* labels[] = {"Location: ", "Circuit: ", "Name: ", "Other: "};
    for (std::size_t i = 0; i < 4; ++i)
        text += "\n" + std::string(labels[i]) + recordings_.gNotes[std::size_t(chosen_)][i];
    return text;
}

int AppSlotChooser::choose(const Recordings& recordings, int) {
    DataSelect form(recordings, prompt_, window_);
    form.exec();
    return form.ginx();
}

} // namespace tally
